// Typed access to the host's UTF-16 strings and buffers.
#pragma once

#include <QString>

namespace vantora::plugin {

// A host string as QString; a null pointer reads as the empty string.
inline QString fromHost(const char16_t *text)
{
    return text ? QString::fromUtf16(text) : QString();
}

// Plain terminated copy into a host buffer: the host guarantees room for a full path. A null
// buffer is skipped.
inline void copyToHost(char16_t *buffer, const QString &text)
{
    if (!buffer)
        return;
    const ushort *source = text.utf16();
    for (int i = 0; i < text.size(); ++i)
        buffer[i] = char16_t(source[i]);
    buffer[text.size()] = u'\0';
}

} // namespace vantora::plugin
