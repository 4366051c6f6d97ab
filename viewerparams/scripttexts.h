// The fixed style and script texts of the parameter file, each exactly as the viewer receives it.
// Blanks at either end and missing final ';' are part of the texts: never trim or tidy them.
#pragma once

namespace vantora::params {

// clang-format off

// "messageBoxStyle" of the global data object, one per toolbar design.
constexpr char MESSAGE_BOX_STYLE_0[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#ffffff; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; box-shadow: 4px 4px 1px 0px rgba(0,0,0,0.33);background: rgba(0,0,0,0.66);";
constexpr char MESSAGE_BOX_STYLE_1[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#000; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 400; text-align:left; border-radius: 3px; border: rgba(0,0,0,0.66) solid 1px; box-shadow: 2px 2px 3px 0px rgba(0,0,0,0.66);background: rgba(255,255,255,0.75);";
constexpr char MESSAGE_BOX_STYLE_2[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#444; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(#f4f0f2, #b0aa9b);";
constexpr char MESSAGE_BOX_STYLE_3[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#444; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; border: #666 solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient(#c0baab,#f4f0f2);";
constexpr char MESSAGE_BOX_STYLE_4[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#000; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; border-radius: 3px; border: white solid 2px; box-shadow: 0px 0px 1px 1px rgba(0,0,0,1), inset 0px 0px 1px 1px rgba(0,0,0,1); background-color: rgba(255,255,255,0.6);";
constexpr char MESSAGE_BOX_STYLE_5[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#fff; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; border: rgba(70,70,70,0.6) solid 1px; box-shadow: inset 0 2px 3px rgba(255,255,255,0.4), 2px 4px 8px 0px rgba(0,0,0,0.8); border-radius: 5px; background: linear-gradient( #575c65 0%,#575c65 21%,#404c4e 31%,#0e222b 63%,#102129 100%);";
constexpr char MESSAGE_BOX_STYLE_6[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#000; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; box-shadow: #05306B 2px 2px 1px 0px; background-color: #0F4FA8;";
constexpr char MESSAGE_BOX_STYLE_7[] = "min-width: 25%; text-shadow: none; line-height: 100%; color:#ffffff; font-family: Arial,Helvetica,Sans-Serif; font-size: 15px; font-weight: 100; text-align:left; border-radius: 10px; border: white solid 1px; box-shadow: 0px 0px 8px 6px rgba(255,255,255,0.5);background: rgba(0,0,0,0.66);";

// The info box of design 0 also needs its own layer in front of the panorama.
constexpr char MESSAGE_BOX_DESIGN0_TRANSFORM[] = " transform-origin : 0% 0% 0px; transform: translate(0px, 0px) translateZ(10000px);";

// Message-box text wrappers. @N@ is the text class number, @LINK@ and @HOVER@ the link colours.
constexpr char MESSAGE_BOX_PREFIX_PLAIN[] = "<div style='padding: 16px;'>";
constexpr char MESSAGE_BOX_PREFIX_CLASSED[] = "<div style='padding: 16px;' class='vantoViewerText@N@'><style>div.vantoViewerText@N@ a, a:visited {color: @LINK@;} div.vantoViewerText@N@ a:hover, a:active {color: @HOVER@;}</style>";
constexpr char MESSAGE_BOX_SUFFIX[] = "</div>";
constexpr char MESSAGE_BOX_ONCLICK[] = "function(){ this.viewer.action('hideMessage'); } ";

// Hotspots.
constexpr char HOTSPOT_INFO_ONCLICK[] = "function(){ this.viewer.action('toggleMessage',this.hsinfo); }";
constexpr char HOTSPOT_TOOLTIP_STYLE[] = "color:#ffffff; font-family: Arial, Helvetica, sans-serif; font-size: 12px; font-weight: normal; text-align:center; display: inline;";

// Title of the panorama: a printf format taking the text colour once and the shadow colour three times.
constexpr char TITLE_STYLE_FORMAT[] = " color:#%06x; font-family: Arial,Helvetica,sans-serif; text-shadow: 0px 0px 3.8px #%06x, 0px 0px 2.5px #%06x, 0px 0px 1.7px #%06x; font-size: 12px; font-weight: bold; text-align:center;";

// Logo.
constexpr char LOGO_STYLE[] = "max-width: 80%;";

// clang-format on

} // namespace vantora::params
