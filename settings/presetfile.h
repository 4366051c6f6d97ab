// A preset file's keys, read into and written from the viewer record and the menu's stored form.
#pragma once

#include "viewersettings.h"

#include <QByteArray>
#include <QString>

namespace vantora::settings {

// What a preset file holds: the record's fields that have a key (the others keep the record's
// defaults) and the context menu in the form of the settings dialog's check boxes.
struct Preset
{
    ViewerSettings settings;
    ContextMenuChoice menu;

    bool operator==(const Preset &other) const;
    bool operator!=(const Preset &other) const { return !(*this == other); }
};

// Reads every key of the INI file at `path` (missing keys take their default texts, out-of-range
// numbers are clamped, legacy keys are honoured), reading the file once. A missing file gives the
// defaults; a file that exists but cannot be read gives them too, with *readable set to false.
Preset readPreset(const QString &path, bool *readable = nullptr);

// The same for a preset file's bytes.
Preset presetFromBytes(const QByteArray &bytes);
// The bytes of the preset file `existing` once every key is written (the file is not touched).
QByteArray presetFileBytes(const QByteArray &existing, const Preset &preset);

// Writes every key in the file's order; empty texts of the keys that are written only when set are
// left out. The file is replaced in one write. False when it could not be read or written.
bool writePreset(const QString &path, const Preset &preset);

// Copies every preset key into the record and rebuilds ContextMenuItems from the menu choice, as
// the settings dialog stores it; ContextMenuSpare becomes false. LogoFile and SoundFile stay: the
// export fills them.
void applyPreset(const Preset &preset, ViewerSettings &settings);

} // namespace vantora::settings
