#include "presetkeys.h"

#include "inivalues.h"
#include "plugin/outputstage.h"

#include <variant>

namespace vantora::settings {
namespace {

using P = PresetValues;

enum class Kind { Bool, Int, Double, Colour, Plain, Coded };

// Written only when the text is not empty.
constexpr bool IF_SET = true;

struct PresetKey
{
    const char *section;
    const char *key;
    Kind kind;
    PresetField field;
    const char *defaultText;
    int clampFrom = 0; // values from here on become clampTo; 0: no clamp
    int clampTo = 0;
    // Bool: a key read first whose value is the default; Coded: a plain key that wins when set.
    const char *legacy = nullptr;
    bool onlyWhenSet = false;
};

// clang-format off
const PresetKey PRESET_KEYS[] = {
    {"Toolbar", "Position",                   Kind::Int,    &P::Position,                   "0", 4, 0},
    {"Toolbar", "TBDesign",                   Kind::Int,    &P::TBDesign,                   "0"},
    {"Toolbar", "PlayButton",                 Kind::Bool,   &P::PlayButton,                 "1"},
    {"Applet",  "ShowToolbarFullscreen",      Kind::Bool,   &P::ShowToolbarFullscreen,      "1"},
    {"Applet",  "ShowArrowButtons",           Kind::Bool,   &P::ShowArrowButtons,           "1"},
    {"Applet",  "ShowZoomButtons",            Kind::Bool,   &P::ShowZoomButtons,            "1"},
    {"Applet",  "AddGyro",                    Kind::Bool,   &P::AddGyro,                    "0", 0, 0, "AddGyroButton"},
    {"Applet",  "GyroEnabled",                Kind::Bool,   &P::GyroEnabled,                "0", 0, 0, "GyroButtonEnabled"},
    {"Applet",  "GyroButton",                 Kind::Bool,   &P::GyroButton,                 "0", 0, 0, "AddGyroButton"},
    {"Applet",  "ShowInfoBox",                Kind::Bool,   &P::ShowInfoBox,                "0"},
    {"Applet",  "AddAudioButton",             Kind::Bool,   &P::AddAudioButton,             "1"},
    {"Applet",  "HotspotsButton",             Kind::Bool,   &P::HotspotsButton,             "0"},
    {"Applet",  "InfoHTML64",                 Kind::Coded,  &P::InfoHTML64,                 "",  0, 0, "InfoHTML"},
    {"Applet",  "InfoGlobal",                 Kind::Bool,   &P::InfoGlobal,                 "0"},
    {"Applet",  "Title64",                    Kind::Coded,  &P::Title64,                    "",  0, 0, "Title"},
    {"Applet",  "ShortDescription64",         Kind::Coded,  &P::ShortDescription64,         ""},
    {"Applet",  "ShowHotspots",               Kind::Bool,   &P::ShowHotspots,               "1"},
    {"Applet",  "ShowWebGLWarning",           Kind::Bool,   &P::ShowWebGLWarning,           "0"},
    {"Applet",  "ExtensionJS",                Kind::Bool,   &P::ExtensionJS,                "0"},
    {"Applet",  "MouseMode",                  Kind::Int,    &P::MouseMode,                  "0", 2, 0},
    {"Applet",  "TouchMode",                  Kind::Int,    &P::TouchMode,                  "0", 2, 0},
    {"Applet",  "ZoomMode",                   Kind::Int,    &P::ZoomMode,                   "0", 2, 0},
    {"Applet",  "AddToolbar",                 Kind::Bool,   &P::AddToolbar,                 "1"},
    {"Applet",  "ShowToolbar",                Kind::Bool,   &P::ShowToolbar,                "1"},
    {"Applet",  "AutoPlay",                   Kind::Bool,   &P::AutoPlay,                   "0"},
    {"Applet",  "Restart",                    Kind::Int,    &P::Restart,                    "5"},
    {"Applet",  "PanRate",                    Kind::Double, &P::PanRate,                    "2.0000"},
    {"Applet",  "TiltRate",                   Kind::Double, &P::TiltRate,                   "0.0000"},
    {"Applet",  "ZoomRate",                   Kind::Double, &P::ZoomRate,                   "1.0000"},
    {"Applet",  "LittlePlanetIntro",          Kind::Bool,   &P::LittlePlanetIntro,          "0"},
    {"Applet",  "LogoImage",                  Kind::Plain,  &P::LogoImage,                  "",  0, 0, nullptr, IF_SET},
    {"Applet",  "LogoURL",                    Kind::Plain,  &P::LogoURL,                    "",  0, 0, nullptr, IF_SET},
    {"Applet",  "Sound",                      Kind::Plain,  &P::Sound,                      "",  0, 0, nullptr, IF_SET},
    {"Applet",  "AudioAutoplay",              Kind::Bool,   &P::AudioAutoplay,              "1"},
    {"Applet",  "AudioLoop",                  Kind::Bool,   &P::AudioLoop,                  "1"},
    {"Applet",  "AudioGlobal",                Kind::Bool,   &P::AudioGlobal,                "0"},
    {"Applet",  "AddContextMenu",             Kind::Bool,   &P::AddContextMenu,             "1"},
    {"Applet",  "ContextMenuFullscreen",      Kind::Bool,   &P::ContextMenuFullscreen,      "1"},
    {"Applet",  "ContextMenuViews",           Kind::Bool,   &P::ContextMenuViews,           "1"},
    {"Applet",  "ContextMenuGyro",            Kind::Bool,   &P::ContextMenuGyro,            "1"},
    {"Applet",  "ContextMenuAbout",           Kind::Bool,   &P::ContextMenuAbout,           "1"},
    {"Applet",  "ContextMenuCustom",          Kind::Bool,   &P::ContextMenuCustom,          "0"},
    {"Applet",  "ContextMenuCustomCaption",   Kind::Coded,  &P::ContextMenuCustomCaption,   "",  0, 0, nullptr, IF_SET},
    {"Applet",  "ContextMenuCustomAction",    Kind::Coded,  &P::ContextMenuCustomAction,    "",  0, 0, nullptr, IF_SET},
    {"Applet",  "AddVrMode",                  Kind::Bool,   &P::AddVrMode,                  "0"},
    {"Applet",  "VrGamepadEnabled",           Kind::Bool,   &P::VrGamepadEnabled,           "1"},
    {"Applet",  "VrDisplayType",              Kind::Int,    &P::VrDisplayType,              "0", 2, 1},
    {"Applet",  "AddGallery",                 Kind::Bool,   &P::AddGallery,                 "0"},
    {"Applet",  "GalleryThumbnailVisible",    Kind::Bool,   &P::GalleryThumbnailVisible,    "0"},
    {"Applet",  "GalleryButtons",             Kind::Int,    &P::GalleryButtons,             "0", 3, 2},
    {"Applet",  "GalleryPosition",            Kind::Int,    &P::GalleryPosition,            "0", 2, 1},
    {"Applet",  "AddOrientation",             Kind::Bool,   &P::AddOrientation,             "0"},
    {"Applet",  "OrientationElement",         Kind::Int,    &P::OrientationElement,         "0"},
    {"Applet",  "OrientationElementPosition", Kind::Int,    &P::OrientationElementPosition, "0"},
    {"Applet",  "PositionNorth",              Kind::Bool,   &P::PositionNorth,              "0"},
    {"Applet",  "AddMap",                     Kind::Bool,   &P::AddMap,                     "0"},
    {"Applet",  "MapPosition",                Kind::Int,    &P::MapPosition,                "0", 2, 1},
    {"Applet",  "MapType",                    Kind::Int,    &P::MapType,                    "0", 4, 3},
    {"Applet",  "GmAPIKey",                   Kind::Coded,  &P::GmAPIKey,                   "",  0, 0, nullptr, IF_SET},
    {"Applet",  "MapZoom",                    Kind::Int,    &P::MapZoom,                    "18", 21, 20},
    {"Applet",  "MapVisible",                 Kind::Bool,   &P::MapVisible,                 "0"},
    {"Applet",  "MapHideOnMarker",            Kind::Bool,   &P::MapHideOnMarker,            "1"},
    {"Applet",  "MapRadar",                   Kind::Bool,   &P::MapRadar,                   "1"},
    {"Applet",  "MapZoomControls",            Kind::Bool,   &P::MapZoomControls,            "1"},
    {"Applet",  "MapTypeControls",            Kind::Bool,   &P::MapTypeControls,            "1"},
    {"Applet",  "TextColor",                  Kind::Colour, &P::TextColor,                  "16777215"},
    {"Applet",  "ShadowColor",                Kind::Colour, &P::ShadowColor,                "0"},
};
// clang-format on

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

// The keys of one preset file, read in one pass.
class PresetFile
{
public:
    explicit PresetFile(const ini::IniText &ini)
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

void readKey(const PresetFile &file, const PresetKey &k, PresetValues &values)
{
    const QString section = text(k.section), key = text(k.key);
    const auto readText = [&](const QString &name, const QString &defaultText) {
        return file.text(section, name, defaultText);
    };
    switch (k.kind) {
    case Kind::Bool: {
        QString defaultText = text(k.defaultText);
        if (k.legacy)
            defaultText
                = boolFromIniText(readText(text(k.legacy), defaultText)) ? text("1") : text("0");
        values.*std::get<bool P::*>(k.field) = boolFromIniText(readText(key, defaultText));
        break;
    }
    case Kind::Int: {
        int value = file.number(section, key, text(k.defaultText).toInt());
        if (k.clampFrom > 0 && value >= k.clampFrom)
            value = k.clampTo;
        values.*std::get<int P::*>(k.field) = value;
        break;
    }
    case Kind::Colour:
        values.*std::get<Colour P::*>(k.field)
            = Colour(file.number(section, key, text(k.defaultText).toInt()));
        break;
    case Kind::Double:
        values.*std::get<double P::*>(k.field)
            = doubleFromIniText(readText(key, text(k.defaultText)), text(k.defaultText).toDouble());
        break;
    case Kind::Plain:
        values.*std::get<QString P::*>(k.field) = readText(key, QString());
        break;
    case Kind::Coded: {
        // Older presets kept the text uncoded under the legacy key; it wins when present.
        QString value = k.legacy ? readText(text(k.legacy), QString()) : QString();
        if (value.isEmpty())
            value = decodedIniText(readText(key, QString()));
        values.*std::get<QString P::*>(k.field) = value;
        break;
    }
    }
}

void writeKey(IniEdit &ini, const PresetKey &k, const PresetValues &values)
{
    const QString section = text(k.section), key = text(k.key);
    const auto set
        = [&](const QString &value, bool stringKey) { ini.set(section, key, value, stringKey); };
    switch (k.kind) {
    case Kind::Bool:
        return set(values.*std::get<bool P::*>(k.field) ? text("1") : text("0"), false);
    case Kind::Int:
        return set(QString::number(values.*std::get<int P::*>(k.field)), false);
    case Kind::Colour:
        return set(QString::number(int(values.*std::get<Colour P::*>(k.field))), false);
    case Kind::Double:
        return set(iniTextOfDouble(values.*std::get<double P::*>(k.field)), false);
    case Kind::Plain:
    case Kind::Coded: {
        const QString &value = values.*std::get<QString P::*>(k.field);
        if (k.onlyWhenSet && value.isEmpty())
            return;
        return set(k.kind == Kind::Coded ? codedIniText(value) : value, true);
    }
    }
}

} // namespace

void forEachPresetField(const std::function<void(const char *, PresetField)> &visit)
{
    for (const PresetKey &k : PRESET_KEYS)
        std::visit([&](auto member) { visit(k.key, PresetField(member)); }, k.field);
}

bool PresetValues::operator==(const PresetValues &other) const
{
    for (const PresetKey &k : PRESET_KEYS) {
        const bool same
            = std::visit([&](auto member) { return this->*member == other.*member; }, k.field);
        if (!same)
            return false;
    }
    return true;
}

PresetValues presetValuesFromBytes(const QByteArray &bytes)
{
    const PresetFile file(ini::decode(bytes));
    PresetValues values;
    for (const PresetKey &k : PRESET_KEYS)
        readKey(file, k, values);
    return values;
}

PresetValues readPresetValues(const QString &path, bool *readable)
{
    QByteArray bytes;
    const bool read = readIniBytes(path, &bytes);
    if (readable)
        *readable = read;
    return presetValuesFromBytes(bytes);
}

QByteArray presetFileBytes(const QByteArray &existing, const PresetValues &values)
{
    IniEdit ini(existing);
    for (const PresetKey &k : PRESET_KEYS)
        writeKey(ini, k, values);
    return ini.bytes();
}

bool writePresetValues(const QString &path, const PresetValues &values)
{
    // The whole file is built first and written once: a preset is the old one or the new one,
    // never a mixture, whenever the writing stops.
    QByteArray bytes;
    return readIniBytes(path, &bytes)
        && plugin::writeFileAtomically(path, presetFileBytes(bytes, values));
}

} // namespace vantora::settings
