// The viewer settings dialog on one preset file, for a host that edits presets by themselves.
#pragma once

#include <QString>

class QWidget;

namespace vantora::dialogs {

enum class PresetEdit { Saved, Cancelled, Unreadable, Unwritable };

// Fills the dialog from the preset at `file` (the process-wide record's values when there is no
// file yet) and, on OK, writes the widgets back to it. The current host decides what the dialog
// offers, as it does for an export.
PresetEdit editPresetInDialog(const QString &file, QWidget *parent);

} // namespace vantora::dialogs
