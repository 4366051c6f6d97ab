#include "contextmenu.h"

#include "actions.h"
#include "menutexts.h"
#include "plugin/product.h"

namespace vantora::params {
namespace {

using settings::ContextMenuItem;

// clang-format off
// The built-in items: each has its handlers and a caption the viewer translates; some bring an
// action and a visibility statement for the menu's "onshow". Null members are left out.
struct BuiltInItem
{
    int kind;
    const char *id;
    const char *onclick; // null: assembled (about item)
    const char *oninit;
    const char *captionEn;
    const char *captionDe;
    const char *actionId;
    const char *actionFunc;
    const char *onshow;
};
constexpr BuiltInItem BUILT_IN_ITEMS[] = {
    {ContextMenuItem::Fullscreen, "fullscreenItem", FULLSCREEN_ONCLICK, FULLSCREEN_ONINIT,
     "Fullscreen", "Vollbild", nullptr, nullptr, nullptr},
    {ContextMenuItem::NormalView, "normalView", NORMAL_VIEW_ONCLICK, NORMAL_VIEW_ONINIT,
     "Normal View", "Normale Ansicht", "leaveLittlePlanet", LEAVE_LITTLE_PLANET, NORMAL_VIEW_ONSHOW},
    {ContextMenuItem::LittlePlanetView, "littlePlanetView", LITTLE_PLANET_ONCLICK, LITTLE_PLANET_ONINIT,
     "LittlePlanet View", "LittlePlanet-Ansicht", "enterLittlePlanet", ENTER_LITTLE_PLANET, LITTLE_PLANET_ONSHOW},
    {ContextMenuItem::Gyroscope, "gyroItem", GYRO_ONCLICK, GYRO_ONINIT,
     "Gyroscope Control", "Gyroskop-Steuerung", nullptr, nullptr, GYRO_ONSHOW},
    {ContextMenuItem::About, nullptr, nullptr, ABOUT_ONINIT,
     "About Vantora...", "&Uuml;ber Vantora...", nullptr, nullptr, nullptr},
};
// clang-format on

const BuiltInItem *builtIn(int kind)
{
    for (const BuiltInItem &item : BUILT_IN_ITEMS)
        if (item.kind == kind)
            return &item;
    return nullptr;
}

QJsonObject builtInItem(
    const BuiltInItem &item, QJsonArray &actions, QJsonObject &captionsDe, QString &onshow)
{
    QJsonObject object;
    if (item.id)
        object.insert(QStringLiteral("id"), QLatin1String(item.id));
    object.insert(QStringLiteral("onclick"),
        item.onclick ? QString::fromLatin1(item.onclick)
                     : QLatin1String(ABOUT_ONCLICK_HEAD) + QLatin1String(PRODUCT_WEB_SITE)
                + QLatin1String(ABOUT_ONCLICK_TAIL));
    object.insert(QStringLiteral("oninit"), QLatin1String(item.oninit));
    if (item.actionId)
        appendAction(actions, QLatin1String(item.actionId), QLatin1String(item.actionFunc));
    if (item.onshow)
        onshow += QLatin1String(item.onshow);
    // "&Uuml;" is an HTML entity, so the German captions stay ASCII.
    captionsDe.insert(QLatin1String(item.captionEn), QLatin1String(item.captionDe));
    return object;
}

} // namespace

void buildContextMenu(QJsonObject &controlsRoot, QJsonArray &actions, QJsonObject &captionsDe,
    const QList<ContextMenuItem> &entries, bool gyroSupport)
{
    QJsonArray items;
    QString onshow;
    bool afterSeparator = false;
    for (const ContextMenuItem &entry : entries) {
        // Without gyroscope support the entry vanishes completely, so the separators around it
        // collapse into one.
        if (entry.kind == ContextMenuItem::Gyroscope && !gyroSupport)
            continue;
        if (entry.kind == ContextMenuItem::Separator) {
            if (!afterSeparator)
                items.append(QJsonObject {{QStringLiteral("caption"), QStringLiteral("-")}});
        } else if (entry.kind == ContextMenuItem::Custom) {
            items.append(QJsonObject {
                {QStringLiteral("id"), QStringLiteral("customMenuItem")},
                {QStringLiteral("caption"), entry.caption},
                {QStringLiteral("onclick"),
                    QLatin1String(CUSTOM_ONCLICK_HEAD) + entry.action
                        + QLatin1String(CUSTOM_ONCLICK_TAIL)},
            });
        } else if (const BuiltInItem *item = builtIn(entry.kind)) {
            items.append(builtInItem(*item, actions, captionsDe, onshow));
        }
        afterSeparator = entry.kind == ContextMenuItem::Separator;
    }

    QJsonObject menu;
    menu.insert(QStringLiteral("id"), QStringLiteral("menu"));
    menu.insert(QStringLiteral("style"), QLatin1String(MENU_STYLE));
    menu.insert(QStringLiteral("items"), items);
    menu.insert(
        QStringLiteral("onshow"), QLatin1String(ONSHOW_HEAD) + onshow + QLatin1String(ONSHOW_TAIL));
    controlsRoot.insert(QStringLiteral("contextmenu"), menu);
}

} // namespace vantora::params
