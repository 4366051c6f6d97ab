// Where the tool finds the library it loads and the installation folder it hands to the library:
// relative to the tool itself, in an installed tree or in the build tree, never a fixed path.
#pragma once

#include <QString>

namespace vantora::cli {

struct ToolPaths
{
    QString library;       // the library file to load
    QString installFolder; // holds VantoraViewer/vantoViewer.js; ends in a separator
};

// The installed layout when its library sits beside `toolFolder` as installed, else the build
// tree's; the installed layout's names when neither holds a library, for the error to name.
ToolPaths findToolPaths(const QString &toolFolder);

} // namespace vantora::cli
