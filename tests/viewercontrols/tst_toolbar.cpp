// The toolbar object in every design, position and start state; the order and gates of its
// buttons; the hide and show handlers; the free-standing buttons; every script of a written
// controls file parsed by Node.js.
#include "common/scriptcheck.h"
#include "common/textcompare.h"
#include "toolbarfixture.h"
#include "viewerparams/controlsfile.h"
#include "viewerparams/paramsfixture.h"

#include <QSet>
#include <QtTest>

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

// Which buttons the toolbar holds for which settings.
struct Gates
{
    const char *tag;
    bool gallery; int galleryButtons; bool map, hotspots, arrows, zoom, play, vr, vrCapable, gyroButton, addGyro, flat, audio, fullscreen;
    const char *names;
};
const Gates GATES[] = {
    {"no optional button", false, 0, false, false, false, false, false, false, true, false, false, false, false, false, "hideTbButton infobutton"},
    {"defaults", false, 0, false, false, true, true, true, false, true, false, false, false, true, true, "hideTbButton infobutton type1 type2 type3 type4 type5 type6 playbutton audiobutton fullscreenButton"},
    {"gallery buttons in the toolbar", true, 1, false, false, false, false, false, false, true, false, false, false, false, false, "navLeftButton hideTbButton gallerybutton infobutton navRightButton"},
    {"gallery buttons at the edges", true, 0, false, false, false, false, false, false, true, false, false, false, false, false, "hideTbButton gallerybutton infobutton"},
    {"no gallery buttons", true, 2, false, false, false, false, false, false, true, false, false, false, false, false, "hideTbButton gallerybutton infobutton"},
    {"GalleryButtons 1 without gallery", false, 1, false, false, false, false, false, false, true, false, false, false, false, false, "hideTbButton infobutton"},
    {"map and hotspots", false, 0, true, true, false, false, false, false, true, false, false, false, false, false, "hideTbButton mapbutton infobutton hotspotsButton"},
    {"VR without a full sphere", false, 0, false, false, false, false, false, true, false, false, false, false, false, false, "hideTbButton infobutton"},
    {"gyroscope", false, 0, false, false, false, false, false, false, true, true, true, false, false, false, "hideTbButton infobutton gyrobutton"},
    {"gyroscope button without AddGyro", false, 0, false, false, false, false, false, false, true, true, false, false, false, false, "hideTbButton infobutton"},
    {"gyroscope in flat mode", false, 0, false, false, false, false, false, false, true, true, true, true, false, false, "hideTbButton infobutton"},
    {"everything", true, 1, true, true, true, true, true, true, true, true, true, false, true, true, "navLeftButton hideTbButton gallerybutton mapbutton infobutton hotspotsButton type1 type2 type3 type4 type5 type6 playbutton vrButton gyrobutton audiobutton fullscreenButton navRightButton"},
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

struct Handler { const char *tag; int design; bool gallery, map, shown; QString hide, show; };
const Handler HANDLERS[] = {
    {"design 0", 0, false, false, true, QString(FOLD_HEAD) + FOLD_TOOLBAR + CLOSE, QString(UNFOLD_HEAD) + CLOSE},
    {"design 0 gallery map", 0, true, true, false, QString(FOLD_HEAD) + FOLD_TOOLBAR + FOLD_PREV + FOLD_NEXT + CLOSE, QString(UNFOLD_HEAD) + UNFOLD_PREV + UNFOLD_NEXT + CLOSE},
    {"design 1", 1, false, false, true, QString(HIDE_HEAD) + SLIDE_1 + CLOSE, QString(SHOW_1) + CLOSE},
    {"design 1 gallery map", 1, true, true, true, QString(HIDE_HEAD) + HIDE_GALLERY + HIDE_MAP + SLIDE_1 + HIDE_EDGE + CLOSE, QString(SHOW_1) + SHOW_EDGE + CLOSE},
    {"design 2 map", 2, false, true, true, QString(HIDE_HEAD) + HIDE_MAP + SLIDE_2 + CLOSE, QString(SHOW_23567) + CLOSE},
    {"design 3 gallery", 3, true, false, false, QString(HIDE_HEAD) + HIDE_GALLERY + SLIDE_3567 + HIDE_EDGE + CLOSE, QString(SHOW_23567) + SHOW_EDGE + CLOSE},
    {"design 4 gallery", 4, true, false, true, QString(HIDE_HEAD) + HIDE_GALLERY + SLIDE_4 + HIDE_EDGE + CLOSE, QString(SHOW_4) + SHOW_EDGE + CLOSE},
    {"design 5", 5, false, false, true, QString(HIDE_HEAD) + SLIDE_3567 + CLOSE, QString(SHOW_23567) + CLOSE},
    {"design 6 map", 6, false, true, true, QString(HIDE_HEAD) + HIDE_MAP + SLIDE_3567 + CLOSE, QString(SHOW_23567) + CLOSE},
    {"design 7 gallery", 7, true, false, true, QString(HIDE_HEAD) + HIDE_GALLERY + SLIDE_3567 + HIDE_EDGE + CLOSE, QString(SHOW_23567).chopped(1) + SHOW_EDGE + CLOSE},
};

// The show button's members beyond "onclick" (JSON; absent members must be absent).
struct Show { const char *tag; int design; bool shown; const char *json; };
const Show SHOWS[] = {
    {"design 0 shown", 0, true, R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":24,"height":24,"skin":"shadow(4,0,0,rgba(0,0,0,1));shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,128,192,64,64,0,0,24,24)","stylehover":" background-color:rgba(255, 255, 255, 0.15); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.15); ","styleactive":" background-color:rgba(255, 255, 255, 0.25); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.25); ","oninit":"function(){ this.setVisible(false); this.allowClick = false; }","style":"transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateX(90deg); transition: transform 500ms; "})J"},
    {"design 0 hidden", 0, false, R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":24,"height":24,"skin":"shadow(4,0,0,rgba(0,0,0,1));shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,128,192,64,64,0,0,24,24)","stylehover":" background-color:rgba(255, 255, 255, 0.15); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.15); ","styleactive":" background-color:rgba(255, 255, 255, 0.25); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.25); ","oninit":"function(){ this.setVisible(true); this.allowClick = true; }","style":"transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); transition: transform 500ms;"})J"},
    {"design 1 shown", 1, true, R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":-30,"width":28,"height":24,"skin":"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,1,1,24,24)"})J"},
    {"design 1 hidden", 1, false, R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":28,"height":24,"skin":"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,1,1,24,24)"})J"},
    {"design 3 shown", 3, true, R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":-30,"width":24,"height":24,"skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,0,24,24)","skinhover":"dim(-4px,-4px,32px,32px,32,32);comp(0.35);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)","skinactive":"dim(-4px,-4px,32px,32px,32,32);comp(0.6);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)"})J"},
    {"design 4 shown", 4, true, R"J({"id":"showTbButton","align":"leftbottom","xoff":8,"yoff":-34,"width":28,"height":28,"style":" border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;","stylehover":" background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","styleactive":" background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,4,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,4,24,24)"})J"},
    {"design 4 hidden", 4, false, R"J({"id":"showTbButton","align":"leftbottom","xoff":8,"yoff":4,"width":28,"height":28,"style":" border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;","stylehover":" background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","styleactive":" background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);","skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,4,24,24)","skinactive":"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,4,24,24)"})J"},
    {"design 7 hidden", 7, false, R"J({"id":"showTbButton","align":"leftbottom","xoff":0,"yoff":0,"width":24,"height":24,"skin":"shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,0,24,24)","skinhover":"dim(-4px,-4px,32px,32px,32,32);comp(0.35);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)","skinactive":"dim(-4px,-4px,32px,32px,32,32);comp(0.6);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)"})J"},
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

QJsonObject parsed(const char *json)
{
    return QJsonDocument::fromJson(json).object();
}

QJsonArray freeButtons(const Free &f)
{
    test::Toolbar t(f.design);
    t.settings.ShowToolbar = f.shown;
    t.settings.AddGallery = f.gallery;
    t.settings.GalleryButtons = f.galleryButtons;
    t.settings.AddVrMode = f.vr;
    t.input.vrCapable = f.vrCapable;
    return controls::buildFreeButtons(t.input);
}

} // namespace

class tst_Toolbar : public QObject
{
    Q_OBJECT

private slots:
    void geometry_data();
    void geometry();
    void gates_data() { test::addRows(GATES); }
    void gates();
    void indexOwners();
    void elements();
    void handlers_data() { test::addRows(HANDLERS); }
    void handlers();
    void showButton_data() { test::addRows(SHOWS); }
    void showButton();
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
    const QJsonObject toolbar = t.toolbar();

    QString body = QString::fromLatin1(d.body);
    if (design == 0 && !shown)
        body.replace("rotateX( 0deg )", "rotateX( 90deg )");
    QJsonObject expected {{"id", "toolbar"}, {"width", position == 1 ? "100%" : d.width},
        {"height", d.height}, {"buttonwidth", d.buttonWidth}, {"buttonheight", d.buttonHeight},
        {"spacing", d.spacing}, {"align", ALIGNS[position]},
        {"yoff", shown ? d.yoffShown : d.yoffHidden}, {"hidestyle", ""},
        {"style", (position == 1 ? QString() : QString::fromLatin1(d.prefix)) + body},
        {"buttonstyle", d.buttonStyles[0]}, {"visible", true}};
    if (d.buttonStyles[1]) {
        expected.insert("buttonstylehover", d.buttonStyles[1]);
        expected.insert("buttonstyleactive", d.buttonStyles[2]);
    }
    QJsonObject actual = toolbar;
    actual.remove("button");
    QCOMPARE(actual.keys(), expected.keys());
    for (const QString &key : expected.keys()) {
        if (expected.value(key).isString())
            VANTORA_COMPARE_TEXT(actual.value(key).toString(), expected.value(key).toString());
        else
            QCOMPARE(actual.value(key), expected.value(key));
    }
}

void tst_Toolbar::gates()
{
    QFETCH(int, row);
    const Gates &g = GATES[row];
    test::Toolbar t(3);
    settings::ViewerSettings &s = t.settings;
    s.AddGallery = g.gallery;
    s.GalleryButtons = g.galleryButtons;
    s.AddMap = g.map;
    s.HotspotsButton = g.hotspots;
    s.ShowArrowButtons = g.arrows;
    s.ShowZoomButtons = g.zoom;
    s.PlayButton = g.play;
    s.AddVrMode = g.vr;
    t.input.vrCapable = g.vrCapable;
    s.GyroButton = g.gyroButton;
    s.AddGyro = g.addGyro;
    t.input.noGyroscope = g.flat;
    s.AddAudioButton = g.audio;
    s.ShowToolbarFullscreen = g.fullscreen;
    QCOMPARE(test::buttonNames(t.buttons()), QString::fromLatin1(g.names));
}

void tst_Toolbar::indexOwners()
{
    // With every button on, each index 0..18 has exactly one owner; the compass or radar in the
    // toolbar takes index 2.
    QList<int> expected;
    for (int index = 0; index <= 18; ++index)
        expected << index;
    for (const int kind : {10, 11})
        for (int design = 0; design < 8; ++design) {
            test::Toolbar t(design);
            t.full().settings.OrientationElement = kind;
            QList<int> indexes;
            for (const QJsonValue &button : t.buttons())
                indexes << button.toObject().value("index").toInt(-1);
            std::sort(indexes.begin(), indexes.end());
            QCOMPARE(indexes, expected);
        }
}

void tst_Toolbar::elements()
{
    test::Toolbar t(2);
    t.full();
    QJsonObject toolbar = t.toolbar();
    QCOMPARE(toolbar.value("galleryElement").toObject().value("id").toString(), "thumbnailGallery");
    QCOMPARE(toolbar.value("mapElement").toObject().value("id").toString(), "map");
    QStringList actionIds;
    for (const QJsonValue &action : t.actions)
        actionIds << action.toObject().value("id").toString();
    QCOMPARE(actionIds.join(' '),
        "updateGyroButton toggleGallery hideGallery toggleMap hideMap resizeMap");

    // A key too short for the map service leaves the element empty, and without its actions.
    test::Toolbar shortKey(2);
    shortKey.full().settings.GmAPIKey = "012345678";
    toolbar = shortKey.toolbar();
    QVERIFY(toolbar.contains("mapElement"));
    QVERIFY(toolbar.value("mapElement").toObject().isEmpty());
    QCOMPARE(shortKey.actions.size(), 3);

    test::Toolbar none(2);
    toolbar = none.toolbar();
    QVERIFY(!toolbar.contains("galleryElement") && !toolbar.contains("mapElement"));
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
    VANTORA_COMPARE_TEXT(hide.value("onclick").toString(), h.hide);
    const QJsonObject show = test::findButton(controls::buildFreeButtons(t.input), "showTbButton");
    VANTORA_COMPARE_TEXT(show.value("onclick").toString(), h.show);
    // Only the folding design guards against a second click mid-fold.
    QCOMPARE(hide.value("oninit").toString(),
        h.design != 0 ? QString()
            : h.shown ? "function(){ this.allowClick = true; }"
                      : "function(){ this.allowClick = false; }");
    QCOMPARE(hide.value("align").toString(), "left");
    QCOMPARE(hide.value("index").toInt(), 1);
    QCOMPARE(hide.value("priority").toInt(), 3);
    QCOMPARE(hide.value("xoff").toInt(), 8);
}

void tst_Toolbar::showButton()
{
    QFETCH(int, row);
    const Show &s = SHOWS[row];
    test::Toolbar t(s.design);
    t.settings.ShowToolbar = s.shown;
    QJsonObject show = controls::buildFreeButtons(t.input).first().toObject();
    QVERIFY(show.contains("onclick"));
    show.remove("onclick");
    const QJsonObject expected = parsed(s.json);
    QVERIFY(!expected.isEmpty());
    QCOMPARE(show.keys(), expected.keys());
    for (const QString &key : expected.keys())
        QCOMPARE(show.value(key), expected.value(key));
}

void tst_Toolbar::freeButtons()
{
    QFETCH(int, row);
    const Free &f = FREES[row];
    const QJsonArray buttons = ::freeButtons(f);
    QCOMPARE(test::buttonNames(buttons), QString::fromLatin1(f.names));
    const QJsonObject checks = parsed(*f.memberChecks ? f.memberChecks : "{}");
    for (const QString &id : checks.keys()) {
        const QJsonObject button = test::findButton(buttons, id);
        const QJsonObject expected = checks.value(id).toObject();
        for (const QString &key : expected.keys()) {
            QVERIFY2(button.contains(key), qPrintable(id + ' ' + key));
            if (expected.value(key).isString())
                VANTORA_COMPARE_TEXT(button.value(key).toString(), expected.value(key).toString());
            else
                QCOMPARE(button.value(key), expected.value(key));
        }
    }
    // The stereo buttons never carry the edge buttons' handlers, and are hidden until VR mode.
    for (const QJsonValue &value : buttons)
        if (value.toObject().value("id").toString().endsWith("StereoButton"))
            QVERIFY(!value.toObject().contains("oninit"));
}

void tst_Toolbar::controlsRoot()
{
    settings::ViewerSettings s;
    settings::resetViewerSettings(s, true);
    s.ContextMenuItems.clear();
    s.AddGallery = true;
    s.AddVrMode = true;
    params::ControlsInput input;
    input.settings = &s;
    input.vrAvailable = true;
    QJsonArray actions;
    QCOMPARE(params::buildControls(input, actions).keys(),
        QStringList({"actions", "button", "buttonBox", "events"}));
    const QJsonObject root = params::buildControls(input, actions);
    QCOMPARE(root.value("buttonBox").toArray().size(), 1);
    QCOMPARE(test::buttonNames(root.value("button").toArray()),
        "showTbButton leftStereoButton rightStereoButton galleryBtnPrev galleryBtnNext");

    // Without the toolbar no button of any kind is written, nor the gallery's actions.
    s.AddToolbar = false;
    QJsonArray bare;
    QCOMPARE(params::buildControls(input, bare).keys(), QStringList({"actions", "events"}));
    QCOMPARE(bare.size(), 3);
}

void tst_Toolbar::everyScriptParses()
{
    QTemporaryDir dir;
    QStringList files;
    for (int design = 0; design < 8; ++design) {
        for (bool shown : {true, false}) {
            for (int galleryButtons : {0, 1}) {
                settings::ViewerSettings s;
                settings::resetViewerSettings(s, true);
                s.TBDesign = design;
                s.ShowToolbar = shown;
                s.AddGallery = true;
                s.GalleryButtons = galleryButtons;
                s.GalleryThumbnailVisible = shown;
                s.AddMap = true;
                s.MapVisible = !shown;
                s.GmAPIKey = "0123456789abc";
                s.AddVrMode = true;
                s.AddGyro = s.GyroButton = s.HotspotsButton = s.LittlePlanetIntro = true;
                params::ControlsInput input;
                input.settings = &s;
                input.vrAvailable = true;
                QJsonArray actions;
                files << QString("%1/d%2_%3.js").arg(dir.path()).arg(design).arg(files.size());
                params::writeControlsFile(QString(), files.last(), input, actions);
            }
        }
    }
    const test::ScriptCheck check = test::checkScripts(files);
    VANTORA_VERIFY_SCRIPTS(check);
    QVERIFY2(check.counted(files.size()), check.output.constData());
}

QTEST_MAIN(tst_Toolbar)
#include "tst_toolbar.moc"
