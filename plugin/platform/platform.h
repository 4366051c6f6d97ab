// The few operating-system calls of the library, behind one neutral interface.
#pragma once

#include <QByteArray>
#include <QString>

namespace vantora::platform {

// Writes `bytes` into a new file at `path` and flushes it to the disk. Whatever had that name
// before (a file or a link) is removed first; a link is never followed. On failure the partial
// file is removed and false returned.
bool writeNewFile(const QString &path, const QByteArray &bytes);

// Moves the file `from` to `to` in one step, replacing whatever `to` is (a file or a link itself,
// never what a link points to). With a `backup` name the replaced file stays under that name.
// False when nothing was moved; `to` is then as it was.
bool replaceFile(const QString &from, const QString &to, const QString &backup = QString());

// Removes a file or a link (never what it points to). True when nothing is left at `path`.
bool removeFile(const QString &path);

// Whether `path` itself is a symbolic link (or another reparse point).
bool isLink(const QString &path);

// The bytes of a text as a text-mode file holds them: line feeds become the platform's line end.
QByteArray withPlatformLineEnds(const QByteArray &text);

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
