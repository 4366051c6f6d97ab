#include "hostrecord.h"

#include "filesystem.h"

#include "locationfiller.h"
#include "resourceexporter.h"
#include "tilewriter.h"

#include <QElapsedTimer>
#include <QJsonDocument>

#include <cstddef>
#include <type_traits>

namespace vantora::cli {
namespace {

// Room of each path buffer lent to the library; it copies into them without a length check.
constexpr std::size_t BUFFER_CHARS = 32768;

// Nothing to prepare or tidy up around the writing: the tool has no window for a busy cursor,
// and its progress line follows the tile writer.
extern "C" void hostStart(void *) { }

extern "C" void hostClose(HostContext *) { }

extern "C" std::uint32_t hostExportResource(
    const char16_t *resourcePath, const char16_t *targetPath)
{
    return exportResource(pathFromHost(resourcePath), pathFromHost(targetPath)) ? 1 : 0;
}

} // namespace

QString pathFromHost(const char16_t *text)
{
    return text ? QString::fromUtf16(text) : QString();
}

HostRecord::HostRecord(const PageJob &job)
    : m_job(job)
    , m_installFolder(job.installFolder.toStdU16String())
    , m_settingsFolder(job.settingsFolder.toStdU16String())
    , m_pathBuffer(BUFFER_CHARS, u'\0')
    , m_outputBuffer(BUFFER_CHARS, u'\0')
{
    static_assert(std::is_standard_layout_v<Record> && offsetof(Record, context) == 0,
        "the host operations cast the HostContext back to its record");
    const std::u16string target = job.pagePath.left(int(BUFFER_CHARS) - 1).toStdU16String();
    std::copy(target.begin(), target.end(), m_pathBuffer.begin());

    m_record.owner = this;
    // Zero-initialised: the host's own bytes, no stored view, no dialog services.
    HostContext &host = m_record.context;
    host.documentId = job.documentId;
    host.imageWidth = std::uint32_t(job.source->width);
    host.imageHeight = std::uint32_t(job.source->height);
    host.start = hostStart;
    host.close = hostClose;
    // Pan runs from 0 at the left edge; tilt downward positive, the horizon in the middle.
    host.upperEdgeTilt = -job.frame.vextent / 2;
    host.lowerEdgeTilt = job.frame.vextent / 2;
    host.startPan = 0.0;
    host.endPan = job.frame.hextent;
    // A web page may be opened on a phone: let the viewer offer the motion sensor.
    host.gyroCapable = 1;
    host.pathBuffer = m_pathBuffer.data();
    host.hotspots = job.hotspots ? job.hotspots->list() : nullptr;
    host.outputPath = m_outputBuffer.data();
    host.installFolder = m_installFolder.c_str();
    host.settingsFolder = m_settingsFolder.c_str();
    host.writeTiles = writeTiles;
    host.exportResource = hostExportResource;
    host.fillLocation = fillLocation;
    host.queryLocation = queryLocation;
    host.locationCookie = reinterpret_cast<std::uintptr_t>(this);
    host.flatImage = job.frame.flat ? 1 : 0;
    host.pageWidth = job.pageWidth;
    host.pageHeight = job.pageHeight;
    host.fitToPage = job.fitToPage ? 1 : 0;
    // The tool's pictures are equirectangular: tilt runs linearly down the rows.
    host.linearVertical = 1;
    host.jpegQuality = std::uint32_t(job.quality);
    host.parentWindow = job.parentWindow;
    host.nonInteractive = job.parentWindow ? 0 : 1;
}

void HostRecord::finishTiles()
{
    if (!m_tiles.stagedFolder.isEmpty())
        removePath(m_tiles.stagedFolder);
}

HostRecord &HostRecord::ownerOf(HostContext *host)
{
    return *reinterpret_cast<Record *>(host)->owner;
}

std::uint32_t HostRecord::writeTiles(HostContext *host, HostTileRequest *request)
{
    if (!host || !request || request->size < sizeof(HostTileRequest) || !request->outputFolder
        || !request->identifier || !request->setNodeMember)
        return 0;
    HostRecord &self = ownerOf(host);
    TileOutcome &outcome = self.m_tiles;
    outcome.called = true;

    // The identifier stays as the library proposed it: the page, parameter file and tiles share
    // one base name, and nothing here needs another.
    const QString identifier = pathFromHost(request->identifier);
    TileJob job;
    job.source = self.m_job.source;
    job.tilesFolder = pathFromHost(request->outputFolder) + tilesFolderName(identifier);
    job.identifier = identifier;
    job.outputWidth = int(request->outputWidth);
    job.outputHeight = int(request->outputHeight);
    job.quality = int(host->jpegQuality ? host->jpegQuality : 80);
    job.format = self.m_job.tileFormat;
    job.progress = self.m_job.progress;
    QElapsedTimer clock;
    clock.start();
    TileResult result = writeTilePyramid(job);
    outcome.elapsedMs = clock.elapsed();
    outcome.stagedFolder = stagedTilesFolder(job.tilesFolder);
    if (!result.ok) {
        outcome.error = result.error;
        return 0;
    }

    Projection projection;
    projection.flat = request->flatMode != 0;
    projection.hextent = request->endPan - request->startPan;
    projection.vextent = request->lowerEdgeTilt - request->upperEdgeTilt;
    const QByteArray image
        = QJsonDocument(imageMember(identifier, result.levels, projection, job.format))
              .toJson(QJsonDocument::Compact);
    if (!request->setNodeMember(request->node, "image", image.constData())) {
        outcome.error = QStringLiteral("the library refused the tile description");
        return 0;
    }
    outcome.ok = true;
    return 1;
}

void HostRecord::fillLocation(HostContext *host, VantoraJsonObject *location,
    VantoraJsonSetFn setMember, std::uint32_t forMap, std::uint32_t forOrientation)
{
    if (!host)
        return;
    cli::fillLocation(
        ownerOf(host).m_job.location, location, setMember, forMap != 0, forOrientation != 0);
}

void HostRecord::queryLocation(
    std::uint64_t cookie, std::uint32_t *hasOrientation, std::uint32_t *hasLocation)
{
    const auto *self = reinterpret_cast<const HostRecord *>(std::uintptr_t(cookie));
    const std::optional<Location> &location = self->m_job.location;
    if (hasOrientation)
        *hasOrientation = location && location->north ? 1 : 0;
    if (hasLocation)
        *hasLocation = location ? 1 : 0;
}

} // namespace vantora::cli
