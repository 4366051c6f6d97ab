#include "skinrule.h"

#include "viewerparams/design.h"

namespace vantora::controls {
namespace {

// One row per design. "@TILE@" stands for the icon tile's "X,Y"; nullptr: member not written.
struct RuleRow
{
    const char *skin;
    const char *skinActive;
    const char *skinHover;
};

// clang-format off
constexpr params::PerDesign<RuleRow> FAMILY_RULE = params::perDesign<RuleRow>({
    /* 0 */ {"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,0,0,28,28);", nullptr, nullptr},
    /* 1 */ {"shadow(3,2,2,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,0,0,28,28);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,0,0,28,28);",
             "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,1,1,28,28);", nullptr},
    /* 2 */ {"shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,@TILE@,64,64,5,2,24,24,#444);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,@TILE@,64,64,6,3,24,24,#333);", nullptr},
    /* 3 */ {"shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,@TILE@,64,64,5,2,24,24,#444);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,@TILE@,64,64,6,3,24,24,#333);", nullptr},
    /* 4 */ {"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,5,5,24,24);",
             "shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,5,5,24,24);", nullptr},
    /* 5 */ {"shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,@TILE@,64,64,5,2,24,24);",
             "shadow(1,0,-1,rgba(255,255,255,0.3));copy(defaultSkin,@TILE@,64,64,6,3,24,24);", nullptr},
    /* 6 */ {"copy(defaultSkin,@TILE@,64,64,5,5,24,24);", nullptr, nullptr},
    /* 7 */ {"shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,0,0,28,28);",
             "dim(-10px,-10px,48px,48px,48,48);comp(0.9);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,10,10,28,28);",
             "dim(-10px,-10px,48px,48px,48,48);comp(0.5);copy(defaultSkin,0,128,64,64,0,0,48,48);comp(1.0);shadow(3,0,0,rgba(0,0,0,1));copy(defaultSkin,@TILE@,64,64,10,10,28,28);"},
});
// clang-format on

const char *rulePattern(int design, SkinMember member)
{
    const RuleRow &row = FAMILY_RULE[design];
    switch (member) {
    case SkinMember::Skin:
        return row.skin;
    case SkinMember::SkinActive:
        return row.skinActive;
    case SkinMember::SkinHover:
        return row.skinHover;
    }
    return nullptr;
}

bool withoutSemicolon(int design, SkinMember member, unsigned quirks)
{
    if (quirks & AllWithoutSemicolon)
        return true;
    if (member == SkinMember::Skin && (quirks & SkinWithoutSemicolon))
        return true;
    if (design != 7)
        return false;
    return (quirks & Design7WithoutSemicolon)
        || (member == SkinMember::Skin && (quirks & Design7SkinWithoutSemicolon))
        || (member == SkinMember::SkinHover && (quirks & Design7HoverWithoutSemicolon));
}

} // namespace

QString tileText(Tile tile)
{
    return QString::number(tile.x) + QLatin1Char(',') + QString::number(tile.y);
}

QString withTile(const char *pattern, Tile tile)
{
    return QString::fromLatin1(pattern).replace(QLatin1String("@TILE@"), tileText(tile));
}

QString familySkin(int design, SkinMember member, Tile tile, unsigned quirks)
{
    if (!params::isDesign(design))
        return QString();
    const char *pattern = rulePattern(design, member);
    if (!pattern || (quirks & OwnSkins))
        return QString();
    QString text = withTile(pattern, tile);
    if (design == 4 && member == SkinMember::Skin && (quirks & DoubledDesign4Skin))
        text += text;
    if (design == 7 && member == SkinMember::SkinActive && (quirks & Design7PressedDeeper))
        text.replace(QLatin1String(",10,10,28,28);"), QLatin1String(",11,11,28,28);"));
    if (withoutSemicolon(design, member, quirks))
        text.chop(1);
    return text;
}

void writeFamilySkins(
    QJsonObject &button, int design, Tile tile, unsigned quirks, const QString &prefix)
{
    static constexpr struct
    {
        SkinMember member;
        const char *name;
    } MEMBERS[] = {
        {SkinMember::Skin, "skin"},
        {SkinMember::SkinActive, "skinactive"},
        {SkinMember::SkinHover, "skinhover"},
    };
    for (const auto &m : MEMBERS) {
        const QString text = familySkin(design, m.member, tile, quirks);
        if (!text.isNull())
            button.insert(prefix + QLatin1String(m.name), text);
    }
}

void writeFreeSkins(QJsonObject &button, Tile tile, bool deeper)
{
    writeFamilySkins(
        button, 7, tile, Design7HoverWithoutSemicolon | (deeper ? Design7PressedDeeper : NoQuirk));
}

} // namespace vantora::controls
