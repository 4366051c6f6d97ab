#include "navbuttons.h"

#include "navtexts.h"
#include "skinrule.h"
#include "toolbardesigns.h"
#include "toolbartexts.h"
#include "viewerparams/tabletext.h"

#include <iterator>

namespace vantora::controls {
namespace {

constexpr Tile PREVIOUS_TILE {192, 384};
constexpr Tile NEXT_TILE {128, 384};

// The edge buttons' look by design; nullptr: member not written. Design 1 takes its skins from
// the family rule and the toolbar's button styles, design 4 the round border.
struct EdgeRow
{
    const char *skin, *skinHover, *skinActive;
    const char *style, *styleHover, *styleActive;
};

// clang-format off
constexpr EdgeRow EDGE_DESIGNS[] = {
    /* 0 */ {FREE_SKIN,  FREE_HALO_HOVER, FREE_HALO_ACTIVE,         nullptr, nullptr, nullptr},
    /* 1 */ {nullptr,    nullptr,         nullptr,                  TOOLBAR_DESIGNS[1].buttonStyle, TOOLBAR_DESIGNS[1].buttonStyleHover, TOOLBAR_DESIGNS[1].buttonStyleActive},
    /* 2 */ {FREE_SKIN,  FREE_HALO_HOVER, FREE_HALO_ACTIVE_DEEPER,  nullptr, nullptr, nullptr},
    /* 3 */ {FREE_SKIN,  FREE_HALO_HOVER, FREE_HALO_ACTIVE_DEEPER,  nullptr, nullptr, nullptr},
    /* 4 */ {ROUND_SKIN, nullptr,         ROUND_SKIN_ACTIVE,        ROUND_STYLE, ROUND_STYLE_HOVER, ROUND_STYLE_ACTIVE},
    /* 5 */ {FREE_SKIN,  FREE_HALO_HOVER, FREE_HALO_ACTIVE_DEEPER,  nullptr, nullptr, nullptr},
    /* 6 */ {FREE_SKIN,  FREE_HALO_HOVER, FREE_HALO_ACTIVE_DEEPER,  nullptr, nullptr, nullptr},
    /* 7 */ {FREE_SKIN,  FREE_HALO_HOVER, FREE_HALO_ACTIVE,         nullptr, nullptr, nullptr},
};
// clang-format on
static_assert(std::size(EDGE_DESIGNS) == 8, "one row per toolbar design");

void insertSkin(QJsonObject &object, const char *key, const char *pattern, Tile tile)
{
    if (pattern)
        object.insert(QLatin1String(key), withTile(pattern, tile));
}

QJsonObject edgeButton(int design, bool next, bool toolbarShown)
{
    const Tile tile = next ? NEXT_TILE : PREVIOUS_TILE;
    QJsonObject button;
    button.insert(QStringLiteral("id"),
        next ? QStringLiteral("galleryBtnNext") : QStringLiteral("galleryBtnPrev"));
    button.insert(QStringLiteral("align"), next ? QStringLiteral("right") : QStringLiteral("left"));
    // Design 0 folds them away instead of parking them beyond the edges.
    button.insert(QStringLiteral("xoff"), toolbarShown || design == 0 ? 8 : -40);
    button.insert(QStringLiteral("yoff"), -24);
    button.insert(QStringLiteral("width"), 28);
    button.insert(QStringLiteral("height"), 28);
    button.insert(QStringLiteral("visible"), false);
    params::insertText(button, "onclick", next ? GALLERY_NEXT_ONCLICK : GALLERY_PREVIOUS_ONCLICK);
    if (design < 0 || design >= int(std::size(EDGE_DESIGNS))) {
        params::insertText(button, "oninit", EDGE_ONINIT);
        return button;
    }

    const EdgeRow &row = EDGE_DESIGNS[design];
    if (design == 1)
        writeFamilySkins(button, design, tile);
    insertSkin(button, "skin", row.skin, tile);
    insertSkin(button, "skinhover", row.skinHover, tile);
    insertSkin(button, "skinactive", row.skinActive, tile);
    params::insertText(button, "style", row.style);
    params::insertText(button, "stylehover", row.styleHover);
    params::insertText(button, "styleactive", row.styleActive);
    if (design == 0) {
        params::insertText(
            button, "oninit", toolbarShown ? EDGE_FOLD_ONINIT_SHOWN : EDGE_FOLD_ONINIT_HIDDEN);
        const char *style = next
            ? (toolbarShown ? EDGE_FOLD_STYLE_NEXT_SHOWN : EDGE_FOLD_STYLE_NEXT_HIDDEN)
            : (toolbarShown ? EDGE_FOLD_STYLE_PREVIOUS_SHOWN : EDGE_FOLD_STYLE_PREVIOUS_HIDDEN);
        params::insertText(button, "style", style);
    } else {
        params::insertText(button, "oninit", EDGE_ONINIT);
    }
    return button;
}

} // namespace

void appendEdgeButtons(QJsonArray &buttons, int design, bool toolbarShown)
{
    buttons.append(edgeButton(design, false, toolbarShown));
    buttons.append(edgeButton(design, true, toolbarShown));
}

void writeToolbarGalleryButton(QJsonObject &button, int design, bool right, int index)
{
    button.insert(QStringLiteral("id"),
        right ? QStringLiteral("navRightButton") : QStringLiteral("navLeftButton"));
    button.insert(
        QStringLiteral("align"), right ? QStringLiteral("right") : QStringLiteral("left"));
    button.insert(QStringLiteral("xoff"), 8);
    button.insert(QStringLiteral("yoff"), 0);
    button.insert(QStringLiteral("index"), index);
    button.insert(QStringLiteral("priority"), 2);
    button.insert(QStringLiteral("visible"), false);
    params::insertText(button, "onclick", right ? GALLERY_NEXT_ONCLICK : GALLERY_PREVIOUS_ONCLICK);
    params::insertText(button, "oninit", TOOLBAR_NAV_ONINIT);
    writeFamilySkins(button, design, right ? NEXT_TILE : PREVIOUS_TILE, DoubledDesign4Skin);
}

} // namespace vantora::controls
