#include "viewersettings.h"

#include "plugin/pluginstate.h"

namespace vantora::settings {

QList<ContextMenuItem> defaultContextMenuItems()
{
    using K = ContextMenuItem::Kind;
    QList<ContextMenuItem> items;
    for (int kind : {K::Fullscreen, K::Separator, K::NormalView, K::LittlePlanetView, K::Separator,
             K::Gyroscope, K::Separator, K::About})
        items.append(ContextMenuItem {kind, QString(), QString()});
    return items;
}

void resetViewerSettings(ViewerSettings &settings, bool hostGyroCapable)
{
    settings = ViewerSettings {};
    settings.ContextMenuItems = defaultContextMenuItems();
    settings.AddGyro = hostGyroCapable;
    settings.GyroButton = hostGyroCapable;
}

void resetViewerSettings()
{
    const HostContext *host = plugin::currentHost();
    resetViewerSettings(viewerSettings(), host && host->gyroCapable != 0);
}

} // namespace vantora::settings
