#include "presetfile.h"

#include "inivalues.h"
#include "plugin/outputstage.h"
#include "settingstable.h"

namespace vantora::settings {
namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// The keys of one preset file, read in one pass.
class PresetKeys
{
public:
    explicit PresetKeys(const ini::IniText &ini)
        : m_keys(ini::index(ini.text))
    { }
    QString text(const QString &section, const QString &key, const QString &defaultText) const
    {
        const auto found = m_keys.constFind(ini::indexKey(section, key));
        return ini::cutValue(found == m_keys.cend() ? defaultText : *found);
    }
    int number(const QString &section, const QString &key, int defaultValue) const
    {
        const auto found = m_keys.constFind(ini::indexKey(section, key));
        return found == m_keys.cend() ? defaultValue : ini::intValue(*found);
    }

private:
    ini::Index m_keys;
};

void readKey(const PresetKeys &file, const SettingRow &row, Preset &preset)
{
    const QString section = text(row.ini.section), key = text(row.name);
    const QString defaultText = iniReadDefault(row);
    const auto readText = [&](const QString &name, const QString &fallback) {
        return file.text(section, name, fallback);
    };
    visitValue(row, preset.settings, preset.menu, [&](auto &value) {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>) {
            QString fallback = defaultText;
            if (row.ini.legacyKey)
                fallback = boolFromIniText(readText(text(row.ini.legacyKey), fallback)) ? text("1")
                                                                                        : text("0");
            value = boolFromIniText(readText(key, fallback));
        } else if constexpr (std::is_same_v<T, int>) {
            value = file.number(section, key, defaultText.toInt());
            if (row.ini.clampFrom > 0 && value >= row.ini.clampFrom)
                value = row.ini.clampTo;
        } else if constexpr (std::is_same_v<T, Colour>) {
            value = Colour(file.number(section, key, defaultText.toInt()));
        } else if constexpr (std::is_same_v<T, double>) {
            value = doubleFromIniText(readText(key, defaultText), defaultText.toDouble());
        } else if constexpr (std::is_same_v<T, QString>) {
            if (!row.ini.base64) {
                value = readText(key, QString());
                return;
            }
            // Older presets kept the text uncoded under the legacy key; it wins when present.
            value = row.ini.legacyKey ? readText(text(row.ini.legacyKey), QString()) : QString();
            if (value.isEmpty())
                value = decodedIniText(readText(key, QString()));
        }
    });
}

void writeKey(IniEdit &ini, const SettingRow &row, const Preset &preset)
{
    const QString section = text(row.ini.section), key = text(row.name);
    const auto set
        = [&](const QString &value, bool stringKey) { ini.set(section, key, value, stringKey); };
    visitValue(row, preset.settings, preset.menu, [&](const auto &value) {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>) {
            set(value ? text("1") : text("0"), false);
        } else if constexpr (std::is_same_v<T, int>) {
            set(QString::number(value), false);
        } else if constexpr (std::is_same_v<T, Colour>) {
            set(QString::number(int(value)), false);
        } else if constexpr (std::is_same_v<T, double>) {
            set(iniTextOfDouble(value), false);
        } else if constexpr (std::is_same_v<T, QString>) {
            if (row.ini.onlyWhenSet && value.isEmpty())
                return;
            set(row.ini.base64 ? codedIniText(value) : value, true);
        }
    });
}

} // namespace

bool Preset::operator==(const Preset &other) const
{
    return settings == other.settings && menu == other.menu;
}

Preset presetFromBytes(const QByteArray &bytes)
{
    const PresetKeys file(ini::decode(bytes));
    Preset preset;
    for (const SettingRow &row : settingRows())
        if (row.inPresets())
            readKey(file, row, preset);
    return preset;
}

Preset readPreset(const QString &path, bool *readable)
{
    QByteArray bytes;
    const bool read = readIniBytes(path, &bytes);
    if (readable)
        *readable = read;
    return presetFromBytes(bytes);
}

QByteArray presetFileBytes(const QByteArray &existing, const Preset &preset)
{
    IniEdit ini(existing);
    for (const SettingRow &row : settingRows())
        if (row.inPresets())
            writeKey(ini, row, preset);
    return ini.bytes();
}

bool writePreset(const QString &path, const Preset &preset)
{
    // The whole file is built first and written once: a preset is the old one or the new one,
    // never a mixture, whenever the writing stops.
    QByteArray bytes;
    return readIniBytes(path, &bytes)
        && plugin::writeFileAtomically(path, presetFileBytes(bytes, preset));
}

void applyPreset(const Preset &preset, ViewerSettings &settings)
{
    ContextMenuChoice unused;
    for (const SettingRow &row : settingRows()) {
        if (!row.inPresets() || !row.inRecord())
            continue;
        visitValue(row, preset.settings, unused, [&](const auto &from) {
            visitValue(row, settings, unused, [&](auto &to) {
                if constexpr (std::is_same_v<std::decay_t<decltype(to)>,
                                  std::decay_t<decltype(from)>>)
                    to = from;
            });
        });
    }
    settings.ContextMenuItems = menuItemsOf(preset.menu);
    settings.ContextMenuSpare = false;
}

} // namespace vantora::settings
