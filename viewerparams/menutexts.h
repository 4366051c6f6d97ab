// The context menu's texts, each exactly as the viewer receives it. Blanks at either end and
// doubled blanks are part of the texts: never trim or tidy them.
#pragma once

namespace vantora::params {

// clang-format off

constexpr char MENU_STYLE[] = "background-color: rgba(255,255,255,0.8); box-shadow: 4px 4px 4px rgba(0,0,0,0.5); border-radius: 3px;";

constexpr char FULLSCREEN_ONCLICK[] = "function(){ this.viewer.toggleFullscreen(); }";
constexpr char FULLSCREEN_ONINIT[] = "function(){ this.caption = this.viewer.tr('Fullscreen'); if (!this.viewer.fullscreenSupported()) this.visible = false;  } ";

constexpr char NORMAL_VIEW_ONCLICK[] = "function(){  if (this.viewer.fisheyeDistortion()!=0.0){ this.viewer.action('leaveLittlePlanet'); } }";
constexpr char NORMAL_VIEW_ONINIT[] = "function(){  this.caption = this.viewer.tr('Normal View'); }";
constexpr char LEAVE_LITTLE_PLANET[] = "function(){ if (!this.viewer.fullEquirectangular()) return; this.viewer.panTo(this.viewer.getView().pan,0,100,1.0,0,'easeInOutSine',true); this.tween({'time': 1.0, 'lp': 0.0, 'transition': 'easeInOutSine', 'onInit' : function(a,dstParams){ a.lp=a.viewer.fisheyeDistortion(); }, 'onUpdate': function(a){ a.viewer.setFisheyeDistortion(a.lp);}}); }";
constexpr char NORMAL_VIEW_ONSHOW[] = "var view1 = this.getItem('normalView'); if (view1){ view1.visible = (this.viewer.webglAvailable && this.viewer.fullEquirectangular()) ? true : false; } ";

constexpr char LITTLE_PLANET_ONCLICK[] = "function(){ if (this.viewer.fisheyeDistortion()!=1.0){ this.viewer.action('enterLittlePlanet'); } }";
constexpr char LITTLE_PLANET_ONINIT[] = "function(){  this.caption = this.viewer.tr('LittlePlanet View'); }";
constexpr char ENTER_LITTLE_PLANET[] = "function(){ if (!this.viewer.fullEquirectangular()) return; this.viewer.panTo(this.viewer.getView().pan+90,90,150,1.0,0,'easeInOutSine',true); this.tween({'time': 1.0, 'lp': 1.0, 'transition': 'easeInOutSine', 'onInit' : function(a,dstParams){ a.lp=a.viewer.fisheyeDistortion(); }, 'onUpdate': function(a){ a.viewer.setFisheyeDistortion(a.lp);}}); }";
constexpr char LITTLE_PLANET_ONSHOW[] = "var view2 = this.getItem('littlePlanetView'); if (view2){ view2.visible = (this.viewer.webglAvailable && this.viewer.fullEquirectangular())?true:false; } ";

constexpr char GYRO_ONCLICK[] = "function(){  var gb = this.get('gyrobutton'); if (gb){ gb.onclick(); } else { this.viewer.enableGyroscope(!this.viewer.gyroscopeEnabled()); } }";
constexpr char GYRO_ONINIT[] = "function(){  this.caption = this.viewer.tr('Gyroscope Control'); }";
constexpr char GYRO_ONSHOW[] = "var gyro = this.getItem('gyroItem'); if (gyro){ gyro.visible = this.viewer.gyroAvailable?true:false; } ";

// The about item's "onclick" is head + the product's web site + tail.
constexpr char ABOUT_ONCLICK_HEAD[] = "function(){ window.open('";
constexpr char ABOUT_ONCLICK_TAIL[] = "','_blank'); }";
constexpr char ABOUT_ONINIT[] = "function(){  this.caption = this.viewer.tr('About Vantora...'); }";

// A custom item's "onclick" wraps the user's statements.
constexpr char CUSTOM_ONCLICK_HEAD[] = "function(){ ";
constexpr char CUSTOM_ONCLICK_TAIL[] = "}";

// "onshow" wraps the visibility statements of the items.
constexpr char ONSHOW_HEAD[] = "function(){ ";
constexpr char ONSHOW_TAIL[] = " this.update(); }";

// clang-format on

} // namespace vantora::params
