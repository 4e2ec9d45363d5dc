#pragma once

#include "basic/text.h"
#include "host/ical_wall_time.h"

#include <functional>

namespace rf::host::ical {

/// The text of a rule with another time behind its UNTIL. A rule without one stays as it is, and so does one whose time
/// the function gives back as it got it.
[[nodiscard]] Text withUntil(TextView rule, const std::function<WrittenTime(const WrittenTime&)>& change);

} // namespace rf::host::ical
