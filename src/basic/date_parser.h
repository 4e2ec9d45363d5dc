#pragma once

#include "basic/pattern_regional.h"

namespace rf {

/// The date, the time or both that a text stands for under the settings; nothing when it is no date.
[[nodiscard]] std::optional<Date> readDate(const RegionalSettings& settings, TextView text);

} // namespace rf
