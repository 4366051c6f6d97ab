// The two HTML page templates, printf formats reproduced character for character.
#pragma once

namespace vantora::plugin {

// clang-format off

// The viewer fills the browser window. Arguments: thumbnail path, title, parameter file name,
// viewer options (all UTF-8).
constexpr char FULL_WINDOW_PAGE[] = "<!DOCTYPE HTML>\n  \t   <html><head>\n\t    <meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\n\t\t<meta property=\"og:image\" content=\"%s\">\n\t\t<title>%s</title>\n\t\t</head>\n\t\t<body>\n\t\t\t \t<div align=\"center\" style=\"height: 100%%; overflow:hidden;\">\n\t\t\t\t<noscript><div style=\"color: red; width: 30%%; border: 1px solid red; padding: 4px; font-family: sans-serif;\">ERROR: Your web browser must have JavaScript enabled to show this panorama.</div></noscript>\n\t\t\t\t<div id=\"vantoViewerID\" style=\"position: absolute; left: 0px; top: 0px; width: 100%% ; height: 100%% ;\"></div>\n\t\t\t\t<script type=\"text/javascript\" src=\"vantoViewer.js\"></script>\n\t\t\t\t<script type=\"text/javascript\">vantoViewer.insert(\"vantoViewerID\",\"%s\",{%s});</script>\n\t\t\t</div>\n\t\t</body></html>\n";

// The viewer has a fixed size. Arguments: thumbnail path, title, page height, page width, page
// height, parameter file name, viewer options.
constexpr char FIXED_SIZE_PAGE[] = "<!DOCTYPE HTML>\n  \t\t   <html><head>\n\t\t    <meta http-equiv=\"content-type\" content=\"text/html; charset=UTF-8\">\n\t\t\t<meta property=\"og:image\" content=\"%s\">\n\t\t\t<title>%s</title>\n\t\t\t</head>\n\t\t\t<body>\n\t\t\t\t<div align=\"center\" style=\"height: %dpx;\">\n\t\t\t\t<noscript><div style=\"color: red; width: 30%%; border: 1px solid red; padding: 4px; font-family: sans-serif;\">ERROR: Your web browser must have JavaScript enabled to show this panorama.</div></noscript>\n\t\t\t\t<div id=\"vantoViewerID\" style=\"position: relative; margin: auto; padding: 0px; left: 0px; top: 0px; width: %dpx; height: %dpx;\"></div>\n\t\t\t\t<script type=\"text/javascript\" src=\"vantoViewer.js\"></script>\n\t\t\t\t<script type=\"text/javascript\">vantoViewer.insert(\"vantoViewerID\",\"%s\",{%s});</script>\n\t\t\t\t</div>\n\t\t\t</body></html>\n";

// The insert call's options when the viewer's own WebGL warning is not wanted.
constexpr char NO_WEBGL_WARNING_OPTION[] = "html5:\"disable_webgl_warning\"";

// clang-format on

} // namespace vantora::plugin
