#include "tileswap.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace vantora::cli {
namespace {

bool rename(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

bool isLevelName(const QString &name)
{
    bool number = false;
    name.toInt(&number);
    return number && !name.startsWith(QLatin1Char('+')) && !name.startsWith(QLatin1Char('-'));
}

} // namespace

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

bool TileSwap::swapIn(const QString &tilesFolder, const QString &stagedLevels, int levelCount,
    const QString &stagedThumbnail, const QString &thumbnailName, QString *error)
{
    m_tilesFolder = tilesFolder;
    m_keptFolder = tilesFolder + QStringLiteral(".vantora-old");
    if (isLink(tilesFolder)) {
        *error = QStringLiteral("%1 is a link; the tiles are not written through it")
                     .arg(QDir::toNativeSeparators(tilesFolder));
        return false;
    }
    if (!removePath(m_keptFolder) || !QDir().mkpath(m_keptFolder)) {
        *error = QStringLiteral("cannot make the folder %1").arg(m_keptFolder);
        return false;
    }
    if (!QFileInfo(tilesFolder).isDir()) {
        if (!removePath(tilesFolder) || !QDir().mkdir(tilesFolder)) {
            *error = QStringLiteral("cannot make the folder %1").arg(tilesFolder);
            return false;
        }
        m_createdFolder = true;
    }
    const QDir tiles(tilesFolder);
    QStringList aside = thumbnailName.isEmpty() ? QStringList() : QStringList {thumbnailName};
    for (const QString &name :
        tiles.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System))
        if (isLevelName(name))
            aside.append(name);
    for (const QString &name : qAsConst(aside)) {
        if (!QFileInfo::exists(tiles.filePath(name)) && !isLink(tiles.filePath(name)))
            continue;
        if (!rename(tiles.filePath(name), m_keptFolder + QLatin1Char('/') + name)) {
            *error = QStringLiteral("cannot move %1 aside").arg(tiles.filePath(name));
            restore();
            return false;
        }
        m_movedOut.append(name);
    }
    QStringList incoming;
    for (int level = 0; level < levelCount; ++level)
        incoming.append(QString::number(level));
    for (const QString &name : qAsConst(incoming)) {
        if (!rename(stagedLevels + QLatin1Char('/') + name, tiles.filePath(name))) {
            *error = QStringLiteral("cannot move the tiles of level %1 into %2")
                         .arg(name, QDir::toNativeSeparators(tilesFolder));
            restore();
            return false;
        }
        m_movedIn.append(name);
    }
    if (!rename(stagedThumbnail, tiles.filePath(thumbnailName))) {
        *error = QStringLiteral("cannot move the thumbnail into %1")
                     .arg(QDir::toNativeSeparators(tilesFolder));
        restore();
        return false;
    }
    m_movedIn.append(thumbnailName);
    return true;
}

void TileSwap::keep()
{
    if (!m_keptFolder.isEmpty())
        removePath(m_keptFolder);
    *this = TileSwap();
}

void TileSwap::restore()
{
    if (m_tilesFolder.isEmpty())
        return;
    const QDir tiles(m_tilesFolder);
    for (const QString &name : qAsConst(m_movedIn))
        removePath(tiles.filePath(name));
    for (const QString &name : qAsConst(m_movedOut))
        rename(m_keptFolder + QLatin1Char('/') + name, tiles.filePath(name));
    if (m_createdFolder)
        QDir().rmdir(m_tilesFolder);
    removePath(m_keptFolder);
    *this = TileSwap();
}

} // namespace vantora::cli
