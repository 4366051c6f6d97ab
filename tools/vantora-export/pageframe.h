// What one picture covers: a flat picture, or a panorama of so many degrees across and up.
#pragma once

#include <optional>

namespace vantora::cli {

struct PageFrame
{
    bool flat = false;
    double hextent = 360.0; // degrees, from pan 0 at the left edge
    double vextent = 180.0; // degrees, centred on the horizon
};

// The extents the user gave, the missing ones from the aspect ratio: an equirectangular picture
// has as many pixels per degree across as up, and covers at most 360 x 180 degrees.
PageFrame frameFor(
    int width, int height, bool flat, std::optional<double> hextent, std::optional<double> vextent);

} // namespace vantora::cli
