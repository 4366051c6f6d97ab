// The viewer's right-click menu, built from the settings' menu entries.
#pragma once

#include "settings/viewersettings.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QList>

namespace vantora::params {

// Stores "contextmenu" in `controlsRoot`. The view items append their actions to `actions` (once
// per entry), captions go into `captionsDe` as English -> German. Gyroscope entries are left out
// without `gyroSupport`.
void buildContextMenu(QJsonObject &controlsRoot, QJsonArray &actions, QJsonObject &captionsDe,
    const QList<settings::ContextMenuItem> &entries, bool gyroSupport);

} // namespace vantora::params
