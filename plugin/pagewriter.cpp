#include "pagewriter.h"

#include "outputstage.h"
#include "pagetemplates.h"
#include "paths.h"

#include <cstdio>

namespace vantora::plugin {
namespace {

template <typename... Args> QByteArray format(const char *pattern, Args... args)
{
    const int length = std::snprintf(nullptr, 0, pattern, args...);
    QByteArray text(length, Qt::Uninitialized);
    std::snprintf(text.data(), size_t(length) + 1, pattern, args...);
    return text;
}

} // namespace

QByteArray pageText(const PageInput &input)
{
    const QString base = withoutExtension(fileNamePart(input.nameForBase));
    // Relative to the page, so the folder moves with it.
    const QByteArray thumbnail = (base + QStringLiteral("_tiles") + nativeSeparator() + base
        + QStringLiteral("_thumb.jpg"))
                                     .toUtf8();
    const QByteArray title = input.title.toUtf8();
    const QByteArray params = input.paramsFile.toUtf8();
    const char *options = input.showWebGLWarning ? "" : NO_WEBGL_WARNING_OPTION;
    if (input.fitToPage)
        return format(FULL_WINDOW_PAGE, thumbnail.constData(), title.constData(),
            params.constData(), options);
    return format(FIXED_SIZE_PAGE, thumbnail.constData(), title.constData(), input.pageHeight,
        input.pageWidth, input.pageHeight, params.constData(), options);
}

bool writePage(const QString &pagePath, const PageInput &input)
{
    return stage::writeTextFile(pagePath, pageText(input));
}

} // namespace vantora::plugin
