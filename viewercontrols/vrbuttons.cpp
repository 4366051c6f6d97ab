#include "vrbuttons.h"

#include "navtexts.h"
#include "skinrule.h"
#include "toolbartexts.h"
#include "viewerparams/design.h"

#include <QJsonObject>

namespace vantora::controls {
namespace {

constexpr Tile VR_TILE {192, 256};

QJsonObject stereoButton(int design, bool right)
{
    QJsonObject button;
    button.insert(QStringLiteral("id"),
        right ? QStringLiteral("rightStereoButton") : QStringLiteral("leftStereoButton"));
    // The right one sits at the bottom centre, in the right eye's half.
    button.insert(
        QStringLiteral("align"), right ? QStringLiteral("bottom") : QStringLiteral("leftbottom"));
    button.insert(QStringLiteral("xoff"), right ? 22 : 8);
    button.insert(QStringLiteral("yoff"), 8);
    button.insert(QStringLiteral("width"), 28);
    button.insert(QStringLiteral("height"), 28);
    button.insert(QStringLiteral("visible"), false);
    button.insert(QStringLiteral("onclick"), QLatin1String(STEREO_ONCLICK));
    button.insert(QStringLiteral("style"), QLatin1String(STEREO_STYLE));
    button.insert(QStringLiteral("stylehover"), QLatin1String(STEREO_STYLE_HOVER));
    if (design == 4) {
        button.insert(QStringLiteral("style"), QLatin1String(ROUND_STYLE));
        button.insert(QStringLiteral("stylehover"), QLatin1String(ROUND_STYLE_HOVER));
        button.insert(QStringLiteral("styleactive"), QLatin1String(ROUND_STYLE_ACTIVE));
        button.insert(QStringLiteral("skin"), withTile(ROUND_SKIN, VR_TILE));
        button.insert(QStringLiteral("skinactive"), withTile(ROUND_SKIN_ACTIVE, VR_TILE));
        button.insert(QStringLiteral("skinhover"), withTile(ROUND_HALO_HOVER, VR_TILE));
    } else if (params::isDesign(design)) {
        writeFreeSkins(button, VR_TILE, true);
    }
    return button;
}

} // namespace

void appendStereoButtons(QJsonArray &buttons, int design)
{
    buttons.append(stereoButton(design, false));
    buttons.append(stereoButton(design, true));
}

} // namespace vantora::controls
