// The one record of every viewer option; its fields and defaults come from settingrows.h.
#pragma once

#include <QList>
#include <QString>

#include "settingrows.h"

namespace vantora::settings {

// One entry of the viewer's context menu.
struct ContextMenuItem
{
    enum Kind : int {
        Separator = 0,
        Fullscreen = 1,
        NormalView = 2,
        LittlePlanetView = 3,
        Gyroscope = 4,
        About = 5,
        Nothing = 6, // kept by old blocks; writes no item
        Custom = 7,
    };

    int kind = Separator;
    QString caption; // used by Custom only
    QString action;  // JavaScript statements, Custom only

    bool operator==(const ContextMenuItem &other) const
    {
        return kind == other.kind && caption == other.caption && action == other.action;
    }
};

// Colours hold 0xRRGGBB in their low 24 bits.
using Colour = unsigned int;

#define VANTORA_SETTINGS_MEMBER(name, type, value, ini, ...) type name = value;
#define VANTORA_SETTINGS_NONE(...)

// The record: one member per FIELD row of settingrows.h, with the row's default. The two
// host-dependent defaults (AddGyro, GyroButton) are settled by resetViewerSettings(), which reads
// the current host; the reset also fills in the default menu.
struct ViewerSettings
{
    VANTORA_SETTINGS_TABLE(VANTORA_SETTINGS_MEMBER, VANTORA_SETTINGS_NONE)
};

// The context menu as a preset file and the settings dialog's check boxes keep it: which of the
// fixed entries are on, and the user-defined entry's texts (kept while that entry is off).
struct ContextMenuChoice
{
    VANTORA_SETTINGS_TABLE(VANTORA_SETTINGS_NONE, VANTORA_SETTINGS_MEMBER)

    bool operator==(const ContextMenuChoice &other) const;
    bool operator!=(const ContextMenuChoice &other) const { return !(*this == other); }
};

#undef VANTORA_SETTINGS_MEMBER
#undef VANTORA_SETTINGS_NONE

// The entries a choice stands for, the way the settings dialog builds them: full screen, the two
// views, the user-defined entry, the gyroscope, the about entry, a separator in front of each
// group but the first.
QList<ContextMenuItem> menuItemsOf(const ContextMenuChoice &choice);
// The choice a list of entries shows: each entry ticks its box, separators are skipped, the last
// user-defined entry gives the texts.
ContextMenuChoice menuChoiceOf(const QList<ContextMenuItem> &items);

// The context menu a fresh record offers: full screen, the view pair, gyroscope and about, with
// separators between the groups.
QList<ContextMenuItem> defaultContextMenuItems();

// The process-wide record. Created empty (all strings empty, no menu items) with the library.
ViewerSettings &viewerSettings();

// Sets every field of the process-wide record to its default; AddGyro and GyroButton follow the
// current host's motion-sensor capability (false without a host).
void resetViewerSettings();

// The same rule for any record, given the host's capability; what the reset above applies.
void resetViewerSettings(ViewerSettings &settings, bool hostGyroCapable);

} // namespace vantora::settings
