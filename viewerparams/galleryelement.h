// The thumbnail strip of the tour gallery ("thumbnailGallery") and its two actions.
#pragma once

#include "settings/viewersettings.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vantora::params {

// Fills `element`; appends "toggleGallery" and "hideGallery" to `actions`.
void writeGalleryElement(QJsonObject &element, QJsonArray &actions, int design,
    const settings::ViewerSettings &settings);

} // namespace vantora::params
