// A settings record with every toolbar button, gallery and map on, and lookups into the toolbar.
#pragma once

#include "viewercontrols/toolbar.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::test {

struct Toolbar
{
    settings::ViewerSettings settings;
    controls::ToolbarInput input;
    QJsonArray actions;

    explicit Toolbar(int design = 0)
    {
        settings::resetViewerSettings(settings, true);
        settings.TBDesign = design;
        input.settings = &settings;
        input.design = design;
        input.vrCapable = true;
    }
    // Everything optional switched on; the gallery buttons sit in the toolbar.
    Toolbar &full()
    {
        settings.AddGallery = true;
        settings.GalleryButtons = 1;
        settings.AddMap = true;
        settings.GmAPIKey = QStringLiteral("0123456789");
        settings.HotspotsButton = true;
        settings.AddVrMode = true;
        settings.GyroButton = true;
        settings.AddGyro = true;
        settings.AddOrientation = true;
        settings.OrientationElement = 10; // the compass in the toolbar
        return *this;
    }
    QJsonObject toolbar() { return controls::buildToolbar(actions, input); }
    QJsonArray buttons() { return toolbar().value(QStringLiteral("button")).toArray(); }
};

// The button with "id" `key`, or with "type" `key` for the arrow and zoom buttons.
inline QJsonObject findButton(const QJsonArray &buttons, const QString &key)
{
    for (const QJsonValue &value : buttons) {
        const QJsonObject button = value.toObject();
        if (button.value(QStringLiteral("id")).toString() == key
            || QString::number(button.value(QStringLiteral("type")).toInt(-1)) == key)
            return button;
    }
    return QJsonObject();
}

// Ids (or "type N") of the buttons, blank-separated.
inline QString buttonNames(const QJsonArray &buttons)
{
    QStringList names;
    for (const QJsonValue &value : buttons) {
        const QJsonObject button = value.toObject();
        names << (button.contains(QStringLiteral("id"))
                ? button.value(QStringLiteral("id")).toString()
                : QStringLiteral("type")
                    + QString::number(button.value(QStringLiteral("type")).toInt()));
    }
    return names.join(QLatin1Char(' '));
}

} // namespace vantora::test
