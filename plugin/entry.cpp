// The library's one exported symbol.
#include "commands.h"

#include <vantora/host.h>

extern "C" VANTORA_EXPORT uint64_t export_applet(
    uint32_t command, HostContext *host, uint64_t *inout)
{
    vantora::plugin::runCommand(command, host, inout);
    return 0;
}
