// Windows twin of the platform layer: the kernel's and the shell's own calls.
#include "platform.h"

// windows.h first: shellapi.h builds on its types, so the two stay in separate blocks.
#include <windows.h>

#include <shellapi.h>

namespace vantora::platform {
namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

} // namespace

bool copyFileReplacing(const QString &from, const QString &to)
{
    return CopyFileW(wide(from), wide(to), FALSE) != 0;
}

void clearReadOnly(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(wide(path));
    if (attributes != INVALID_FILE_ATTRIBUTES)
        SetFileAttributesW(wide(path), attributes & ~DWORD(FILE_ATTRIBUTE_READONLY));
}

void openWithDefaultHandler(const QString &path)
{
    ShellExecuteW(nullptr, L"open", wide(path), nullptr, nullptr, SW_SHOWNORMAL);
}

} // namespace vantora::platform
