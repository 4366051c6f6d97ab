// The orientation element's fixed texts: handlers, canvas function and frame styles.
#pragma once

namespace vantora::params {

// clang-format off

// Shown only where the panorama's orientation is known: the host puts the pan angle of north
// into the node's location as "north".
constexpr char ORIENTATION_VISIBILITY[] = "function(){ var l = this.viewer.location(); this.setVisible(!!l&&typeof l.north=='number'); }";
constexpr char ORIENTATION_ONCLICK[] = "function(){ this.viewer.action('turnToNorth'); }";
constexpr char TURN_TO_NORTH[] = "function(){ var l = this.viewer.location(); if (!!l&&typeof l.north=='number'){ var v = this.viewer.getView(); this.viewer.panTo(l.north,v.tilt,v.hfov,1.0,0,'easeInOutSine',true); } }";

// How the radar fills and strokes its field-of-view sector, set up once per element.
constexpr char RADAR_CONTEXT[] = "function(c){ c.lineWidth = 1; if (!this.fillStyle){ var w = c.canvas.width/2; this.fillStyle=c.createRadialGradient(w,w,0,w,w,w); this.fillStyle.addColorStop(0,'rgba(255,255,255,0.6)');this.fillStyle.addColorStop(1,'rgba(255,255,255,0.15)');} c.fillStyle = this.fillStyle; c.strokeStyle = 'rgba(255,255,255,0.8)'; }";

// Frames of the free-standing element, matching the toolbar buttons of each design.
constexpr char FRAME_0[] = "border-radius: 50%; background-color: rgba(0,0,0,0.5);";
constexpr char FRAME_1[] = "border-radius: 50%; background-color: rgba(0,0,0,0.0);";
constexpr char FRAME_2[] = "border-radius: 50%; border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); background: linear-gradient(#f4f0f2, #b0aa9b);";
constexpr char FRAME_3[] = "border-radius: 50%; border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 0px 2px 4px 0px rgba(0,0,0,0.4); background: linear-gradient(#f4f0f2, #b0aa9b);";
constexpr char FRAME_4[] = "border-radius: 50%; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.0);";
constexpr char FRAME_5[] = "border-radius: 50%; border: rgba(70,70,70,0.6) solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); background: linear-gradient(#575c65, #102129);";
constexpr char FRAME_6[] = "border-radius: 50%; box-shadow: #05306B 2px 2px 1px 0px; background-color: #0F4FA8;";
constexpr char FRAME_7[] = "border-radius: 50%; border: white solid 1px; box-shadow: 0px 0px 8px 6px rgba(255,255,255,0.5); background: rgba(0,0,0,0.66);";
constexpr char FRAME_COMPACT[] = "background: none;";
constexpr char FRAME_CLICKABLE[] = " cursor: pointer;";

// clang-format on

} // namespace vantora::params
