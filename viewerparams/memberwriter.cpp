#include "memberwriter.h"

#include "plugin/outputstage.h"
#include "plugin/paths.h"

#include <QDir>
#include <QJsonDocument>
#include <QTextStream>

namespace vantora::params {
namespace {

const QString NODE_KEY = QStringLiteral("node");
const QString IMAGE_KEY = QStringLiteral("image");

// One member as the serialiser writes it inside a one-member object, without the braces.
QString memberText(const QString &key, const QJsonValue &value, bool compact)
{
    QJsonObject single;
    single.insert(key, value);
    const QJsonDocument::JsonFormat format
        = compact ? QJsonDocument::Compact : QJsonDocument::Indented;
    const QString text = QString::fromUtf8(QJsonDocument(single).toJson(format));
    const int open = text.indexOf(QLatin1Char('{'));
    const int close = text.lastIndexOf(QLatin1Char('}'));
    const int from = open < 0 ? 0 : open + 1;
    const int to = close < from ? text.size() : close;
    return text.mid(from, to - from).trimmed();
}

} // namespace

void writeMembers(QTextStream &stream, const QStringList &keys, const QJsonObject &object,
    bool nested, Layout layout)
{
    const bool parameterFile = layout == Layout::ParameterFile;
    for (int i = 0; i < keys.size(); ++i) {
        const QString &key = keys.at(i);
        const bool last = i == keys.size() - 1;
        if (parameterFile && key == NODE_KEY) {
            const QJsonObject node = object.value(key).toObject();
            stream << "\"node\": {\n";
            writeMembers(stream, node.keys(), node, true);
            stream << (last ? "}\n" : "},\n");
            continue;
        }
        // "image" describes every tile level; on one line it keeps the file readable.
        QString text = memberText(key, object.value(key), parameterFile && key == IMAGE_KEY);
        if (nested) {
            text.replace(QLatin1Char('\n'), QLatin1String("\n\t"));
            text.prepend(QLatin1Char('\t'));
        }
        stream << text << (last ? "\n" : ",\n");
    }
}

QStringList rootKeyOrder(const QJsonObject &root)
{
    QStringList keys = root.keys();
    if (keys.removeOne(IMAGE_KEY))
        keys.append(IMAGE_KEY);
    return keys;
}

bool writeViewerParamsFile(const QString &path, const QJsonObject &root, Layout layout)
{
    const QString folder = plugin::directoryPart(plugin::toNativeSeparators(path));
    QDir().mkpath(folder);
    QByteArray text;
    {
        QTextStream stream(&text, QIODevice::WriteOnly);
        stream.setCodec("UTF-8");
        stream << "VantoraViewerParams = {\n\"vantoraViewer\": {\n";
        const QStringList keys = layout == Layout::ParameterFile ? rootKeyOrder(root) : root.keys();
        writeMembers(stream, keys, root, false, layout);
        stream << "}\n}";
    }
    return plugin::stage::writeTextFile(plugin::toNativeSeparators(path), text);
}

} // namespace vantora::params
