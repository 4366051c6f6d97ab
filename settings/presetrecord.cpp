#include "presetrecord.h"

#include "viewersettingsfields.h"

#include <cstring>
#include <type_traits>

namespace vantora::settings {
namespace {

using Item = ContextMenuItem;

QList<Item> menuItems(const PresetValues &values)
{
    QList<Item> items;
    const auto add = [&items](bool wanted, std::initializer_list<Item> group) {
        if (!wanted)
            return;
        if (!items.isEmpty())
            items.append(Item {Item::Separator, {}, {}});
        for (const Item &item : group)
            items.append(item);
    };
    add(values.ContextMenuFullscreen, {{Item::Fullscreen, {}, {}}});
    add(values.ContextMenuViews, {{Item::NormalView, {}, {}}, {Item::LittlePlanetView, {}, {}}});
    add(values.ContextMenuCustom,
        {{Item::Custom, values.ContextMenuCustomCaption, values.ContextMenuCustomAction}});
    add(values.ContextMenuGyro, {{Item::Gyroscope, {}, {}}});
    add(values.ContextMenuAbout, {{Item::About, {}, {}}});
    return items;
}

} // namespace

void applyPresetValues(const PresetValues &values, ViewerSettings &settings)
{
    // Keys and record fields share their names; the menu keys have no field of their own.
    forEachPresetField([&](const char *key, PresetField presetMember) {
        std::visit(
            [&](auto from) {
                using Value = std::remove_cv_t<std::remove_reference_t<decltype(values.*from)>>;
                forEachField([&](const char *name, auto to) {
                    using Field = std::remove_reference_t<decltype(settings.*to)>;
                    if constexpr (std::is_same_v<Value, Field>) {
                        if (std::strcmp(name, key) == 0)
                            settings.*to = values.*from;
                    }
                });
            },
            presetMember);
    });
    settings.ContextMenuItems = menuItems(values);
    settings.ContextMenuSpare = false;
}

} // namespace vantora::settings
