// Portable twin of the platform layer, built everywhere but Windows.
#include "platform.h"

#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

namespace vantora::platform {

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

} // namespace vantora::platform
