// The framing shared by the parameter, controls and gallery files, and the member writer.
#pragma once

#include <QJsonObject>
#include <QString>
#include <QStringList>

class QTextStream;

namespace vantora::params {

// Lays out `keys` of `object`: top-level members on their own lines (nested = false), members of
// "node" behind one tab (nested = true); "node" itself is expanded, "image" written compact.
void writeMembers(
    QTextStream &stream, const QStringList &keys, const QJsonObject &object, bool nested);

// The root's keys in the order they are written: ascending, with "image" moved to the end.
QStringList rootKeyOrder(const QJsonObject &root);

// Writes "VantoraViewerParams = {\n\"vantoraViewer\": {\n", the members of `root`, then "}\n}",
// UTF-8, text mode, truncating; creates missing folders. False when the file cannot be opened.
bool writeViewerParamsFile(const QString &path, const QJsonObject &root);

} // namespace vantora::params
