// The host's own INI file, "Vantora.INI", where the Google Maps API key outlives the dialog.
#pragma once

#include <QString>

namespace vantora::settings {

// The settings folder (ending in a separator) + "Vantora.INI".
QString hostIniPath(const QString &settingsFolder);

// "Maps"/"GAPIKey" as plain text; empty without a settings folder or key.
QString readMapsApiKey(const QString &settingsFolder);

// Google Maps refuses shorter keys: they are not stored, and with one the map stays empty.
constexpr int MIN_MAP_KEY_LENGTH = 10;

// Keys shorter than MIN_MAP_KEY_LENGTH are no real key and are not stored. True when written.
bool storeMapsApiKey(const QString &settingsFolder, const QString &apiKey);

} // namespace vantora::settings
