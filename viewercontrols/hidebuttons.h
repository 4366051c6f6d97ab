// The two buttons that hide the toolbar (inside it) and bring it back (free-standing).
#pragma once

#include "settings/viewersettings.h"

#include <QJsonArray>
#include <QJsonObject>

namespace vantora::controls {

// What the hide and show handlers must move along with the toolbar.
struct HideShowContext
{
    bool toolbarShown = true; // ShowToolbar: the state the viewer starts in
    bool gallery = false;     // AddGallery: gallery strip and its edge buttons
    bool map = false;         // AddMap
};

HideShowContext hideShowContext(const settings::ViewerSettings &settings);

// Fills `button` as the "hideTbButton" (toolbar index 1).
void writeHideTbButton(QJsonObject &button, int design, const HideShowContext &context);

// Appends the free-standing "showTbButton".
void appendShowTbButton(QJsonArray &buttons, int design, const HideShowContext &context);

} // namespace vantora::controls
