#include "pagewriter.h"

#include "cformat.h"
#include "outputstage.h"
#include "pagetemplates.h"
#include "paths.h"

namespace vantora::plugin {
namespace {

// A file name inside a double-quoted string of the page's inline script: nothing in it may end
// the string or the script element. Ordinary names pass unchanged.
QString forScriptString(const QString &name)
{
    QString escaped;
    for (const QChar c : name) {
        switch (c.unicode()) {
        case '\\':
            escaped += QLatin1String("\\\\");
            break;
        case '"':
            escaped += QLatin1String("\\\"");
            break;
        case '<':
            escaped += QLatin1String("\\u003C");
            break;
        case '>':
            escaped += QLatin1String("\\u003E");
            break;
        case '\n':
            escaped += QLatin1String("\\n");
            break;
        case '\r':
            escaped += QLatin1String("\\r");
            break;
        case 0x2028:
            escaped += QLatin1String("\\u2028");
            break;
        case 0x2029:
            escaped += QLatin1String("\\u2029");
            break;
        default:
            escaped += c;
        }
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
