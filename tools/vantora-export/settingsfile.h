// The viewer settings a run hands to the library: a preset file, read by the library's own preset
// reader, and the title of the command line.
#pragma once

#include "options.h"

#include <QByteArray>

namespace vantora::cli {

// The settings block for command 6: the defaults, then the preset file's keys, then the title.
// An empty array when the command line asks for neither: the library keeps its own defaults.
QByteArray settingsBlockFor(const CliOptions &options);

} // namespace vantora::cli
