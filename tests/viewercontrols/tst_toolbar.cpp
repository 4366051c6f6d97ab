// The toolbar object in every design, position and start state; the order and gates of its
// buttons; the hide and show handlers; the free-standing buttons; every script of a written
// controls file parsed by Node.js.
#include "common/scriptcheck.h"
#include "toolbarfixture.h"
#include "viewerparams/controlsfile.h"

#include <QtTest>

#include <numeric>

using namespace vantora;

namespace {

// clang-format off
// Geometry and looks by design, as the viewer's documentation gives them.
struct Design { int design; const char *width, *height; int buttonWidth, buttonHeight, spacing, yoffShown, yoffHidden; const char *prefix, *body; const char *buttonStyles[3]; };
const char FOLD[] = "transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;";
const char CLEAR[] = "background: rgba(0,0,0,0.0);";
const Design DESIGNS[] = {
    {0, "500px", "48px", 28, 28, 8, 0, 0, "max-width: 100%;", FOLD,
     {"border-radius: 50%; background-color: rgba(255,255,255,0.0); transition: background-color 150ms,box-shadow 150ms;", "background-color: rgba(255,255,255,0.15);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.15);", "background-color: rgba(255,255,255,0.25);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.25);"}},
    {1, "500px", "48px", 28, 28, 8, 2, -52, "max-width: 100%;", CLEAR,
     {"border-radius: 50%; background-color: rgba(255,255,255,0.0); transition: background-color 250ms,box-shadow 250ms;", "background-color: rgba(255,255,255,0.25);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.25);", "background-color: rgba(255,255,255,0.4);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.4);"}},
    {2, "540px", "48px", 34, 28, 6, 10, -70, "max-width: 100%;", CLEAR,
     {"border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(#f4f0f2, #b0aa9b); transition: background 0.2s,box-shadow 0.2s;", "box-shadow: inset 0 2px 3px rgba(255,255,255,0.2), 1px 2px 6px 0px rgba(0,0,0,0.8); background: linear-gradient(#f4f0f2, #b0aa9b);", "box-shadow: inset 0 2px 3px rgba(0,0,0,0.2), 1px 1px 3px 0px rgba(0,0,0,0.8); background: linear-gradient(#b0aa9b,#b8b4a3);"}},
    {3, "540px", "48px", 34, 28, 6, 6, -70, "max-width: 100%;", "border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(#a8a293,#b0aa9b); ",
     {"border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 0px 2px 4px 0px rgba(0,0,0,0.4); border-radius: 5px; background: linear-gradient(#f4f0f2, #b0aa9b); transition: background 0.2s,box-shadow 0.2s;", "box-shadow: inset 0 2px 3px rgba(255,255,255,0.2), 0px 1px 3px 0px rgba(0,0,0,0.3); background: linear-gradient(#f4f0f2, #b0aa9b);", "box-shadow: inset 0 2px 3px rgba(0,0,0,0.2), 0px 0px 2px 0px rgba(0,0,0,0.2); background: linear-gradient(#b0aa9b,#b8b4a3);"}},
    {4, "540px", "48px", 34, 34, 8, 10, -70, "max-width: 100%;", CLEAR,
     {"border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;", "background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);", "background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);"}},
    {5, "540px", "48px", 34, 28, 6, 10, -70, "max-width: 100%;", CLEAR,
     {"border: rgba(70,70,70,0.6) solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(top, #919693 0%, #828d93 20%, #6e757f 31%, #0c1f26 63%, #102129 100%); transition: background 0.2s,box-shadow 0.2s;", "box-shadow: inset 0 2px 3px rgba(255,255,255,0.2), 1px 2px 6px 0px rgba(0,0,0,0.8); background: linear-gradient(top, #b0b5b2 0%, #88919c 21%, #65787c 31%, #142933 63%, #102129 100%);", "box-shadow: inset 0 2px 3px rgba(0,0,0,0.2), 1px 1px 3px 0px rgba(0,0,0,0.8); background: linear-gradient(bottom, #575c65 0%, #575c65 21%, #404c4e 31%, #0e222b 63%, #102129 100%);"}},
    {6, "580px", "48px", 34, 34, 8, 10, -70, "max-width: 100%;", "background: #0F4FA8;",
     {"transform: perspective( 400px ) rotateX( 0deg ); transform-origin: 50% 100% 0px; box-shadow: #05306B 2px 2px 1px 0px; background-color: #E1961B; transition: background-color 133ms, transform 133ms;", "transform: perspective( 400px ) rotateX( 0deg ); transform-origin: 50% 100% 0px; background-color: #FF9F00; box-shadow: #05306B 2px 2px 1px 0px;", "transform: perspective( 400px ) rotateX( 20deg ); transform-origin: 50% 100% 0px; background-color: #CB7F00; box-shadow: #05306B 1px 1px 1px 0px;"}},
    {7, "500px", "44px", 28, 28, 8, 10, -70, "max-width: 99%;", "border-radius: 10px; border: white solid 1px; transition: width 2s, background 5s; box-shadow: 0px 0px 8px 6px rgba(255,255,255,0.5); background: linear-gradient(90deg, rgba(0,0,0,1.0) 0%, rgba(0,0,0,0.5) 66%, rgba(0,0,0,0.0) 100%);",
     {"border-radius: 10px; transition: width 100ms ease 0s, height 100ms ease 0s; background-color: rgba(0,0,0,0);", nullptr, nullptr}},
};
const char *const ALIGNS[] = {"bottom", "bottom", "leftbottom", "rightbottom"};

// Which buttons the toolbar holds in every design: the switches on (all others off),
// GalleryButtons, the names; "compass" and "radar" are the orientation kinds in the toolbar.
struct Gate { const char *tag, *on; int galleryButtons; const char *names; };
const Gate GATES[] = {
    {"no optional button", "", 0, "hideTbButton infobutton"},
    {"arrows, zoom, play, audio, fullscreen", "arrows zoom play audio fullscreen", 0, "hideTbButton infobutton type1 type2 type3 type4 type5 type6 playbutton audiobutton fullscreenButton"},
    {"gallery buttons in the toolbar", "gallery", 1, "navLeftButton hideTbButton gallerybutton infobutton navRightButton"},
    {"gallery buttons at the edges", "gallery", 0, "hideTbButton gallerybutton infobutton"},
    {"no gallery buttons", "gallery", 2, "hideTbButton gallerybutton infobutton"},
    {"GalleryButtons 1 without gallery", "", 1, "hideTbButton infobutton"},
    {"map and hotspots", "map hotspots", 0, "hideTbButton mapbutton infobutton hotspotsButton"},
    {"VR without a full sphere", "vr notVrCapable", 0, "hideTbButton infobutton"},
    {"gyroscope", "gyroButton addGyro", 0, "hideTbButton infobutton gyrobutton"},
    {"gyroscope button without AddGyro", "gyroButton", 0, "hideTbButton infobutton"},
    {"gyroscope in flat mode", "gyroButton addGyro noGyroscope", 0, "hideTbButton infobutton"},
    {"everything, compass", "gallery map compass hotspots arrows zoom play vr gyroButton addGyro audio fullscreen", 1, "navLeftButton hideTbButton gallerybutton mapbutton compass infobutton hotspotsButton type1 type2 type3 type4 type5 type6 playbutton vrButton gyrobutton audiobutton fullscreenButton navRightButton"},
    {"everything, radar", "gallery map radar hotspots arrows zoom play vr gyroButton addGyro audio fullscreen", 1, "navLeftButton hideTbButton gallerybutton mapbutton compass infobutton hotspotsButton type1 type2 type3 type4 type5 type6 playbutton vrButton gyrobutton audiobutton fullscreenButton navRightButton"},
};
using S = settings::ViewerSettings;
const std::pair<const char *, bool S::*> SWITCHES[] = {
    {"gallery", &S::AddGallery}, {"map", &S::AddMap}, {"hotspots", &S::HotspotsButton},
    {"arrows", &S::ShowArrowButtons}, {"zoom", &S::ShowZoomButtons}, {"play", &S::PlayButton}, {"vr", &S::AddVrMode},
    {"gyroButton", &S::GyroButton}, {"addGyro", &S::AddGyro}, {"audio", &S::AddAudioButton}, {"fullscreen", &S::ShowToolbarFullscreen},
};

// The hide and show handlers, from the pieces the viewer's documentation lists.
const char HIDE_HEAD[] = R"(function(){ )";
const char HIDE_GALLERY[] = R"(this.viewer.action('hideGallery'); )";
const char HIDE_MAP[] = R"( this.viewer.action('hideMap');)";
const char SLIDE_1[] = R"(this.get('toolbar').tween({'time': 0.75, 'yoff': -52, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 0, 'onUpdate': function(a){ a.updateAlign(); } });)";
const char SLIDE_3567[] = R"(this.get('toolbar').tween({'time': 0.75, 'yoff': -70, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 0, 'onUpdate': function(a){ a.updateAlign(); } });)";
const char SLIDE_2[] = R"(this.get('toolbar').tween({'time': 0.75, 'yoff': -70, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 0, 'onUpdate': function(a){ a.updateAlign(); } }); )";
const char SLIDE_4[] = R"(this.get('toolbar').tween({'time': 0.75, 'yoff': -70, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 8, 'onUpdate': function(a){ a.updateAlign(); } }); )";
const char HIDE_EDGE[] = R"(var btn = this.get('galleryBtnPrev'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : -40, 'onUpdate' : function(a){ a.updateAlign(); } }); btn = this.get('galleryBtnNext'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : -40, 'onUpdate' : function(a){ a.updateAlign(); }});)";
const char CLOSE[] = R"(})";
const char FOLD_HEAD[] = R"(function(){ if (!this.allowClick) return; this.allowClick = false;)";
const char FOLD_TOOLBAR[] = R"( var tb = this.get('toolbar'); tb.style = 'transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;', tb.updateStyles(); tb.tween({'delay': 0.5, 'time': 0.01, 'onComplete': function(a){ a.setVisible(false); a.get('showTbButton').allowClick = true; } }); var tbb = this.get('showTbButton');  tbb.setVisible(true); tbb.style ='transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); transition: transform 500ms;'; tbb.updateStyles();  tbb.tween({'delay': 0.01, 'time': 0.01, 'onComplete': function(a){ a.style ='transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); transition: transform 500ms;'; a.updateStyles(); } });)";
const char FOLD_PREV[] = R"(var btn = this.get('galleryBtnPrev'); if (btn&&this.viewer.hasGallery){ btn.style = 'transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.5, 'time' : 0.01, 'onComplete' : function(a){ a.setVisible(false); } }); })";
const char FOLD_NEXT[] = R"(var btn = this.get('galleryBtnNext'); if (btn&&this.viewer.hasGallery){ btn.style = 'transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.5, 'time' : 0.01, 'onComplete' : function(a){ a.setVisible(false); } }); })";
const char UNFOLD_HEAD[] = R"(function(){ if (!this.allowClick) return; this.allowClick = false; var tb = this.get('toolbar'); tb.setVisible(true); tb.style = 'transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;'; tb.updateStyles(); this.tween({ 'delay': 0.5, 'time' : 0.01, 'onComplete' : function(a){ a.setVisible(false); a.get('hideTbButton').allowClick = true; } }); this.style = 'transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); transition: transform 500ms;'; this.updateStyles(); )";
const char UNFOLD_PREV[] = R"(var btn = this.get('galleryBtnPrev'); if (btn&&this.viewer.hasGallery){ btn.setVisible(true); btn.style = 'transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.01, 'time' : 0.01, 'onComplete' : function(a){ a.style = 'transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;'; a.updateStyles(); } }); })";
const char UNFOLD_NEXT[] = R"(var btn = this.get('galleryBtnNext'); if (btn&&this.viewer.hasGallery){ btn.setVisible(true); btn.style = 'transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.01, 'time' : 0.01, 'onComplete' : function(a){ a.style = 'transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;'; a.updateStyles(); } }); })";
const char SHOW_1[] = R"(function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 2,'transition':'easeOutExpo' , 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -30, 'onUpdate': function(a){ a.updateAlign(); } }); )";
const char SHOW_23567[] = R"(function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 10, 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -30, 'onUpdate': function(a){ a.updateAlign(); } }); )";
const char SHOW_4[] = R"(function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 10, 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -34, 'onUpdate': function(a){ a.updateAlign(); } }); )";
const char SHOW_EDGE[] = R"(var btn = this.get('galleryBtnPrev'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : 8, 'onUpdate' : function(a){ a.updateAlign(); } }); btn = this.get('galleryBtnNext'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : 8, 'onUpdate' : function(a){ a.updateAlign(); } });)";

// The hide button's "onclick", the show button's "onclick" and its other members (null: absent).
struct Handler { const char *tag; int design; bool gallery, map, shown; QString hide, show; const char *showMembers; };
const Handler HANDLERS[] = {
    {"design 0, shown", 0, false, false, true, QString(FOLD_HEAD) + FOLD_TOOLBAR + CLOSE, QString(UNFOLD_HEAD) + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":24,"height":24,"skin":"shadow(4,0,0,rgba(0,0,0,1));shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,128,192,64,64,0,0,24,24)","stylehover":" background-color:rgba(255, 255, 255, 0.15); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.15); ","styleactive":" background-color:rgba(255, 255, 255, 0.25); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.25); ","oninit":"function(){ this.setVisible(false); this.allowClick = false; }","style":"transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateX(90deg); transition: transform 500ms; "})J"},
    {"design 0 gallery map, hidden", 0, true, true, false, QString(FOLD_HEAD) + FOLD_TOOLBAR + FOLD_PREV + FOLD_NEXT + CLOSE, QString(UNFOLD_HEAD) + UNFOLD_PREV + UNFOLD_NEXT + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":24,"height":24,"skin":"shadow(4,0,0,rgba(0,0,0,1));shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,128,192,64,64,0,0,24,24)","stylehover":" background-color:rgba(255, 255, 255, 0.15); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.15); ","styleactive":" background-color:rgba(255, 255, 255, 0.25); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.25); ","oninit":"function(){ this.setVisible(true); this.allowClick = true; }","style":"transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); transition: transform 500ms;"})J"},
    {"design 1, shown", 1, false, false, true, QString(HIDE_HEAD) + SLIDE_1 + CLOSE, QString(SHOW_1) + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":-30,"width":28,"height":24,"skin":"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,1,1,24,24)"})J"},
    {"design 1 gallery map, hidden", 1, true, true, false, QString(HIDE_HEAD) + HIDE_GALLERY + HIDE_MAP + SLIDE_1 + HIDE_EDGE + CLOSE, QString(SHOW_1) + SHOW_EDGE + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":28,"height":24,"skin":"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,1,1,24,24)"})J"},
    {"design 2 map, shown", 2, false, true, true, QString(HIDE_HEAD) + HIDE_MAP + SLIDE_2 + CLOSE, QString(SHOW_23567) + CLOSE, nullptr},
    {"design 3 gallery, shown", 3, true, false, true, QString(HIDE_HEAD) + HIDE_GALLERY + SLIDE_3567 + HIDE_EDGE + CLOSE, QString(SHOW_23567) + SHOW_EDGE + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":-30,"width":24,"height":24,"skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,0,24,24)","skinhover":"dim(-4px,-4px,32px,32px,32,32);comp(0.35);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)","skinactive":"dim(-4px,-4px,32px,32px,32,32);comp(0.6);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)"})J"},
    {"design 4 gallery, shown", 4, true, false, true, QString(HIDE_HEAD) + HIDE_GALLERY + SLIDE_4 + HIDE_EDGE + CLOSE, QString(SHOW_4) + SHOW_EDGE + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":8,"yoff":-34,"width":28,"height":28,"style":" border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;","stylehover":" background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","styleactive":" background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,4,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,4,24,24)"})J"},
    {"design 4, hidden", 4, false, false, false, QString(HIDE_HEAD) + SLIDE_4 + CLOSE, QString(SHOW_4) + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":8,"yoff":4,"width":28,"height":28,"style":" border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;","stylehover":" background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","styleactive":" background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,4,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,4,24,24)"})J"},
    {"design 5, shown", 5, false, false, true, QString(HIDE_HEAD) + SLIDE_3567 + CLOSE, QString(SHOW_23567) + CLOSE, nullptr},
    {"design 6 map, shown", 6, false, true, true, QString(HIDE_HEAD) + HIDE_MAP + SLIDE_3567 + CLOSE, QString(SHOW_23567) + CLOSE, nullptr},
    {"design 7 gallery, hidden", 7, true, false, false, QString(HIDE_HEAD) + HIDE_GALLERY + SLIDE_3567 + HIDE_EDGE + CLOSE, QString(SHOW_23567).chopped(1) + SHOW_EDGE + CLOSE,
     R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":24,"height":24,"skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,0,24,24)","skinhover":"dim(-4px,-4px,32px,32px,32,32);comp(0.35);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)","skinactive":"dim(-4px,-4px,32px,32px,32,32);comp(0.6);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)"})J"},
};

// The free-standing buttons: which exist, and members of the edge and stereo buttons.
struct Free { const char *tag; int design; bool shown, gallery; int galleryButtons; bool vr, vrCapable; const char *names; const char *memberChecks; };
const Free FREES[] = {
    {"show button only", 2, true, true, 1, true, false, "showTbButton", ""},
    {"stereo and edge buttons", 2, true, true, 0, true, true, "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext", ""},
    {"no gallery buttons", 2, true, true, 2, false, true, "showTbButton", ""},
    {"design 3 hidden parks the edge buttons", 3, false, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext",
     R"J({"galleryBtnPrev":{"align":"left","xoff":-40,"yoff":-24,"width":28,"height":28,"visible":false,"onclick":"function(){ var g = this.viewer.gallery(); if (!!g){ g.set(g.previous());}}","oninit":"function(){ var g = this.viewer.gallery(); if ((!!g)&&g.length>1){this.setVisible(true);}}","skin":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,0,0,28,28);","skinhover":"dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,10,10,28,28)","skinactive":"dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,11,11,28,28);"},
         "galleryBtnNext":{"align":"right","xoff":-40,"onclick":"function(){ var g = this.viewer.gallery(); if (!!g){ g.set(g.next());}}"}})J"},
    {"design 0 hidden folds the edge buttons", 0, false, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext",
     R"J({"galleryBtnPrev":{"xoff":8,"oninit":"function(){ this.setVisible(false); }","style":"transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateY(90deg); transition: transform 500ms; ","skinactive":"dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,10,10,28,28);"},
         "galleryBtnNext":{"style":"transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateY(90deg); transition: transform 500ms; ","skin":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,384,64,64,0,0,28,28);"}})J"},
    {"design 0 shown", 0, true, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext",
     R"J({"galleryBtnPrev":{"xoff":8,"oninit":"function(){ var g = this.viewer.gallery(); if ((!!g)&&g.length>1){ this.setVisible(true); } }","style":"transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;"}})J"},
    {"design 1 edge buttons", 1, true, true, 0, false, false, "showTbButton galleryBtnPrev galleryBtnNext",
     R"J({"galleryBtnNext":{"xoff":8,"skin":"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,384,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,384,64,64,0,0,28,28);","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,384,64,64,1,1,28,28);","style":"border-radius: 50%; background-color: rgba(255,255,255,0.0); transition: background-color 250ms,box-shadow 250ms;","stylehover":"background-color: rgba(255,255,255,0.25);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.25);","styleactive":"background-color: rgba(255,255,255,0.4);box-shadow: 0px 0px 9px 8px rgba(255,255,255,0.4);"}})J"},
    {"design 4 edge and stereo buttons", 4, true, true, 0, true, true, "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext",
     R"J({"galleryBtnPrev":{"skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,192,384,64,64,2,2,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,384,64,64,2,2,24,24)","style":" border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;"},
         "rightStereoButton":{"align":"bottom","xoff":22,"yoff":8,"width":28,"height":28,"visible":false,"onclick":"function(){ this.viewer.exitVRMode();  } ","style":" border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;","stylehover":" background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","styleactive":" background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,192,256,64,64,2,2,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,2,2,24,24)","skinhover":"dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,12,12,24,24)"}})J"},
    {"design 6 stereo buttons", 6, true, false, 0, true, true, "showTbButton leftStereoButton rightStereoButton",
     R"J({"leftStereoButton":{"align":"leftbottom","xoff":8,"yoff":8,"width":28,"height":28,"visible":false,"style":"opacity: 0.6;","stylehover":"opacity: 0.8;","skin":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,0,0,28,28);","skinhover":"dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,10,10,28,28)","skinactive":"dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,192,256,64,64,11,11,28,28);"}})J"},
};
// clang-format on

params::ControlsInput controlsInput(settings::ViewerSettings &s)
{
    params::ControlsInput input;
    input.settings = &s;
    input.vrAvailable = true;
    return input;
}

} // namespace

class tst_Toolbar : public QObject
{
    Q_OBJECT

private slots:
    void geometry_data();
    void geometry();
    void gates_data();
    void gates();
    void elements();
    void handlers_data() { test::addRows(HANDLERS); }
    void handlers();
    void freeButtons_data() { test::addRows(FREES); }
    void freeButtons();
    void controlsRoot();
    void everyScriptParses();
};

void tst_Toolbar::geometry_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("position");
    QTest::addColumn<bool>("shown");
    for (int design = 0; design < 8; ++design)
        for (int position = 0; position < 4; ++position)
            for (bool shown : {true, false})
                QTest::addRow(
                    "design%d/position%d/%s", design, position, shown ? "shown" : "hidden")
                    << design << position << shown;
}

void tst_Toolbar::geometry()
{
    QFETCH(int, design);
    QFETCH(int, position);
    QFETCH(bool, shown);
    const Design &d = DESIGNS[design];
    test::Toolbar t(design);
    t.settings.Position = position;
    t.settings.ShowToolbar = shown;
    QJsonObject toolbar = t.toolbar();
    QVERIFY(toolbar.take("button").isArray());
    QString body = d.body;
    if (design == 0 && !shown)
        body.replace("rotateX( 0deg )", "rotateX( 90deg )");
    const auto optional = [](const char *text) { return text ? QJsonValue(text) : QJsonValue(); };
    test::compareMembers(toolbar,
        {{"id", "toolbar"}, {"width", position == 1 ? "100%" : d.width}, {"height", d.height},
            {"buttonwidth", d.buttonWidth}, {"buttonheight", d.buttonHeight},
            {"spacing", d.spacing}, {"align", ALIGNS[position]},
            {"yoff", shown ? d.yoffShown : d.yoffHidden}, {"hidestyle", ""},
            {"style", (position == 1 ? "" : d.prefix) + body}, {"visible", true},
            {"buttonstyle", d.buttonStyles[0]}, {"buttonstylehover", optional(d.buttonStyles[1])},
            {"buttonstyleactive", optional(d.buttonStyles[2])}},
        true);
}

void tst_Toolbar::gates_data()
{
    QTest::addColumn<int>("design");
    QTest::addColumn<int>("row");
    for (int design = 0; design < 8; ++design)
        for (int row = 0; row < int(std::size(GATES)); ++row)
            QTest::addRow("design%d/%s", design, GATES[row].tag) << design << row;
}

void tst_Toolbar::gates()
{
    QFETCH(int, design);
    QFETCH(int, row);
    const Gate &g = GATES[row];
    const QStringList on = QString(g.on).split(' ', Qt::SkipEmptyParts);
    test::Toolbar t(design);
    for (const auto &[name, flag] : SWITCHES)
        t.settings.*flag = on.contains(name);
    t.settings.AddOrientation = on.contains("compass") || on.contains("radar");
    t.settings.OrientationElement = on.contains("radar") ? 11 : 10;
    t.settings.GalleryButtons = g.galleryButtons;
    t.input.vrCapable = !on.contains("notVrCapable");
    t.input.noGyroscope = on.contains("noGyroscope");
    const QJsonArray buttons = t.buttons();
    QCOMPARE(test::ids(buttons), g.names);
    // A full toolbar gives each index 0..18 exactly one owner.
    QVector<int> indexes, expected(19);
    for (const QJsonValue &button : buttons)
        indexes << button["index"].toInt(-1);
    std::sort(indexes.begin(), indexes.end());
    std::iota(expected.begin(), expected.end(), 0);
    if (buttons.size() == 19)
        QCOMPARE(indexes, expected);
}

void tst_Toolbar::elements()
{
    test::Toolbar t(2);
    const QJsonObject toolbar = t.full().toolbar();
    QCOMPARE(toolbar.value("galleryElement")["id"].toString(), "thumbnailGallery");
    QCOMPARE(toolbar.value("mapElement")["id"].toString(), "map");
    QCOMPARE(test::ids(t.actions),
        "updateGyroButton toggleGallery hideGallery toggleMap hideMap resizeMap");
    // A key too short for the map service leaves the element empty, and without its actions.
    test::Toolbar shortKey(2);
    shortKey.full().settings.GmAPIKey = "012345678";
    QCOMPARE(shortKey.toolbar().value("mapElement"), QJsonValue(QJsonObject()));
    QCOMPARE(test::ids(shortKey.actions), "updateGyroButton toggleGallery hideGallery");
    const QJsonObject none = test::Toolbar(2).toolbar();
    QVERIFY(!none.contains("galleryElement") && !none.contains("mapElement"));
}

void tst_Toolbar::handlers()
{
    QFETCH(int, row);
    const Handler &h = HANDLERS[row];
    test::Toolbar t(h.design);
    t.settings.AddGallery = h.gallery;
    t.settings.GalleryButtons = 2;
    t.settings.AddMap = h.map;
    t.settings.ShowToolbar = h.shown;
    const QJsonObject hide = test::findButton(t.buttons(), "hideTbButton");
    QJsonObject show = test::findButton(controls::buildFreeButtons(t.input), "showTbButton");
    VANTORA_COMPARE_TEXT(hide.value("onclick").toString(), h.hide);
    VANTORA_COMPARE_TEXT(show.take("onclick").toString(), h.show);
    // Only the folding design guards against a second click mid-fold.
    QCOMPARE(hide.value("oninit").toString(),
        h.design != 0 ? QString()
            : h.shown ? "function(){ this.allowClick = true; }"
                      : "function(){ this.allowClick = false; }");
    if (h.showMembers)
        test::compareMembers(show, h.showMembers, true);
}

void tst_Toolbar::freeButtons()
{
    QFETCH(int, row);
    const Free &f = FREES[row];
    test::Toolbar t(f.design);
    t.settings.ShowToolbar = f.shown;
    t.settings.AddGallery = f.gallery;
    t.settings.GalleryButtons = f.galleryButtons;
    t.settings.AddVrMode = f.vr;
    t.input.vrCapable = f.vrCapable;
    const QJsonArray buttons = controls::buildFreeButtons(t.input);
    QCOMPARE(test::ids(buttons), f.names);
    const QJsonObject checks = QJsonDocument::fromJson(f.memberChecks).object();
    for (auto it = checks.begin(); it != checks.end(); ++it)
        test::compareMembers(test::findButton(buttons, it.key()), it->toObject());
    // The stereo buttons never carry the edge buttons' handlers, and are hidden until VR mode.
    for (const QJsonValue &button : buttons)
        QVERIFY(
            !button["id"].toString().endsWith("StereoButton") || button["oninit"].isUndefined());
}

void tst_Toolbar::controlsRoot()
{
    settings::ViewerSettings s;
    settings::resetViewerSettings(s, true);
    s.ContextMenuItems.clear();
    s.AddGallery = s.AddVrMode = true;
    QJsonArray actions, bare;
    const QJsonObject root = params::buildControls(controlsInput(s), actions);
    QCOMPARE(root.keys(), QStringList({"actions", "button", "buttonBox", "events"}));
    QCOMPARE(root.value("buttonBox").toArray().size(), 1);
    QCOMPARE(test::ids(root.value("button").toArray()),
        "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext");
    // Without the toolbar no button of any kind is written, nor the gallery's actions.
    s.AddToolbar = false;
    QCOMPARE(
        params::buildControls(controlsInput(s), bare).keys(), QStringList({"actions", "events"}));
    QCOMPARE(bare.size(), 3);
}

void tst_Toolbar::everyScriptParses()
{
    QTemporaryDir dir;
    QStringList files;
    for (int design = 0; design < 8; ++design)
        for (bool shown : {true, false})
            for (int galleryButtons : {0, 1}) {
                test::Toolbar t(design);
                settings::ViewerSettings &s = t.full().settings;
                s.ShowToolbar = s.GalleryThumbnailVisible = shown;
                s.MapVisible = !shown;
                s.GalleryButtons = galleryButtons;
                s.LittlePlanetIntro = s.PositionNorth = true;
                // Each of the twelve orientation kinds in some file.
                s.OrientationElement = galleryButtons ? 10 + shown : (design + 8 * shown) % 10;
                QJsonArray actions;
                files << QString("%1/d%2_%3.js").arg(dir.path()).arg(design).arg(files.size());
                params::writeControlsFile(QString(), files.last(), controlsInput(s), actions);
            }
    const test::ScriptCheck check = test::checkScripts(files);
    VANTORA_VERIFY_SCRIPTS(check);
    QVERIFY2(check.counted(files.size()), check.output.constData());
}

QTEST_MAIN(tst_Toolbar)
#include "tst_toolbar.moc"
