#pragma once

#include "basic/regional.h"

#include <memory>

namespace rf::native {

/// The regional settings of this system: OLE Automation's conversions under the user's locale.
[[nodiscard]] std::unique_ptr<Regional> makeRegional();

/// The same conversions under a given locale id, for a reader who is not the user.
[[nodiscard]] std::unique_ptr<Regional> makeRegional(std::uint32_t localeId);

} // namespace rf::native
