// The toolbar: "buttonBox" holding the one toolbar object with its geometry, look and buttons.
#pragma once

#include "settings/viewersettings.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::controls {

struct ToolbarInput
{
    const settings::ViewerSettings *settings = nullptr;
    int design = 0;           // TBDesign, clamped
    bool noGyroscope = false; // flat mode: no device orientation to steer with
    bool vrCapable = false;   // spherical and a full sphere
};

// Builds the toolbar object (gallery, map and gyroscope button append their actions to
// `actions`) and sets controlsRoot["buttonBox"] to an array holding it.
void writeToolbar(QJsonObject &controlsRoot, QJsonArray &actions, const ToolbarInput &input);

// The toolbar object alone.
QJsonObject buildToolbar(QJsonArray &actions, const ToolbarInput &input);

// The free-standing buttons of the controls root's "button" array: the show-toolbar button, the
// stereo VR buttons when VR mode is exported, the gallery edge buttons when the gallery wants them.
QJsonArray buildFreeButtons(const ToolbarInput &input);

} // namespace vantora::controls
