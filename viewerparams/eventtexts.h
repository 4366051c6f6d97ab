// The event handler and action texts of the controls file, each exactly as the viewer receives it.
// Blanks at either end, doubled blanks, tabs and missing final ';' are part of the texts: never
// trim or tidy them.
#pragma once

namespace vantora::params {

// clang-format off

constexpr char GYRO_AVAILABLE_AUTO_ON[] = "function(available){ this.viewer.gyroAvailable = available; var o = this.get('gyrobutton'); if(!!o){ o.setVisible(available&&this.viewer.panoType()==0); available&&o.onclick(); } } ";
constexpr char GYRO_AVAILABLE[] = "function(available){ this.viewer.gyroAvailable = available; var o = this.get('gyrobutton'); if(!!o){ o.setVisible(available&&this.viewer.panoType()==0); } } ";
constexpr char GYRO_TOGGLE[] = "function(enabled){ this.viewer.action('updateGyroButton'); }";

// "onscenechanged", "onexit" and "oninit" are assembled: head, the gyroscope part when the
// gyroscope or VR mode is in use, then the tail.
constexpr char SCENE_CHANGED_HEAD[] = "function(){";
constexpr char SCENE_CHANGED_GYRO[] = " var o = this.get('gyrobutton'); if(!!o){ o.setVisible(this.viewer.gyroAvailable&&this.viewer.panoType()==0); this.viewer.gyroAvailable&&this.viewer.panoType()==0&&this.viewer.gyroWasEnabled&&o.onclick(); } if (this.viewer.isVRModeEnabled()){this.viewer.enableGyroscope(!0);}";
constexpr char SCENE_CHANGED_TAIL[] = "}";
constexpr char EXIT_HEAD[] = "function(){  var d=this.viewer.get('localData'); if (!!d&&d.infoTextBox){ this.viewer.action('hideMessage'); }";
constexpr char EXIT_GYRO[] = " this.viewer.gyroWasEnabled = this.viewer.gyroAvailable&&this.viewer.gyroscopeEnabled();\t";
constexpr char EXIT_TAIL[] = "}";
constexpr char INIT_HEAD[] = "function(){ var g = this.viewer.gallery(); this.viewer.hasGallery = ((!!g) && g.length>1); ";
constexpr char INIT_GYRO[] = "this.viewer.checkForGyroscope();";
constexpr char INIT_LITTLE_PLANET_FORMAT[] = " this.viewer.action('littlePlanetIntro',%.4f,%.4f,%.4f); ";
constexpr char INIT_TAIL[] = " }";

constexpr char USES_WEBGL[] = "function(available){ this.viewer.webglAvailable = available; if (available){ var vr = this.get('vrButton'); vr&&vr.setVisible(true); } } ";
constexpr char ENTER_VR_MODE[] = "function(){ this.viewer.action('hideMessage'); var tb = this.get('toolbar'); tb&&tb.setVisible(false); tb = this.get('galleryBtnPrev'); tb&&this.viewer.hasGallery&&tb.setVisible(false); tb = this.get('galleryBtnNext'); tb&&this.viewer.hasGallery&&tb.setVisible(false); tb = this.get('compass'); tb&&tb.setVisible(false); var lvrb = this.get('leftStereoButton'); lvrb&&lvrb.setVisible(true); var rvrb = this.get('rightStereoButton'); rvrb&&rvrb.setVisible(true); } ";
constexpr char EXIT_VR_MODE[] = "function(){  var tb = this.get('toolbar'); tb&&tb.setVisible(true); var g = this.viewer.gallery(); tb = this.get('galleryBtnPrev'); tb&&this.viewer.hasGallery&&tb.setVisible(g&&g.length>1); tb = this.get('galleryBtnNext'); tb&&this.viewer.hasGallery&&tb.setVisible(g&&g.length>1); tb = this.get('compass'); tb&&tb.setVisible(true); var lvrb = this.get('leftStereoButton'); lvrb&&lvrb.setVisible(false); var rvrb = this.get('rightStereoButton'); rvrb&&rvrb.setVisible(false); } ";
constexpr char RESIZE[] = "function(){ this.viewer.action('resizeMap');  }";

// The play button's face while the panorama turns by itself ("onplay") and back ("onstop"); each
// design swaps the skin sets its button has.
constexpr char PLAY_ALL_SETS[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.shbackup = o.skinhover; o.sabackup = o.skinactive; o.skin = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,0,0,28,28)'; o.skinhover = 'dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,10,10,28,28)';\to.skinactive = 'dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,10,10,28,28)'; o.updateSkins(); } } ";
constexpr char STOP_ALL_SETS[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup; o.skinhover = o.shbackup; o.skinactive = o.sabackup; o.updateSkins(); } } ";
constexpr char PLAY_DESIGN_1[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin;  o.sabackup = o.skinactive; o.skin = 'shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,0,0,28,28)'; o.skinactive = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,1,1,28,28)'; o.updateSkins(); } } ";
constexpr char STOP_DESIGN_1[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup;  o.skinactive = o.sabackup; o.updateSkins(); } } ";
constexpr char PLAY_TINTED[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.sabackup = o.skinactive; o.skin = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,5,2,24,24,#444)'; o.skinactive = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,6,3,24,24,#333)'; o.updateSkins(); } } ";
constexpr char STOP_SKIN_AND_ACTIVE[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup; o.skinactive = o.sabackup; o.updateSkins(); } } ";
constexpr char PLAY_DESIGN_4[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.sabackup = o.skinactive; o.skin = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,5,5,24,24)'; o.skinactive = 'shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,0,64,64,5,5,24,24)'; o.updateSkins(); } } ";
constexpr char PLAY_DESIGN_5[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.sabackup = o.skinactive; o.skin = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,5,2,24,24)'; o.skinactive = 'shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,128,0,64,64,6,3,24,24)'; o.updateSkins(); } } ";
constexpr char PLAY_DESIGN_6[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.sbackup = o.skin; o.skin = 'copy(defaultSkin,128,0,64,64,5,5,24,24)';  \to.updateSkins(); } } ";
constexpr char STOP_DESIGN_6[] = "function(){ var o = this.get('playbutton'); if (!!o){ o.skin = o.sbackup; o.updateSkins(); } } ";

// The audio button's face when a sound starts or stops. Both handlers share a frame; between
// head and tail come the assignments of the skin sets the design's button has, with @ standing
// for "play" or "pause". "onstartaudio" shows the play face and "onstopaudio" the pause face.
constexpr char AUDIO_HEAD[] = "function(senderId){ if (senderId=='gAudio'||senderId=='lAudio'){var o = this.get('audiobutton'); if (!!o){ ";
constexpr char AUDIO_TAIL[] = " o.updateSkins(); }} } ";
constexpr char AUDIO_ALL_SETS[] = "o.skin = o.@skin; o.skinhover = o.@skinhover; o.skinactive = o.@skinactive;";
constexpr char AUDIO_SKIN_AND_ACTIVE[] = "o.skin = o.@skin;  o.skinactive = o.@skinactive;";
constexpr char AUDIO_SKIN_ONLY[] = "o.skin = o.@skin;";

// Named actions.
constexpr char LITTLE_PLANET_INTRO[] = "function(pan,tilt,hfov){ this.viewer.setFisheyeDistortion(1.0); this.viewer.lock(); this.viewer.stopAutoPlay(); this.viewer.setView(pan,90,150);  this.viewer.panTo(pan||0,tilt||0,hfov||90,2.5,1.0,'easeInOutSine',true); this.tween({'time': 1.25, 'delay': 2.25, 'lp': 0.0, 'transition': 'easeInOutSine', 'onInit' : function(a,dstParams){ a.lp=a.viewer.fisheyeDistortion(); }, 'onUpdate': function(a){ a.viewer.setFisheyeDistortion(a.lp);}}); }";
constexpr char SHOW_MESSAGE[] = "function(a){ var id = this.viewer.currentMBId; if (!!id&&(a.id!=id)){this.viewer.action('hideMessage');} if (a.id!=id){ var s=this.viewer.get('globalData'); if (s&&s.messageBoxStyle){ a.style = s.messageBoxStyle; }this.viewer.currentMBId=null; if (!this.viewer.isVRModeEnabled()){ this.viewer.add('textbox',a); this.viewer.currentMBId=a.id; } } }";
constexpr char HIDE_MESSAGE[] = "function(){ if (this.viewer.currentMBId) this.viewer.remove(this.viewer.currentMBId); this.viewer.currentMBId=null; }";
constexpr char TOGGLE_MESSAGE[] = "function(a){ var id = this.viewer.currentMBId; if (a.id!=id){ this.viewer.action('showMessage',a); } else { this.viewer.action('hideMessage'); } }";

// clang-format on

} // namespace vantora::params
