// The writers of the toolbar's buttons, one per kind. Each takes the design (0..7); a design
// outside that range leaves the fixed members without skins.
#pragma once

#include "buttonspecs.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::controls {

// The row's fixed members and handlers, and its skins by the family rule.
void writeSpecButton(QJsonObject &button, const ButtonSpec &spec, int design);

// `infoHtml64` is handed over with the button but the button never shows it itself: the info box
// is the data objects' job. `showInfoBox` opens the box on every scene change.
void writeInfoButton(QJsonObject &button, int design, const QString &infoHtml64, bool showInfoBox);
void writeHotspotsButton(QJsonObject &button, int design);
void appendArrowButtons(QJsonArray &buttons, int design); // types 1, 2, 3, 4
void appendZoomButtons(QJsonArray &buttons, int design);  // types 5, 6
void writePlayButton(QJsonObject &button, int design);
void writeVrButton(QJsonObject &button, int design);
void writeFullscreenButton(QJsonObject &button, int design);
void writeGalleryButton(QJsonObject &button, int design);
void writeMapButton(QJsonObject &button, int design);

// Plain, play and pause sets (audiobutton.cpp).
void writeAudioButton(QJsonObject &button, int design);

// Disabled and enabled sets; appends the "updateGyroButton" action (gyrobutton.cpp).
void writeGyroButton(QJsonObject &button, int design, QJsonArray &actions);

} // namespace vantora::controls
