// The host side of one page: the HostContext handed to the library, filled field by field through
// the public header, and the host operations the library calls back.
#pragma once

#include "hotspotfile.h"
#include "options.h"
#include "pageframe.h"
#include "sourceimage.h"

#include <vantora/host.h>

#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vantora::cli {

struct PageJob
{
    const SourceImage *source = nullptr;
    QString pagePath; // absolute
    PageFrame frame;
    std::uint64_t documentId = 1;
    int quality = 80;
    TileFormat tileFormat = TileFormat::Jpeg;
    int pageWidth = 800;
    int pageHeight = 600;
    bool fitToPage = false;
    const PageHotspots *hotspots = nullptr;
    std::optional<Location> location;
    QString installFolder;  // ends in a separator
    QString settingsFolder; // ends in a separator
    std::function<void(int percent)> progress;
    // Non-null: an interactive export, the library's dialogs open over this QWidget.
    void *parentWindow = nullptr;
};

// What the tile writer did, for the summary and the error line.
struct TileOutcome
{
    bool called = false;
    bool ok = false;
    QString error;
    qint64 elapsedMs = 0; // wall time spent cutting tiles
    QString stagedFolder; // the finished image data, until the library has moved it in
};

class HostRecord
{
public:
    explicit HostRecord(const PageJob &job);
    HostRecord(const HostRecord &) = delete;
    HostRecord &operator=(const HostRecord &) = delete;

    HostContext *context() { return &m_record.context; }
    const TileOutcome &tiles() const { return m_tiles; }
    // Once the library has answered: it has moved the new image data in with the page, or
    // dropped it with the rest of a failed export; whatever it left is not published.
    void finishTiles();

private:
    // The library hands back only the HostContext pointer; the record starts with it, so the
    // host operations find their way back to this object.
    struct Record
    {
        HostContext context;
        HostRecord *owner;
    };

    static HostRecord &ownerOf(HostContext *host);
    static std::uint32_t writeTiles(HostContext *host, HostTileRequest *request);
    static void fillLocation(HostContext *host, VantoraJsonObject *location,
        VantoraJsonSetFn setMember, std::uint32_t forMap, std::uint32_t forOrientation);
    static void queryLocation(
        std::uint64_t cookie, std::uint32_t *hasOrientation, std::uint32_t *hasLocation);

    const PageJob &m_job;
    Record m_record {};
    TileOutcome m_tiles;
    std::u16string m_installFolder;
    std::u16string m_settingsFolder;
    std::vector<char16_t> m_pathBuffer;
    std::vector<char16_t> m_outputBuffer;
};

// The page path the library handed back in its output buffer.
QString pathFromHost(const char16_t *text);

} // namespace vantora::cli
