#pragma once

#include "linux/dbus_bridge.h"

namespace rf::native::dbus {

// Names on the bus. Classes compare without regard to case and bus names with it, so a name that is not there in this
// spelling is looked for in any other.

/// The process that has a name; empty when none has.
[[nodiscard]] QString findOwner(Bridge& bridge, const QString& name);
/// The same, after its process has been started when need be.
[[nodiscard]] QString startOwner(Bridge& bridge, const QString& name);

} // namespace rf::native::dbus
