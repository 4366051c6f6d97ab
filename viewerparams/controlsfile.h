// The controls file: events, actions, toolbar, orientation element and context menu of the viewer.
#pragma once

#include "design.h"
#include "events.h"
#include "plugin/pluginstate.h"
#include "settings/viewersettings.h"

#include <vantora/host.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::params {

// What the controls file is built from; the parameter-file writer fills it.
struct ControlsInput
{
    HostContext *host = nullptr; // the writer exports the map's marker pictures through it
    // Read only: the parameter file writer has clamped the design and stored it back already.
    settings::ViewerSettings *settings = nullptr;
    plugin::View view;
    bool flatMode = false;
    bool vrAvailable = false; // spherical and a full sphere
};

// The flags that select handlers and gates, for the design clamped into 0..7.
EventFlags controlsFlags(const settings::ViewerSettings &settings, bool flatMode, bool vrAvailable);

// The controls root. `actions` comes in empty and leaves as stored under "actions".
QJsonObject buildControls(const ControlsInput &input, QJsonArray &actions);

// Builds the controls root, exports the map's marker pictures into outputFolder when the root has
// a map, and writes the root to outputFolder + controlsFileName in the parameter file's framing.
// Returns the include object {"src": controlsFileName, "%%" printed as "%"} even when the file
// cannot be written, as the parameter file names it either way.
QJsonObject writeControlsFile(const QString &outputFolder, const QString &controlsFileName,
    const ControlsInput &input, QJsonArray &actions);

} // namespace vantora::params
