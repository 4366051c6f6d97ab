// The embedded sample: a panorama the tool draws itself, so that an export needs nothing else.
#pragma once

#include <QImage>

namespace vantora::cli {

constexpr int SAMPLE_WIDTH = 8192;
constexpr int SAMPLE_HEIGHT = 4096;
// Pan of north in the sample, degrees from its left edge: north lies in its middle.
constexpr double SAMPLE_NORTH = 180.0;

// A 2:1 equirectangular full sphere, the same pixels on every run: a sky above and ground below a
// marked horizon, a grid every 15 degrees (stronger every 45), the compass letters N, E, S, W at
// their pans, with north in the middle and the start view facing it, and tilt labels at +-45.
QImage drawSamplePanorama(int width = SAMPLE_WIDTH, int height = SAMPLE_HEIGHT);

} // namespace vantora::cli
