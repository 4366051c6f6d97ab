#include "presets.h"

#include "plugin/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace vantora::settings {

QString presetFolder(const QString &settingsFolder)
{
    return settingsFolder + QStringLiteral("appletSettings") + plugin::nativeSeparator();
}

QString sanitizedPresetName(const QString &name)
{
    QString sanitized = name;
    sanitized.replace(QLatin1Char('\\'), QLatin1Char('_'))
        .replace(QLatin1Char('/'), QLatin1Char('_'));
    return sanitized;
}

QString presetFilePath(const QString &settingsFolder, const QString &name)
{
    return presetFolder(settingsFolder) + sanitizedPresetName(name) + QStringLiteral(".ini");
}

bool presetExists(const QString &settingsFolder, const QString &name)
{
    return !settingsFolder.isEmpty() && QFileInfo(presetFilePath(settingsFolder, name)).isFile();
}

bool writePresetFile(const QString &settingsFolder, const QString &name, const Preset &preset)
{
    if (settingsFolder.isEmpty())
        return false;
    const QString folder = presetFolder(settingsFolder);
    if (!QFileInfo(folder).isDir()) {
        QFile::remove(QDir::cleanPath(folder));
        if (!QDir().mkpath(folder))
            return false;
    }
    return writePreset(presetFilePath(settingsFolder, name), preset);
}

Preset readPresetFile(const QString &settingsFolder, const QString &name)
{
    // An empty path reads nothing: every key takes its default.
    return readPreset(settingsFolder.isEmpty() ? QString() : presetFilePath(settingsFolder, name));
}

bool deletePresetFile(const QString &settingsFolder, const QString &name)
{
    return presetExists(settingsFolder, name)
        && QFile::remove(presetFilePath(settingsFolder, name));
}

QStringList presetNames(const QString &settingsFolder)
{
    if (settingsFolder.isEmpty())
        return {};
    QStringList names;
    const QStringList files = QDir(presetFolder(settingsFolder))
                                  .entryList({QStringLiteral("*.ini")}, QDir::Files | QDir::Hidden);
    for (const QString &file : files)
        names << file.left(file.size() - 4);
    std::sort(names.begin(), names.end(),
        [](const QString &a, const QString &b) { return a.compare(b, Qt::CaseInsensitive) < 0; });
    return names;
}

} // namespace vantora::settings
