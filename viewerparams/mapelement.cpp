#include "mapelement.h"

#include "actions.h"
#include "design.h"
#include "elementtexts.h"
#include "plugin/hostresource.h"
#include "resources/resources.h"

#include <iterator>

namespace vantora::params {
namespace {

// clang-format off
// The frame around the map by design; any other value takes design 0's.
constexpr PerDesign<const char *> CONTENT_STYLES = perDesign<const char *>({
    /* 0 */ "position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden;",
    /* 1 */ "position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden; box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;",
    /* 2 */ "position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden; border-radius: 3px; box-shadow: rgb(0, 0, 0) 1px 1px 3px 1.7px;",
    /* 3 */ "position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 1px 1px 3px 2px;",
    /* 4 */ "position: absolute; left: 4px; right: 4px; bottom: 4px; top: 4px; display: inline; overflow: hidden; border-radius: 2px; box-shadow: rgba(0, 0, 0, 1) 0px 0px 1px 1px;",
    /* 5 */ "position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; border-radius: 3px; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 3px 2px;",
    /* 6 */ "position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; box-shadow: rgba(0, 0, 0, 0.4) 2px 2px 2px 0.5px;",
    /* 7 */ "position: absolute; left: 8px; right: 8px; bottom: 8px; top: 8px; display: inline; overflow: hidden; border-radius: 2px;",
});
// The map types the viewer knows, by MapType.
constexpr const char *MAP_TYPES[] = {"hybrid", "satellite", "roadmap", "osm"};
// clang-format on

} // namespace

bool mapKeyUsable(const settings::ViewerSettings &settings)
{
    return settings.GmAPIKey.size() >= settings::MIN_MAP_KEY_LENGTH;
}

void exportMapMarkers(HostContext *host, const QString &outputFolder)
{
    resources::ensureRegistered();
    plugin::exportHostResource(
        host, QLatin1String(MARKER_RESOURCE), outputFolder + QLatin1String(MARKER_FILE));
    plugin::exportHostResource(host, QLatin1String(MARKER_ACTIVE_RESOURCE),
        outputFolder + QLatin1String(MARKER_ACTIVE_FILE));
}

QJsonObject buildMapElement(
    QJsonArray &actions, int design, const settings::ViewerSettings &settings)
{
    QJsonObject element;
    element.insert(QStringLiteral("align"),
        settings.MapPosition != 0 ? QStringLiteral("leftbottom") : QStringLiteral("lefttop"));
    element.insert(QStringLiteral("apikey"), settings.GmAPIKey);
    element.insert(QStringLiteral("id"), QStringLiteral("map"));
    element.insert(QStringLiteral("zoom"), settings.MapZoom);
    element.insert(QStringLiteral("type"), QStringLiteral("gmap"));
    element.insert(QStringLiteral("style"),
        settings.MapVisible ? QStringLiteral("opacity: 1; transition: opacity 0.5s")
                            : QStringLiteral("opacity: 0; transition: opacity 0.5s"));
    element.insert(QStringLiteral("visible"), settings.MapVisible);
    if (settings.MapType >= 0 && settings.MapType < int(std::size(MAP_TYPES)))
        element.insert(QStringLiteral("gmapstype"), QLatin1String(MAP_TYPES[settings.MapType]));
    element.insert(QStringLiteral("zoomcontrols"), settings.MapZoomControls);
    element.insert(QStringLiteral("typecontrols"), settings.MapTypeControls);
    element.insert(QStringLiteral("gmarker"), QLatin1String(MAP_MARKER));
    element.insert(QStringLiteral("gmarkeractive"), QLatin1String(MAP_MARKER_ACTIVE));
    // A map open at start sizes itself once the viewer knows its height; a closed one has none.
    if (settings.MapVisible)
        element.insert(QStringLiteral("oninit"), QLatin1String(MAP_ONINIT));
    else
        element.insert(QStringLiteral("height"), QStringLiteral("0px"));
    const bool knownDesign = isDesign(design);
    element.insert(
        QStringLiteral("contentstyle"), QLatin1String(CONTENT_STYLES[knownDesign ? design : 0]));
    if (settings.MapHideOnMarker)
        element.insert(QStringLiteral("onmarkerclick"), QLatin1String(MAP_ONMARKERCLICK));

    if (settings.MapRadar)
        element.insert(QStringLiteral("radar"),
            QJsonObject {
                {QStringLiteral("radarcontext"), QLatin1String(MAP_RADAR_CONTEXT)},
                {QStringLiteral("radius"), 0.99},
                {QStringLiteral("width"), 256},
            });

    appendAction(actions, QStringLiteral("toggleMap"), QLatin1String(TOGGLE_MAP));
    appendAction(actions, QStringLiteral("hideMap"), QLatin1String(HIDE_MAP));
    appendAction(actions, QStringLiteral("resizeMap"), QLatin1String(RESIZE_MAP));
    return element;
}

} // namespace vantora::params
