// Members whose texts come from a per-design table.
#pragma once

#include <QJsonObject>

namespace vantora::params {

// Inserts `text` under `key`; a null entry in a design table means that design writes no such
// member at all, which is not the same as writing an empty text.
inline void insertText(QJsonObject &object, const char *key, const char *text)
{
    if (text)
        object.insert(QLatin1String(key), QLatin1String(text));
}

} // namespace vantora::params
