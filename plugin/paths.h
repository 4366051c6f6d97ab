// Path texts as the host hands them: either separator accepted, the native one written.
#pragma once

#include <QString>

namespace vantora::plugin {

// The separator written into every path we build: a backslash on Windows, a slash elsewhere.
QChar nativeSeparator();

// Index of the last '/' or '\', -1 when there is none.
int lastSeparator(const QString &path);

// What follows the last separator (the whole text when there is none).
QString fileNamePart(const QString &path);

// What precedes the last separator; "." for a bare file name, the separator itself for a file in
// the root.
QString directoryPart(const QString &path);

// Every separator turned into the native one.
QString toNativeSeparators(const QString &path);

// The folder with a native separator appended when it does not end in a separator.
QString withTrailingSeparator(const QString &folder);

// Cut at the last '.' that lies after the last separator; unchanged when there is none.
QString withoutExtension(const QString &path);

} // namespace vantora::plugin
