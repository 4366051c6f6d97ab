// The framing shared by the parameter, controls and gallery files, and the member writer.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

class QTextStream;

namespace vantora::params {

// How the root's members are laid out. The parameter file expands "node" member by member and
// writes "image" compact and last; the controls file lays out every member alike.
enum class Layout { ParameterFile, Plain };

// Lays out `keys` of `object`: top-level members on their own lines (nested = false), members of
// "node" behind one tab (nested = true); in the parameter-file layout "node" itself is expanded
// and "image" written compact.
void writeMembers(QTextStream &stream, const QStringList &keys, const QJsonObject &object,
    bool nested, Layout layout = Layout::ParameterFile);

// The root's keys in the order they are written: ascending, with "image" moved to the end.
QStringList rootKeyOrder(const QJsonObject &root);

// Writes "VantoraViewerParams = {\n\"vantoraViewer\": {\n", the members of `root` (in
// rootKeyOrder for the parameter-file layout, ascending for the plain one), then "}\n}", UTF-8,
// text mode, truncating; creates missing folders. False when the file cannot be written.
bool writeViewerParamsFile(
    const QString &path, const QJsonObject &root, Layout layout = Layout::ParameterFile);

} // namespace vantora::params
