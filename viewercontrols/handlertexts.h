// The toolbar buttons' JavaScript handlers, each exactly as the viewer receives it. Blanks at
// either end and doubled blanks are part of the texts: never trim or tidy them.
#pragma once

namespace vantora::controls {

// clang-format off

constexpr char INFO_ONCLICK[] = "function(){ var d=this.viewer.get('localData'); d&&(d=d.infoTextBox); if(!d){ var d=this.viewer.get('globalData'); d&&(d=d.infoTextBox); } if (!!d){this.viewer.action('toggleMessage',d);} }";
// The info box opens by itself on every scene change when the user asked for it.
constexpr char INFO_ONSCENECHANGED_SHOW[] = "function(){ var d=this.viewer.get('localData'); var g=this.viewer.get('globalData'); var o=d&&d.infoTextBox||g&&g.infoTextBox; this.setVisible(!!o); if (!!o){ if (d&&d.infoTextBox) this.viewer.action('hideMessage'); this.viewer.action('showMessage',o); } }";
constexpr char INFO_ONSCENECHANGED[] = "function(){ var d=this.viewer.get('localData'); var g=this.viewer.get('globalData'); var o=d&&d.infoTextBox||g&&g.infoTextBox; this.setVisible(!!o); }";
constexpr char HOTSPOTS_ONCLICK[] = "function(){ this.viewer.toggleHotspots(); }";
constexpr char HOTSPOTS_ONSCENECHANGED[] = "function(){ this.setVisible(this.viewer.hotspots()&&this.viewer.hotspots().length>0); } ";
constexpr char PLAY_ONCLICK[] = "function(){ if (this.viewer.isPlaying()) this.viewer.stopAutoPlay(); else this.viewer.startAutoPlay(); }";
constexpr char VR_ONCLICK[] = "function(){ if (this.viewer.isVRModeEnabled()){ this.viewer.exitVRMode();} else { this.viewer.enterVRMode(); } } ";
constexpr char GYRO_ONCLICK[] = "function(){ var enabled = this.viewer.enableGyroscope(!this.viewer.gyroscopeEnabled()); } ";
constexpr char AUDIO_ONCLICK[] = "function(){ var o = this.get('gAudio'); if (!o) o = this.get('lAudio'); if (!!o){ o.isPlaying()?o.pause():o.play(); }   }";
constexpr char AUDIO_ONSCENECHANGED[] = "function(){ var o = this.get('gAudio')||this.get('lAudio'); this.setVisible(!!o); }";
// Design 1 has no pause set of its own: it takes the plain set over when a scene starts.
constexpr char AUDIO_ONSCENECHANGED_DESIGN_1[] = "function(){ this.pauseskin = this.skin; this.pauseskinactive = this.skinactive; var o = this.get('gAudio')||this.get('lAudio'); this.setVisible(!!o); }";
constexpr char FULLSCREEN_ONCLICK[] = "function(){ this.viewer.toggleFullscreen();  } ";
constexpr char FULLSCREEN_ONINIT[] = "function(){ if (!this.viewer.fullscreenSupported()) this.viewer.remove('fullscreenButton');  } ";
constexpr char GALLERY_ONINIT[] = "function(){var g = this.viewer.gallery(); if ((!!g) && g.length>1){ this.setVisible(true);}}";
constexpr char GALLERY_ONCLICK[] = "function(){ this.viewer.action('toggleGallery'); }";
constexpr char MAP_ONINIT[] = "function(){var m = this.viewer.map(); if (!!m){ this.setVisible(true);}}";
constexpr char MAP_ONCLICK[] = "function(){ this.viewer.action('toggleMap'); }";

// The gyroscope button's face follows the gyroscope's state; design 7 also swaps hover and pressed.
constexpr char UPDATE_GYRO_BUTTON[] = "function(){ var enabled = this.viewer.gyroscopeEnabled(); var gb = this.get('gyrobutton'); if (gb){ gb.skin = enabled?gb.enabledskin:gb.disabledskin; gb.updateSkins(); } }";
constexpr char UPDATE_GYRO_BUTTON_DESIGN_7[] = "function(){ var enabled = this.viewer.gyroscopeEnabled(); var gb = this.get('gyrobutton'); if (gb){ gb.skin = enabled?gb.enabledskin:gb.disabledskin;  gb.skinhover = enabled?gb.enabledskinhover:gb.disabledskinhover;  gb.skinactive = enabled?gb.enabledskinactive:gb.disabledskinactive; gb.updateSkins(); } }";

// clang-format on

} // namespace vantora::controls
