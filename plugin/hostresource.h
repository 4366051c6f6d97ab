// The host's resource exporter, called the way every file of an export is written.
#pragma once

#include <vantora/host.h>

#include <QString>

namespace vantora::plugin {

// Has the host write its resource `resource` (":...") as the file `target`: staged with the
// export's own files while a stage is open, never over one of the export's reserved names.
// Nothing happens when the host offers no resource exporter.
void exportHostResource(const HostContext *host, const QString &resource, const QString &target);

} // namespace vantora::plugin
