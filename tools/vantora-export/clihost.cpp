#include "clihost.h"

#include "panoramapicture.h"

#include <vantora/host.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>
#include <QTemporaryDir>

#include <string>
#include <vector>

namespace vantora::cli {
namespace {

// Room of each path buffer lent to the library; it copies into them without a length check.
constexpr std::size_t BUFFER_CHARS = 32768;
constexpr int THUMBNAIL_WIDTH = 256;
constexpr std::uint32_t DEFAULT_QUALITY = 80;

QString fromHost(const char16_t *text)
{
    return text ? QString::fromUtf16(text) : QString();
}

extern "C" void cliStart(void *) { }

extern "C" void cliClose(HostContext *) { }

// Draws the stand-in panorama at a modest size and writes it as the preview image and the
// thumbnail into the image-data folder; tells the viewer about the preview through "image".
extern "C" std::uint32_t cliWriteTiles(HostContext *host, HostTileRequest *request)
{
    if (!request || request->size < sizeof(HostTileRequest) || !request->outputFolder
        || !request->identifier || !request->setNodeMember)
        return 0;
    const QString id = fromHost(request->identifier);
    const QString tilesName = id + QStringLiteral("_tiles");
    const QString tiles = fromHost(request->outputFolder) + tilesName + QLatin1Char('/');
    if (!QDir().mkpath(tiles))
        return 0;

    PictureExtent extent;
    extent.startPan = request->startPan;
    extent.endPan = request->endPan;
    extent.upperEdge = request->upperEdgeTilt;
    extent.lowerEdge = request->lowerEdgeTilt;
    extent.flat = request->flatMode != 0;
    const QSize outputSize(int(qMin<std::uint32_t>(request->outputWidth, 1u << 30)),
        int(qMin<std::uint32_t>(request->outputHeight, 1u << 30)));
    const QImage picture = drawPanorama(pictureSize(outputSize), extent);
    const QImage thumbnail = picture.scaledToWidth(THUMBNAIL_WIDTH, Qt::SmoothTransformation);

    const int quality = int(host && host->jpegQuality ? host->jpegQuality : DEFAULT_QUALITY);
    const QString previewName = id + QStringLiteral("_0.jpg");
    if (!thumbnail.save(tiles + id + QStringLiteral("_thumb.jpg"), "JPG", quality)
        || !picture.save(tiles + previewName, "JPG", quality))
        return 0;

    const QJsonObject image {
        {QStringLiteral("type"), QStringLiteral("single")},
        {QStringLiteral("url"), tilesName + QLatin1Char('/') + previewName},
        {QStringLiteral("width"), picture.width()},
        {QStringLiteral("height"), picture.height()},
    };
    const QByteArray json = QJsonDocument(image).toJson(QJsonDocument::Compact);
    return request->setNodeMember(request->node, "image", json.constData()) ? 1 : 0;
}

// The library names the host's compiled-in bitmaps by resource path; this host has few, and a
// missing one only leaves a hotspot without its picture.
extern "C" std::uint32_t cliExportResource(const char16_t *resourcePath, const char16_t *targetPath)
{
    const QString target = fromHost(targetPath);
    QFile::remove(target);
    return QFile::copy(fromHost(resourcePath), target) ? 1 : 0;
}

} // namespace

bool runExport(const QString &libraryPath, const ExportOptions &options, ExportOutcome *outcome,
    QString *error)
{
    // Never unloaded: the library keeps process-wide state, as it expects of a host.
    QLibrary library(libraryPath);
    if (!library.load()) {
        *error = QStringLiteral("cannot load the library: %1").arg(library.errorString());
        return false;
    }
    const auto exportApplet = reinterpret_cast<ExportAppletFn>(library.resolve("export_applet"));
    if (!exportApplet) {
        *error = QStringLiteral("%1 has no export_applet").arg(libraryPath);
        return false;
    }

    // The settings folder is the host's; a run of this tool leaves the user's folders alone.
    QTemporaryDir settingsFolder;
    if (!settingsFolder.isValid()) {
        *error
            = QStringLiteral("cannot make a settings folder: %1").arg(settingsFolder.errorString());
        return false;
    }
    const std::u16string settings = (settingsFolder.path() + QLatin1Char('/')).toStdU16String();
    const std::u16string install = options.installFolder.toStdU16String();
    std::vector<char16_t> pathBuffer(BUFFER_CHARS, u'\0');
    std::vector<char16_t> outputBuffer(BUFFER_CHARS, u'\0');
    const std::u16string target = options.pagePath.left(int(BUFFER_CHARS) - 1).toStdU16String();
    std::copy(target.begin(), target.end(), pathBuffer.begin());

    // Zero-initialised: the host's own bytes and every operation this host does not offer.
    HostContext host = {};
    host.documentId = 1;
    host.imageWidth = options.imageWidth;
    host.imageHeight = options.imageHeight;
    host.start = cliStart;
    host.close = cliClose;
    host.upperEdgeTilt = -options.vextent / 2;
    host.lowerEdgeTilt = options.vextent / 2;
    host.startPan = -options.hextent / 2;
    host.endPan = options.hextent / 2;
    host.pathBuffer = pathBuffer.data();
    host.outputPath = outputBuffer.data();
    host.installFolder = install.c_str();
    host.settingsFolder = settings.c_str();
    host.writeTiles = cliWriteTiles;
    host.exportResource = cliExportResource;
    host.flatImage = options.flat ? 1 : 0;
    host.pageWidth = options.pageWidth;
    host.pageHeight = options.pageHeight;
    host.fitToPage = options.fitToPage ? 1 : 0;
    // The stand-in picture is equirectangular: tilt runs linearly down the rows.
    host.linearVertical = 1;
    host.jpegQuality = options.quality;
    host.nonInteractive = 1;

    std::uint64_t word = 0;
    exportApplet(VANTORA_PREPARE, &host, &word);
    word = 0;
    exportApplet(VANTORA_WRITE, &host, &word);

    outcome->result = word;
    outcome->pagePath = fromHost(outputBuffer.data());
    outcome->pan = host.viewPan;
    outcome->tilt = host.viewTilt;
    outcome->hfov = host.viewHfov;
    outcome->minhfov = host.viewMinHfov;
    outcome->maxhfov = host.viewMaxHfov;
    return true;
}

QString describeResult(std::uint64_t result)
{
    switch (result) {
    case VANTORA_WRITE_DONE:
        return QStringLiteral("done");
    case VANTORA_WRITE_PAGE_NOT_WRITABLE:
        return QStringLiteral("page not writable");
    case VANTORA_WRITE_FAILED:
        return QStringLiteral("writing failed");
    case VANTORA_WRITE_NO_VIEWER:
        return QStringLiteral("viewer script missing in the installation folder");
    default:
        return QStringLiteral("unknown result");
    }
}

} // namespace vantora::cli
