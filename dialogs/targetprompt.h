// The interactive half of command 0: the main dialog asks the user for the target page.
#pragma once

#include "plugin/pluginstate.h"

#include <vantora/host.h>

#include <QString>

namespace vantora::dialogs {

// Runs the main dialog over the host's parent window with the host's path buffer as the
// proposed path. The accepted target path, or an empty string when the user cancelled or no
// dialog can be shown in this process.
QString runMainDlg(HostContext &host, plugin::ExportJob &job);

} // namespace vantora::dialogs
