// The viewer settings a run hands to the library: a preset file, read by the library's own preset
// reader, and the title of the command line; and the same settings written back as a preset.
#pragma once

#include "options.h"

#include <QByteArray>

namespace vantora::cli {

// The settings block for command 6: the defaults, then the preset file's keys, then the title.
// An empty array when the command line asks for neither: the library keeps its own defaults.
QByteArray settingsBlockFor(const CliOptions &options);

// Whether the file at `path` is an INI preset: text in one of the encodings the preset reader
// knows, every line a section, a key with its value or a comment, and at least one preset key.
// False with one line in `error` (naming the file) otherwise.
bool isPresetFile(const QString &path, QString *error);

// Writes the defaults with the preset file and the title of `options` applied as the preset
// `options.writeSettings`, through the library's preset writer. An existing file is replaced only
// when it is a preset itself. False with one line in `error`.
bool writeSettingsFile(const CliOptions &options, QString *error);

// A line telling the user why the page will lack something the settings ask for; empty when
// nothing is missing.
QString settingsNotice(const CliOptions &options);

} // namespace vantora::cli
