#include "jsonbridge.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QString>

namespace vantora::params {

int setJsonMember(VantoraJsonObject *object, const char *key, const char *jsonValue)
{
    if (!object || !key || !*key || !jsonValue)
        return 0;
    // The parser takes only whole documents, so the value is wrapped in an array. Insisting on
    // exactly one element keeps a text like "1],[2" from smuggling in a second value.
    QJsonParseError error {};
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray("[") + QByteArray(jsonValue) + QByteArray("]"), &error);
    if (error.error != QJsonParseError::NoError || !document.isArray())
        return 0;
    const QJsonArray wrapped = document.array();
    if (wrapped.size() != 1)
        return 0;
    object->object.insert(QString::fromUtf8(key), wrapped.first());
    return 1;
}

} // namespace vantora::params
