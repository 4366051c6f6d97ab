// The map element ("map"), its three actions and its two marker pictures.
#pragma once

#include "settings/hostini.h"
#include "settings/viewersettings.h"

#include <vantora/host.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::params {

// Resource paths of the marker pictures and the names they get in the output folder.
constexpr char MARKER_RESOURCE[] = ":/marker/BMPS/hotspots/marker/marker_redorange.png";
constexpr char MARKER_ACTIVE_RESOURCE[] = ":/marker/BMPS/hotspots/marker/marker_lima.png";
constexpr char MARKER_FILE[] = "pap_marker_redorange.png";
constexpr char MARKER_ACTIVE_FILE[] = "pap_marker_lima.png";

// Whether the settings' key is one the map can work with.
bool mapKeyUsable(const settings::ViewerSettings &settings);

// The map element; appends "toggleMap", "hideMap" and "resizeMap" to `actions`. The element names
// the marker pictures, which exportMapMarkers() writes.
QJsonObject buildMapElement(
    QJsonArray &actions, int design, const settings::ViewerSettings &settings);

// Exports the two marker pictures through the host's resource exporter into `outputFolder` (which
// ends in a separator, or is empty for bare file names).
void exportMapMarkers(HostContext *host, const QString &outputFolder);

} // namespace vantora::params
