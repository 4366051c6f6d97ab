// The eight commands of export_applet.
#pragma once

#include <vantora/host.h>

#include <cstdint>

namespace vantora::plugin {

// Runs one command for `host` (re-stored as the current host first). Results go to *inout.
void runCommand(std::uint32_t command, HostContext *host, std::uint64_t *inout);

} // namespace vantora::plugin
