// A settings record with every toolbar button, gallery and map on, and lookups into the toolbar.
#pragma once

#include "viewercontrols/toolbar.h"
#include "viewerparams/paramsfixture.h"

namespace vantora::test {

struct Toolbar
{
    settings::ViewerSettings settings;
    controls::ToolbarInput input;
    QJsonArray actions;

    explicit Toolbar(int design = 0)
    {
        settings::resetViewerSettings(settings, true);
        settings.TBDesign = input.design = design;
        input.settings = &settings;
        input.vrCapable = true;
    }
    // Everything optional on: the gallery buttons in the toolbar, the compass at index 2.
    Toolbar &full()
    {
        settings::ViewerSettings &s = settings;
        s.AddGallery = s.AddMap = s.HotspotsButton = s.AddVrMode = true;
        s.GyroButton = s.AddGyro = s.AddOrientation = true;
        s.GalleryButtons = 1;
        s.OrientationElement = 10;
        s.GmAPIKey = QStringLiteral("0123456789");
        return *this;
    }
    QJsonObject toolbar() { return controls::buildToolbar(actions, input); }
    QJsonArray buttons() { return toolbar().value(QStringLiteral("button")).toArray(); }
};

// The button by its "id" ("typeN" for the arrow and zoom buttons); empty when there is none.
inline QJsonObject findButton(const QJsonArray &buttons, const QString &name)
{
    return buttons.at(idList(buttons).indexOf(name)).toObject();
}

} // namespace vantora::test
