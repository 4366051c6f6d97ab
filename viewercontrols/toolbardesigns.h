// The toolbar's eight designs as data: geometry and the CSS texts of the bar and its buttons.
#pragma once

#include "viewerparams/design.h"

namespace vantora::controls {

struct ToolbarDesign
{
    const char *width; // when the toolbar does not span the whole width
    const char *height;
    int buttonWidth;
    int buttonHeight;
    int spacing;
    int yoffShown;        // ShowToolbar set
    int yoffHidden;       // ShowToolbar clear: parked below the bottom edge
    const char *maxWidth; // the style's prefix unless the toolbar spans the whole width
    const char *styleShown;
    const char *styleHidden;
    const char *buttonStyle;
    const char *buttonStyleHover; // nullptr: not written
    const char *buttonStyleActive;
};

// clang-format off
constexpr char FOLD_STYLE_SHOWN[] = "transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;";
constexpr char FOLD_STYLE_FOLDED[] = "transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;";
constexpr char CLEAR_STYLE[] = "background: rgba(0,0,0,0.0);";
constexpr char SAND_STYLE[] = "border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(#a8a293,#b0aa9b); ";
constexpr char BLUE_STYLE[] = "background: #0F4FA8;";
constexpr char GLOW_STYLE[] = "border-radius: 10px; border: white solid 1px; transition: width 2s, background 5s; box-shadow: 0px 0px 8px 6px rgba(255,255,255,0.5); background: linear-gradient(90deg, rgba(0,0,0,1.0) 0%, rgba(0,0,0,0.5) 66%, rgba(0,0,0,0.0) 100%);";

constexpr params::PerDesign<ToolbarDesign> TOOLBAR_DESIGNS = params::perDesign<ToolbarDesign>({
    /* 0 */ {"500px", "48px", 28, 28, 8, 0,  0,   "max-width: 100%;", FOLD_STYLE_SHOWN, FOLD_STYLE_FOLDED,
             "border-radius: 50%; background-color: rgba(255,255,255,0.0); transition: background-color 150ms,box-shadow 150ms;",
             "background-color: rgba(255,255,255,0.15);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.15);",
             "background-color: rgba(255,255,255,0.25);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.25);"},
    /* 1 */ {"500px", "48px", 28, 28, 8, 2,  -52, "max-width: 100%;", CLEAR_STYLE, CLEAR_STYLE,
             "border-radius: 50%; background-color: rgba(255,255,255,0.0); transition: background-color 250ms,box-shadow 250ms;",
             "background-color: rgba(255,255,255,0.25);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.25);",
             "background-color: rgba(255,255,255,0.4);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.4);"},
    /* 2 */ {"540px", "48px", 34, 28, 6, 10, -70, "max-width: 100%;", CLEAR_STYLE, CLEAR_STYLE,
             "border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(#f4f0f2, #b0aa9b); transition: background 0.2s,box-shadow 0.2s;",
             "box-shadow: inset 0 2px 3px rgba(255,255,255,0.2), 1px 2px 6px 0px rgba(0,0,0,0.8); background: linear-gradient(#f4f0f2, #b0aa9b);",
             "box-shadow: inset 0 2px 3px rgba(0,0,0,0.2), 1px 1px 3px 0px rgba(0,0,0,0.8); background: linear-gradient(#b0aa9b,#b8b4a3);"},
    /* 3 */ {"540px", "48px", 34, 28, 6, 6,  -70, "max-width: 100%;", SAND_STYLE, SAND_STYLE,
             "border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 0px 2px 4px 0px rgba(0,0,0,0.4); border-radius: 5px; background: linear-gradient(#f4f0f2, #b0aa9b); transition: background 0.2s,box-shadow 0.2s;",
             "box-shadow: inset 0 2px 3px rgba(255,255,255,0.2), 0px 1px 3px 0px rgba(0,0,0,0.3); background: linear-gradient(#f4f0f2, #b0aa9b);",
             "box-shadow: inset 0 2px 3px rgba(0,0,0,0.2), 0px 0px 2px 0px rgba(0,0,0,0.2); background: linear-gradient(#b0aa9b,#b8b4a3);"},
    /* 4 */ {"540px", "48px", 34, 34, 8, 10, -70, "max-width: 100%;", CLEAR_STYLE, CLEAR_STYLE,
             "border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;",
             "background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);",
             "background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);"},
    /* 5 */ {"540px", "48px", 34, 28, 6, 10, -70, "max-width: 100%;", CLEAR_STYLE, CLEAR_STYLE,
             "border: rgba(70,70,70,0.6) solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(top, #919693 0%, #828d93 20%, #6e757f 31%, #0c1f26 63%, #102129 100%); transition: background 0.2s,box-shadow 0.2s;",
             "box-shadow: inset 0 2px 3px rgba(255,255,255,0.2), 1px 2px 6px 0px rgba(0,0,0,0.8); background: linear-gradient(top, #b0b5b2 0%, #88919c 21%, #65787c 31%, #142933 63%, #102129 100%);",
             "box-shadow: inset 0 2px 3px rgba(0,0,0,0.2), 1px 1px 3px 0px rgba(0,0,0,0.8); background: linear-gradient(bottom, #575c65 0%, #575c65 21%, #404c4e 31%, #0e222b 63%, #102129 100%);"},
    /* 6 */ {"580px", "48px", 34, 34, 8, 10, -70, "max-width: 100%;", BLUE_STYLE, BLUE_STYLE,
             "transform: perspective( 400px ) rotateX( 0deg ); transform-origin: 50% 100% 0px; box-shadow: #05306B 2px 2px 1px 0px; background-color: #E1961B; transition: background-color 133ms, transform 133ms;",
             "transform: perspective( 400px ) rotateX( 0deg ); transform-origin: 50% 100% 0px; background-color: #FF9F00; box-shadow: #05306B 2px 2px 1px 0px;",
             "transform: perspective( 400px ) rotateX( 20deg ); transform-origin: 50% 100% 0px; background-color: #CB7F00; box-shadow: #05306B 1px 1px 1px 0px;"},
    /* 7 */ {"500px", "44px", 28, 28, 8, 10, -70, "max-width: 99%;", GLOW_STYLE, GLOW_STYLE,
             "border-radius: 10px; transition: width 100ms ease 0s, height 100ms ease 0s; background-color: rgba(0,0,0,0);",
             nullptr, nullptr},
});
// clang-format on

} // namespace vantora::controls
