#pragma once

#include <functional>

namespace rf {

/// Gives a number from 0 up to but not including 1 at each call, every one as likely as any other.
using RandomNumbers = std::function<double()>;

/// Numbers that are others at each start of the program. They serve colours and choices, not secrets.
[[nodiscard]] RandomNumbers systemRandomNumbers();

} // namespace rf
