// The fixed members of each toolbar button kind: one row per kind.
#pragma once

#include "handlertexts.h"
#include "skinrule.h"

namespace vantora::controls {

struct ButtonSpec
{
    const char *id; // nullptr where the viewer acts on "type" instead
    const char *align;
    int xoff;
    int yoff;
    int index;
    int priority;
    bool startsHidden; // writes "visible" false: the button shows itself from a handler
    int type;          // 0: no "type"
    Tile tile;
    unsigned quirks;
    const char *onclick; // handlers: nullptr when not written or chosen by the writer
    const char *oninit;
    const char *onscenechanged;
};

// clang-format off
//                                    id                  align     xoff yoff index prio hidden type tile        skin quirks                  onclick             oninit          onscenechanged
constexpr ButtonSpec INFO_BUTTON       {"infobutton",       "center", 0,   0,   5,    3,   false, 0,   {0, 0},     DoubledDesign4Skin,          INFO_ONCLICK,       nullptr,        nullptr};
constexpr ButtonSpec HOTSPOTS_BUTTON   {"hotspotsButton",   "center", 0,   0,   6,    1,   false, 0,   {128, 256}, DoubledDesign4Skin,          HOTSPOTS_ONCLICK,   nullptr,        HOTSPOTS_ONSCENECHANGED};
constexpr ButtonSpec ARROW_BUTTONS[] = {
                                      {nullptr,            "center", 0,   0,   7,    0,   false, 1,   {128, 64},  Design7SkinWithoutSemicolon, nullptr,            nullptr,        nullptr},
                                      {nullptr,            "center", 0,   0,   8,    0,   false, 2,   {0, 64},    NoQuirk,                     nullptr,            nullptr,        nullptr},
                                      {nullptr,            "center", 0,   0,   9,    0,   false, 3,   {192, 64},  SkinWithoutSemicolon,        nullptr,            nullptr,        nullptr},
                                      {nullptr,            "center", 0,   0,   10,   0,   false, 4,   {64, 64},   SkinWithoutSemicolon,        nullptr,            nullptr,        nullptr},
};
constexpr ButtonSpec ZOOM_BUTTONS[] = {
                                      {nullptr,            "center", 0,   0,   11,   2,   false, 5,   {192, 128}, SkinWithoutSemicolon,        nullptr,            nullptr,        nullptr},
                                      {nullptr,            "center", 0,   0,   12,   2,   false, 6,   {128, 128}, SkinWithoutSemicolon,        nullptr,            nullptr,        nullptr},
};
constexpr ButtonSpec PLAY_BUTTON       {"playbutton",       "center", 0,   0,   13,   1,   false, 0,   {64, 0},    AllWithoutSemicolon,         PLAY_ONCLICK,       nullptr,        nullptr};
constexpr ButtonSpec VR_BUTTON         {"vrButton",         "center", 0,   0,   14,   3,   true,  0,   {192, 256}, Design7WithoutSemicolon,     VR_ONCLICK,         nullptr,        nullptr};
constexpr ButtonSpec GYRO_BUTTON       {"gyrobutton",       "center", 0,   0,   18,   3,   true,  0,   {64, 128},  OwnSkins,                    GYRO_ONCLICK,       nullptr,        nullptr};
constexpr ButtonSpec AUDIO_BUTTON      {"audiobutton",      "right",  8,   0,   17,   3,   false, 0,   {0, 256},   NoQuirk,                     AUDIO_ONCLICK,      nullptr,        nullptr};
constexpr ButtonSpec FULLSCREEN_BUTTON {"fullscreenButton", "right",  8,   0,   16,   3,   false, 0,   {192, 0},   NoQuirk,                     FULLSCREEN_ONCLICK, FULLSCREEN_ONINIT, nullptr};
constexpr ButtonSpec GALLERY_BUTTON    {"gallerybutton",    "left",   8,   0,   4,    3,   true,  0,   {128, 320}, DoubledDesign4Skin,          GALLERY_ONCLICK,    GALLERY_ONINIT, nullptr};
constexpr ButtonSpec MAP_BUTTON        {"mapbutton",        "left",   8,   0,   3,    3,   true,  0,   {128, 448}, DoubledDesign4Skin,          MAP_ONCLICK,        MAP_ONINIT,     nullptr};
// clang-format on

// The audio button's second look, drawn while sound plays.
constexpr Tile AUDIO_PLAY_TILE {64, 256};

} // namespace vantora::controls
