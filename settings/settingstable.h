// The table of viewer settings as data: one row per setting, walked by the reset, the preset
// files, the settings block and the settings dialog. The rows themselves are in settingrows.h.
#pragma once

#include "viewersettings.h"

#include <QList>

#include <cstddef>
#include <type_traits>
#include <variant>

namespace vantora::settings {

enum class SettingKind { Bool, Int, Double, Colour, PlainText, CodedText, MenuItems };

// Where and how a preset file keeps a setting.
struct IniKey
{
    const char *section = nullptr;     // "Toolbar" or "Applet"; null: not kept in presets
    const char *defaultText = nullptr; // read default; null: the text of the record's default
    int clampFrom = 0;                 // read values from here on become clampTo; 0: no clamp
    int clampTo = 0;
    // A key of older presets: a flag's default is read from it first; a text kept uncoded under
    // it wins over the coded key when not empty.
    const char *legacyKey = nullptr;
    bool base64 = false;      // coded: base64 of the UTF-8 bytes
    bool onlyWhenSet = false; // an empty text is not written

    constexpr IniKey clamp(int from, int to) const
    {
        IniKey k = *this;
        k.clampFrom = from;
        k.clampTo = to;
        return k;
    }
    constexpr IniKey readDefault(const char *text) const
    {
        IniKey k = *this;
        k.defaultText = text;
        return k;
    }
    constexpr IniKey legacy(const char *key) const
    {
        IniKey k = *this;
        k.legacyKey = key;
        return k;
    }
    constexpr IniKey coded() const
    {
        IniKey k = *this;
        k.base64 = true;
        return k;
    }
    constexpr IniKey whenSet() const
    {
        IniKey k = *this;
        k.onlyWhenSet = true;
        return k;
    }
};

// Where the settings block keeps a setting, and the block version that brought it.
struct BlockSlot
{
    enum Area { None, Int, Rate, Flag, String };
    Area area = None;
    int index = 0;       // in the area, in block order
    int since = 0;       // block version
    int countIndex = -1; // ContextMenuItems: the Int slot of its count
};

using SettingField = std::variant<bool ViewerSettings::*, int ViewerSettings::*,
    double ViewerSettings::*, Colour ViewerSettings::*, QString ViewerSettings::*,
    QList<ContextMenuItem> ViewerSettings::*, bool ContextMenuChoice::*,
    QString ContextMenuChoice::*>;

struct SettingRow
{
    const char *name; // the field's name and the preset key
    SettingKind kind;
    SettingField field; // in ViewerSettings, or in ContextMenuChoice for the menu keys
    IniKey ini;
    BlockSlot block;
    const char *meaning;

    bool inPresets() const { return ini.section != nullptr; }
    bool inRecord() const
    {
        return !std::holds_alternative<bool ContextMenuChoice::*>(field)
            && !std::holds_alternative<QString ContextMenuChoice::*>(field);
    }
};

struct SettingRows
{
    const SettingRow *first;
    std::size_t count;
    const SettingRow *begin() const { return first; }
    const SettingRow *end() const { return first + count; }
};

// Every row, in the order of a preset file.
SettingRows settingRows();

// The text a preset key reads when it is missing (before any legacy key).
QString iniReadDefault(const SettingRow &row);

// Calls visit(value) with a reference to the row's field: in `settings` for the record's rows,
// in `menu` for the menu keys. Const or not as the objects are.
template <typename Settings, typename Menu, typename Visit>
void visitValue(const SettingRow &row, Settings &settings, Menu &menu, Visit &&visit)
{
    std::visit(
        [&](auto member) {
            if constexpr (std::is_member_object_pointer_v<decltype(member)>) {
                if constexpr (std::is_invocable_v<decltype(member), Settings &>)
                    visit(settings.*member);
                else
                    visit(menu.*member);
            }
        },
        row.field);
}

// Calls visit(row, value) for every field of the record, in the table's order.
template <typename Settings, typename Visit> void forEachField(Settings &settings, Visit &&visit)
{
    ContextMenuChoice unused;
    for (const SettingRow &row : settingRows())
        if (row.inRecord())
            visitValue(row, settings, unused, [&](auto &value) { visit(row, value); });
}

// Names of the fields in which `a` and `b` differ, in the table's order; empty when equal.
QList<const char *> differingFields(const ViewerSettings &a, const ViewerSettings &b);

inline bool operator==(const ViewerSettings &a, const ViewerSettings &b)
{
    return differingFields(a, b).isEmpty();
}
inline bool operator!=(const ViewerSettings &a, const ViewerSettings &b)
{
    return !(a == b);
}

} // namespace vantora::settings
