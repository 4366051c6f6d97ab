// The start view the host implies: its stored view, or one computed from the image's extent.
#pragma once

#include "pluginstate.h"

#include <vantora/host.h>

namespace vantora::plugin {

View defaultViewFromHost(const HostContext &host);

} // namespace vantora::plugin
