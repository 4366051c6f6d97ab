#include "exportjob.h"

#include "paths.h"

namespace vantora::plugin {

OutputNames outputNames(const QString &baseName, bool extensionJs, std::uint32_t formatFlags)
{
    OutputNames names;
    if (extensionJs)
        names.extension = QStringLiteral(".js");
    else if (formatFlags == ExportJob::JsonpFormat)
        names.extension = QStringLiteral(".jsonp");
    else
        names.extension = QStringLiteral(".json");
    // The base name has lost one extension already; a dotted name ("my.tour") loses one more.
    const QString stem = withoutExtension(fileNamePart(baseName));
    names.page = stem + QStringLiteral(".html");
    names.paramsFile = stem + names.extension;
    names.controlsFile = stem + QStringLiteral("_controls") + names.extension;
    return names;
}

QString outputFolderOf(const QString &targetPath)
{
    const QString directory = directoryPart(targetPath);
    if (directory == QLatin1String("."))
        return QString();
    return withTrailingSeparator(toNativeSeparators(directory));
}

QString baseNameOf(const QString &targetPath)
{
    return withoutExtension(fileNamePart(targetPath));
}

} // namespace vantora::plugin
