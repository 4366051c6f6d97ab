// Reads preset files of arbitrary bytes through the settings table and checks what the reader
// must hold whatever the bytes: every number it gives is finite, and the same text gives the same
// values in whichever encoding the file holds it (a preset saved again is UTF-16LE).
#include "settings/inifile.h"
#include "settings/presetkeys.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>

using namespace vantora::settings;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 1u << 20)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const PresetValues values = presetValuesFromBytes(bytes);

    forEachPresetField([&](const char *, PresetField field) {
        if (const auto *member = std::get_if<double PresetValues::*>(&field))
            if (!std::isfinite(values.**member))
                std::abort();
    });

    ini::IniText text = ini::decode(bytes);
    text.encoding = ini::Encoding::Utf16Le;
    if (presetValuesFromBytes(ini::encode(text)) != values)
        std::abort();
    return 0;
}
