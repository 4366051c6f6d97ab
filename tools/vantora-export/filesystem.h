// The tool's few file-system helpers that must never follow a link out of the output folder.
#pragma once

#include <QString>

namespace vantora::cli {

// Removes whatever `path` is: a link or a file (never what a link points to), or a folder with
// everything in it. True when nothing is left.
bool removePath(const QString &path);

// Whether `path` itself is a symbolic link.
bool isLink(const QString &path);

// Where a finished image-data folder waits for the library, which moves it into the place of
// `tilesFolder` together with the export's own files once the export has succeeded (and removes it
// when the export fails), so that old and new tiles never mix.
QString stagedTilesFolder(const QString &tilesFolder);

} // namespace vantora::cli
