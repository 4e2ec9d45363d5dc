#pragma once

#include "automation/class_registry.h"

namespace rf::test {

/// The classes that this platform has for every program: the scripting components.
[[nodiscard]] automation::ClassRegistry& platformClasses();

} // namespace rf::test
