// Commands 2 and 6: the process-wide record to and from the host's block.
#include "settingsblock.h"

#include "plugin/pluginstate.h"

#include <cstring>

namespace vantora::settings {

unsigned char *serializeViewerSettings()
{
    const QByteArray bytes = encodeSettingsBlock(viewerSettings());
    auto *block = new unsigned char[std::size_t(bytes.size())];
    std::memcpy(block, bytes.constData(), std::size_t(bytes.size()));
    plugin::pluginState().settingsBlock = block;
    return block;
}

void restoreViewerSettings(const unsigned char *block)
{
    resetViewerSettings();
    plugin::pluginState().settingsRestored = false;
    ViewerSettings restored = viewerSettings();
    if (!decodeSettingsBlock(block, restored))
        return;
    viewerSettings() = restored;
    plugin::pluginState().settingsRestored = true;
}

} // namespace vantora::settings
