// Reads preset files of arbitrary bytes through the settings table and checks what the reader
// must hold whatever the bytes: every number it gives is finite, and the same text gives the same
// values in whichever encoding the file holds it (a preset saved again is UTF-16LE).
#include "settings/inifile.h"
#include "settings/presetfile.h"
#include "settings/settingstable.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <type_traits>

using namespace vantora::settings;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 1u << 20)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const Preset values = presetFromBytes(bytes);

    forEachField(values.settings, [](const SettingRow &, const auto &value) {
        if constexpr (std::is_same_v<std::decay_t<decltype(value)>, double>)
            if (!std::isfinite(value))
                std::abort();
    });

    ini::IniText text = ini::decode(bytes);
    text.encoding = ini::Encoding::Utf16Le;
    if (presetFromBytes(ini::encode(text)) != values)
        std::abort();
    return 0;
}
