#include "paths.h"

namespace vantora::plugin {

QChar nativeSeparator()
{
#ifdef _WIN32
    return QLatin1Char('\\');
#else
    return QLatin1Char('/');
#endif
}

int lastSeparator(const QString &path)
{
    return qMax(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
}

QString fileNamePart(const QString &path)
{
    return path.mid(lastSeparator(path) + 1);
}

QString directoryPart(const QString &path)
{
    const int separator = lastSeparator(path);
    if (separator < 0)
        return QStringLiteral(".");
    if (separator == 0)
        return path.left(1);
    return path.left(separator);
}

QString toNativeSeparators(const QString &path)
{
    QString native = path;
    native.replace(QLatin1Char('/'), nativeSeparator());
    native.replace(QLatin1Char('\\'), nativeSeparator());
    return native;
}

QString withTrailingSeparator(const QString &folder)
{
    if (folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\')))
        return folder;
    return folder + nativeSeparator();
}

QString withoutExtension(const QString &path)
{
    const int dot = path.lastIndexOf(QLatin1Char('.'));
    return dot > lastSeparator(path) ? path.left(dot) : path;
}

} // namespace vantora::plugin
