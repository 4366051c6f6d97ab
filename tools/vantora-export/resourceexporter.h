// The host's resource exporter: writes a picture compiled into this tool to a file.
#pragma once

#include <QString>

namespace vantora::cli {

// Writes resource `resourcePath` (":/...") to `targetPath`, replacing the file. False when the
// resource does not exist or the file cannot be written.
bool exportResource(const QString &resourcePath, const QString &targetPath);

// Whether the tool carries `resourcePath`: what the hotspot file may name.
bool hasResource(const QString &resourcePath);

} // namespace vantora::cli
