// The few operating-system calls of the library, behind one neutral interface.
#pragma once

#include <QString>

namespace vantora::platform {

// Copies `from` to `to`, replacing an existing file. False when the copy failed; copying a file
// onto itself succeeds and leaves it alone.
bool copyFileReplacing(const QString &from, const QString &to);

// Removes the read-only attribute of `path` (a copy of a read-only original stays writable).
void clearReadOnly(const QString &path);

// Opens `path` with the system's default handler for its type, in a normal window.
void openWithDefaultHandler(const QString &path);

} // namespace vantora::platform
