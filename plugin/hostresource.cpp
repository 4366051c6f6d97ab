#include "hostresource.h"

#include "outputstage.h"

namespace vantora::plugin {

void exportHostResource(const HostContext *host, const QString &resource, const QString &target)
{
    if (!host || !host->exportResource)
        return;
    stage::writeByHost(target, [&](const QString &path) {
        host->exportResource(reinterpret_cast<const char16_t *>(resource.utf16()),
            reinterpret_cast<const char16_t *>(path.utf16()));
    });
}

} // namespace vantora::plugin
