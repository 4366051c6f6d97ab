// The two buttons shown in stereo VR mode, one per eye's half of the screen; both leave VR mode.
#pragma once

#include <QJsonArray>

namespace vantora::controls {

// Appends "leftStereoButton", then "rightStereoButton".
void appendStereoButtons(QJsonArray &buttons, int design);

} // namespace vantora::controls
