#pragma once

#include "automation/object.h"

namespace rf::native {

/// The management service that Windows has under the display name "winmgmts:", for a system that has none, as far as
/// the program uses it: the instances of "win32_process" are this user's processes, the own one last, and deleting one
/// ends that process. Answers nothing for another display name.
[[nodiscard]] automation::Object makeManagementService(TextView displayName);

} // namespace rf::native
