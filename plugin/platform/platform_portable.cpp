// Portable twin of the platform layer, built everywhere but Windows.
#include "platform.h"

#include "settings/inifile.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace vantora::platform {
namespace {

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1000000000 + time.tv_nsec;
}

} // namespace

bool copyFileReplacing(const QString &from, const QString &to)
{
    const QFileInfo source(from);
    if (!source.isFile() || QFileInfo(to).isDir())
        return false;
    // Removing the target first would destroy the source when both name the same file.
    if (QFileInfo(to).exists() && source.canonicalFilePath() == QFileInfo(to).canonicalFilePath())
        return true;
    // Copy beside the target first, so a failed copy never leaves the old file half-replaced.
    const QString partial = to + QStringLiteral(".vantora-part");
    QFile::remove(partial);
    if (!QFile::copy(from, partial))
        return false;
    QFile::remove(to);
    if (!QFile::rename(partial, to)) {
        QFile::remove(partial);
        return false;
    }
    return true;
}

void clearReadOnly(const QString &path)
{
    QFile file(path);
    file.setPermissions(file.permissions() | QFileDevice::WriteOwner | QFileDevice::WriteUser);
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
