#include "navbuttons.h"

#include "navtexts.h"
#include "skinrule.h"
#include "toolbardesigns.h"
#include "toolbartexts.h"
#include "viewerparams/design.h"
#include "viewerparams/tabletext.h"

namespace vantora::controls {
namespace {

constexpr Tile PREVIOUS_TILE {192, 384};
constexpr Tile NEXT_TILE {128, 384};

// How an edge button's skins are made: by the family rule of its design, as a free-standing
// button (pressed in as deep as design 7's buttons, or not), or inside design 4's round border.
enum class EdgeFace { Family, Free, FreeDeeper, Round };

// The edge buttons' look by design; nullptr: member not written. Design 1 takes the toolbar's
// button styles.
struct EdgeRow
{
    EdgeFace face;
    const char *style, *styleHover, *styleActive;
};

// clang-format off
constexpr params::PerDesign<EdgeRow> EDGE_DESIGNS = params::perDesign<EdgeRow>({
    /* 0 */ {EdgeFace::Free,       nullptr, nullptr, nullptr},
    /* 1 */ {EdgeFace::Family,     TOOLBAR_DESIGNS[1].buttonStyle, TOOLBAR_DESIGNS[1].buttonStyleHover, TOOLBAR_DESIGNS[1].buttonStyleActive},
    /* 2 */ {EdgeFace::FreeDeeper, nullptr, nullptr, nullptr},
    /* 3 */ {EdgeFace::FreeDeeper, nullptr, nullptr, nullptr},
    /* 4 */ {EdgeFace::Round,      ROUND_STYLE, ROUND_STYLE_HOVER, ROUND_STYLE_ACTIVE},
    /* 5 */ {EdgeFace::FreeDeeper, nullptr, nullptr, nullptr},
    /* 6 */ {EdgeFace::FreeDeeper, nullptr, nullptr, nullptr},
    /* 7 */ {EdgeFace::Free,       nullptr, nullptr, nullptr},
});
// clang-format on

void writeEdgeSkins(QJsonObject &button, int design, EdgeFace face, Tile tile)
{
    switch (face) {
    case EdgeFace::Family:
        writeFamilySkins(button, design, tile);
        break;
    case EdgeFace::Free:
    case EdgeFace::FreeDeeper:
        writeFreeSkins(button, tile, face == EdgeFace::FreeDeeper);
        break;
    case EdgeFace::Round:
        button.insert(QStringLiteral("skin"), withTile(ROUND_SKIN, tile));
        button.insert(QStringLiteral("skinactive"), withTile(ROUND_SKIN_ACTIVE, tile));
        break;
    }
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
    const EdgeRow *found = params::designRow(EDGE_DESIGNS, design);
    if (!found) {
        params::insertText(button, "oninit", EDGE_ONINIT);
        return button;
    }

    const EdgeRow &row = *found;
    writeEdgeSkins(button, design, row.face, tile);
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
