// Reads preset files of arbitrary bytes through the settings table, and writes every key over
// them in memory as a save would.
#include "settings/presetfile.h"

#include <cstdint>
#include <cstdlib>

using namespace vantora::settings;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 1u << 20)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const Preset values = presetFromBytes(bytes);

    // A saved preset is UTF-16LE whatever it was before, and reading it again is stable: a
    // second save over the first one gives the same values back.
    const QByteArray saved = presetFileBytes(bytes, values);
    if (!saved.startsWith("\xFF\xFE"))
        std::abort();
    const Preset reread = presetFromBytes(saved);
    if (!(presetFromBytes(presetFileBytes(saved, reread)) == reread))
        std::abort();
    return 0;
}
