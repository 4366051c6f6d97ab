// A deterministic stand-in for the host's panorama image: sky, ground and pan markers.
#pragma once

#include <QImage>
#include <QSize>

namespace vantora::cli {

// The angular extent the picture covers, in the host's terms: pan from startPan to endPan,
// tilt counted downward positive from upperEdge (top row) to lowerEdge (bottom row).
struct PictureExtent
{
    double startPan = -180.0;
    double endPan = 180.0;
    double upperEdge = -90.0;
    double lowerEdge = 90.0;
    bool flat = false;
};

// The largest size inside 2048 x 1024 with the proportions of `outputSize` (at least 1 x 1).
QSize pictureSize(QSize outputSize);

// A gradient sky above the horizon (tilt 0), ground below it, and a vertical marker every 30
// degrees of pan: red at north (pan 0), yellow at the other quarters, white elsewhere. A flat
// picture puts its horizon at 60 % of the height and eight evenly spaced markers.
QImage drawPanorama(QSize size, const PictureExtent &extent);

} // namespace vantora::cli
