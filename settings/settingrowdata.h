// The rows of settingrows.h as a constant array, for the code that walks them at compile time.
#pragma once

#include "settingstable.h"

namespace vantora::settings::rows {

constexpr IniKey toolbarKey()
{
    return IniKey {"Toolbar"};
}
constexpr IniKey appletKey()
{
    return IniKey {"Applet"};
}
constexpr IniKey notInPresets()
{
    return IniKey {};
}
constexpr BlockSlot intSlot(int index, int since)
{
    return {BlockSlot::Int, index, since};
}
constexpr BlockSlot rateSlot(int index, int since)
{
    return {BlockSlot::Rate, index, since};
}
constexpr BlockSlot flagSlot(int index, int since)
{
    return {BlockSlot::Flag, index, since};
}
constexpr BlockSlot stringSlot(int index, int since)
{
    return {BlockSlot::String, index, since};
}
// The menu's entries follow the strings; their count is one of the integers.
constexpr BlockSlot menuSlots(int countIndex, int stringIndex, int since)
{
    return {BlockSlot::String, stringIndex, since, countIndex};
}
constexpr BlockSlot notInBlock()
{
    return {};
}

template <typename T> constexpr SettingKind kindOf(const IniKey &ini)
{
    if constexpr (std::is_same_v<T, bool>)
        return SettingKind::Bool;
    else if constexpr (std::is_same_v<T, int>)
        return SettingKind::Int;
    else if constexpr (std::is_same_v<T, double>)
        return SettingKind::Double;
    else if constexpr (std::is_same_v<T, Colour>)
        return SettingKind::Colour;
    else if constexpr (std::is_same_v<T, QString>)
        return ini.base64 ? SettingKind::CodedText : SettingKind::PlainText;
    else
        return SettingKind::MenuItems;
}

template <typename T, typename Owner>
constexpr SettingRow row(
    const char *name, T Owner::*field, IniKey ini, BlockSlot block, const char *meaning)
{
    return SettingRow {name, kindOf<T>(ini), SettingField(field), ini, block, meaning};
}

#define VANTORA_SETTINGS_FIELD_ROW(name, type, value, ini, block, meaning)                         \
    row(#name, &ViewerSettings::name, ini, block, meaning),
#define VANTORA_SETTINGS_MENU_ROW(name, type, value, ini, meaning)                                 \
    row(#name, &ContextMenuChoice::name, ini, notInBlock(), meaning),

inline constexpr SettingRow ALL[]
    = {VANTORA_SETTINGS_TABLE(VANTORA_SETTINGS_FIELD_ROW, VANTORA_SETTINGS_MENU_ROW)};

#undef VANTORA_SETTINGS_FIELD_ROW
#undef VANTORA_SETTINGS_MENU_ROW

} // namespace vantora::settings::rows
