#include "hotspots.h"

#include "infobox.h"
#include "plugin/cformat.h"
#include "plugin/hostaccess.h"
#include "plugin/hostresource.h"
#include "plugin/outputstage.h"
#include "plugin/paths.h"
#include "scripttexts.h"

#include <QJsonObject>

#include <cmath>

namespace vantora::params {
namespace {

constexpr double PI = 3.141592653589793;

// Kinds of the host's hotspot record.
constexpr int FIRST_LENS_FLARE = 7;
constexpr int LAST_LENS_FLARE = 13;
constexpr int ANIMATED_BITMAP = 14;

constexpr int ACTION_LINK = 0;
constexpr int ACTION_INFO = 1;

constexpr int TRANSITION_BLEND = 1 << 0;
constexpr int TRANSITION_ZOOM_IN = 1 << 1;

double degrees(double radians)
{
    return radians * 180.0 / PI;
}

double radians(double degrees)
{
    return degrees * PI / 180.0;
}

QString fromNarrow(const char *text)
{
    return text ? QString::fromUtf8(text) : QString();
}

bool isLensFlare(int kind)
{
    return kind >= FIRST_LENS_FLARE && kind <= LAST_LENS_FLARE;
}

// Every non-null entry of the host's list, in order. A list whose end lies before its begin is
// taken as empty rather than walked into foreign memory.
template <typename Visit> void forEachEntry(const HostContext *host, Visit &&visit)
{
    if (!host || !host->hotspots)
        return;
    const HostHotspotList &list = *host->hotspots;
    if (!list.begin || !list.end || list.end <= list.begin)
        return;
    for (HostHotspot *const *entry = list.begin; entry != list.end; ++entry) {
        if (*entry)
            visit(**entry);
    }
}

PanTilt positionOf(const HotspotInput &input, const HostHotspot &hotspot)
{
    if (input.flatMode)
        return {hotspot.position[0], hotspot.position[1]};
    return hotspotPanTilt(hotspot.position, input.host->linearVertical != 0, input.panRange,
        input.minTilt, input.maxTilt, input.pixelWidth);
}

// Puts the hotspot's bitmap into the output folder and returns its name there. Host resources
// get a prefix so that they cannot collide with the user's own files of the same name.
QString exportBitmap(
    const HostContext &host, const QString &bitmapPath, const QString &outputFolder)
{
    const QString fileName = plugin::fileNamePart(bitmapPath);
    if (bitmapPath.startsWith(QLatin1Char(':'))) {
        const QString target = QStringLiteral("pap_") + fileName;
        plugin::exportHostResource(&host, bitmapPath, outputFolder + target);
        return target;
    }
    const QString targetPath = outputFolder + fileName;
    // A bitmap named like one of the export's own files must not replace it. The copy is a new
    // file, so a write-protected source does not leave it protected for the next export.
    if (!plugin::stage::isReserved(targetPath))
        plugin::stage::copyFile(plugin::toNativeSeparators(bitmapPath), targetPath);
    return fileName;
}

void addBitmapMembers(QJsonObject &object, const HotspotInput &input, const HostHotspot &hotspot,
    const QString &bitmap)
{
    object.insert(QStringLiteral("bitmap"), bitmap);
    if (hotspot.embedded) {
        const double width = input.flatMode ? double(hotspot.embeddedWidth)
                                            : input.panRange * double(hotspot.embeddedWidth);
        object.insert(QStringLiteral("embeddedwidth"), width);
        object.insert(QStringLiteral("rotate"), double(hotspot.rotation));
    } else {
        // Floating bitmaps grow a little under the mouse; animation strips must keep their size.
        object.insert(QStringLiteral("bitmapscale"),
            hotspot.kind == ANIMATED_BITMAP ? QStringLiteral("1.0") : QStringLiteral("1.0;1.1"));
    }
    object.insert(QStringLiteral("opacity"),
        plugin::cFormatText("%.2f;%.2f", (100 - hotspot.transparency) / 100.0,
            (100 - hotspot.hoverTransparency) / 100.0));
    object.insert(QStringLiteral("bitmaptype"),
        hotspot.embedded ? QStringLiteral("embedded") : QStringLiteral("floating"));
    const PanTilt position = positionOf(input, hotspot);
    object.insert(
        QStringLiteral("position"), plugin::cFormatText("%.4f,%.4f", position.pan, position.tilt));
}

void addLinkMembers(QJsonObject &object, const HostHotspot &hotspot)
{
    const int flags = hotspot.transitionFlags;
    const bool blend = flags & TRANSITION_BLEND;
    const bool zoomIn = flags & TRANSITION_ZOOM_IN;
    if (blend && zoomIn)
        object.insert(QStringLiteral("transition"), QStringLiteral("zoomin,2;blend,2"));
    else if (blend)
        object.insert(QStringLiteral("transition"), QStringLiteral("blend,2"));
    else if (zoomIn)
        object.insert(QStringLiteral("transition"), QStringLiteral("zoomin,2"));
    else if (flags == 0)
        object.insert(QStringLiteral("transition"), QString());
    object.insert(QStringLiteral("href"), fromNarrow(hotspot.linkUrl));
    object.insert(QStringLiteral("target"), fromNarrow(hotspot.linkTarget));
}

void addInfoMembers(
    QJsonObject &object, const HotspotInput &input, const HostHotspot &hotspot, int number)
{
    // The click is handled by "onclick"; the link must not navigate anywhere.
    object.insert(QStringLiteral("href"), QStringLiteral("javascript:"));
    const QString infoText = fromNarrow(hotspot.infoText);
    if (infoText.isEmpty())
        return;
    object.insert(QStringLiteral("onclick"), QString::fromLatin1(HOTSPOT_INFO_ONCLICK));
    object.insert(QStringLiteral("hsinfo"),
        buildMessageBox(
            input.design, infoText, QStringLiteral("hsinfo") + QString::number(number)));
}

QJsonObject tooltip(const QString &name)
{
    QJsonObject textbox;
    textbox.insert(QStringLiteral("text"), name);
    textbox.insert(QStringLiteral("align"), QStringLiteral("top"));
    textbox.insert(QStringLiteral("style"), QString::fromLatin1(HOTSPOT_TOOLTIP_STYLE));
    return textbox;
}

QJsonObject animation(const HostHotspot &hotspot)
{
    QJsonObject animation;
    animation.insert(QStringLiteral("width"), int(hotspot.frameWidth));
    animation.insert(QStringLiteral("height"), int(hotspot.frameHeight));
    animation.insert(QStringLiteral("frames"), int(hotspot.frameCount));
    animation.insert(QStringLiteral("duration"), hotspot.duration);
    if (hotspot.animateOnMouseOver) {
        animation.insert(QStringLiteral("mouseover"), true);
        if (hotspot.frameOffset >= 1)
            animation.insert(QStringLiteral("frameOffset"), int(hotspot.frameOffset));
    } else {
        if (hotspot.delay > 0)
            animation.insert(QStringLiteral("delay"), hotspot.delay);
        if (hotspot.iterations > 0)
            animation.insert(QStringLiteral("iterations"), int(hotspot.iterations));
    }
    return animation;
}

QJsonObject hotspotObject(
    const HotspotInput &input, const HostHotspot &hotspot, const QString &bitmap, int number)
{
    QJsonObject object;
    addBitmapMembers(object, input, hotspot, bitmap);
    object.insert(
        QStringLiteral("unit"), input.flatMode ? QStringLiteral("norm") : QStringLiteral("deg"));
    if (hotspot.action == ACTION_LINK)
        addLinkMembers(object, hotspot);
    else if (hotspot.action == ACTION_INFO)
        addInfoMembers(object, input, hotspot, number);
    const QString name = fromNarrow(hotspot.name);
    if (!name.isEmpty())
        object.insert(QStringLiteral("textbox"), tooltip(name));
    if (hotspot.kind == ANIMATED_BITMAP && hotspot.frameCount >= 2)
        object.insert(QStringLiteral("animation"), animation(hotspot));
    return object;
}

} // namespace

PanTilt hotspotPanTilt(const double position[2], bool linearVertical, double panRange,
    double lowTilt, double highTilt, double pixelWidth)
{
    const double x = position[0];
    const double y = position[1];
    PanTilt result;
    result.pan = panRange * x;
    if (linearVertical) {
        result.tilt = (highTilt - lowTilt) * y + lowTilt;
        return result;
    }
    // Cylindrical: y is linear in tan(tilt) on a cylinder of radius r pixels. The radius cancels
    // out, so a degenerate width or range falls back to a unit radius instead of 0/0.
    double r = pixelWidth / radians(panRange);
    if (!(std::isfinite(r) && r != 0.0))
        r = 1.0;
    const double t0 = -std::tan(radians(lowTilt)) * r;
    const double t = (std::tan(radians(highTilt)) * r + t0) * y;
    result.tilt = t > t0 ? degrees(std::atan((t - t0) / r)) : -degrees(std::atan((t0 - t) / r));
    return result;
}

QJsonArray buildHotspots(const HotspotInput &input, const QString &outputFolder)
{
    QJsonArray hotspots;
    int number = 0;
    forEachEntry(input.host, [&](const HostHotspot &hotspot) {
        const int current = number++;
        if (hotspot.kind >= FIRST_LENS_FLARE && hotspot.kind != ANIMATED_BITMAP)
            return;
        const QString bitmapPath = plugin::fromHost(hotspot.bitmapPath);
        // Without a bitmap file the viewer has nothing to show, so the entry is left out; its
        // number stays used up so that "hsinfo" names do not depend on such entries.
        if (hotspot.hasInternalBitmap != 0 || bitmapPath.isEmpty())
            return;
        const QString bitmap = exportBitmap(*input.host, bitmapPath, outputFolder);
        hotspots.append(hotspotObject(input, hotspot, bitmap, current));
    });
    return hotspots;
}

QJsonArray buildLensFlares(const HotspotInput &input)
{
    QJsonArray flares;
    if (input.flatMode)
        return flares;
    forEachEntry(input.host, [&](const HostHotspot &hotspot) {
        if (!isLensFlare(hotspot.kind))
            return;
        const PanTilt position = positionOf(input, hotspot);
        QJsonObject flare;
        flare.insert(QStringLiteral("pan"), position.pan);
        flare.insert(QStringLiteral("tilt"), position.tilt);
        flare.insert(QStringLiteral("type"), hotspot.kind - FIRST_LENS_FLARE);
        flare.insert(QStringLiteral("brightening"), 1.0);
        flare.insert(QStringLiteral("scale"), 1.0);
        flares.append(flare);
    });
    return flares;
}

} // namespace vantora::params
