#include "filesystem.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace vantora::cli {
bool isLink(const QString &path)
{
    struct stat info;
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 && S_ISLNK(info.st_mode);
}

bool removePath(const QString &path)
{
    struct stat info;
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &info) != 0)
        return errno == ENOENT;
    if (!S_ISDIR(info.st_mode))
        return ::unlink(name.constData()) == 0;
    // Links inside are removed as links: the removal never leaves the folder.
    return QDir(path).removeRecursively();
}

QString stagedTilesFolder(const QString &tilesFolder)
{
    return tilesFolder + QStringLiteral(".vantora-new");
}

} // namespace vantora::cli
