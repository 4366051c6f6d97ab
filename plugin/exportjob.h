// The output names of an export, derived from its base name and settings.
#pragma once

#include "pluginstate.h"

#include <QString>

namespace vantora::plugin {

struct OutputNames
{
    QString extension;    // ".js", ".json" or ".jsonp"
    QString page;         // B.html
    QString paramsFile;   // B + extension
    QString controlsFile; // B + "_controls" + extension
};

// extensionJs: the ExtensionJS setting; formatFlags: the ExportJob's format flags.
OutputNames outputNames(const QString &baseName, bool extensionJs, std::uint32_t formatFlags);

// The output folder of a target path: its directory part with native separators and a trailing
// separator; empty for a bare file name.
QString outputFolderOf(const QString &targetPath);

// The base name of a target path: its file name with the extension removed.
QString baseNameOf(const QString &targetPath);

} // namespace vantora::plugin
