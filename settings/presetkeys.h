// The keys of a preset file and the plain record of their values, which the settings dialog binds
// to its widgets.
#pragma once

#include "viewersettings.h"

#include <QString>

#include <functional>
#include <variant>

namespace vantora::settings {

// One member per preset key, named by the key; what a preset file holds, not the viewer record:
// ShowToolbar is the stored form (visible at start), the ContextMenu* flags and texts the stored
// form of the menu.
struct PresetValues
{
    int Position {};
    int TBDesign {};
    bool PlayButton {};
    bool ShowToolbarFullscreen {};
    bool ShowArrowButtons {};
    bool ShowZoomButtons {};
    bool AddGyro {};
    bool GyroEnabled {};
    bool GyroButton {};
    bool ShowInfoBox {};
    bool AddAudioButton {};
    bool HotspotsButton {};
    QString InfoHTML64;
    bool InfoGlobal {};
    QString Title64;
    QString ShortDescription64;
    bool ShowHotspots {};
    bool ShowWebGLWarning {};
    bool ExtensionJS {};
    int MouseMode {};
    int TouchMode {};
    int ZoomMode {};
    bool AddToolbar {};
    bool ShowToolbar {};
    bool AutoPlay {};
    int Restart {};
    double PanRate {};
    double TiltRate {};
    double ZoomRate {};
    bool LittlePlanetIntro {};
    QString LogoImage;
    QString LogoURL;
    QString Sound;
    bool AudioAutoplay {};
    bool AudioLoop {};
    bool AudioGlobal {};
    bool AddContextMenu {};
    bool ContextMenuFullscreen {};
    bool ContextMenuViews {};
    bool ContextMenuGyro {};
    bool ContextMenuAbout {};
    bool ContextMenuCustom {};
    QString ContextMenuCustomCaption;
    QString ContextMenuCustomAction;
    bool AddVrMode {};
    bool VrGamepadEnabled {};
    int VrDisplayType {};
    bool AddGallery {};
    bool GalleryThumbnailVisible {};
    int GalleryButtons {};
    int GalleryPosition {};
    bool AddOrientation {};
    int OrientationElement {};
    int OrientationElementPosition {};
    bool PositionNorth {};
    bool AddMap {};
    int MapPosition {};
    int MapType {};
    QString GmAPIKey;
    int MapZoom {};
    bool MapVisible {};
    bool MapHideOnMarker {};
    bool MapRadar {};
    bool MapZoomControls {};
    bool MapTypeControls {};
    Colour TextColor {};
    Colour ShadowColor {};

    bool operator==(const PresetValues &other) const;
    bool operator!=(const PresetValues &other) const { return !(*this == other); }
};

// A member of PresetValues, of any of the key kinds' types.
using PresetField = std::variant<bool PresetValues::*, int PresetValues::*, double PresetValues::*,
    Colour PresetValues::*, QString PresetValues::*>;

// Calls visit(key, member) for every key, in the file's order.
void forEachPresetField(const std::function<void(const char *, PresetField)> &visit);

// Reads every key of the INI file at `path` (missing keys take their default texts, out-of-range
// numbers are clamped, legacy keys are honoured), reading the file once. A missing file gives the
// defaults; a file that exists but cannot be read gives them too, with *readable set to false.
PresetValues readPresetValues(const QString &path, bool *readable = nullptr);

// The same for a preset file's bytes.
PresetValues presetValuesFromBytes(const QByteArray &bytes);
// The bytes of the preset file `existing` once every key is written (the file is not touched).
QByteArray presetFileBytes(const QByteArray &existing, const PresetValues &values);

// Writes every key in the file's order; empty texts of the keys that are written only when set are
// left out. The file is replaced in one write. False when it could not be read or written.
bool writePresetValues(const QString &path, const PresetValues &values);

} // namespace vantora::settings
