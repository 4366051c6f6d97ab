// Texts of the gallery navigation and stereo VR buttons, each exactly as the viewer receives it.
// "@TILE@" in a skin pattern stands for the icon tile's "X,Y".
#pragma once

namespace vantora::controls {

// clang-format off

constexpr char GALLERY_PREVIOUS_ONCLICK[] = "function(){ var g = this.viewer.gallery(); if (!!g){ g.set(g.previous());}}";
constexpr char GALLERY_NEXT_ONCLICK[] = "function(){ var g = this.viewer.gallery(); if (!!g){ g.set(g.next());}}";
constexpr char EDGE_ONINIT[] = "function(){ var g = this.viewer.gallery(); if ((!!g)&&g.length>1){this.setVisible(true);}}";
constexpr char EDGE_FOLD_ONINIT_SHOWN[] = "function(){ var g = this.viewer.gallery(); if ((!!g)&&g.length>1){ this.setVisible(true); } }";
constexpr char EDGE_FOLD_ONINIT_HIDDEN[] = "function(){ this.setVisible(false); }";
constexpr char TOOLBAR_NAV_ONINIT[] = "function(){ var g = this.viewer.gallery(); if ((!!g) && g.length>1){ this.setVisible(true); } }";

// Design 0's edge buttons turn about an axis outside the button, with the toolbar's fold.
constexpr char EDGE_FOLD_STYLE_PREVIOUS_SHOWN[] = "transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;";
constexpr char EDGE_FOLD_STYLE_PREVIOUS_HIDDEN[] = "transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateY(90deg); transition: transform 500ms; ";
constexpr char EDGE_FOLD_STYLE_NEXT_SHOWN[] = "transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;";
constexpr char EDGE_FOLD_STYLE_NEXT_HIDDEN[] = "transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateY(90deg); transition: transform 500ms; ";

// Design 4's icon inside the round white border of its free-standing buttons; their other faces
// come from the family rule (writeFreeSkins).
constexpr char ROUND_SKIN[] = "shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,@TILE@,64,64,2,2,24,24)";
constexpr char ROUND_SKIN_ACTIVE[] = "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,2,2,24,24)";
constexpr char ROUND_HALO_HOVER[] = "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,12,12,24,24)";

constexpr char STEREO_ONCLICK[] = "function(){ this.viewer.exitVRMode();  } ";
constexpr char STEREO_STYLE[] = "opacity: 0.6;";
constexpr char STEREO_STYLE_HOVER[] = "opacity: 0.8;";

// clang-format on

} // namespace vantora::controls
