#include "scriptcheck.h"

#include "textcompare.h"

#include <QJsonDocument>
#include <QProcess>

namespace vantora::test {

bool ScriptCheck::counted(int files, int functions) const
{
    QByteArray summary = QByteArray::number(files) + " files, ";
    if (functions >= 0)
        summary += QByteArray::number(functions) + " functions";
    return output.contains(summary);
}

ScriptCheck checkScripts(const QStringList &files)
{
    ScriptCheck check;
    QProcess node;
    node.setProcessChannelMode(QProcess::MergedChannels);
    node.start(QStringLiteral(VANTORA_NODE), QStringList {QStringLiteral(VANTORA_CHECKJS)} + files);
    if (!node.waitForFinished(60000)) {
        check.output = node.errorString().toUtf8();
        return check;
    }
    check.output = node.readAll();
    check.passed = node.exitStatus() == QProcess::NormalExit && node.exitCode() == 0;
    return check;
}

QJsonObject viewerRoot(const QString &path)
{
    const QByteArray bytes = readFileBytes(path), prefix = "VantoraViewerParams = ";
    const QJsonObject document = QJsonDocument::fromJson(bytes.mid(prefix.size())).object();
    if (!bytes.startsWith(prefix) || document.size() != 1)
        return QJsonObject();
    return document.value(QStringLiteral("vantoraViewer")).toObject();
}

} // namespace vantora::test
