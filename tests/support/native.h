#pragma once

#include "automation/class_registry.h"

#include <string_view>

namespace rf::test {

/// The phrase table that is built into the program, read the way this platform reads it.
[[nodiscard]] std::string_view builtInLanguageTable();

} // namespace rf::test
