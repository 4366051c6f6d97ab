#include "settingsfile.h"

#include "settings/inifile.h"
#include "settings/presetfile.h"
#include "settings/settingsblock.h"
#include "settings/settingstable.h"
#include "viewerparams/mapelement.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace vantora::cli {
namespace {

// A preset is a few kilobytes; anything far larger is not one, and is not read whole.
constexpr qint64 MAX_PRESET_BYTES = 4 * 1024 * 1024;

QString shown(const QString &path)
{
    return QDir::toNativeSeparators(path);
}

QSet<QString> presetKeys()
{
    QSet<QString> keys;
    for (const settings::SettingRow &row : settings::settingRows())
        if (row.inPresets())
            keys.insert(QString::fromLatin1(row.name).toLower());
    return keys;
}

// Text characters only: a NUL or another control character means a binary file.
bool isTextCode(uint code)
{
    return code >= 0x20 || code == '\t' || code == '\r' || code == '\n' || code == 0x1a;
}

bool isText(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return isTextCode(c.unicode()); });
}

bool isText(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return isTextCode(uchar(c)); });
}

settings::ViewerSettings settingsFor(const CliOptions &options)
{
    settings::ViewerSettings record;
    // A command-line host has no motion sensor of its own to offer the gyroscope for.
    settings::resetViewerSettings(record, false);
    if (!options.settingsFile.isEmpty())
        settings::applyPreset(settings::readPreset(options.settingsFile), record);
    if (options.title)
        record.Title64 = *options.title;
    return record;
}

} // namespace

QByteArray settingsBlockFor(const CliOptions &options)
{
    if (options.settingsFile.isEmpty() && !options.title)
        return {};
    return settings::encodeSettingsBlock(settingsFor(options));
}

bool isPresetFile(const QString &path, QString *error)
{
    QFile file(path);
    if (file.size() > MAX_PRESET_BYTES) {
        *error = QStringLiteral("%1 is not a preset file: too large").arg(shown(path));
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(shown(path), file.errorString());
        return false;
    }
    const QByteArray bytes = file.readAll();
    const settings::ini::IniText ini = settings::ini::decode(bytes);
    // 8-bit files are checked byte by byte: decoding stops early at a NUL.
    const bool wide = ini.encoding == settings::ini::Encoding::Utf16Le
        || ini.encoding == settings::ini::Encoding::Utf16Be;
    const QString &text = ini.text;
    if (!isText(text) || (!wide && !isText(bytes))) {
        *error = QStringLiteral("%1 is not a preset file: it is not text").arg(shown(path));
        return false;
    }
    const QSet<QString> known = presetKeys();
    bool anyKey = false;
    int number = 0;
    for (const QString &rawLine : text.split(QLatin1Char('\n'))) {
        ++number;
        const QString line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'))
            || line == QChar(0x1a))
            continue;
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']')))
            continue;
        const int equals = line.indexOf(QLatin1Char('='));
        if (equals <= 0) {
            *error = QStringLiteral("%1 is not a preset file: line %2 is neither [section] nor "
                                    "key=value")
                         .arg(shown(path))
                         .arg(number);
            return false;
        }
        anyKey = anyKey || known.contains(line.left(equals).trimmed().toLower());
    }
    if (!anyKey) {
        *error = QStringLiteral("%1 is not a preset file: it holds none of the preset keys")
                     .arg(shown(path));
        return false;
    }
    return true;
}

bool writeSettingsFile(const CliOptions &options, QString *error)
{
    const QString &target = options.writeSettings;
    const QFileInfo info(target);
    if (info.isSymLink() || (info.exists() && !info.isFile())) {
        *error = QStringLiteral("--write-settings: %1 is not a plain file").arg(shown(target));
        return false;
    }
    // Never replace something that is not a preset: it may be anything of the user's.
    if (info.exists() && !isPresetFile(target, error)) {
        *error = QStringLiteral("--write-settings: ") + *error + QStringLiteral(", left alone");
        return false;
    }
    if (!QFileInfo(info.absolutePath()).isDir()) {
        *error = QStringLiteral("--write-settings: no folder %1").arg(shown(info.absolutePath()));
        return false;
    }
    settings::Preset preset = settings::readPreset(options.settingsFile);
    if (options.title)
        preset.settings.Title64 = *options.title;
    if (!settings::writePreset(target, preset)) {
        *error = QStringLiteral("--write-settings: cannot write %1").arg(shown(target));
        return false;
    }
    return true;
}

QString settingsNotice(const CliOptions &options)
{
    if (options.settingsFile.isEmpty())
        return {};
    const settings::ViewerSettings record = settingsFor(options);
    // The library writes a map only with a key for Google's maps, whatever map type is chosen.
    if (record.AddMap && !params::mapKeyUsable(record))
        return QStringLiteral("the settings ask for a map, but it is left out: the library writes "
                              "a map only with a Google Maps key (GmAPIKey), even for the "
                              "OpenStreetMap type");
    return {};
}

} // namespace vantora::cli
