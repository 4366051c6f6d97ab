#include "paramsfile.h"

#include "controlsfile.h"
#include "galleryfile.h"
#include "hotspots.h"
#include "infobox.h"
#include "jsonbridge.h"
#include "memberwriter.h"
#include "plugin/hostaccess.h"
#include "plugin/paths.h"
#include "scripttexts.h"

#include <QDir>
#include <QJsonArray>
#include <QVector>

#include <algorithm>
#include <cmath>

namespace vantora::params {
namespace {

using settings::ViewerSettings;

// Room for the identifier that the tile writer may rewrite, terminator included.
constexpr std::uint32_t IDENTIFIER_CAPACITY = 1024;

// The viewer's own defaults; writing them would only repeat what it assumes anyway.
constexpr double DEFAULT_MINHFOV = 5.0;
constexpr double DEFAULT_MAXHFOV = 140.0;

// Toolbar positions from 3 on put the toolbar at the top, so the title moves to the bottom.
constexpr int FIRST_TOP_TOOLBAR_POSITION = 3;

struct Camera
{
    double minpan = 0.0;
    double maxpan = 0.0;
    double mintilt = 0.0;
    double maxtilt = 0.0;
};

Camera cameraLimits(const HostContext &host)
{
    Camera camera;
    camera.minpan = host.startPan;
    camera.maxpan = host.endPan > 360.0 ? 360.0 : host.endPan;
    camera.mintilt = -host.lowerEdgeTilt < -90.0 ? -90.0 : -host.lowerEdgeTilt;
    camera.maxtilt = -host.upperEdgeTilt > 90.0 ? 90.0 : -host.upperEdgeTilt;
    return camera;
}

bool isFullSphere(const HostContext &host)
{
    return host.endPan - host.startPan >= 359.99
        && std::fabs(host.lowerEdgeTilt - host.upperEdgeTilt) >= 179.99;
}

QJsonObject viewObject(const ParamsInput &input)
{
    QJsonObject view;
    if (input.flatMode) {
        view.insert(QStringLiteral("mode"), QStringLiteral("fitInWindow"));
    } else {
        view.insert(QStringLiteral("pan"), input.view.pan);
        view.insert(QStringLiteral("tilt"), input.view.tilt);
        view.insert(QStringLiteral("hfov"), input.view.hfov);
    }
    if (!input.settings->ShortDescription64.isEmpty())
        view.insert(QStringLiteral("shortdescription"), input.settings->ShortDescription64);
    return view;
}

QJsonObject cameraObject(const Camera &camera, const plugin::View &view)
{
    QJsonObject object;
    object.insert(QStringLiteral("minpan"), camera.minpan);
    object.insert(QStringLiteral("maxpan"), camera.maxpan);
    object.insert(QStringLiteral("mintilt"), camera.mintilt);
    object.insert(QStringLiteral("maxtilt"), camera.maxtilt);
    if (view.minhfov != DEFAULT_MINHFOV)
        object.insert(QStringLiteral("minhfov"), view.minhfov);
    if (view.maxhfov != DEFAULT_MAXHFOV)
        object.insert(QStringLiteral("maxhfov"), view.maxhfov);
    return object;
}

// Lets the host write the image tiles; it may rename the panorama and add members (the tile
// description "image" among them) to the node. Returns the host's status.
std::uint32_t writeTiles(
    const ParamsInput &input, const QString &outputFolder, QString &identifier, QJsonObject &node)
{
    HostContext &host = *input.host;
    if (!host.writeTiles)
        return 0;
    QVector<char16_t> buffer(int(IDENTIFIER_CAPACITY), u'\0');
    const int length = std::min(identifier.size(), int(IDENTIFIER_CAPACITY) - 1);
    std::copy_n(reinterpret_cast<const char16_t *>(identifier.utf16()), length, buffer.data());

    VantoraJsonObject nodeHandle {node};
    HostTileRequest request {};
    request.size = sizeof(HostTileRequest);
    request.flatMode = input.flatMode ? 1 : 0;
    request.outputFolder = reinterpret_cast<const char16_t *>(outputFolder.utf16());
    request.identifier = buffer.data();
    request.identifierCapacity = IDENTIFIER_CAPACITY;
    request.scalePercent = input.scalePercent;
    request.outputWidth = input.outputWidth;
    request.outputHeight = input.outputHeight;
    request.startPan = host.startPan;
    request.endPan = host.endPan;
    request.upperEdgeTilt = host.upperEdgeTilt;
    request.lowerEdgeTilt = host.lowerEdgeTilt;
    request.pan = input.view.pan;
    request.tilt = input.view.tilt;
    request.hfov = input.view.hfov;
    request.minhfov = input.view.minhfov;
    request.maxhfov = input.view.maxhfov;
    request.node = &nodeHandle;
    request.setNodeMember = setJsonMember;
    const std::uint32_t status = host.writeTiles(&host, &request);

    // A host that filled the buffer to the brim must not make us read past it.
    buffer[int(IDENTIFIER_CAPACITY) - 1] = u'\0';
    identifier = plugin::fromHost(buffer.constData());
    node = nodeHandle.object;
    return status;
}

QJsonObject controlObject(const ViewerSettings &settings, bool vr)
{
    QJsonObject control;
    control.insert(QStringLiteral("mousemode"),
        settings.MouseMode != 0 ? QStringLiteral("drag") : QStringLiteral("move"));
    control.insert(QStringLiteral("touchmode"),
        settings.TouchMode != 0 ? QStringLiteral("drag") : QStringLiteral("move"));
    if (settings.ZoomMode != 0)
        control.insert(QStringLiteral("zoomtocursor"), false);
    if (settings.AddVrMode && vr) {
        control.insert(QStringLiteral("vrgamepadenable"), settings.VrGamepadEnabled);
        control.insert(QStringLiteral("vrdisplay"),
            settings.VrDisplayType == 1 ? QStringLiteral("splitscreen") : QStringLiteral("auto"));
    }
    return control;
}

QJsonObject autoplayObject(const ViewerSettings &settings)
{
    QJsonObject autoplay;
    autoplay.insert(
        QStringLiteral("status"), settings.AutoPlay ? QStringLiteral("on") : QStringLiteral("off"));
    autoplay.insert(QStringLiteral("pan"), settings.PanRate);
    autoplay.insert(QStringLiteral("tilt"), settings.TiltRate);
    autoplay.insert(QStringLiteral("zoom"), settings.ZoomRate);
    autoplay.insert(QStringLiteral("restart"), double(settings.Restart));
    return autoplay;
}

// Fills the global ("data" of the root) and local ("data" of the node) data objects.
void addDataObjects(QJsonObject &root, QJsonObject &node, const ViewerSettings &settings)
{
    QJsonObject globalData;
    QJsonObject localData;
    if (!settings.InfoHTML64.isEmpty()) {
        const QJsonObject infoBox
            = buildMessageBox(settings.TBDesign, settings.InfoHTML64, QStringLiteral("infobox"));
        (settings.InfoGlobal ? globalData : localData)
            .insert(QStringLiteral("infoTextBox"), infoBox);
    }
    const QString style = messageBoxStyle(settings.TBDesign);
    if (!style.isNull())
        globalData.insert(QStringLiteral("messageBoxStyle"), style);
    if (!globalData.isEmpty()) {
        globalData.insert(QStringLiteral("id"), QStringLiteral("globalData"));
        root.insert(QStringLiteral("data"), globalData);
    }
    if (!localData.isEmpty()) {
        localData.insert(QStringLiteral("id"), QStringLiteral("localData"));
        node.insert(QStringLiteral("data"), localData);
    }
}

QJsonArray titleTextbox(const ViewerSettings &settings)
{
    const unsigned textColour = settings.TextColor & 0xFFFFFFu;
    const unsigned shadowColour = settings.ShadowColor & 0xFFFFFFu;
    QJsonObject title;
    title.insert(QStringLiteral("text"), settings.Title64);
    title.insert(QStringLiteral("align"),
        settings.Position < FIRST_TOP_TOOLBAR_POSITION ? QStringLiteral("top")
                                                       : QStringLiteral("bottom"));
    title.insert(QStringLiteral("yoff"), QStringLiteral("4px"));
    title.insert(QStringLiteral("style"),
        QString::asprintf(
            TITLE_STYLE_FORMAT, textColour, shadowColour, shadowColour, shadowColour));
    return QJsonArray {title};
}

QJsonObject logoObject(const ViewerSettings &settings)
{
    QJsonObject logo;
    logo.insert(QStringLiteral("src"), settings.LogoImage);
    logo.insert(QStringLiteral("href"), settings.LogoURL);
    logo.insert(QStringLiteral("target"), QStringLiteral("_blank"));
    logo.insert(QStringLiteral("style"), QString::fromLatin1(LOGO_STYLE));
    return logo;
}

QJsonObject soundObject(const ViewerSettings &settings)
{
    QJsonObject sound;
    sound.insert(QStringLiteral("id"),
        settings.AudioGlobal ? QStringLiteral("gAudio") : QStringLiteral("lAudio"));
    sound.insert(QStringLiteral("src"), settings.Sound);
    sound.insert(QStringLiteral("loop"), settings.AudioLoop);
    sound.insert(QStringLiteral("autoplay"), settings.AudioAutoplay);
    return sound;
}

// Asks the host for the panorama's geographic location and orientation. The object is kept even
// when the host adds nothing, so that map and compass find the member they look for.
QJsonObject locationObject(HostContext &host, const ViewerSettings &settings)
{
    VantoraJsonObject location {};
    if (host.fillLocation) {
        const bool forOrientation
            = settings.AddOrientation || (settings.AddMap && settings.MapRadar);
        host.fillLocation(
            &host, &location, setJsonMember, settings.AddMap ? 1 : 0, forOrientation ? 1 : 0);
    }
    return location.object;
}

} // namespace

ParamsDocument buildViewerParams(const ParamsInput &input, const QString &outputFolder,
    const QString &paramsFileName, const QString &controlsFileName, const QString &galleryFileName)
{
    HostContext &host = *input.host;
    const ViewerSettings &settings = *input.settings;
    // Bitmaps and tiles go into the folder before the parameter file itself does.
    if (!outputFolder.isEmpty())
        QDir().mkpath(outputFolder);

    ParamsDocument document;
    QJsonObject &root = document.root;
    root.insert(QStringLiteral("version"), QStringLiteral("4.1"));

    QJsonObject node;
    node.insert(QStringLiteral("view"), viewObject(input));

    QString identifier = plugin::withoutExtension(plugin::fileNamePart(paramsFileName));
    document.tileStatus = writeTiles(input, outputFolder, identifier, node);
    node.insert(QStringLiteral("id"), identifier);

    const Camera camera = cameraLimits(host);
    node.insert(QStringLiteral("camera"), cameraObject(camera, input.view));
    const bool vr = !input.flatMode && isFullSphere(host);

    const HostHotspotList *list = host.hotspots;
    if (list && list->begin && list->end && list->end > list->begin) {
        QJsonObject visibility;
        visibility.insert(QStringLiteral("visible"), settings.ShowHotspots);
        node.insert(QStringLiteral("hotspots"), visibility);
    }
    HotspotInput hotspotInput;
    hotspotInput.host = &host;
    hotspotInput.flatMode = input.flatMode;
    hotspotInput.design = settings.TBDesign;
    hotspotInput.panRange = host.endPan - host.startPan;
    hotspotInput.minTilt = camera.mintilt;
    hotspotInput.maxTilt = camera.maxtilt;
    hotspotInput.pixelWidth = input.outputWidth;
    const QJsonArray hotspots = buildHotspots(hotspotInput, outputFolder);
    const QJsonArray lensFlares = buildLensFlares(hotspotInput);
    if (!hotspots.isEmpty())
        node.insert(QStringLiteral("hotspot"), hotspots);
    if (!lensFlares.isEmpty())
        node.insert(QStringLiteral("lensflare"), lensFlares);

    root.insert(QStringLiteral("control"), controlObject(settings, vr));
    node.insert(QStringLiteral("autoplay"), autoplayObject(settings));

    addDataObjects(root, node, settings);
    if (!settings.Title64.isEmpty())
        node.insert(QStringLiteral("textbox"), titleTextbox(settings));
    if (!settings.LogoImage.isEmpty())
        root.insert(QStringLiteral("logo"), logoObject(settings));
    if (!settings.Sound.isEmpty())
        (settings.AudioGlobal ? root : node).insert(QStringLiteral("audio"), soundObject(settings));

    QJsonObject location;
    if (settings.AddMap || settings.AddOrientation) {
        location = locationObject(host, settings);
        node.insert(QStringLiteral("location"), location);
    }

    root.insert(QStringLiteral("node"), node);

    // The design number is brought into 0..7 and stored back here, once: the parameter file above
    // saw the setting as it was (an out-of-range design gets no message box style), the controls
    // file below and every later export see the clamped one.
    input.settings->TBDesign = clampedDesign(input.settings->TBDesign);
    ControlsInput controls;
    controls.host = &host;
    controls.settings = input.settings;
    controls.view = input.view;
    controls.flatMode = input.flatMode;
    controls.vrAvailable = vr;
    QJsonArray actions;
    QJsonArray include {writeControlsFile(outputFolder, controlsFileName, controls, actions)};
    // The gallery strip and the map's markers both list the tour's panoramas.
    if (settings.AddGallery || settings.AddMap)
        include.append(writeGalleryFile(
            outputFolder, galleryFileName, paramsFileName, settings.ShortDescription64, location));
    root.insert(QStringLiteral("include"), include);
    return document;
}

std::uint32_t writeViewerParams(const ParamsInput &input, const QString &outputFolder,
    const QString &paramsFileName, const QString &controlsFileName, const QString &galleryFileName)
{
    const ParamsDocument document
        = buildViewerParams(input, outputFolder, paramsFileName, controlsFileName, galleryFileName);
    if (!writeViewerParamsFile(outputFolder + paramsFileName, document.root))
        return 0;
    return document.tileStatus;
}

} // namespace vantora::params
