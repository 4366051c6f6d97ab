#include "pluginstate.h"

#include "settings/viewersettings.h"

namespace vantora::plugin {
namespace {

PluginState &state()
{
    static PluginState instance;
    return instance;
}

} // namespace

PluginState &pluginState()
{
    return state();
}

void resetPluginStateForTests()
{
    PluginState &s = state();
    delete[] s.settingsBlock;
    delete[] reinterpret_cast<unsigned char *>(s.viewStateBlock);
    s = PluginState {};
    settings::viewerSettings() = settings::ViewerSettings {};
}

} // namespace vantora::plugin

namespace vantora::settings {

ViewerSettings &viewerSettings()
{
    static ViewerSettings instance;
    return instance;
}

} // namespace vantora::settings
