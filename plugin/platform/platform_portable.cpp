// Portable twin of the platform layer, built everywhere but Windows.
#include "platform.h"

#include "settings/inifile.h"

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

} // namespace vantora::platform
