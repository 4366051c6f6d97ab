#include "tilewriter.h"

#include <QDir>
#include <QFile>

#include <vips/vips8>

namespace vantora::cli {
namespace {

constexpr int THUMBNAIL_SIZE = 256;
// The library cuts the pyramid under this name and the levels are then moved up one folder,
// so that the layout is ours and not the library's.
constexpr char STAGING_NAME[] = "pyramid";

QByteArray fileName(const QString &path)
{
    return QFile::encodeName(path);
}

vips::VImage openPixels(const SourceImage &source)
{
    // A truncated file fails the export instead of giving tiles with a grey hole.
    if (!source.path.isEmpty())
        return vips::VImage::new_from_file(fileName(source.path).constData(),
            vips::VImage::option()
                ->set("access", VIPS_ACCESS_SEQUENTIAL)
                ->set("fail_on", VIPS_FAIL_ON_TRUNCATED));
    // The sample's rows are tightly packed: its width is a multiple of four.
    return vips::VImage::new_from_memory(const_cast<uchar *>(source.memory.constBits()),
        size_t(source.memory.sizeInBytes()), source.width, source.height, 3, VIPS_FORMAT_UCHAR);
}

// Eight-bit sRGB without alpha, the one thing a JPEG tile can hold.
vips::VImage forJpeg(vips::VImage image)
{
    if (image.has_alpha())
        image = image.flatten(vips::VImage::option()->set("background", 255.0));
    if (image.interpretation() != VIPS_INTERPRETATION_sRGB)
        image = image.colourspace(VIPS_INTERPRETATION_sRGB);
    if (image.format() != VIPS_FORMAT_UCHAR)
        image = image.cast(VIPS_FORMAT_UCHAR);
    return image;
}

struct ProgressRelay
{
    const std::function<void(int)> *report;
    int last = -1;
};

void onEval(VipsImage *, VipsProgress *progress, void *data)
{
    auto *relay = static_cast<ProgressRelay *>(data);
    if (progress->percent != relay->last) {
        relay->last = progress->percent;
        (*relay->report)(progress->percent);
    }
}

// The image library's cache may keep the image alive after this run; the relay dies with it.
class ProgressConnection
{
public:
    ProgressConnection(VipsImage *image, ProgressRelay *relay)
        : m_image(image)
    {
        if (!m_image)
            return;
        vips_image_set_progress(m_image, TRUE);
        m_handler = g_signal_connect(m_image, "eval", G_CALLBACK(onEval), relay);
    }
    ~ProgressConnection()
    {
        if (m_image) {
            g_signal_handler_disconnect(m_image, m_handler);
            vips_image_set_progress(m_image, FALSE);
        }
    }
    ProgressConnection(const ProgressConnection &) = delete;
    ProgressConnection &operator=(const ProgressConnection &) = delete;

private:
    VipsImage *m_image = nullptr;
    gulong m_handler = 0;
};

bool moveLevels(const QString &tilesFolder, int levelCount, QString *error)
{
    const QString staged = tilesFolder + QLatin1Char('/') + QLatin1String(STAGING_NAME);
    QDir folder(tilesFolder);
    // Levels of an earlier, larger export into the same folder would confuse nobody but waste
    // space; they go with the ones replaced.
    const QStringList previous = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : previous) {
        bool isLevel = false;
        name.toInt(&isLevel);
        if (isLevel && !QDir(folder.filePath(name)).removeRecursively()) {
            *error = QStringLiteral("cannot replace %1").arg(folder.filePath(name));
            return false;
        }
    }
    for (int level = 0; level < levelCount; ++level) {
        const QString name = QString::number(level);
        if (!folder.rename(staged + QStringLiteral("_files/") + name, name)) {
            *error = QStringLiteral("cannot move the tiles of level %1 into %2")
                         .arg(level)
                         .arg(tilesFolder);
            return false;
        }
    }
    QDir(staged + QStringLiteral("_files")).removeRecursively();
    QFile::remove(staged + QStringLiteral(".dzi"));
    return true;
}

} // namespace

TileResult writeTilePyramid(const TileJob &job)
{
    TileResult result;
    if (!job.source || job.outputWidth < 1 || job.outputHeight < 1) {
        result.error = QStringLiteral("nothing to tile");
        return result;
    }
    if (!QDir().mkpath(job.tilesFolder)) {
        result.error = QStringLiteral("cannot make the folder %1").arg(job.tilesFolder);
        return result;
    }
    const QByteArray jpegSuffix = ".jpg[Q=" + QByteArray::number(job.quality) + ",strip]";
    int width = 0;
    int height = 0;
    try {
        vips::VImage picture = forJpeg(openPixels(*job.source));
        if (picture.width() != job.outputWidth || picture.height() != job.outputHeight)
            picture = picture.resize(double(job.outputWidth) / picture.width(),
                vips::VImage::option()->set("vscale", double(job.outputHeight) / picture.height()));
        // Scaling rounds; the levels describe what was really cut.
        width = picture.width();
        height = picture.height();

        ProgressRelay relay {&job.progress};
        const ProgressConnection connection(job.progress ? picture.get_image() : nullptr, &relay);
        const QString staged = job.tilesFolder + QLatin1Char('/') + QLatin1String(STAGING_NAME);
        picture.dzsave(fileName(staged).constData(),
            vips::VImage::option()
                ->set("layout", VIPS_FOREIGN_DZ_LAYOUT_DZ)
                ->set("depth", VIPS_FOREIGN_DZ_DEPTH_ONETILE)
                ->set("tile_size", TILE_SIZE)
                ->set("overlap", 0)
                ->set("suffix", jpegSuffix.constData()));

        // The smallest level holds the whole picture in one tile: shrinking it is far cheaper
        // than reading the source a second time.
        const QString smallest = staged + QStringLiteral("_files/0/0_0.jpg");
        const vips::VImage thumbnail = vips::VImage::thumbnail(fileName(smallest).constData(),
            THUMBNAIL_SIZE, vips::VImage::option()->set("size", VIPS_SIZE_DOWN));
        thumbnail.jpegsave(
            fileName(job.tilesFolder + QLatin1Char('/') + thumbnailName(job.identifier))
                .constData(),
            vips::VImage::option()->set("Q", job.quality)->set("strip", true));
    } catch (const vips::VError &failure) {
        result.error = QString::fromUtf8(failure.what()).simplified();
        vips_error_clear();
        return result;
    }

    result.levels = pyramidLevels(width, height);
    if (!moveLevels(job.tilesFolder, result.levels.size(), &result.error))
        return result;
    result.ok = true;
    return result;
}

} // namespace vantora::cli
