// Reads and edits INI files of arbitrary bytes with the private-profile rules, and runs the
// first-line conversion over them.
#include "settings/inifile.h"

#include <cstdint>
#include <cstdlib>

using namespace vantora::settings;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size > 1u << 20)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    const ini::IniText file = ini::decode(bytes);
    const QString section = QStringLiteral("Applet"), key = QStringLiteral("MapZoom");
    ini::lookup(file.text, section, key);
    ini::firstLineConverted(bytes);

    // A key just set is the one a lookup finds; encoding and decoding keep the text.
    ini::IniText changed = file;
    changed.text = ini::assign(file.text, section, key, QStringLiteral("7"));
    if (ini::lookup(changed.text, section, key).value_or(QString()) != QStringLiteral("7"))
        std::abort();
    // A file with a byte-order mark keeps its encoding and its text; one without may read
    // differently once the key is in (a lone byte of another code page replaced, say).
    const ini::IniText reread = ini::decode(ini::encode(changed));
    const bool marked = changed.encoding == ini::Encoding::Utf16Le
        || changed.encoding == ini::Encoding::Utf16Be || changed.encoding == ini::Encoding::Utf8Bom;
    if (marked && (reread.encoding != changed.encoding || reread.text != changed.text))
        std::abort();
    return 0;
}
