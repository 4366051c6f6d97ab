// The controls file's event object and the actions that come with it.
#pragma once

#include "plugin/pluginstate.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vantora::params {

// What selects the handlers; computed once by the controls-file writer.
struct EventFlags
{
    int design = 0;             // TBDesign, already clamped into 0..7
    bool gyroSupport = false;   // AddGyro in spherical mode
    bool gyroOnAtStart = false; // GyroEnabled in spherical mode
    bool littlePlanetIntro = false;
    bool vr = false; // AddVrMode and a full sphere in spherical mode
};

// Stores "events" in `controlsRoot`; with the little planet intro, its "oninit" starts the intro
// at `view` and the "littlePlanetIntro" action is appended to `actions`.
void buildMainEvents(QJsonObject &controlsRoot, QJsonArray &actions, const EventFlags &flags,
    const plugin::View &view);

// Appends "showMessage", "hideMessage" and "toggleMessage", which close the actions list.
void appendMessageActions(QJsonArray &actions);

} // namespace vantora::params
