#include "infobox.h"

#include "design.h"
#include "scripttexts.h"

namespace vantora::params {
namespace {

constexpr PerDesign<const char *> MESSAGE_BOX_STYLES = perDesign<const char *>({
    MESSAGE_BOX_STYLE_0,
    MESSAGE_BOX_STYLE_1,
    MESSAGE_BOX_STYLE_2,
    MESSAGE_BOX_STYLE_3,
    MESSAGE_BOX_STYLE_4,
    MESSAGE_BOX_STYLE_5,
    MESSAGE_BOX_STYLE_6,
    MESSAGE_BOX_STYLE_7,
});

// How a design wraps the message text. Designs with light text on dark ground get a text class
// of their own so that links stay readable; textClass 0 means the plain wrapper.
struct WrapperRow
{
    int textClass;
    const char *linkColour;
    const char *hoverColour;
};

// clang-format off
constexpr PerDesign<WrapperRow> WRAPPERS = perDesign<WrapperRow>({
    /* 0 */ {1, "#FDB815", "#EFF517"},
    /* 1 */ {0, nullptr,   nullptr},
    /* 2 */ {0, nullptr,   nullptr},
    /* 3 */ {0, nullptr,   nullptr},
    /* 4 */ {0, nullptr,   nullptr},
    /* 5 */ {6, "#FFF",    "#FFF"},
    /* 6 */ {7, "#FDB815", "#EFF517"},
    /* 7 */ {8, "#FDB815", "#EFF517"},
});
// clang-format on

// Not QString::arg(): the texts around carry '%' signs that arg() would take for its markers.
QString textPrefix(int design)
{
    const WrapperRow &row = WRAPPERS[design];
    if (row.textClass == 0)
        return QString::fromLatin1(MESSAGE_BOX_PREFIX_PLAIN);
    QString prefix = QString::fromLatin1(MESSAGE_BOX_PREFIX_CLASSED);
    prefix.replace(QLatin1String("@N@"), QString::number(row.textClass));
    prefix.replace(QLatin1String("@LINK@"), QLatin1String(row.linkColour));
    prefix.replace(QLatin1String("@HOVER@"), QLatin1String(row.hoverColour));
    return prefix;
}

} // namespace

QString messageBoxStyle(int design)
{
    if (!isDesign(design))
        return QString();
    return QString::fromLatin1(MESSAGE_BOX_STYLES[design]);
}

QJsonObject buildMessageBox(int design, const QString &text, const QString &id)
{
    QJsonObject box;
    box.insert(QStringLiteral("id"), id);
    box.insert(QStringLiteral("captureMouse"), true);
    box.insert(QStringLiteral("checkHover"), true);
    box.insert(QStringLiteral("align"), QStringLiteral("center"));
    box.insert(QStringLiteral("xoff"), 0);
    box.insert(QStringLiteral("yoff"), -30);
    box.insert(QStringLiteral("maxwidth"), QStringLiteral("66%"));
    box.insert(QStringLiteral("onclick"), QString::fromLatin1(MESSAGE_BOX_ONCLICK));
    if (!isDesign(design)) {
        box.insert(QStringLiteral("text"), QString());
        return box;
    }
    QString style = messageBoxStyle(design);
    // The box of design 0 has no border to lift it; without its own layer the panorama's WebGL
    // canvas can cover it.
    if (design == 0)
        style += QLatin1String(MESSAGE_BOX_DESIGN0_TRANSFORM);
    box.insert(QStringLiteral("style"), style);
    box.insert(
        QStringLiteral("text"), textPrefix(design) + text + QLatin1String(MESSAGE_BOX_SUFFIX));
    return box;
}

} // namespace vantora::params
