// The start view the host implies (its stored view, or one computed from the image's extent),
// and the host's own copy of the view.
#pragma once

#include "pluginstate.h"

#include <vantora/host.h>

namespace vantora::plugin {

View defaultViewFromHost(const HostContext &host);

// The view the host keeps with its document (offsets 328 to 360), read and written back.
View storedView(const HostContext &host);
void storeView(HostContext &host, const View &view);

} // namespace vantora::plugin
