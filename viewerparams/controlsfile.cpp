#include "controlsfile.h"

#include "contextmenu.h"
#include "mapelement.h"
#include "memberwriter.h"
#include "orientation.h"
#include "viewercontrols/toolbar.h"

namespace vantora::params {
namespace {

// The include has always carried the controls name as the printf formatter prints it without
// arguments: "%%" comes out as "%". Any other conversion has no argument to print, so it is
// kept as it stands instead of printing garbage.
QString formattedWithoutArguments(const QString &text)
{
    QString result = text;
    result.replace(QLatin1String("%%"), QLatin1String("%"));
    return result;
}

} // namespace

EventFlags controlsFlags(const settings::ViewerSettings &settings, bool flatMode, bool vrAvailable)
{
    EventFlags flags;
    flags.design = clampedDesign(settings.TBDesign);
    flags.gyroSupport = settings.AddGyro && !flatMode;
    flags.gyroOnAtStart = settings.GyroEnabled && !flatMode;
    flags.littlePlanetIntro = settings.LittlePlanetIntro;
    flags.vr = settings.AddVrMode && vrAvailable;
    return flags;
}

QJsonObject buildControls(const ControlsInput &input, QJsonArray &actions)
{
    settings::ViewerSettings &settings = *input.settings;
    const EventFlags flags = controlsFlags(settings, input.flatMode, input.vrAvailable);

    QJsonObject root;
    QJsonObject captionsDe;
    buildMainEvents(root, actions, flags, input.view);

    // The toolbar and the orientation element join here: their actions follow the intro's and
    // precede the message actions, and their captions go into captionsDe.
    if (settings.AddToolbar) {
        controls::ToolbarInput toolbar;
        toolbar.settings = &settings;
        toolbar.design = flags.design;
        toolbar.noGyroscope = input.flatMode;
        toolbar.vrCapable = input.vrAvailable;
        controls::writeToolbar(root, actions, toolbar);
        root.insert(QStringLiteral("button"), controls::buildFreeButtons(toolbar));
    }
    // The compass or radar over the picture; the toolbar kinds were placed by the toolbar.
    if (settings.AddOrientation && !isToolbarOrientation(settings.OrientationElement)) {
        const QJsonObject element = buildOrientationElement(actions, flags.design, settings);
        if (!element.isEmpty())
            root.insert(QStringLiteral("orientation"), QJsonArray {element});
    }

    appendMessageActions(actions);
    // The menu's own actions come last: the handlers above never call them.
    if (!settings.ContextMenuItems.isEmpty())
        buildContextMenu(root, actions, captionsDe, settings.ContextMenuItems, flags.gyroSupport);

    root.insert(QStringLiteral("actions"), actions);
    if (!captionsDe.isEmpty())
        root.insert(QStringLiteral("translate"), QJsonObject {{QStringLiteral("de"), captionsDe}});
    return root;
}

QJsonObject writeControlsFile(const QString &outputFolder, const QString &controlsFileName,
    const ControlsInput &input, QJsonArray &actions)
{
    const QJsonObject root = buildControls(input, actions);
    const settings::ViewerSettings &settings = *input.settings;
    if (settings.AddToolbar && settings.AddMap && mapKeyUsable(settings))
        exportMapMarkers(input.host, outputFolder);
    writeViewerParamsFile(outputFolder + controlsFileName, root, Layout::Plain);
    return QJsonObject {{QStringLiteral("src"), formattedWithoutArguments(controlsFileName)}};
}

} // namespace vantora::params
