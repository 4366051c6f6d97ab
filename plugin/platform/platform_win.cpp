// Windows twin of the platform layer: the kernel's and the shell's own calls.
#include "platform.h"

// windows.h first: shellapi.h builds on its types, so the two stay in separate blocks.
#include <windows.h>

#include <shellapi.h>

#include <QDir>

#include <vector>

namespace vantora::platform {
namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

// FILETIME ticks (100 ns since 1601) as nanoseconds since 1970.
std::int64_t nanoseconds(const LARGE_INTEGER &time)
{
    return (time.QuadPart - 116444736000000000LL) * 100;
}

} // namespace

bool writeNewFile(const QString &path, const QByteArray &bytes)
{
    if (!removeFile(path))
        return false;
    // CREATE_NEW fails on anything that appeared in between, a reparse point included.
    const HANDLE file = CreateFileW(wide(path), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
        FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return false;
    bool ok = true;
    const char *data = bytes.constData();
    qint64 left = bytes.size();
    while (ok && left > 0) {
        const DWORD chunk = DWORD(qMin<qint64>(left, 1 << 30));
        DWORD written = 0;
        ok = WriteFile(file, data, chunk, &written, nullptr) != 0 && written == chunk;
        data += written;
        left -= written;
    }
    ok = ok && FlushFileBuffers(file) != 0;
    ok = CloseHandle(file) != 0 && ok;
    if (!ok)
        DeleteFileW(wide(path));
    return ok;
}

bool replaceFile(const QString &from, const QString &to, const QString &backup)
{
    const DWORD target = GetFileAttributesW(wide(to));
    const bool plainFile = target != INVALID_FILE_ATTRIBUTES
        && !(target & (FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DIRECTORY));
    if (!backup.isEmpty() && plainFile) {
        removeFile(backup);
        // Keeps the old file under the backup name and puts the new one in its place.
        if (ReplaceFileW(wide(to), wide(from), wide(backup), REPLACEFILE_IGNORE_MERGE_ERRORS,
                nullptr, nullptr)
            != 0)
            return true;
        // ReplaceFileW can fail after moving the old file aside: then put it back.
        if (GetFileAttributesW(wide(to)) == INVALID_FILE_ATTRIBUTES)
            MoveFileExW(wide(backup), wide(to), MOVEFILE_WRITE_THROUGH);
        return false;
    }
    // MoveFileExW replaces a link itself, not what it points to.
    return MoveFileExW(wide(from), wide(to), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)
        != 0;
}

bool removeFile(const QString &path)
{
    if (DeleteFileW(wide(path)))
        return true;
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND)
        return true;
    // A read-only file is ours to replace all the same.
    const DWORD attributes = GetFileAttributesW(wide(path));
    return attributes != INVALID_FILE_ATTRIBUTES
        && SetFileAttributesW(wide(path), attributes & ~DWORD(FILE_ATTRIBUTE_READONLY))
        && DeleteFileW(wide(path));
}

bool isLink(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(wide(path));
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_REPARSE_POINT);
}

bool addHardLink(const QString &path, const QString &other)
{
    return CreateHardLinkW(wide(other), wide(path), nullptr) != 0;
}

bool pathExists(const QString &path)
{
    return GetFileAttributesW(wide(path)) != INVALID_FILE_ATTRIBUTES;
}

bool renamePath(const QString &from, const QString &to)
{
    // Without MOVEFILE_REPLACE_EXISTING: a folder is never moved over anything.
    return MoveFileExW(wide(from), wide(to), MOVEFILE_WRITE_THROUGH) != 0;
}

bool removeTree(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(wide(path));
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return true;
    if (attributes & FILE_ATTRIBUTE_REPARSE_POINT) {
        // A link or junction goes as itself, whatever it points to.
        if (attributes & FILE_ATTRIBUTE_DIRECTORY)
            return RemoveDirectoryW(wide(path)) != 0;
        return removeFile(path);
    }
    if (!(attributes & FILE_ATTRIBUTE_DIRECTORY))
        return removeFile(path);
    // Qt removes the links and junctions inside a folder as links: the removal never leaves it.
    return QDir(path).removeRecursively();
}

void syncFolder(const QString &)
{
    // The moves are made with MOVEFILE_WRITE_THROUGH: nothing is left to flush.
}

QByteArray withPlatformLineEnds(const QByteArray &text)
{
    QByteArray lines = text;
    return lines.replace("\n", "\r\n");
}

void openWithDefaultHandler(const QString &path)
{
    ShellExecuteW(nullptr, L"open", wide(path), nullptr, nullptr, SW_SHOWNORMAL);
}

QString profileString(
    const QString &path, const QString &section, const QString &key, const QString &defaultText)
{
    // The product's buffer of 65,536 wide characters.
    std::vector<wchar_t> buffer(65536);
    const DWORD length = GetPrivateProfileStringW(wide(section), wide(key), wide(defaultText),
        buffer.data(), DWORD(buffer.size()), wide(path));
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(buffer.data()), int(length));
}

int profileInt(const QString &path, const QString &section, const QString &key, int defaultValue)
{
    return int(GetPrivateProfileIntW(wide(section), wide(key), defaultValue, wide(path)));
}

bool writeProfileString(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    return WritePrivateProfileStringW(wide(section), wide(key), wide(value), wide(path)) != 0;
}

std::vector<ListedFile> listPlainFiles(const QString &folder, bool (*wanted)(const QString &name))
{
    std::vector<ListedFile> files;
    // One handle on the folder yields every entry with its size, times and file index, so an
    // unchanged file is recognised without opening it.
    const HANDLE dir = CreateFileW(wide(folder), FILE_LIST_DIRECTORY,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
        FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (dir == INVALID_HANDLE_VALUE)
        return files;
    BY_HANDLE_FILE_INFORMATION folderInfo {};
    const std::uint64_t volume
        = GetFileInformationByHandle(dir, &folderInfo) ? folderInfo.dwVolumeSerialNumber : 0;
    std::vector<std::uint64_t> buffer(64 * 1024 / sizeof(std::uint64_t)); // 8-byte aligned
    FILE_INFO_BY_HANDLE_CLASS infoClass = FileIdBothDirectoryRestartInfo;
    while (GetFileInformationByHandleEx(
        dir, infoClass, buffer.data(), DWORD(buffer.size() * sizeof(std::uint64_t)))) {
        infoClass = FileIdBothDirectoryInfo;
        const char *at = reinterpret_cast<const char *>(buffer.data());
        for (;;) {
            const auto *info = reinterpret_cast<const FILE_ID_BOTH_DIR_INFO *>(at);
            // For a reparse point the extended-attribute size holds its tag: links and
            // junctions lead elsewhere and are passed over, as folders are.
            const bool link = (info->FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT)
                && (info->EaSize == IO_REPARSE_TAG_SYMLINK
                    || info->EaSize == IO_REPARSE_TAG_MOUNT_POINT);
            if (!(info->FileAttributes & FILE_ATTRIBUTE_DIRECTORY) && !link) {
                const QString name
                    = QString::fromUtf16(reinterpret_cast<const char16_t *>(info->FileName),
                        int(info->FileNameLength / sizeof(char16_t)));
                if (wanted(name)) {
                    FileStamp stamp;
                    stamp.size = info->EndOfFile.QuadPart;
                    stamp.modifiedNs = nanoseconds(info->LastWriteTime);
                    stamp.changedNs = nanoseconds(info->ChangeTime);
                    stamp.volume = volume;
                    stamp.fileId = std::uint64_t(info->FileId.QuadPart);
                    files.push_back({name, stamp});
                }
            }
            if (info->NextEntryOffset == 0)
                break;
            at += info->NextEntryOffset;
        }
    }
    CloseHandle(dir);
    return files;
}

} // namespace vantora::platform
