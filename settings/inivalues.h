// One INI key at a time, in the encodings that presets and the host INI use.
#pragma once

#include <QString>

namespace vantora::settings {

// True when the first four characters are exactly "TRUE" or the first one is "1".
bool boolFromIniText(const QString &text);
// `defaultValue` for an empty text; otherwise the number the text starts with (blanks, a sign,
// digits with a '.' and an exponent), 0 when it starts with none.
double doubleFromIniText(const QString &text, double defaultValue);
// "%.4f", with '.' whatever the locale.
QString iniTextOfDouble(double value);
// Base64 (standard alphabet, padded, one line) of the UTF-8 bytes, and back.
QString codedIniText(const QString &text);
QString decodedIniText(const QString &coded);

// A missing or empty file becomes a UTF-16LE file holding just its byte-order mark. The system's
// profile writer creates new files in the 8-bit code page, and the first string key written
// afterwards would convert such a file keeping only its first line: created this way first, a file
// written from scratch keeps every key.
bool createUtf16IniFile(const QString &path);

// Brings a file that is not UTF-16LE into UTF-16LE the way the product always has: only its first
// line survives, read in text mode, each byte sign-extended into one UTF-16 unit. Files already
// UTF-16LE, missing or empty files are left alone.
void convertIniFileToUtf16(const QString &path);

// Writes a string key (plain or coded): the file is created or converted to UTF-16LE first.
bool writeIniString(
    const QString &path, const QString &section, const QString &key, const QString &value);
// Writes a number or flag key; only a missing or empty file is prepared first.
bool writeIniNumber(
    const QString &path, const QString &section, const QString &key, const QString &value);

} // namespace vantora::settings
