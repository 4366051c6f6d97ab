// Which widget of the viewer settings dialog shows which setting, and the copies between the
// widgets and a preset, walked along the settings table.
#pragma once

#include "settings/presetfile.h"

class QWidget;

namespace vantora::dialogs {

// The preset as the widgets below `dialog` show it: every check box, group, combo box, spin box
// and text field in its plain state (a disabled box counts as it is checked). The colours are no
// widgets: they, and every field no widget shows, keep their values in `preset`.
settings::Preset presetFromWidgets(const QWidget *dialog, settings::Preset preset);

// Shows `preset` in the widgets below `dialog`; combo indices outside a box's items go to its
// nearest item. The colours stay with the caller.
void presetToWidgets(QWidget *dialog, const settings::Preset &preset);

} // namespace vantora::dialogs
