// Numbers written as the C library's printf writes them.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdio>

namespace vantora::plugin {

// `pattern` filled by the C library's snprintf: QString::asprintf drops the sign of a negative
// zero ("0.0000" where printf writes "-0.0000"), and the viewer's files must hold printf's text.
template <typename... Args> QByteArray cFormat(const char *pattern, Args... args)
{
    const int length = std::snprintf(nullptr, 0, pattern, args...);
    if (length <= 0)
        return QByteArray();
    QByteArray text(length, Qt::Uninitialized);
    std::snprintf(text.data(), size_t(length) + 1, pattern, args...);
    return text;
}

// The same as text.
template <typename... Args> QString cFormatText(const char *pattern, Args... args)
{
    return QString::fromUtf8(cFormat(pattern, args...));
}

} // namespace vantora::plugin
