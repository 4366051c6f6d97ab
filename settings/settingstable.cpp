#include "settingstable.h"

#include "inivalues.h"
#include "settingrowdata.h"

#include <iterator>

namespace vantora::settings {

SettingRows settingRows()
{
    return {rows::ALL, std::size(rows::ALL)};
}

QString iniReadDefault(const SettingRow &row)
{
    if (row.ini.defaultText)
        return QString::fromLatin1(row.ini.defaultText);
    const ViewerSettings settings;
    const ContextMenuChoice menu;
    QString text;
    visitValue(row, settings, menu, [&](const auto &value) {
        using T = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<T, bool>)
            text = value ? QStringLiteral("1") : QStringLiteral("0");
        else if constexpr (std::is_same_v<T, int> || std::is_same_v<T, Colour>)
            text = QString::number(value);
        else if constexpr (std::is_same_v<T, double>)
            text = iniTextOfDouble(value);
    });
    return text;
}

QList<const char *> differingFields(const ViewerSettings &a, const ViewerSettings &b)
{
    QList<const char *> names;
    ContextMenuChoice unused;
    for (const SettingRow &row : settingRows()) {
        if (!row.inRecord())
            continue;
        visitValue(row, a, unused, [&](const auto &value) {
            visitValue(row, b, unused, [&](const auto &other) {
                if constexpr (std::is_same_v<decltype(value), decltype(other)>) {
                    if (!(value == other))
                        names.append(row.name);
                }
            });
        });
    }
    return names;
}

bool ContextMenuChoice::operator==(const ContextMenuChoice &other) const
{
    bool same = true;
    const ViewerSettings unused;
    for (const SettingRow &row : settingRows()) {
        if (row.inRecord())
            continue;
        visitValue(row, unused, *this, [&](const auto &value) {
            visitValue(row, unused, other, [&](const auto &theirs) {
                if constexpr (std::is_same_v<decltype(value), decltype(theirs)>)
                    same = same && value == theirs;
            });
        });
    }
    return same;
}

QList<ContextMenuItem> menuItemsOf(const ContextMenuChoice &choice)
{
    using Item = ContextMenuItem;
    QList<Item> items;
    const auto add = [&items](bool wanted, std::initializer_list<Item> group) {
        if (!wanted)
            return;
        if (!items.isEmpty())
            items.append(Item {Item::Separator, {}, {}});
        for (const Item &item : group)
            items.append(item);
    };
    add(choice.ContextMenuFullscreen, {{Item::Fullscreen, {}, {}}});
    add(choice.ContextMenuViews, {{Item::NormalView, {}, {}}, {Item::LittlePlanetView, {}, {}}});
    add(choice.ContextMenuCustom,
        {{Item::Custom, choice.ContextMenuCustomCaption, choice.ContextMenuCustomAction}});
    add(choice.ContextMenuGyro, {{Item::Gyroscope, {}, {}}});
    add(choice.ContextMenuAbout, {{Item::About, {}, {}}});
    return items;
}

ContextMenuChoice menuChoiceOf(const QList<ContextMenuItem> &items)
{
    ContextMenuChoice choice;
    choice.ContextMenuFullscreen = choice.ContextMenuViews = choice.ContextMenuGyro
        = choice.ContextMenuAbout = choice.ContextMenuCustom = false;
    for (const ContextMenuItem &item : items) {
        switch (item.kind) {
        case ContextMenuItem::Fullscreen:
            choice.ContextMenuFullscreen = true;
            break;
        case ContextMenuItem::NormalView:
        case ContextMenuItem::LittlePlanetView:
            choice.ContextMenuViews = true;
            break;
        case ContextMenuItem::Gyroscope:
            choice.ContextMenuGyro = true;
            break;
        case ContextMenuItem::About:
            choice.ContextMenuAbout = true;
            break;
        case ContextMenuItem::Custom:
            choice.ContextMenuCustom = true;
            choice.ContextMenuCustomCaption = item.caption;
            choice.ContextMenuCustomAction = item.action;
            break;
        default:
            break;
        }
    }
    return choice;
}

} // namespace vantora::settings
