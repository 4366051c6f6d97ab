// Texts of the thumbnail gallery and map elements and of their actions, each exactly as the
// viewer receives it. The doubled and tripled blanks are part of them: never tidy them.
#pragma once

namespace vantora::params {

// clang-format off

constexpr char GALLERY_STYLE_VISIBLE[] = "opacity: 1; transition: opacity 0.5s";
constexpr char GALLERY_STYLE_HIDDEN[] = "opacity: 0; transition: opacity 0.5s";
constexpr char GALLERY_CONTENT_STYLE[] = "position: absolute; left: 4px; right: 4px; bottom: 4px; color:#ffffff; font-family: Arial, Helvetica, sans-serif; font-size: 11px; text-shadow: 0px 0px 2px #000, 0px 0px 2px #000; font-weight: normal; text-align:center; display: inline; overflow: hidden;";
constexpr char GALLERY_ONINIT[] = "function(){ var g = this.viewer.gallery(); if ((!!g) && g.length>1){ this.setVisible(true); } }";
constexpr char TOGGLE_GALLERY[] = "function(a){ var d=this.viewer.get('thumbnailGallery');if (d&&!d.collapsing){d.collapsing = !0;if (!d.visible){ d.viewer.action('hideMap'); d.setVisible(true); d.style = 'opacity: 1.0;'; d.updateStyles(); var o = d.viewer.get('map'); if (!!o&&o.align==d.align){ d.height = o.height; d.updateSize(); } d.tween({'time': 0.3, 'transition': 'easeInOutSine', 'height': 112, 'onUpdate': function(a){ a.updateSize(); },'onComplete': function(a){ a.collapsing = !1; a.height = 112; a.updateSize(); } });} else { d.style = 'opacity: 0.0;'; d.updateStyles(); d.tween({'time': 0.3, 'transition': 'easeInOutSine', 'height': 0, 'onUpdate': function(a){ a.updateSize(); },'onComplete': function(a){ a.collapsing = !1; a.height = 0; a.updateSize(); a.setVisible(false); } });}}}";
constexpr char HIDE_GALLERY[] = "function(a){ var d=this.viewer.get('thumbnailGallery');if (d&&d.visible&&!d.collapsing){ d.collapsing = !0; d.style = 'opacity: 0.0;'; d.updateStyles(); d.tween({'time': 0.3, 'transition': 'easeInOutSine', 'height': 0, 'onUpdate': function(a){ a.updateSize();  },'onComplete': function(a){ a.collapsing = !1; a.height = 0; a.updateSize(); a.setVisible(false); }});}}";

constexpr char MAP_ONINIT[] = "function(){ if (this.visible){ this.style = 'opacity: 1.0;'; this.updateStyles(); this.viewer.action('resizeMap'); } }";
constexpr char MAP_ONMARKERCLICK[] = "function(){ this.viewer.action('hideMap',0.3); }";
constexpr char MAP_MARKER[] = "{ url: 'pap_marker_redorange.png', scaledSize: new google.maps.Size(30,48), anchor: new google.maps.Point(15, 42) }";
constexpr char MAP_MARKER_ACTIVE[] = "{ url: 'pap_marker_lima.png', scaledSize: new google.maps.Size(30,48), anchor: new google.maps.Point(15, 42) }";
constexpr char MAP_RADAR_CONTEXT[] = "function(c){ c.lineWidth = 1; if (!this.fillStyle){ var w = c.canvas.width/2; this.fillStyle=c.createRadialGradient(w,w,0,w,w,w); this.fillStyle.addColorStop(0,'rgba(255,255,255,0.5)');this.fillStyle.addColorStop(1,'rgba(255,255,255,0.1)');} c.fillStyle = this.fillStyle; if (!this.strokeStyle){ var w = c.canvas.width/2; this.strokeStyle=c.createRadialGradient(w,w,0,w,w,w); this.strokeStyle.addColorStop(0,'#ccc');this.strokeStyle.addColorStop(1,'rgba(192,192,192,0.7)');} c.strokeStyle = this.strokeStyle;  }";
constexpr char TOGGLE_MAP[] = "function(a){ var d = this.viewer.get('map'); if (d&&!d.collapsing){ d.collapsing = !0;  if (!d.visible){   d.viewer.action('hideGallery'); d.setVisible(true); d.style = 'opacity: 1.0;'; d.updateStyles();   var o = d.viewer.get('thumbnailGallery');   if (!!o&&o.align == d.align){ d.height = o.height; d.updateSize(); }   var dh = Math.min(Math.max(this.viewer.height()*0.6, 96), this.viewer.height() - 96);   d.tween({ 'time': 0.3, 'transition' : 'easeInOutSine', 'height' : dh, 'onUpdate' : function(a){ a.updateSize(); }, 'onComplete' : function(a){ a.collapsing = !1; a.height = dh; a.updateSize(); a.center(); } }); } else { d.style = 'opacity: 0.0;'; d.updateStyles(); d.tween({ 'time': 0.3, 'transition' : 'easeInOutSine', 'height' : 0, 'onUpdate' : function(a){ a.updateSize(); }, 'onComplete' : function(a){ a.collapsing = !1; a.height = 0; a.updateSize(); a.setVisible(false); } }); }}}";
constexpr char HIDE_MAP[] = "function(delay){ var d=this.viewer.get('map'); if (d&&d.visible&&!d.collapsing){  d.collapsing = !0; d.updateStyles();  d.tween({'time': 0.5, 'delay': delay, 'transition': 'easeInOutSine', 'height': 0, 'onUpdate': function(a){ a.updateSize();  },'onComplete': function(a){ a.collapsing = !1; a.height = 0; a.updateSize(); a.setVisible(false); }});}}";
constexpr char RESIZE_MAP[] = "function(){ var map = this.get('map'); if (map && map.visible){  var h = Math.min(Math.max(this.viewer.height()*0.6, 96),this.viewer.height()-96);  map.height = h; map.updateSize();}}";

// clang-format on

} // namespace vantora::params
