#include "orientation.h"

#include "actions.h"
#include "design.h"
#include "orientationtexts.h"

namespace vantora::params {
namespace {

enum class Instrument { Compass, Dial, Radar };

// clang-format off
// The kinds of OrientationElement: what is drawn and how large (pixels, square).
struct Kind { Instrument instrument; int size; bool compact; };
constexpr Kind KINDS[10] = {
    {Instrument::Compass, 60, false}, {Instrument::Compass, 96, false}, {Instrument::Compass, 48, false},
    {Instrument::Compass, 32, true},
    {Instrument::Dial, 60, false},    {Instrument::Dial, 96, false},    {Instrument::Dial, 48, false},
    {Instrument::Radar, 60, false},   {Instrument::Radar, 96, false},   {Instrument::Radar, 48, false},
};
constexpr int COMPASS_IN_TOOLBAR = 10;
constexpr int RADAR_IN_TOOLBAR = 11;

// Tiles of the "defaultCompass" image: x, y, width, height.
struct Tile { int x, y, w, h; };
constexpr Tile COMPASS_FACE {0, 0, 128, 128};
constexpr Tile COMPASS_NEEDLE {128, 0, 128, 128};
constexpr Tile DIAL_SCALE {256, 0, 128, 128};
constexpr Tile DIAL_INDEX {384, 0, 128, 128};
constexpr Tile RADAR_DISC {0, 128, 128, 128};
constexpr Tile COMPACT_RING {128, 128, 64, 64};
constexpr Tile COMPACT_NEEDLE {192, 128, 64, 64};

// The look per toolbar design: the frame of the free-standing element, the shadow and tint its
// drawings get (as the design's button icons do), and where a toolbar item draws inside its
// button (x, y, size), as the design's icons sit.
struct Look { const char *frame; const char *shadow; const char *tint; int x, y, size; };
constexpr PerDesign<Look> LOOKS = perDesign<Look>({
    {FRAME_0, "shadow(3,0,0,rgba(0,0,0,1));",            nullptr, 0, 0, 28},
    {FRAME_1, "shadow(3,2,2,rgba(0,0,0,1));",            nullptr, 0, 0, 28},
    {FRAME_2, "shadow(1,0,-1,rgba(255,255,255,0.3));",   "#444",  5, 2, 24},
    {FRAME_3, "shadow(1,0,-1,rgba(255,255,255,0.3));",   "#444",  5, 2, 24},
    {FRAME_4, "shadow(3,0,0,rgba(0,0,0,1));",            nullptr, 5, 5, 24},
    {FRAME_5, "shadow(1,0,-1,rgba(255,255,255,0.3));",   nullptr, 5, 2, 24},
    {FRAME_6, "",                                        nullptr, 5, 5, 24},
    {FRAME_7, "shadow(3,0,0,rgba(0,0,0,1));",            nullptr, 0, 0, 28},
});

// OrientationElementPosition: the corner, then the left and the right picture edge.
struct Placement { const char *align; int xoff, yoff; };
constexpr Placement PLACEMENTS[3] = {{"lefttop", 8, 8}, {"left", 8, 0}, {"right", 8, 0}};
// clang-format on

const Look &lookOf(int design)
{
    return LOOKS[std::size_t(clampedDesign(design))];
}

// A drawing of `tile` into the square at (x, y) of `size` pixels, shadowed and tinted.
QString skin(const Look &look, const Tile &tile, int x, int y, int size)
{
    QString text = QLatin1String(look.shadow)
        + QString::asprintf("copy(defaultCompass,%d,%d,%d,%d,%d,%d,%d,%d", tile.x, tile.y, tile.w,
            tile.h, x, y, size, size);
    if (look.tint)
        text += QLatin1Char(',') + QLatin1String(look.tint);
    return text + QLatin1Char(')');
}

const char *typeName(Instrument instrument)
{
    switch (instrument) {
    case Instrument::Compass:
        return "compass";
    case Instrument::Dial:
        return "dial";
    case Instrument::Radar:
        break;
    }
    return "radar";
}

// The members every variant shares: identity, drawing, visibility and the optional north turn.
// The viewer draws "skin", then "rotatingskin" turned about the centre by (north - pan) degrees;
// a radar draws its field-of-view sector with "radarcontext" instead.
QJsonObject instrument(Instrument kind, bool compact, const Look &look, int x, int y, int size,
    bool turnsNorth, QJsonArray &actions)
{
    QJsonObject object;
    object.insert(QStringLiteral("id"), QStringLiteral("compass"));
    object.insert(QStringLiteral("type"), QLatin1String(typeName(kind)));
    object.insert(QStringLiteral("visible"), false);
    switch (kind) {
    case Instrument::Compass:
        object.insert(
            QStringLiteral("skin"), skin(look, compact ? COMPACT_RING : COMPASS_FACE, x, y, size));
        object.insert(QStringLiteral("rotatingskin"),
            skin(look, compact ? COMPACT_NEEDLE : COMPASS_NEEDLE, x, y, size));
        break;
    case Instrument::Dial:
        object.insert(QStringLiteral("skin"), skin(look, DIAL_INDEX, x, y, size));
        object.insert(QStringLiteral("rotatingskin"), skin(look, DIAL_SCALE, x, y, size));
        break;
    case Instrument::Radar:
        object.insert(QStringLiteral("skin"), skin(look, RADAR_DISC, x, y, size));
        object.insert(QStringLiteral("radarcontext"), QLatin1String(RADAR_CONTEXT));
        object.insert(QStringLiteral("radius"), 0.9);
        break;
    }
    object.insert(QStringLiteral("oninit"), QLatin1String(ORIENTATION_VISIBILITY));
    object.insert(QStringLiteral("onscenechanged"), QLatin1String(ORIENTATION_VISIBILITY));
    if (turnsNorth) {
        object.insert(QStringLiteral("onclick"), QLatin1String(ORIENTATION_ONCLICK));
        appendAction(actions, QStringLiteral("turnToNorth"), QLatin1String(TURN_TO_NORTH));
    }
    return object;
}

} // namespace

bool isToolbarOrientation(int kind)
{
    return kind == COMPASS_IN_TOOLBAR || kind == RADAR_IN_TOOLBAR;
}

QJsonObject buildOrientationElement(
    QJsonArray &actions, int design, const settings::ViewerSettings &settings)
{
    const int kindIndex = settings.OrientationElement;
    if (kindIndex < 0 || kindIndex >= int(std::size(KINDS)))
        return {};
    const Kind &kind = KINDS[kindIndex];
    const Look &look = lookOf(design);
    QJsonObject element = instrument(
        kind.instrument, kind.compact, look, 0, 0, kind.size, settings.PositionNorth, actions);

    const int position = settings.OrientationElementPosition;
    const Placement &placement = PLACEMENTS[position >= 0 && position < 3 ? position : 0];
    element.insert(QStringLiteral("align"), QLatin1String(placement.align));
    element.insert(QStringLiteral("xoff"), placement.xoff);
    element.insert(QStringLiteral("yoff"), placement.yoff);
    element.insert(QStringLiteral("width"), kind.size);
    element.insert(QStringLiteral("height"), kind.size);
    QString style = QLatin1String(kind.compact ? FRAME_COMPACT : look.frame);
    if (settings.PositionNorth)
        style += QLatin1String(FRAME_CLICKABLE);
    element.insert(QStringLiteral("style"), style);
    return element;
}

void appendOrientationToolbarItems(
    QJsonArray &buttons, QJsonArray &actions, int design, const settings::ViewerSettings &settings)
{
    if (!isToolbarOrientation(settings.OrientationElement))
        return;
    const Look &look = lookOf(design);
    const Instrument kind = settings.OrientationElement == COMPASS_IN_TOOLBAR ? Instrument::Compass
                                                                              : Instrument::Radar;
    QJsonObject item
        = instrument(kind, false, look, look.x, look.y, look.size, settings.PositionNorth, actions);
    // Left of the gallery and map buttons, right of the hide button; dropped early when the
    // toolbar runs short of room, as it only repeats what the panorama shows.
    item.insert(QStringLiteral("align"), QStringLiteral("left"));
    item.insert(QStringLiteral("index"), 2);
    item.insert(QStringLiteral("priority"), 1);
    item.insert(QStringLiteral("xoff"), 8);
    item.insert(QStringLiteral("yoff"), 0);
    buttons.append(item);
}

} // namespace vantora::params
