// --settings-dialog FILE: the library's viewer settings dialog alone, on one preset file, so that
// a preset can be edited without a panorama application.
#pragma once

#include <QString>

namespace vantora::cli {

// Shows the dialog filled from the preset at `path` (the defaults when there is none yet) and,
// on OK, writes the widgets back to it. Returns the process's exit status: 0 saved or
// cancelled, 1 when the file could not be read or written (said on stderr).
int editPresetFile(const QString &path);

} // namespace vantora::cli
