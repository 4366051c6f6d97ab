#include "buttons.h"

#include "viewerparams/tabletext.h"

namespace vantora::controls {
namespace {

QJsonObject specButton(const ButtonSpec &spec, int design)
{
    QJsonObject button;
    writeSpecButton(button, spec, design);
    return button;
}

} // namespace

void writeSpecButton(QJsonObject &button, const ButtonSpec &spec, int design)
{
    params::insertText(button, "id", spec.id);
    params::insertText(button, "align", spec.align);
    button.insert(QStringLiteral("xoff"), spec.xoff);
    button.insert(QStringLiteral("yoff"), spec.yoff);
    button.insert(QStringLiteral("index"), spec.index);
    button.insert(QStringLiteral("priority"), spec.priority);
    if (spec.startsHidden)
        button.insert(QStringLiteral("visible"), false);
    if (spec.type != 0)
        button.insert(QStringLiteral("type"), spec.type);
    params::insertText(button, "onclick", spec.onclick);
    params::insertText(button, "oninit", spec.oninit);
    params::insertText(button, "onscenechanged", spec.onscenechanged);
    writeFamilySkins(button, design, spec.tile, spec.quirks);
}

void writeInfoButton(QJsonObject &button, int design, const QString &infoHtml64, bool showInfoBox)
{
    Q_UNUSED(infoHtml64)
    writeSpecButton(button, INFO_BUTTON, design);
    params::insertText(
        button, "onscenechanged", showInfoBox ? INFO_ONSCENECHANGED_SHOW : INFO_ONSCENECHANGED);
}

void writeHotspotsButton(QJsonObject &button, int design)
{
    writeSpecButton(button, HOTSPOTS_BUTTON, design);
}

void appendArrowButtons(QJsonArray &buttons, int design)
{
    for (const ButtonSpec &spec : ARROW_BUTTONS)
        buttons.append(specButton(spec, design));
}

void appendZoomButtons(QJsonArray &buttons, int design)
{
    for (const ButtonSpec &spec : ZOOM_BUTTONS)
        buttons.append(specButton(spec, design));
}

void writePlayButton(QJsonObject &button, int design)
{
    writeSpecButton(button, PLAY_BUTTON, design);
}

void writeVrButton(QJsonObject &button, int design)
{
    writeSpecButton(button, VR_BUTTON, design);
}

void writeFullscreenButton(QJsonObject &button, int design)
{
    writeSpecButton(button, FULLSCREEN_BUTTON, design);
}

void writeGalleryButton(QJsonObject &button, int design)
{
    writeSpecButton(button, GALLERY_BUTTON, design);
}

void writeMapButton(QJsonObject &button, int design)
{
    writeSpecButton(button, MAP_BUTTON, design);
}

} // namespace vantora::controls
