// The gallery's previous and next buttons: free-standing at the picture edges, or in the toolbar.
#pragma once

#include <QJsonArray>
#include <QJsonObject>

namespace vantora::controls {

// Appends "galleryBtnPrev", then "galleryBtnNext". `toolbarShown` (ShowToolbar) parks them
// beyond the edges while the toolbar starts hidden.
void appendEdgeButtons(QJsonArray &buttons, int design, bool toolbarShown);

// Fills `button` as "navLeftButton" (`right` clear) or "navRightButton", at toolbar `index`.
void writeToolbarGalleryButton(QJsonObject &button, int design, bool right, int index);

} // namespace vantora::controls
