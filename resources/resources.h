// The pictures compiled into the library (vantora.qrc).
#pragma once

namespace vantora::resources {

// Makes the library's resources reachable under ":/"; safe to call any number of times. Needed
// because the resources live in a static library whose initialiser the linker may drop.
void ensureRegistered();

} // namespace vantora::resources
