#include "toolbar.h"

#include "buttons.h"
#include "hidebuttons.h"
#include "navbuttons.h"
#include "toolbardesigns.h"
#include "viewerparams/design.h"
#include "viewerparams/galleryelement.h"
#include "viewerparams/mapelement.h"
#include "viewerparams/orientation.h"
#include "viewerparams/tabletext.h"
#include "vrbuttons.h"

namespace vantora::controls {
namespace {

// Toolbar indexes of the gallery buttons inside the toolbar.
constexpr int NAV_LEFT_INDEX = 0;
constexpr int NAV_RIGHT_INDEX = 15;

template <typename Writer> void appendButton(QJsonArray &buttons, Writer &&write)
{
    QJsonObject button;
    write(button);
    buttons.append(button);
}

bool galleryInToolbar(const settings::ViewerSettings &s)
{
    return s.AddGallery && s.GalleryButtons == 1;
}

// The buttons in the toolbar's order; each row appears when its setting asks for it.
QJsonArray toolbarButtons(QJsonArray &actions, const ToolbarInput &input)
{
    const settings::ViewerSettings &s = *input.settings;
    const int design = input.design;
    QJsonArray buttons;
    if (galleryInToolbar(s))
        appendButton(buttons,
            [&](QJsonObject &b) { writeToolbarGalleryButton(b, design, false, NAV_LEFT_INDEX); });
    appendButton(
        buttons, [&](QJsonObject &b) { writeHideTbButton(b, design, hideShowContext(s)); });
    if (s.AddGallery)
        appendButton(buttons, [&](QJsonObject &b) { writeGalleryButton(b, design); });
    if (s.AddMap)
        appendButton(buttons, [&](QJsonObject &b) { writeMapButton(b, design); });
    if (s.AddOrientation) // only the toolbar kinds of the compass and radar add an item here
        params::appendOrientationToolbarItems(buttons, actions, design, s);
    appendButton(
        buttons, [&](QJsonObject &b) { writeInfoButton(b, design, s.InfoHTML64, s.ShowInfoBox); });
    if (s.HotspotsButton)
        appendButton(buttons, [&](QJsonObject &b) { writeHotspotsButton(b, design); });
    if (s.ShowArrowButtons)
        appendArrowButtons(buttons, design);
    if (s.ShowZoomButtons)
        appendZoomButtons(buttons, design);
    if (s.PlayButton)
        appendButton(buttons, [&](QJsonObject &b) { writePlayButton(b, design); });
    if (s.AddVrMode && input.vrCapable)
        appendButton(buttons, [&](QJsonObject &b) { writeVrButton(b, design); });
    if (s.GyroButton && s.AddGyro && !input.noGyroscope)
        appendButton(buttons, [&](QJsonObject &b) { writeGyroButton(b, design, actions); });
    if (s.AddAudioButton)
        appendButton(buttons, [&](QJsonObject &b) { writeAudioButton(b, design); });
    if (s.ShowToolbarFullscreen)
        appendButton(buttons, [&](QJsonObject &b) { writeFullscreenButton(b, design); });
    if (galleryInToolbar(s))
        appendButton(buttons,
            [&](QJsonObject &b) { writeToolbarGalleryButton(b, design, true, NAV_RIGHT_INDEX); });
    return buttons;
}

} // namespace

QJsonObject buildToolbar(QJsonArray &actions, const ToolbarInput &input)
{
    const settings::ViewerSettings &s = *input.settings;
    const ToolbarDesign &d = TOOLBAR_DESIGNS[std::size_t(params::clampedDesign(input.design))];
    const bool fullWidth = s.Position == 1;

    QJsonObject toolbar;
    toolbar.insert(QStringLiteral("id"), QStringLiteral("toolbar"));
    toolbar.insert(QStringLiteral("width"), QLatin1String(fullWidth ? "100%" : d.width));
    toolbar.insert(QStringLiteral("height"), QLatin1String(d.height));
    toolbar.insert(QStringLiteral("buttonwidth"), d.buttonWidth);
    toolbar.insert(QStringLiteral("buttonheight"), d.buttonHeight);
    toolbar.insert(QStringLiteral("spacing"), d.spacing);
    toolbar.insert(QStringLiteral("align"),
        QLatin1String(s.Position == 2 ? "leftbottom"
                : s.Position == 3     ? "rightbottom"
                                      : "bottom"));
    toolbar.insert(QStringLiteral("yoff"), s.ShowToolbar ? d.yoffShown : d.yoffHidden);
    toolbar.insert(QStringLiteral("hidestyle"), QString());
    toolbar.insert(QStringLiteral("style"),
        QLatin1String(fullWidth ? "" : d.maxWidth)
            + QLatin1String(s.ShowToolbar ? d.styleShown : d.styleHidden));
    params::insertText(toolbar, "buttonstyle", d.buttonStyle);
    params::insertText(toolbar, "buttonstylehover", d.buttonStyleHover);
    params::insertText(toolbar, "buttonstyleactive", d.buttonStyleActive);
    toolbar.insert(QStringLiteral("visible"), true);
    toolbar.insert(QStringLiteral("button"), toolbarButtons(actions, input));

    if (s.AddGallery) {
        QJsonObject gallery;
        params::writeGalleryElement(gallery, actions, input.design, s);
        toolbar.insert(QStringLiteral("galleryElement"), gallery);
    }
    if (s.AddMap) {
        QJsonObject map;
        if (params::mapKeyUsable(s))
            map = params::buildMapElement(actions, input.design, s);
        toolbar.insert(QStringLiteral("mapElement"), map);
    }
    return toolbar;
}

void writeToolbar(QJsonObject &controlsRoot, QJsonArray &actions, const ToolbarInput &input)
{
    controlsRoot.insert(QStringLiteral("buttonBox"), QJsonArray {buildToolbar(actions, input)});
}

QJsonArray buildFreeButtons(const ToolbarInput &input)
{
    const settings::ViewerSettings &s = *input.settings;
    QJsonArray buttons;
    appendShowTbButton(buttons, input.design, hideShowContext(s));
    if (s.AddVrMode && input.vrCapable)
        appendStereoButtons(buttons, input.design);
    if (s.AddGallery && s.GalleryButtons == 0)
        appendEdgeButtons(buttons, input.design, s.ShowToolbar);
    return buttons;
}

} // namespace vantora::controls
