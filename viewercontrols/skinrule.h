// The skins of the toolbar's button family: one rule by design and icon tile, plus the few
// deviations some buttons carry.
#pragma once

#include <QJsonObject>
#include <QString>

namespace vantora::controls {

// A 64 by 64 tile of the viewer's skin image "defaultSkin".
struct Tile
{
    int x;
    int y;
};

enum class SkinMember { Skin, SkinActive, SkinHover };

// clang-format off
// Each flag names one way a button's skins differ from the family rule.
enum SkinQuirk : unsigned {
    NoQuirk                      = 0,
    DoubledDesign4Skin           = 1u << 0, // design 4 draws the icon twice in "skin"
    SkinWithoutSemicolon         = 1u << 1, // "skin" lacks the final ';' in every design
    AllWithoutSemicolon          = 1u << 2, // every text lacks the final ';'
    Design7WithoutSemicolon      = 1u << 3, // the three design-7 texts lack the final ';'
    Design7SkinWithoutSemicolon  = 1u << 4, // the design-7 "skin" lacks the final ';'
    Design7HoverWithoutSemicolon = 1u << 5, // the design-7 "skinhover" lacks the final ';'
    Design7PressedDeeper         = 1u << 6, // design-7 "skinactive" draws the icon at 11,11
    OwnSkins                     = 1u << 7, // the rule does not apply: the button has its own sets
};
// clang-format on

// The text of `member` for a button with icon `tile`; null when the design writes no such member
// (and for a design outside 0..7).
QString familySkin(int design, SkinMember member, Tile tile, unsigned quirks = NoQuirk);

// Writes the design's members prefix + "skin", prefix + "skinactive" and prefix + "skinhover" by
// the rule; an empty prefix writes the plain set, "play" or "pause" the audio button's sets.
void writeFamilySkins(QJsonObject &button, int design, Tile tile, unsigned quirks = NoQuirk,
    const QString &prefix = QString());

// Writes the faces of a free-standing button (gallery edge, stereo VR): design 7's set by the rule,
// its hover halo without the final ';'; `deeper` presses the icon in as far as design 7's own
// buttons do.
void writeFreeSkins(QJsonObject &button, Tile tile, bool deeper);

// "X,Y" of a tile as the skin texts spell it.
QString tileText(Tile tile);

// Replaces "@TILE@" in `pattern` by the tile's "X,Y". Not QString::arg(): the texts beside these
// carry '%' signs.
QString withTile(const char *pattern, Tile tile);

} // namespace vantora::controls
