// Windows twin of the platform layer: the kernel's and the shell's own calls.
#include "platform.h"

// windows.h first: shellapi.h builds on its types, so the two stay in separate blocks.
#include <windows.h>

#include <shellapi.h>

#include <vector>

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

QString profileString(
    const QString &path, const QString &section, const QString &key, const QString &defaultText)
{
    // The product's buffer of 65,536 wide characters.
    std::vector<wchar_t> buffer(65536);
    const DWORD length = GetPrivateProfileStringW(wide(section), wide(key), wide(defaultText),
        buffer.data(), DWORD(buffer.size()), wide(path));
    return QString::fromUtf16(reinterpret_cast<const char16_t *>(buffer.data()), int(length));
}

int profileInt(const QString &path, const QString &section, const QString &key, int defaultValue)
{
    return int(GetPrivateProfileIntW(wide(section), wide(key), defaultValue, wide(path)));
}

bool writeProfileString(
    const QString &path, const QString &section, const QString &key, const QString &value)
{
    return WritePrivateProfileStringW(wide(section), wide(key), wide(value), wide(path)) != 0;
}

} // namespace vantora::platform
