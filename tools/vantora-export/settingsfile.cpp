#include "settingsfile.h"

#include "settings/presetfile.h"
#include "settings/settingsblock.h"

namespace vantora::cli {

QByteArray settingsBlockFor(const CliOptions &options)
{
    if (options.settingsFile.isEmpty() && !options.title)
        return {};
    settings::ViewerSettings record;
    // A command-line host has no motion sensor of its own to offer the gyroscope for.
    settings::resetViewerSettings(record, false);
    if (!options.settingsFile.isEmpty())
        settings::applyPreset(settings::readPreset(options.settingsFile), record);
    if (options.title)
        record.Title64 = *options.title;
    return settings::encodeSettingsBlock(record);
}

} // namespace vantora::cli
