#include "commands.h"

#include "defaultview.h"
#include "exportrun.h"
#include "pluginstate.h"
#include "settings/settingsblock.h"
#include "translation.h"

#include <cstring>

namespace vantora::plugin {
namespace {

void freeSettingsBlock()
{
    PluginState &state = pluginState();
    delete[] state.settingsBlock;
    state.settingsBlock = nullptr;
}

void freeViewStateBlock()
{
    PluginState &state = pluginState();
    delete[] reinterpret_cast<unsigned char *>(state.viewStateBlock);
    state.viewStateBlock = nullptr;
}

std::uint64_t saveViewState()
{
    // A new block replaces the one the host was given before; the host keeps only the latest.
    freeViewStateBlock();
    auto *block = reinterpret_cast<ViewState *>(new unsigned char[sizeof(ViewState)]);
    const View &current = view();
    block->size = sizeof(ViewState);
    block->zero = 0;
    block->hfov = current.hfov;
    block->maxhfov = current.maxhfov;
    block->minhfov = current.minhfov;
    block->pan = current.pan;
    block->tilt = current.tilt;
    pluginState().viewStateBlock = block;
    return reinterpret_cast<std::uintptr_t>(block);
}

void restoreViewState(const HostContext &host, std::uint64_t address)
{
    PluginState &state = pluginState();
    state.view = defaultViewFromHost(host);
    state.viewRestored = false;
    const auto *block = reinterpret_cast<const unsigned char *>(std::uintptr_t(address));
    if (!block)
        return;
    // The host's block may be unaligned: read it field by field.
    ViewState stored;
    std::memcpy(&stored, block, sizeof stored);
    if (stored.size != sizeof(ViewState) || stored.zero != 0)
        return;
    state.view.hfov = stored.hfov;
    state.view.maxhfov = stored.maxhfov;
    state.view.minhfov = stored.minhfov;
    state.view.pan = stored.pan;
    state.view.tilt = stored.tilt;
    state.viewRestored = true;
}

} // namespace

void runCommand(std::uint32_t command, HostContext *host, std::uint64_t *inout)
{
    pluginState().host = host;
    // The host must hand a valid record and word to every command but 6 and 7; still, a broken
    // host should not bring its own process down through us.
    std::uint64_t unused = 0;
    std::uint64_t &result = inout ? *inout : unused;
    switch (command) {
    case VANTORA_PREPARE:
        followHostLanguage();
        result = host ? prepareExport(*host) : 0;
        break;
    case VANTORA_WRITE:
        followHostLanguage();
        result = host ? writeExport(*host) : std::uint64_t(VANTORA_WRITE_DONE);
        break;
    case VANTORA_SAVE_SETTINGS:
        result = reinterpret_cast<std::uintptr_t>(settings::serializeViewerSettings());
        break;
    case VANTORA_FREE_SETTINGS:
        freeSettingsBlock();
        break;
    case VANTORA_SAVE_VIEW:
        result = saveViewState();
        break;
    case VANTORA_FREE_VIEW:
        freeViewStateBlock();
        break;
    case VANTORA_RESTORE_SETTINGS:
        if (inout)
            settings::restoreViewerSettings(
                reinterpret_cast<const unsigned char *>(std::uintptr_t(*inout)));
        break;
    case VANTORA_RESTORE_VIEW:
        if (inout && host)
            restoreViewState(*host, *inout);
        break;
    default:
        result = 0;
        break;
    }
}

} // namespace vantora::plugin
