// Applying a preset to the viewer record, as a host without the settings dialog needs it.
#pragma once

#include "presetkeys.h"
#include "viewersettings.h"

namespace vantora::settings {

// Copies every preset key into the record field of the same name and rebuilds ContextMenuItems
// from the preset's menu flags, the way the settings dialog stores them: full screen, the two
// views, the custom item, the gyroscope, the about item, separated where the list already holds
// entries. ContextMenuSpare becomes false. LogoFile and SoundFile stay: the export fills them.
void applyPresetValues(const PresetValues &values, ViewerSettings &settings);

} // namespace vantora::settings
