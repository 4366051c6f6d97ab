// Every viewer setting, one row each: the record's field, the preset file's key and the settings
// block's slot come from this list and from nowhere else. Adding a setting is adding a row.
//
// FIELD(name, C++ type, default, INI key, block slot, meaning) is a field of ViewerSettings.
// MENU(name, C++ type, default, INI key, meaning) is a preset key that is no field of its own but
// the stored form of ContextMenuItems (a field of ContextMenuChoice).
//
// The rows stand in the order in which a preset file holds its keys. The name is the INI key.
// The INI key's read default is the text of the field's default unless the row gives one.
// The host-dependent defaults of AddGyro and GyroButton are set by resetViewerSettings().
#pragma once

// clang-format off
#define VANTORA_SETTINGS_TABLE(FIELD, MENU) \
    FIELD(Position, int, 0, toolbarKey().clamp(4, 0), intSlot(4, 1), \
        "Toolbar position: 0 centred, 1 full width, 2 left, 3 right") \
    FIELD(TBDesign, int, 0, toolbarKey(), intSlot(5, 1), \
        "Toolbar design, 0..7 (the dialog's \"Typ 1\" .. \"Typ 8\")") \
    FIELD(PlayButton, bool, true, toolbarKey(), flagSlot(3, 1), "Show the play button") \
    FIELD(ShowToolbarFullscreen, bool, true, appletKey(), flagSlot(4, 1), \
        "Show the full-screen button") \
    FIELD(ShowArrowButtons, bool, true, appletKey(), flagSlot(5, 1), "Show the direction arrows") \
    FIELD(ShowZoomButtons, bool, true, appletKey(), flagSlot(6, 1), "Show the zoom buttons") \
    FIELD(AddGyro, bool, false, appletKey().legacy("AddGyroButton"), flagSlot(7, 1), \
        "Offer control by the device's motion sensor (default: the host's capability)") \
    FIELD(GyroEnabled, bool, false, appletKey().legacy("GyroButtonEnabled"), flagSlot(8, 1), \
        "Gyroscope control active at start") \
    FIELD(GyroButton, bool, false, appletKey().legacy("AddGyroButton"), flagSlot(19, 3), \
        "Show the gyroscope button (default: the host's capability)") \
    FIELD(ShowInfoBox, bool, false, appletKey(), flagSlot(9, 1), "Open the info box at start") \
    FIELD(AddAudioButton, bool, true, appletKey(), flagSlot(10, 1), "Show the audio button") \
    FIELD(HotspotsButton, bool, false, appletKey(), flagSlot(16, 2), "Show the hotspots button") \
    FIELD(InfoHTML64, QString, {}, appletKey().coded().legacy("InfoHTML"), stringSlot(6, 1), \
        "Content of the info box, plain text or HTML") \
    FIELD(InfoGlobal, bool, false, appletKey(), flagSlot(23, 6), \
        "Show the info box's content in every panorama of a tour") \
    FIELD(Title64, QString, {}, appletKey().coded().legacy("Title"), stringSlot(0, 1), \
        "Title of the panorama") \
    FIELD(ShortDescription64, QString, {}, appletKey().coded(), stringSlot(7, 5), \
        "Short description, shown by the tour gallery") \
    FIELD(ShowHotspots, bool, true, appletKey(), flagSlot(2, 1), "Hotspots visible") \
    FIELD(ShowWebGLWarning, bool, false, appletKey(), flagSlot(13, 1), \
        "Warn when the browser blocks or lacks WebGL") \
    FIELD(ExtensionJS, bool, false, appletKey(), flagSlot(34, 10), \
        "Parameter files end in .js instead of .json") \
    /* A preset without the mode keys drags the camera: its read default differs on purpose */ \
    /* from the record's default, which drags the picture. */ \
    FIELD(MouseMode, int, 1, appletKey().readDefault("0").clamp(2, 0), intSlot(2, 1), \
        "Mouse control: 0 move the camera, 1 drag the picture") \
    FIELD(TouchMode, int, 1, appletKey().readDefault("0").clamp(2, 0), intSlot(3, 1), \
        "Touch control: 0 move the camera, 1 drag the picture") \
    FIELD(ZoomMode, int, 0, appletKey().clamp(2, 0), flagSlot(25, 7), \
        "Mouse-wheel zoom: 0 towards the cursor, 1 towards the picture centre") \
    FIELD(AddToolbar, bool, true, appletKey(), flagSlot(0, 1), "Integrate the toolbar") \
    FIELD(ShowToolbar, bool, true, appletKey(), flagSlot(1, 1), \
        "Toolbar visible at start (the dialog shows the inverse)") \
    FIELD(AutoPlay, bool, false, appletKey(), flagSlot(14, 1), "Auto-play on") \
    FIELD(Restart, int, 5, appletKey(), intSlot(6, 1), \
        "Restart auto-play after a user action, in seconds, 0..1000") \
    FIELD(PanRate, double, 2.0, appletKey(), rateSlot(0, 1), \
        "Auto-pan rate in degrees per second, -90..90") \
    FIELD(TiltRate, double, 0.0, appletKey(), rateSlot(1, 1), \
        "Auto-tilt rate in degrees per second, -90..90") \
    FIELD(ZoomRate, double, 1.0, appletKey(), rateSlot(2, 1), "Auto-zoom rate per second, 0.1..2.0") \
    FIELD(LittlePlanetIntro, bool, false, appletKey(), flagSlot(15, 1), \
        "Start a full sphere from a little-planet view") \
    FIELD(LogoImage, QString, {}, appletKey().whenSet(), stringSlot(2, 1), \
        "Full path of a custom logo image") \
    FIELD(LogoURL, QString, {}, appletKey().whenSet(), stringSlot(3, 1), \
        "Link opened when the logo is clicked") \
    FIELD(LogoFile, QString, {}, notInPresets(), stringSlot(1, 1), \
        "File name of the logo in the output, filled by the export run") \
    FIELD(Sound, QString, {}, appletKey().whenSet(), stringSlot(4, 1), \
        "Full path of the background audio file") \
    FIELD(SoundFile, QString, {}, notInPresets(), stringSlot(5, 1), \
        "File name of the audio file in the output, filled by the export run") \
    FIELD(AudioAutoplay, bool, true, appletKey(), flagSlot(11, 1), "Play the audio automatically") \
    FIELD(AudioLoop, bool, true, appletKey(), flagSlot(12, 1), "Play the audio in an endless loop") \
    FIELD(AudioGlobal, bool, false, appletKey(), flagSlot(24, 6), \
        "Use this audio for every panorama of a tour") \
    FIELD(AddContextMenu, bool, true, appletKey(), flagSlot(17, 3), "Add a context menu") \
    FIELD(ContextMenuItems, QList<ContextMenuItem>, {}, notInPresets(), menuSlots(7, 8, 3), \
        "The context menu's entries in display order; the reset fills in the default eight") \
    FIELD(ContextMenuSpare, bool, false, notInPresets(), flagSlot(18, 3), \
        "Kept in the settings block only; always stored false") \
    MENU(ContextMenuFullscreen, bool, true, appletKey(), "Menu entry: full screen on/off") \
    MENU(ContextMenuViews, bool, true, appletKey(), \
        "Menu entries: normal and little-planet view") \
    MENU(ContextMenuGyro, bool, true, appletKey(), "Menu entry: gyroscope control on/off") \
    MENU(ContextMenuAbout, bool, true, appletKey(), "Menu entry: about the viewer") \
    MENU(ContextMenuCustom, bool, false, appletKey(), "Menu entry: a user-defined one") \
    MENU(ContextMenuCustomCaption, QString, {}, appletKey().coded().whenSet(), \
        "Caption of the user-defined menu entry") \
    MENU(ContextMenuCustomAction, QString, {}, appletKey().coded().whenSet(), \
        "JavaScript run by the user-defined menu entry") \
    FIELD(AddVrMode, bool, false, appletKey(), flagSlot(20, 3), "Add a VR mode for full spheres") \
    FIELD(VrGamepadEnabled, bool, true, appletKey(), flagSlot(35, 11), \
        "Use a gamepad or controller if present") \
    FIELD(VrDisplayType, int, 0, appletKey().clamp(2, 1), intSlot(15, 11), \
        "VR display: 0 automatic, 1 split screen only") \
    FIELD(AddGallery, bool, false, appletKey(), flagSlot(21, 5), \
        "Add the tour gallery (thumbnails and navigation)") \
    FIELD(GalleryThumbnailVisible, bool, false, appletKey(), flagSlot(22, 5), \
        "Gallery thumbnails shown at start") \
    FIELD(GalleryButtons, int, 0, appletKey().clamp(3, 2), intSlot(8, 5), \
        "Gallery navigation buttons: 0 at the picture edges, 1 in the toolbar, 2 none") \
    FIELD(GalleryPosition, int, 0, appletKey().clamp(2, 1), intSlot(9, 5), \
        "Gallery thumbnails: 0 above the toolbar, 1 below it") \
    FIELD(AddOrientation, bool, false, appletKey(), flagSlot(27, 8), \
        "Show a compass or radar") \
    FIELD(OrientationElement, int, 0, appletKey(), intSlot(10, 8), \
        "Compass or radar kind, 0..11") \
    FIELD(OrientationElementPosition, int, 0, appletKey(), intSlot(11, 8), \
        "Compass or radar place: 0 top-left corner, 1 left edge, 2 right edge") \
    FIELD(PositionNorth, bool, false, appletKey(), flagSlot(28, 8), "Turn to north on click") \
    FIELD(AddMap, bool, false, appletKey(), flagSlot(26, 8), "Show the location on a map") \
    FIELD(MapPosition, int, 0, appletKey().clamp(2, 1), intSlot(12, 9), \
        "Map: 0 above the toolbar, 1 below it") \
    FIELD(MapType, int, 0, appletKey().clamp(4, 3), intSlot(13, 9), \
        "Map type: 0 Google hybrid, 1 Google satellite, 2 Google road map, 3 OpenStreetMap") \
    FIELD(GmAPIKey, QString, {}, appletKey().coded().whenSet(), stringSlot(11, 9), \
        "Google Maps API key") \
    FIELD(MapZoom, int, 18, appletKey().clamp(21, 20), intSlot(14, 9), "Map zoom at start, 0..20") \
    FIELD(MapVisible, bool, false, appletKey(), flagSlot(29, 9), "Map shown at start") \
    FIELD(MapHideOnMarker, bool, true, appletKey(), flagSlot(30, 9), \
        "Hide the map when a target is clicked") \
    FIELD(MapRadar, bool, true, appletKey(), flagSlot(31, 9), \
        "Show a radar on the map when the orientation is known") \
    FIELD(MapZoomControls, bool, true, appletKey(), flagSlot(32, 9), \
        "Show the map's zoom controls") \
    FIELD(MapTypeControls, bool, true, appletKey(), flagSlot(33, 9), \
        "Show the map's type controls") \
    FIELD(TextColor, Colour, 0xFFFFFF, appletKey(), intSlot(0, 1), \
        "Colour of the viewer's texts, 0xRRGGBB written in decimal") \
    FIELD(ShadowColor, Colour, 0x000000, appletKey(), intSlot(1, 1), \
        "Colour of the text shadow, 0xRRGGBB written in decimal")
// clang-format on
