// The one list of ViewerSettings' fields, walked wherever a whole record is compared or visited.
#pragma once

#include "viewersettings.h"

namespace vantora::settings {

// Calls visit(name, pointer to member) for every field of ViewerSettings, in the record's order.
// Adding a field to the record means adding its line here.
template <typename Visit> void forEachField(Visit &&visit)
{
    using S = ViewerSettings;
    // clang-format off
    visit("Title64",                    &S::Title64);
    visit("ShortDescription64",         &S::ShortDescription64);
    visit("LogoImage",                  &S::LogoImage);
    visit("LogoURL",                    &S::LogoURL);
    visit("LogoFile",                   &S::LogoFile);
    visit("TextColor",                  &S::TextColor);
    visit("ShadowColor",                &S::ShadowColor);
    visit("ShowHotspots",               &S::ShowHotspots);
    visit("ShowWebGLWarning",           &S::ShowWebGLWarning);
    visit("ExtensionJS",                &S::ExtensionJS);
    visit("AddToolbar",                 &S::AddToolbar);
    visit("ShowToolbar",                &S::ShowToolbar);
    visit("TBDesign",                   &S::TBDesign);
    visit("Position",                   &S::Position);
    visit("PlayButton",                 &S::PlayButton);
    visit("ShowToolbarFullscreen",      &S::ShowToolbarFullscreen);
    visit("ShowArrowButtons",           &S::ShowArrowButtons);
    visit("ShowZoomButtons",            &S::ShowZoomButtons);
    visit("ShowInfoBox",                &S::ShowInfoBox);
    visit("AddAudioButton",             &S::AddAudioButton);
    visit("HotspotsButton",             &S::HotspotsButton);
    visit("GyroButton",                 &S::GyroButton);
    visit("Sound",                      &S::Sound);
    visit("SoundFile",                  &S::SoundFile);
    visit("AudioAutoplay",              &S::AudioAutoplay);
    visit("AudioLoop",                  &S::AudioLoop);
    visit("AudioGlobal",                &S::AudioGlobal);
    visit("InfoHTML64",                 &S::InfoHTML64);
    visit("InfoGlobal",                 &S::InfoGlobal);
    visit("AutoPlay",                   &S::AutoPlay);
    visit("Restart",                    &S::Restart);
    visit("PanRate",                    &S::PanRate);
    visit("TiltRate",                   &S::TiltRate);
    visit("ZoomRate",                   &S::ZoomRate);
    visit("LittlePlanetIntro",          &S::LittlePlanetIntro);
    visit("MouseMode",                  &S::MouseMode);
    visit("TouchMode",                  &S::TouchMode);
    visit("ZoomMode",                   &S::ZoomMode);
    visit("AddGyro",                    &S::AddGyro);
    visit("GyroEnabled",                &S::GyroEnabled);
    visit("AddContextMenu",             &S::AddContextMenu);
    visit("ContextMenuItems",           &S::ContextMenuItems);
    visit("ContextMenuSpare",           &S::ContextMenuSpare);
    visit("AddGallery",                 &S::AddGallery);
    visit("GalleryButtons",             &S::GalleryButtons);
    visit("GalleryPosition",            &S::GalleryPosition);
    visit("GalleryThumbnailVisible",    &S::GalleryThumbnailVisible);
    visit("AddOrientation",             &S::AddOrientation);
    visit("OrientationElement",         &S::OrientationElement);
    visit("OrientationElementPosition", &S::OrientationElementPosition);
    visit("PositionNorth",              &S::PositionNorth);
    visit("AddMap",                     &S::AddMap);
    visit("MapPosition",                &S::MapPosition);
    visit("MapType",                    &S::MapType);
    visit("GmAPIKey",                   &S::GmAPIKey);
    visit("MapZoom",                    &S::MapZoom);
    visit("MapVisible",                 &S::MapVisible);
    visit("MapHideOnMarker",            &S::MapHideOnMarker);
    visit("MapRadar",                   &S::MapRadar);
    visit("MapZoomControls",            &S::MapZoomControls);
    visit("MapTypeControls",            &S::MapTypeControls);
    visit("AddVrMode",                  &S::AddVrMode);
    visit("VrGamepadEnabled",           &S::VrGamepadEnabled);
    visit("VrDisplayType",              &S::VrDisplayType);
    // clang-format on
}

// Names of the fields in which `a` and `b` differ, in the record's order; empty when equal.
inline QList<const char *> differingFields(const ViewerSettings &a, const ViewerSettings &b)
{
    QList<const char *> names;
    forEachField([&](const char *name, auto member) {
        if (!(a.*member == b.*member))
            names.append(name);
    });
    return names;
}

inline bool operator==(const ViewerSettings &a, const ViewerSettings &b)
{
    return differingFields(a, b).isEmpty();
}
inline bool operator!=(const ViewerSettings &a, const ViewerSettings &b)
{
    return !(a == b);
}

} // namespace vantora::settings
