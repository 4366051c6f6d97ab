#include "hostini.h"

#include "inivalues.h"
#include "plugin/platform/platform.h"

namespace vantora::settings {
namespace {

const QString MAPS = QStringLiteral("Maps");
const QString GAPI_KEY = QStringLiteral("GAPIKey");

} // namespace

QString hostIniPath(const QString &settingsFolder)
{
    return settingsFolder + QStringLiteral("Vantora.INI");
}

QString readMapsApiKey(const QString &settingsFolder)
{
    if (settingsFolder.isEmpty())
        return QString();
    return platform::profileString(hostIniPath(settingsFolder), MAPS, GAPI_KEY, QString());
}

bool storeMapsApiKey(const QString &settingsFolder, const QString &apiKey)
{
    if (settingsFolder.isEmpty() || apiKey.size() < MIN_MAP_KEY_LENGTH)
        return false;
    return writeIniString(hostIniPath(settingsFolder), MAPS, GAPI_KEY, apiKey);
}

} // namespace vantora::settings
