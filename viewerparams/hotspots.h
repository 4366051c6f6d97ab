// Hotspots and lens flares of the panorama node.
#pragma once

#include <vantora/host.h>

#include <QJsonArray>
#include <QString>

namespace vantora::params {

struct PanTilt
{
    double pan = 0.0;
    double tilt = 0.0;
};

// Pan and tilt of a hotspot or lens flare in spherical mode. position: fractions of the image;
// panRange: end pan - start pan (uncapped); lowTilt, highTilt: the "mintilt" and "maxtilt"
// values after their clamps; pixelWidth: the output width (it cancels out of the result).
PanTilt hotspotPanTilt(const double position[2], bool linearVertical, double panRange,
    double lowTilt, double highTilt, double pixelWidth);

struct HotspotInput
{
    HostContext *host = nullptr;
    bool flatMode = false;
    int design = 0;        // TBDesign, for the info message boxes
    double panRange = 0.0; // end pan - start pan, uncapped
    double minTilt = 0.0;  // "mintilt" after its clamp
    double maxTilt = 0.0;  // "maxtilt" after its clamp
    double pixelWidth = 0.0;
};

// Walks the host's list: returns the "hotspot" array (exporting each bitmap into outputFolder
// on the way). Null entries are skipped; every other entry uses up one running number.
QJsonArray buildHotspots(const HotspotInput &input, const QString &outputFolder);

// The "lensflare" array: one object per entry of kind 7..13; empty in flat mode.
QJsonArray buildLensFlares(const HotspotInput &input);

} // namespace vantora::params
