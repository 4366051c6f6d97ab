// INI files with the private-profile rules, for platforms that lack the system's own functions.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

namespace vantora::settings::ini {

// How a file's characters are stored: UTF-16LE after the byte-order mark FF FE, UTF-16BE after
// FE FF, UTF-8 after EF BB BF or without a mark when the bytes are valid UTF-8 beyond ASCII, else
// one byte per character in the 8-bit code page (Latin-1 stands in for the system's ANSI code
// page).
enum class Encoding { Utf16Le, Ansi, Utf16Be, Utf8, Utf8Bom };

struct IniText
{
    QString text;
    Encoding encoding = Encoding::Ansi;
};

// A file's bytes as text; lines keep their own ends. An odd last byte of a UTF-16 file is dropped.
IniText decode(const QByteArray &bytes);
// The bytes of `ini` in its encoding, with the byte-order mark for UTF-16LE; characters the
// code page lacks become '?'.
QByteArray encode(const IniText &ini);

// The value of the first `key` in a section named `section` (both compared ignoring case and
// surrounding blanks), trimmed, and without one pair of matching enclosing quotes. Empty optional
// when there is no such key.
std::optional<QString> lookup(const QString &text, const QString &section, const QString &key);

// Every key of `text`, for reading many keys of one file in one pass: the value a lookup() of the
// same section and key would give, under indexKey(section, key).
using Index = QHash<QString, QString>;
Index index(const QString &text);
QString indexKey(const QString &section, const QString &key);

// The decimal value of a key's text as the system reads it (leading blanks and a sign allowed,
// reading stops at the first non-digit, no digits give 0, digits beyond 32 bits wrap around).
int intValue(const QString &text);

// The text a key's value is read as: at most 65,535 characters.
QString cutValue(const QString &value);

// `text` with `key` of `section` set to `value`: the first matching key's line is rewritten in
// place; a new key goes after the last non-blank line of the first matching section; a new
// section goes at the end. New lines end in CR LF; all other lines stay as they were.
QString assign(
    const QString &text, const QString &section, const QString &key, const QString &value);

// How the product has always brought a file that is not UTF-16LE into UTF-16LE: the first line of
// `bytes` read in text mode (CR LF read as LF, Ctrl-Z ending the file, at most size - 1 bytes, the
// line feed kept), each byte up to the first NUL sign-extended into one UTF-16 unit (0x80..0xFF
// become 0xFF80..0xFFFF), and a line feed written back as CR LF.
QString firstLineConverted(const QByteArray &bytes);

// The file-level operations, as the system's private-profile functions behave: a missing file
// reads as empty; a value is cut to 65,535 characters.
QString readString(
    const QString &path, const QString &section, const QString &key, const QString &defaultText);
// Decimal value of the key (leading blanks and a sign allowed, reading stops at the first
// non-digit, no digits give 0); `defaultValue` when the key is missing.
int readInt(const QString &path, const QString &section, const QString &key, int defaultValue);
// Sets the key, keeping the file's encoding; a missing file is created in the 8-bit code page, as
// the system's function does. False when the file cannot be written.
bool writeString(
    const QString &path, const QString &section, const QString &key, const QString &value);

} // namespace vantora::settings::ini
