#include "linux/rfhost/unattended_windows.h"

#include "host/alert_answers.h"

#include <ostream>

namespace rf::native {

std::int32_t UnattendedWindows::alert(
    const Text& title, const Text& message, std::int32_t buttons, std::int32_t /*icon*/)
{
    const host::AlertChoice choice = host::alertChoice(buttons);
    const host::AlertAnswer answer = acceptAlerts_ ? choice.agree : choice.decline;
    out_ << toUtf8(title) << ": " << toUtf8(replaceAll(message, lineBreak, u"\n")) << "\n["
         << toUtf8(host::nameOf(answer)) << "]" << std::endl;
    return static_cast<std::int32_t>(answer);
}

} // namespace rf::native
