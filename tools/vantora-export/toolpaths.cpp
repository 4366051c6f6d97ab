#include "toolpaths.h"

#include <QDir>
#include <QFileInfo>

namespace vantora::cli {
namespace {

// Folders relative to the tool's own folder, set by the build for both layouts.
struct Layout
{
    const char *libraryFolder;
    const char *installFolder;
};

// clang-format off
constexpr Layout LAYOUTS[] = {
    {VANTORA_INSTALLED_LIBRARY_FOLDER, VANTORA_INSTALLED_VIEWER_FOLDER},
    {VANTORA_BUILD_LIBRARY_FOLDER,     VANTORA_BUILD_VIEWER_FOLDER},
};
// clang-format on

ToolPaths pathsOf(const QDir &tool, const Layout &layout)
{
    ToolPaths paths;
    paths.library = QDir::cleanPath(tool.filePath(QString::fromUtf8(layout.libraryFolder)
        + QLatin1Char('/') + QStringLiteral(VANTORA_LIBRARY_FILE)));
    paths.installFolder = QDir::cleanPath(tool.filePath(QString::fromUtf8(layout.installFolder)))
        + QLatin1Char('/');
    return paths;
}

} // namespace

ToolPaths findToolPaths(const QString &toolFolder)
{
    const QDir tool(toolFolder);
    for (const Layout &layout : LAYOUTS) {
        const ToolPaths paths = pathsOf(tool, layout);
        if (QFileInfo(paths.library).isFile())
            return paths;
    }
    return pathsOf(tool, LAYOUTS[0]);
}

} // namespace vantora::cli
