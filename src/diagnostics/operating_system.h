#pragma once

#include "basic/system.h"

namespace rf {

/// The operating system's name as error reports show it: "Windows NT 5.1", "Windows 98", "Linux 6.1". Empty for a
/// platform id that is not known.
[[nodiscard]] Text fncGetOSName(const SystemVersion& version);

} // namespace rf
