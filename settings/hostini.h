// The host's own INI file, "Vantora.INI", where the Google Maps API key outlives the dialog.
#pragma once

#include <QString>

namespace vantora::settings {

// The settings folder (ending in a separator) + "Vantora.INI".
QString hostIniPath(const QString &settingsFolder);

// "Maps"/"GAPIKey" as plain text; empty without a settings folder or key.
QString readMapsApiKey(const QString &settingsFolder);

// Keys shorter than 10 characters are no real key and are not stored. True when written.
bool storeMapsApiKey(const QString &settingsFolder, const QString &apiKey);

} // namespace vantora::settings
