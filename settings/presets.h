// Named presets: one INI file each in the "appletSettings" folder beside the host's settings.
#pragma once

#include "presetfile.h"

#include <QStringList>

namespace vantora::settings {

// `settingsFolder` is the host's settings folder, ending in a separator. With an empty one there
// are no presets: nothing is listed, read, written or deleted.

// The settings folder + "appletSettings" + a separator.
QString presetFolder(const QString &settingsFolder);
// The name with every '\' and '/' replaced by '_', so a preset never leaves its folder.
QString sanitizedPresetName(const QString &name);
// The preset folder + the sanitised name + ".ini".
QString presetFilePath(const QString &settingsFolder, const QString &name);

bool presetExists(const QString &settingsFolder, const QString &name);

// Writes the preset, creating the preset folder (with its missing parents) first; a plain file in
// the folder's place is removed. False when the folder cannot be made or a key not written.
bool writePresetFile(const QString &settingsFolder, const QString &name, const Preset &preset);

// The preset's values; the defaults for a missing preset.
Preset readPresetFile(const QString &settingsFolder, const QString &name);

// Deletes the preset file; false when there was none or it could not be removed.
bool deletePresetFile(const QString &settingsFolder, const QString &name);

// The names of the "*.ini" files of the preset folder without their last four characters, sorted
// ignoring case.
QStringList presetNames(const QString &settingsFolder);

} // namespace vantora::settings
