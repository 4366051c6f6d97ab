// One INI key at a time, in the encodings that presets and the host INI use.
#pragma once

#include "inifile.h"

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

// Reads an INI file's bytes whole; a missing file reads as empty. False (and a logged line) when
// the file exists but cannot be read.
bool readIniBytes(const QString &path, QByteArray *bytes);

// An INI file changed key by key in memory, exactly as the product's key-by-key writes would
// change it on the disk, then written once.
//
// Before each key: a missing or empty file becomes an empty UTF-16LE one (the system's profile
// writer creates new files in the 8-bit code page, and the first string key written afterwards
// would convert such a file keeping only its first line). Before a string key, a file that is not
// UTF-16LE is brought into UTF-16LE the way the product always has: only its first line survives,
// read in text mode, each byte sign-extended into one UTF-16 unit.
class IniEdit
{
public:
    explicit IniEdit(const QByteArray &bytes);
    void set(const QString &section, const QString &key, const QString &value, bool stringKey);
    // The file's bytes as they now stand.
    QByteArray bytes() const;
    // Replaces the file in one step; false (and a logged line) when it cannot be written.
    bool write(const QString &path) const;

private:
    ini::IniText m_ini;
    QByteArray m_bytes; // the file as read, until the first change
    bool m_changed = false;
};

// Writes a string key (plain or coded): the file is created or converted to UTF-16LE first.
bool writeIniString(
    const QString &path, const QString &section, const QString &key, const QString &value);
// Writes a number or flag key; only a missing or empty file is prepared first.
bool writeIniNumber(
    const QString &path, const QString &section, const QString &key, const QString &value);

} // namespace vantora::settings
