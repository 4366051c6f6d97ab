// The few operating-system calls of the library, behind one neutral interface.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace vantora::platform {

// What tells one state of a file from another without reading it: a file written since, or
// another file put in its place, differs in at least one member.
struct FileStamp
{
    std::int64_t size = 0;
    std::int64_t modifiedNs = 0; // last write, nanoseconds since 1970
    std::int64_t changedNs = 0;  // last change of content or metadata (a rename, a replacement)
    std::uint64_t volume = 0;    // device or volume serial number
    std::uint64_t fileId = 0;    // inode or file index, unique on its volume while the file lives

    bool operator==(const FileStamp &other) const
    {
        return size == other.size && modifiedNs == other.modifiedNs && changedNs == other.changedNs
            && volume == other.volume && fileId == other.fileId;
    }
    bool operator!=(const FileStamp &other) const { return !(*this == other); }
};

struct ListedFile
{
    QString name; // without the folder
    FileStamp stamp;
};

// The plain files of `folder` (no folders, links or devices) whose names `wanted` accepts, in
// the order the system lists them, with their stamps: one pass over the folder. Empty when the
// folder cannot be listed.
std::vector<ListedFile> listPlainFiles(const QString &folder, bool (*wanted)(const QString &name));

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

// Gives the file (or link) `path` the second name `other` without touching it. False where the
// file system has no such links, or when `other` exists.
bool addHardLink(const QString &path, const QString &other);

// Whether anything (a file, a folder, a link, even a broken one) has the name `path`.
bool pathExists(const QString &path);

// Renames a file, folder or link (never what a link points to) in one step. False when nothing
// was moved; something else already named `to` is never replaced.
bool renamePath(const QString &from, const QString &to);

// Removes whatever `path` is: a file or a link (never what it points to), or a folder with
// everything in it, links inside removed as links. True when nothing is left at `path`.
bool removeTree(const QString &path);

// Makes the renames and removals inside `folder` durable (where the system needs to be told).
void syncFolder(const QString &folder);

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
