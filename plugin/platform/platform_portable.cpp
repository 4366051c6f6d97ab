// Portable twin of the platform layer, built everywhere but Windows.
#include "platform.h"

#include "settings/inifile.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantora::platform {
namespace {

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1000000000 + time.tv_nsec;
}

QByteArray native(const QString &path)
{
    return QFile::encodeName(path);
}

bool writeAll(int fd, const QByteArray &bytes)
{
    const char *data = bytes.constData();
    qint64 left = bytes.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, size_t(left));
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        data += written;
        left -= written;
    }
    return true;
}

bool exists(const QByteArray &path)
{
    struct stat info;
    return ::lstat(path.constData(), &info) == 0;
}

} // namespace

bool writeNewFile(const QString &path, const QByteArray &bytes)
{
    const QByteArray name = native(path);
    if (!removeFile(path))
        return false;
    // O_EXCL with O_NOFOLLOW: a link planted between the removal and here fails the open.
    const int fd
        = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (fd < 0)
        return false;
    bool ok = writeAll(fd, bytes) && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    if (!ok)
        ::unlink(name.constData());
    return ok;
}

bool replaceFile(const QString &from, const QString &to, const QString &backup)
{
    const QByteArray source = native(from), target = native(to);
    struct stat info;
    if (::lstat(target.constData(), &info) == 0 && S_ISDIR(info.st_mode))
        return false; // a folder is never replaced by a file
    bool movedAside = false;
    if (!backup.isEmpty() && exists(target)) {
        const QByteArray kept = native(backup);
        if (!removeFile(backup))
            return false;
        // A second name for the old file keeps `to` in place until the rename replaces it; where
        // the file system has no hard links the old file moves aside instead.
        if (::link(target.constData(), kept.constData()) != 0) {
            if (::rename(target.constData(), kept.constData()) != 0)
                return false;
            movedAside = true;
        }
    }
    if (::rename(source.constData(), target.constData()) == 0)
        return true;
    if (movedAside)
        ::rename(native(backup).constData(), target.constData());
    return false;
}

bool removeFile(const QString &path)
{
    const QByteArray name = native(path);
    return ::unlink(name.constData()) == 0 || errno == ENOENT;
}

bool isLink(const QString &path)
{
    struct stat info;
    return ::lstat(native(path).constData(), &info) == 0 && S_ISLNK(info.st_mode);
}

bool addHardLink(const QString &path, const QString &other)
{
    return ::link(native(path).constData(), native(other).constData()) == 0;
}

bool pathExists(const QString &path)
{
    return exists(native(path));
}

bool renamePath(const QString &from, const QString &to)
{
    const QByteArray target = native(to);
    if (exists(target))
        return false;
    return ::rename(native(from).constData(), target.constData()) == 0;
}

bool removeTree(const QString &path)
{
    struct stat info;
    const QByteArray name = native(path);
    if (::lstat(name.constData(), &info) != 0)
        return errno == ENOENT;
    if (!S_ISDIR(info.st_mode))
        return ::unlink(name.constData()) == 0;
    // Qt removes the links inside a folder as links: the removal never leaves it.
    return QDir(path).removeRecursively();
}

void syncFolder(const QString &folder)
{
    const int fd = ::open(native(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

QByteArray withPlatformLineEnds(const QByteArray &text)
{
    return text;
}

void openWithDefaultHandler(const QString &path)
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

QString profileString(
    const QString &path, const QString &section, const QString &key, const QString &defaultText)
{
    return settings::ini::readString(path, section, key, defaultText);
}

int profileInt(const QString &path, const QString &section, const QString &key, int defaultValue)
{
    return settings::ini::readInt(path, section, key, defaultValue);
}

bool writeProfileString(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    return settings::ini::writeString(path, section, key, value);
}

std::vector<ListedFile> listPlainFiles(const QString &folder, bool (*wanted)(const QString &name))
{
    std::vector<ListedFile> files;
    DIR *dir = opendir(QFile::encodeName(folder).constData());
    if (!dir)
        return files;
    const int dirFd = dirfd(dir);
    while (const dirent *entry = readdir(dir)) {
        // The type from the listing spares a stat of every folder and link the name does not
        // already rule out; some file systems leave it unknown.
        if (entry->d_type != DT_REG && entry->d_type != DT_UNKNOWN)
            continue;
        const QString name = QFile::decodeName(entry->d_name);
        if (!wanted(name))
            continue;
        struct stat status;
        if (fstatat(dirFd, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0
            || !S_ISREG(status.st_mode))
            continue;
        FileStamp stamp;
        stamp.size = status.st_size;
#ifdef __APPLE__
        stamp.modifiedNs = nanoseconds(status.st_mtimespec);
        stamp.changedNs = nanoseconds(status.st_ctimespec);
#else
        stamp.modifiedNs = nanoseconds(status.st_mtim);
        stamp.changedNs = nanoseconds(status.st_ctim);
#endif
        stamp.volume = std::uint64_t(status.st_dev);
        stamp.fileId = std::uint64_t(status.st_ino);
        files.push_back({name, stamp});
    }
    closedir(dir);
    return files;
}

} // namespace vantora::platform
