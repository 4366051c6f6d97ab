// The host's location filler: where the panorama was taken and where north lies.
#pragma once

#include "options.h"

#include <vantora/host.h>

#include <optional>

namespace vantora::cli {

// Sets "lat" and "lng" when a map asks and the location is known, "north" when the orientation
// is asked for and known. Members nobody knows are left out rather than guessed.
void fillLocation(const std::optional<Location> &location, VantoraJsonObject *object,
    VantoraJsonSetFn setMember, bool forMap, bool forOrientation);

} // namespace vantora::cli
