#include "tilewriter.h"

#include "filesystem.h"
#include "interruption.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <vips/vips8>

#include <algorithm>

namespace vantora::cli {
namespace {

constexpr int THUMBNAIL_SIZE = 256;
// The image library cuts the pyramid under this name in the staging folder; the levels then move
// into the image-data folder, so that the layout is ours and not the library's.
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

void onEval(VipsImage *image, VipsProgress *progress, void *data)
{
    // Ctrl-C: the image library stops cutting, the tile writer fails, and the export with it.
    if (interrupted())
        vips_image_set_kill(image, TRUE);
    auto *relay = static_cast<ProgressRelay *>(data);
    if (progress->percent != relay->last && *relay->report) {
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

// Whether the staged pyramid holds exactly the tiles of `levels`, each a non-empty file: nothing
// missing, and nothing else (no half-written or temporary file) that would be published with it.
bool isComplete(const QString &stagedLevels, const QVector<PyramidLevel> &levels,
    const QString &extension, QString *error)
{
    const QDir staged(stagedLevels);
    // Only the level folders move; the image library's own notes beside them stay behind.
    QStringList found = staged.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
    found.erase(std::remove_if(found.begin(), found.end(),
                    [](const QString &name) { return name.isEmpty() || !name.at(0).isDigit(); }),
        found.end());
    if (found.size() != levels.size()) {
        *error = QStringLiteral("the tile writer made %1 levels instead of %2")
                     .arg(found.size())
                     .arg(levels.size());
        return false;
    }
    for (int level = 0; level < levels.size(); ++level) {
        const QDir folder(staged.filePath(QString::number(level)));
        const QFileInfoList tiles = folder.entryInfoList(
            QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System | QDir::Hidden);
        const PyramidLevel &expected = levels.at(level);
        bool whole = tiles.size() == expected.columns * expected.rows;
        for (int column = 0; whole && column < expected.columns; ++column)
            for (int row = 0; whole && row < expected.rows; ++row) {
                const QFileInfo tile(folder.filePath(
                    QStringLiteral("%1_%2.%3").arg(column).arg(row).arg(extension)));
                whole = tile.isFile() && !tile.isSymLink() && tile.size() > 0;
            }
        if (!whole) {
            *error = QStringLiteral("the tiles of level %1 are incomplete").arg(level);
            return false;
        }
    }
    return true;
}

// Gathers the levels and the thumbnail, by renames, into the folder that takes the place of the
// image-data folder: exactly what the page needs, nothing of the image library's own.
bool assemble(const QString &tilesFolder, const QString &stagedLevels, int levelCount,
    const QString &stagedThumbnail, const QString &thumbnail, QString *error)
{
    const QString folder = stagedTilesFolder(tilesFolder);
    if (!removePath(folder) || !QDir().mkdir(folder)) {
        *error = QStringLiteral("cannot make the folder %1").arg(QDir::toNativeSeparators(folder));
        return false;
    }
    const QDir target(folder);
    bool moved = true;
    for (int level = 0; moved && level < levelCount; ++level)
        moved = QDir().rename(stagedLevels + QLatin1Char('/') + QString::number(level),
            target.filePath(QString::number(level)));
    moved = moved && QDir().rename(stagedThumbnail, target.filePath(thumbnail));
    if (!moved) {
        *error
            = QStringLiteral("cannot gather the tiles in %1").arg(QDir::toNativeSeparators(folder));
        removePath(folder);
    }
    return moved;
}

} // namespace

TileResult writeTilePyramid(const TileJob &job)
{
    TileResult result;
    if (!job.source || job.outputWidth < 1 || job.outputHeight < 1) {
        result.error = QStringLiteral("nothing to tile");
        return result;
    }
    if (interrupted()) {
        result.error = QStringLiteral("interrupted");
        return result;
    }
    // Everything is cut into a fresh folder beside the image-data folder and moves in only when
    // complete: a failure leaves the earlier export's tiles as they were.
    const QString stagingFolder = job.tilesFolder + QStringLiteral(".vantora-staging");
    if (!removePath(stagingFolder) || !QDir().mkpath(stagingFolder)) {
        result.error = QStringLiteral("cannot make the folder %1").arg(stagingFolder);
        return result;
    }
    const QString staged = stagingFolder + QLatin1Char('/') + QLatin1String(STAGING_NAME);
    const QString stagedThumbnail = stagingFolder + QStringLiteral("/thumbnail.jpg");
    const QString extension = tileExtension(job.format);
    // The image library picks the encoder by the suffix; the quality scale is the same for both.
    const QByteArray tileSuffix
        = '.' + extension.toLatin1() + "[Q=" + QByteArray::number(job.quality) + ",strip]";
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
        const ProgressConnection connection(picture.get_image(), &relay);
        picture.dzsave(fileName(staged).constData(),
            vips::VImage::option()
                ->set("layout", VIPS_FOREIGN_DZ_LAYOUT_DZ)
                ->set("depth", VIPS_FOREIGN_DZ_DEPTH_ONETILE)
                ->set("tile_size", TILE_SIZE)
                ->set("overlap", 0)
                ->set("suffix", tileSuffix.constData()));

        // The smallest level holds the whole picture in one tile: shrinking it is far cheaper
        // than reading the source a second time.
        const QString smallest = staged + QStringLiteral("_files/0/0_0.") + extension;
        const vips::VImage thumbnail = vips::VImage::thumbnail(fileName(smallest).constData(),
            THUMBNAIL_SIZE, vips::VImage::option()->set("size", VIPS_SIZE_DOWN));
        thumbnail.jpegsave(fileName(stagedThumbnail).constData(),
            vips::VImage::option()->set("Q", job.quality)->set("strip", true));
    } catch (const vips::VError &failure) {
        result.error = interrupted() ? QStringLiteral("interrupted")
                                     : QString::fromUtf8(failure.what()).simplified();
        vips_error_clear();
        removePath(stagingFolder);
        return result;
    }

    result.levels = pyramidLevels(width, height);
    const QString stagedLevels = staged + QStringLiteral("_files");
    const bool complete = isComplete(stagedLevels, result.levels, extension, &result.error)
        && QFileInfo(stagedThumbnail).size() > 0;
    if (complete && result.error.isEmpty())
        result.ok = assemble(job.tilesFolder, stagedLevels, result.levels.size(), stagedThumbnail,
            thumbnailName(job.identifier), &result.error);
    else if (result.error.isEmpty())
        result.error = QStringLiteral("the thumbnail was not written");
    removePath(stagingFolder);
    return result;
}

} // namespace vantora::cli
