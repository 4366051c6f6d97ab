// Reads hotspot files of arbitrary bytes as the command-line host does, and builds the host's
// records of every page from what it accepts.
#include "tools/vantora-export/hotspotfile.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>

using namespace vantora::cli;

namespace {

// The hotspot file's folder: bitmaps are named relative to it and must exist.
QString g_folder;

} // namespace

// Full stacks for every allocation, so that the suppression of Qt's own JSON leak (lsan.supp) can
// see the parser's frame.
extern "C" const char *__asan_default_options()
{
    return "fast_unwind_on_malloc=0";
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static QTemporaryDir folder;
    g_folder = folder.path();
    QFile bitmap(folder.filePath(QStringLiteral("a.png")));
    return bitmap.open(QIODevice::WriteOnly) && bitmap.write("png") == 3 ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 1u << 20)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QVector<HotspotSpec> hotspots;
    QString error;
    const bool read
        = parseHotspotFile(bytes, g_folder + QStringLiteral("/hotspots.json"), &hotspots, &error);
    // A refusal says why in one line; an acceptance says nothing.
    if (!read && (error.isEmpty() || error.contains(QLatin1Char('\n'))))
        std::abort();
    if (!read)
        return 0;
    for (const bool flat : {false, true}) {
        const PageFrame frame
            = frameFor(4000, flat ? 3000 : 2000, flat, std::nullopt, std::nullopt);
        PageHotspots page;
        QString buildError;
        if (page.build(hotspots, QStringLiteral("pano"), frame, &buildError)) {
            const HostHotspotList *list = page.list();
            if (list && list->end - list->begin != page.count())
                std::abort();
        } else if (buildError.isEmpty()) {
            std::abort();
        }
    }
    return 0;
}
