#include "pagewriter.h"

#include "cformat.h"
#include "outputstage.h"
#include "pagetemplates.h"
#include "paths.h"

#include <algorithm>
#include <iterator>

namespace vantora::plugin {
namespace {

// What replaces each character of a file name that could end the page's inline script string
// or its script element.
constexpr struct
{
    char16_t character;
    const char *escape;
} SCRIPT_ESCAPES[] = {
    {u'\\', "\\\\"},
    {u'"', "\\\""},
    {u'<', "\\u003C"},
    {u'>', "\\u003E"},
    {u'\n', "\\n"},
    {u'\r', "\\r"},
    {u'\u2028', "\\u2028"},
    {u'\u2029', "\\u2029"},
};

// A file name inside a double-quoted string of the inline script. Ordinary names pass unchanged.
QString forScriptString(const QString &name)
{
    QString escaped;
    for (const QChar c : name) {
        const auto *end = std::end(SCRIPT_ESCAPES);
        const auto *rule = std::find_if(std::begin(SCRIPT_ESCAPES), end,
            [c](const auto &entry) { return entry.character == c.unicode(); });
        if (rule == end)
            escaped += c;
        else
            escaped += QLatin1String(rule->escape);
    }
    return escaped;
}

// A path inside a double-quoted attribute value. Ordinary names pass unchanged.
QString forAttribute(const QString &path)
{
    return path.toHtmlEscaped();
}

} // namespace

QByteArray pageText(const PageInput &input)
{
    const QString base = withoutExtension(fileNamePart(input.nameForBase));
    // Relative to the page, so the folder moves with it.
    const QByteArray thumbnail = forAttribute(
        base + QStringLiteral("_tiles") + nativeSeparator() + base + QStringLiteral("_thumb.jpg"))
                                     .toUtf8();
    const QByteArray title = input.title.toUtf8();
    const QByteArray params = forScriptString(input.paramsFile).toUtf8();
    const char *options = input.showWebGLWarning ? "" : NO_WEBGL_WARNING_OPTION;
    if (input.fitToPage)
        return cFormat(FULL_WINDOW_PAGE, thumbnail.constData(), title.constData(),
            params.constData(), options);
    return cFormat(FIXED_SIZE_PAGE, thumbnail.constData(), title.constData(), input.pageHeight,
        input.pageWidth, input.pageHeight, params.constData(), options);
}

bool writePage(const QString &pagePath, const PageInput &input)
{
    return stage::writeTextFile(pagePath, pageText(input));
}

} // namespace vantora::plugin
