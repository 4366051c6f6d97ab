// Which widget of the viewer settings dialog shows which preset key, and the copies between the
// widgets and a preset's values.
#pragma once

#include "settings/presetkeys.h"
#include "settings/viewersettings.h"

class QWidget;

namespace vantora::dialogs {

// The preset's values as the widgets below `dialog` show them: every check box, group, combo
// box, spin box and text field in its plain state (a disabled box counts as it is checked). The
// two colours are not widgets; they come from the caller.
settings::PresetValues valuesFromWidgets(
    const QWidget *dialog, settings::Colour textColour, settings::Colour shadowColour);

// Shows `values` in the widgets below `dialog`; combo indices outside a box's items go to its
// nearest item. The colours stay with the caller.
void valuesToWidgets(QWidget *dialog, const settings::PresetValues &values);

// The record in the form of a preset: every key from the field of the same name, the menu flags
// from ContextMenuItems (each item checks its flag; the last custom item gives the texts).
settings::PresetValues valuesFromRecord(const settings::ViewerSettings &record);

} // namespace vantora::dialogs
