// The one record of every viewer option, with its defaults; each field bears its INI key as name.
#pragma once

#include <QList>
#include <QString>

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

// Defaults live here and nowhere else. The two host-dependent defaults (AddGyro, GyroButton)
// are settled by resetViewerSettings(), which reads the current host.
struct ViewerSettings
{
    // General and look
    QString Title64;
    QString ShortDescription64;
    QString LogoImage;
    QString LogoURL;
    QString LogoFile; // filled by the export run
    Colour TextColor = 0xFFFFFF;
    Colour ShadowColor = 0x000000;
    bool ShowHotspots = true;
    bool ShowWebGLWarning = false;
    bool ExtensionJS = false;

    // Toolbar
    bool AddToolbar = true;
    bool ShowToolbar = true;
    int TBDesign = 0;
    int Position = 0;
    bool PlayButton = true;
    bool ShowToolbarFullscreen = true;
    bool ShowArrowButtons = true;
    bool ShowZoomButtons = true;
    bool ShowInfoBox = false;
    bool AddAudioButton = true;
    bool HotspotsButton = false;
    bool GyroButton = false; // host-dependent

    // Audio
    QString Sound;
    QString SoundFile; // filled by the export run
    bool AudioAutoplay = true;
    bool AudioLoop = true;
    bool AudioGlobal = false;

    // Info box
    QString InfoHTML64;
    bool InfoGlobal = false;

    // Auto-play
    bool AutoPlay = false;
    int Restart = 5;
    double PanRate = 2.0;
    double TiltRate = 0.0;
    double ZoomRate = 1.0;
    bool LittlePlanetIntro = false;

    // Control
    int MouseMode = 1;
    int TouchMode = 1;
    int ZoomMode = 0;
    bool AddGyro = false; // host-dependent
    bool GyroEnabled = false;

    // Context menu
    bool AddContextMenu = true;
    QList<ContextMenuItem> ContextMenuItems; // the eight defaults come from the reset
    bool ContextMenuSpare = false;

    // Tour gallery
    bool AddGallery = false;
    int GalleryButtons = 0;
    int GalleryPosition = 0;
    bool GalleryThumbnailVisible = false;

    // Compass and radar
    bool AddOrientation = false;
    int OrientationElement = 0;
    int OrientationElementPosition = 0;
    bool PositionNorth = false;

    // Map
    bool AddMap = false;
    int MapPosition = 0;
    int MapType = 0;
    QString GmAPIKey;
    int MapZoom = 18;
    bool MapVisible = false;
    bool MapHideOnMarker = true;
    bool MapRadar = true;
    bool MapZoomControls = true;
    bool MapTypeControls = true;

    // VR mode
    bool AddVrMode = false;
    bool VrGamepadEnabled = true;
    int VrDisplayType = 0;
};

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
