#include "hidebuttons.h"

#include "skinrule.h"
#include "toolbartexts.h"
#include "viewerparams/design.h"
#include "viewerparams/tabletext.h"

namespace vantora::controls {
namespace {

constexpr Tile HIDE_TILE {0, 192};

// The hide button follows the family rule but keeps design 7's own hover and pressed faces.
constexpr unsigned HIDE_QUIRKS
    = DoubledDesign4Skin | Design7HoverWithoutSemicolon | Design7PressedDeeper;

// clang-format off
// How each sliding design moves the toolbar out (hide) and back (show). Designs 3 and 4 do not
// return to their initial offsets; the viewer's users have known them that way.
constexpr params::PerDesign<const char *> SLIDE_HIDE = params::perDesign<const char *>({
    nullptr, SLIDE_HIDE_TO_52, SLIDE_HIDE_TO_70_DESIGN_2, SLIDE_HIDE_TO_70,
    SLIDE_HIDE_TO_70_DESIGN_4, SLIDE_HIDE_TO_70, SLIDE_HIDE_TO_70, SLIDE_HIDE_TO_70,
});
constexpr params::PerDesign<const char *> SLIDE_SHOW_START = params::perDesign<const char *>({
    nullptr, SLIDE_SHOW_DESIGN_1, SLIDE_SHOW, SLIDE_SHOW,
    SLIDE_SHOW_DESIGN_4, SLIDE_SHOW, SLIDE_SHOW, SLIDE_SHOW_DESIGN_7,
});

// The show button by design; nullptr: member not written. "yoff" parked applies while the
// toolbar is shown, "yoff" ready while it is hidden.
struct ShowRow
{
    int xoff, width, height, yoffParked, yoffReady;
    const char *skin, *skinHover, *skinActive;
    const char *style, *styleHover, *styleActive;
};
constexpr char HALO_SKIN[] = "shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,0,24,24)";
constexpr char HALO_HOVER[] = "dim(-4px,-4px,32px,32px,32,32);comp(0.35);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)";
constexpr char HALO_ACTIVE[] = "dim(-4px,-4px,32px,32px,32,32);comp(0.6);copy(defaultSkin,0,128,64,64,0,0,30,30);shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,4,4,24,24)";
constexpr params::PerDesign<ShowRow> SHOW_BUTTON = params::perDesign<ShowRow>({
    /* 0 */ {0, 24, 24, 0, 0,
             "shadow(4,0,0,rgba(0,0,0,1));shadow(3,0,0,rgba(0,0,0,1));comp(1.0);copy(defaultSkin,128,192,64,64,0,0,24,24)", nullptr, nullptr,
             nullptr, " background-color:rgba(255, 255, 255, 0.15); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.15); ", " background-color:rgba(255, 255, 255, 0.25); box-shadow: 0px 0px 9px 8px rgba(255, 255, 255, 0.25); "},
    /* 1 */ {0, 28, 24, -30, 0,
             "shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24);shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,0,24,24)", nullptr, "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,1,1,24,24)",
             nullptr, nullptr, nullptr},
    /* 2 */ {0, 24, 24, -30, 0, HALO_SKIN, HALO_HOVER, HALO_ACTIVE, nullptr, nullptr, nullptr},
    /* 3 */ {0, 24, 24, -30, 0, HALO_SKIN, HALO_HOVER, HALO_ACTIVE, nullptr, nullptr, nullptr},
    /* 4 */ {8, 28, 28, -34, 4,
             "shadow(3,0,0,rgba(0,0,0,1));comp(1);copy(defaultSkin,128,192,64,64,0,4,24,24)", nullptr, "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,128,192,64,64,0,4,24,24)",
             ROUND_STYLE, ROUND_STYLE_HOVER, ROUND_STYLE_ACTIVE},
    /* 5 */ {0, 24, 24, -30, 0, HALO_SKIN, HALO_HOVER, HALO_ACTIVE, nullptr, nullptr, nullptr},
    /* 6 */ {0, 24, 24, -30, 0, HALO_SKIN, HALO_HOVER, HALO_ACTIVE, nullptr, nullptr, nullptr},
    /* 7 */ {0, 24, 24, -30, 0, HALO_SKIN, HALO_HOVER, HALO_ACTIVE, nullptr, nullptr, nullptr},
});
// clang-format on

bool knownDesign(int design)
{
    return params::isDesign(design);
}

QString foldHideHandler(const HideShowContext &context)
{
    QString text = QLatin1String(FOLD_HIDE_HEAD) + QLatin1String(FOLD_HIDE_TOOLBAR);
    if (context.gallery)
        text += QLatin1String(FOLD_HIDE_PREV) + QLatin1String(FOLD_HIDE_NEXT);
    return text + QLatin1String(CLOSE);
}

QString slideHideHandler(int design, const HideShowContext &context)
{
    QString text = QLatin1String(SLIDE_HIDE_HEAD);
    if (context.gallery)
        text += QLatin1String(SLIDE_HIDE_GALLERY);
    if (context.map)
        text += QLatin1String(SLIDE_HIDE_MAP);
    text += QLatin1String(SLIDE_HIDE[design]);
    if (context.gallery)
        text += QLatin1String(SLIDE_HIDE_EDGE_BUTTONS);
    return text + QLatin1String(CLOSE);
}

QString showHandler(int design, const HideShowContext &context)
{
    if (design == 0) {
        QString text = QLatin1String(FOLD_SHOW_HEAD);
        if (context.gallery)
            text += QLatin1String(FOLD_SHOW_PREV) + QLatin1String(FOLD_SHOW_NEXT);
        return text + QLatin1String(CLOSE);
    }
    QString text = QLatin1String(SLIDE_SHOW_START[design]);
    if (context.gallery)
        text += QLatin1String(SLIDE_SHOW_EDGE_BUTTONS);
    return text + QLatin1String(CLOSE);
}

} // namespace

HideShowContext hideShowContext(const settings::ViewerSettings &settings)
{
    return {settings.ShowToolbar, settings.AddGallery, settings.AddMap};
}

void writeHideTbButton(QJsonObject &button, int design, const HideShowContext &context)
{
    button.insert(QStringLiteral("id"), QStringLiteral("hideTbButton"));
    button.insert(QStringLiteral("align"), QStringLiteral("left"));
    button.insert(QStringLiteral("index"), 1);
    button.insert(QStringLiteral("priority"), 3);
    button.insert(QStringLiteral("xoff"), 8);
    button.insert(QStringLiteral("yoff"), 0);
    if (!knownDesign(design))
        return;
    writeFamilySkins(button, design, HIDE_TILE, HIDE_QUIRKS);
    if (design == 0) {
        button.insert(QStringLiteral("oninit"),
            QLatin1String(context.toolbarShown ? FOLD_ONINIT_SHOWN : FOLD_ONINIT_HIDDEN));
        button.insert(QStringLiteral("onclick"), foldHideHandler(context));
    } else {
        button.insert(QStringLiteral("onclick"), slideHideHandler(design, context));
    }
}

void appendShowTbButton(QJsonArray &buttons, int design, const HideShowContext &context)
{
    QJsonObject button;
    button.insert(QStringLiteral("id"), QStringLiteral("showTbButton"));
    button.insert(QStringLiteral("align"), QStringLiteral("leftbottom"));
    button.insert(QStringLiteral("xoff"), 0);
    button.insert(QStringLiteral("width"), 24);
    button.insert(QStringLiteral("height"), 24);
    button.insert(QStringLiteral("yoff"), context.toolbarShown ? -30 : 0);
    if (knownDesign(design)) {
        const ShowRow &row = SHOW_BUTTON[design];
        button.insert(QStringLiteral("xoff"), row.xoff);
        button.insert(QStringLiteral("width"), row.width);
        button.insert(QStringLiteral("height"), row.height);
        button.insert(
            QStringLiteral("yoff"), context.toolbarShown ? row.yoffParked : row.yoffReady);
        params::insertText(button, "skin", row.skin);
        params::insertText(button, "skinhover", row.skinHover);
        params::insertText(button, "skinactive", row.skinActive);
        params::insertText(button, "style", row.style);
        params::insertText(button, "stylehover", row.styleHover);
        params::insertText(button, "styleactive", row.styleActive);
        if (design == 0) {
            params::insertText(button, "oninit",
                context.toolbarShown ? FOLD_SHOW_ONINIT_PARKED : FOLD_SHOW_ONINIT_READY);
            params::insertText(button, "style",
                context.toolbarShown ? FOLD_SHOW_STYLE_PARKED : FOLD_SHOW_STYLE_READY);
        }
        button.insert(QStringLiteral("onclick"), showHandler(design, context));
    }
    buttons.append(button);
}

} // namespace vantora::controls
