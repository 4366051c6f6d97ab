#include "resources.h"

#include <QtGlobal>

// Q_INIT_RESOURCE must be used outside any namespace.
static void registerVantoraResources()
{
    Q_INIT_RESOURCE(vantora);
}

namespace vantora::resources {

void ensureRegistered()
{
    static const bool registered = (registerVantoraResources(), true);
    Q_UNUSED(registered)
}

} // namespace vantora::resources
