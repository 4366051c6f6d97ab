// The orientation element: a compass or a radar that shows where the view looks.
#pragma once

#include "settings/viewersettings.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vantora::params {

// The element for kinds 0..9 of OrientationElement, placed by OrientationElementPosition; an
// empty object for the toolbar kinds and unknown ones. With PositionNorth a click turns the
// view to north through the "turnToNorth" action, which is appended to `actions`.
QJsonObject buildOrientationElement(
    QJsonArray &actions, int design, const settings::ViewerSettings &settings);

// For the toolbar kinds (10 compass, 11 radar): appends the item that sits at toolbar index 2,
// and "turnToNorth" with PositionNorth. Other kinds append nothing.
void appendOrientationToolbarItems(
    QJsonArray &buttons, QJsonArray &actions, int design, const settings::ViewerSettings &settings);

// Whether the kind lives in the toolbar rather than over the picture.
bool isToolbarOrientation(int kind);

} // namespace vantora::params
