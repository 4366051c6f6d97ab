// The hide- and show-toolbar handlers as pieces, each exactly as the viewer receives it; the
// writers join them by design and by what the export holds (gallery, map). Blanks at either end,
// doubled blanks and the comma inside the fold texts are part of them: never tidy them.
#pragma once

namespace vantora::controls {

// clang-format off

// Sliding designs 1 to 7, hide button: head, the gallery's and the map's hide actions, the slide,
// the gallery edge buttons moved out, the close.
constexpr char SLIDE_HIDE_HEAD[] = "function(){ ";
constexpr char SLIDE_HIDE_GALLERY[] = "this.viewer.action('hideGallery'); ";
constexpr char SLIDE_HIDE_MAP[] = " this.viewer.action('hideMap');";
constexpr char SLIDE_HIDE_TO_52[] = "this.get('toolbar').tween({'time': 0.75, 'yoff': -52, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 0, 'onUpdate': function(a){ a.updateAlign(); } });";
constexpr char SLIDE_HIDE_TO_70[] = "this.get('toolbar').tween({'time': 0.75, 'yoff': -70, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 0, 'onUpdate': function(a){ a.updateAlign(); } });";
constexpr char SLIDE_HIDE_TO_70_DESIGN_2[] = "this.get('toolbar').tween({'time': 0.75, 'yoff': -70, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 0, 'onUpdate': function(a){ a.updateAlign(); } }); ";
constexpr char SLIDE_HIDE_TO_70_DESIGN_4[] = "this.get('toolbar').tween({'time': 0.75, 'yoff': -70, 'onUpdate': function(a){ a.updateAlign(); } }); this.get('showTbButton').tween({'time': 0.75, 'yoff': 8, 'onUpdate': function(a){ a.updateAlign(); } }); ";
constexpr char SLIDE_HIDE_EDGE_BUTTONS[] = "var btn = this.get('galleryBtnPrev'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : -40, 'onUpdate' : function(a){ a.updateAlign(); } }); btn = this.get('galleryBtnNext'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : -40, 'onUpdate' : function(a){ a.updateAlign(); }});";
constexpr char CLOSE[] = "}";

// Sliding designs 1 to 7, show button: the slide back, the gallery edge buttons moved in, the close.
constexpr char SLIDE_SHOW_DESIGN_1[] = "function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 2,'transition':'easeOutExpo' , 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -30, 'onUpdate': function(a){ a.updateAlign(); } }); ";
constexpr char SLIDE_SHOW[] = "function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 10, 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -30, 'onUpdate': function(a){ a.updateAlign(); } }); ";
constexpr char SLIDE_SHOW_DESIGN_7[] = "function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 10, 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -30, 'onUpdate': function(a){ a.updateAlign(); } });";
constexpr char SLIDE_SHOW_DESIGN_4[] = "function(){ this.get('toolbar').tween({'time': 0.75, 'yoff': 10, 'onUpdate': function(a){ a.updateAlign(); } }); this.tween({'time': 0.75, 'yoff': -34, 'onUpdate': function(a){ a.updateAlign(); } }); ";
constexpr char SLIDE_SHOW_EDGE_BUTTONS[] = "var btn = this.get('galleryBtnPrev'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : 8, 'onUpdate' : function(a){ a.updateAlign(); } }); btn = this.get('galleryBtnNext'); btn&&this.viewer.hasGallery&&btn.tween({ 'time': 0.75, 'xoff' : 8, 'onUpdate' : function(a){ a.updateAlign(); } });";

// Design 0 folds the toolbar about its lower edge; allowClick blocks a second click mid-fold.
constexpr char FOLD_ONINIT_SHOWN[] = "function(){ this.allowClick = true; }";
constexpr char FOLD_ONINIT_HIDDEN[] = "function(){ this.allowClick = false; }";
constexpr char FOLD_HIDE_HEAD[] = "function(){ if (!this.allowClick) return; this.allowClick = false;";
constexpr char FOLD_HIDE_TOOLBAR[] = " var tb = this.get('toolbar'); tb.style = 'transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;', tb.updateStyles(); tb.tween({'delay': 0.5, 'time': 0.01, 'onComplete': function(a){ a.setVisible(false); a.get('showTbButton').allowClick = true; } }); var tbb = this.get('showTbButton');  tbb.setVisible(true); tbb.style ='transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); transition: transform 500ms;'; tbb.updateStyles();  tbb.tween({'delay': 0.01, 'time': 0.01, 'onComplete': function(a){ a.style ='transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); transition: transform 500ms;'; a.updateStyles(); } });";
constexpr char FOLD_HIDE_PREV[] = "var btn = this.get('galleryBtnPrev'); if (btn&&this.viewer.hasGallery){ btn.style = 'transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.5, 'time' : 0.01, 'onComplete' : function(a){ a.setVisible(false); } }); }";
constexpr char FOLD_HIDE_NEXT[] = "var btn = this.get('galleryBtnNext'); if (btn&&this.viewer.hasGallery){ btn.style = 'transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.5, 'time' : 0.01, 'onComplete' : function(a){ a.setVisible(false); } }); }";
constexpr char FOLD_SHOW_HEAD[] = "function(){ if (!this.allowClick) return; this.allowClick = false; var tb = this.get('toolbar'); tb.setVisible(true); tb.style = 'transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); background: rgba(0,0,0,0.5); transition: transform 500ms;'; tb.updateStyles(); this.tween({ 'delay': 0.5, 'time' : 0.01, 'onComplete' : function(a){ a.setVisible(false); a.get('hideTbButton').allowClick = true; } }); this.style = 'transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 90deg ); transition: transform 500ms;'; this.updateStyles(); ";
constexpr char FOLD_SHOW_PREV[] = "var btn = this.get('galleryBtnPrev'); if (btn&&this.viewer.hasGallery){ btn.setVisible(true); btn.style = 'transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.01, 'time' : 0.01, 'onComplete' : function(a){ a.style = 'transform-origin: -30% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;'; a.updateStyles(); } }); }";
constexpr char FOLD_SHOW_NEXT[] = "var btn = this.get('galleryBtnNext'); if (btn&&this.viewer.hasGallery){ btn.setVisible(true); btn.style = 'transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 90deg ); transition: transform 500ms;'; btn.updateStyles(); btn.tween({ 'delay': 0.01, 'time' : 0.01, 'onComplete' : function(a){ a.style = 'transform-origin: 130% 50% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateY( 0deg ); transition: transform 500ms;'; a.updateStyles(); } }); }";

// Design 0's show button: parked folded while the toolbar is shown.
constexpr char FOLD_SHOW_ONINIT_PARKED[] = "function(){ this.setVisible(false); this.allowClick = false; }";
constexpr char FOLD_SHOW_ONINIT_READY[] = "function(){ this.setVisible(true); this.allowClick = true; }";
constexpr char FOLD_SHOW_STYLE_PARKED[] = "transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective(800px) rotateX(90deg); transition: transform 500ms; ";
constexpr char FOLD_SHOW_STYLE_READY[] = "transform-origin: 50% 100% 0px; transform: translate(0px,0px) translateZ(10000px) perspective( 800px ) rotateX( 0deg ); transition: transform 500ms;";

// Design 4's round white-bordered box of the free-standing buttons (show, gallery edge and stereo
// buttons), each with its leading blank.
constexpr char ROUND_STYLE[] = " border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0); transition: background-color 100ms;";
constexpr char ROUND_STYLE_HOVER[] = " background-color: rgba(255,255,255,0.33);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);";
constexpr char ROUND_STYLE_ACTIVE[] = " background-color: rgba(255,255,255,0.66);box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1);";

// clang-format on

} // namespace vantora::controls
