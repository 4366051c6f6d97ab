// The few operating-system calls of the library, behind one neutral interface.
#pragma once

#include <QString>

namespace vantora::platform {

// Copies `from` to `to`, replacing an existing file. False when the copy failed; copying a file
// onto itself succeeds and leaves it alone.
bool copyFileReplacing(const QString &from, const QString &to);

// Removes the read-only attribute of `path` (a copy of a read-only original stays writable).
void clearReadOnly(const QString &path);

// Opens `path` with the system's default handler for its type, in a normal window.
void openWithDefaultHandler(const QString &path);

// Private-profile access to an INI file, with the system's rules: sections and keys compared
// ignoring case, the first matching key wins, values cut to 65,535 characters.
QString profileString(
    const QString &path, const QString &section, const QString &key, const QString &defaultText);
// The key's decimal value; `defaultValue` when the key is missing.
int profileInt(const QString &path, const QString &section, const QString &key, int defaultValue);
// Sets the key (a new key at the end of its section, a new section at the end of the file),
// keeping the file's encoding. False when the file cannot be written.
bool writeProfileString(
    const QString &path, const QString &section, const QString &key, const QString &value);

} // namespace vantora::platform
