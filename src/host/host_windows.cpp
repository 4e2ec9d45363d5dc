#include "host/host_windows.h"

#include "host/alert_answers.h"

namespace rf::host {

std::int32_t HeadlessWindows::alert(const Text&, const Text&, std::int32_t buttons, std::int32_t)
{
    return static_cast<std::int32_t>(alertChoice(buttons).decline);
}

} // namespace rf::host
