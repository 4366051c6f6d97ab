#include "resourceexporter.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace vantora::cli {

bool hasResource(const QString &resourcePath)
{
    return resourcePath.startsWith(QLatin1Char(':')) && QFileInfo(resourcePath).isFile();
}

bool exportResource(const QString &resourcePath, const QString &targetPath)
{
    QFile source(resourcePath);
    if (!hasResource(resourcePath) || !source.open(QIODevice::ReadOnly))
        return false;
    // Copied byte for byte, not re-encoded; the target never shows a half-written picture.
    QSaveFile target(targetPath);
    if (!target.open(QIODevice::WriteOnly))
        return false;
    target.write(source.readAll());
    return target.commit();
}

} // namespace vantora::cli
