#include "host/alert_answers.h"

#include <array>

namespace rf::host {

using enum AlertAnswer;

AlertChoice alertChoice(std::int32_t buttons)
{
    // The object model counts the sets of buttons from 0.
    static const std::array<AlertChoice, 6> choices{
        {{{Ok}, Ok, Ok}, {{Ok, Cancel}, Ok, Cancel}, {{Abort, Retry, Ignore}, Retry, Abort},
            {{Yes, No, Cancel}, Yes, Cancel}, {{Yes, No}, Yes, No}, {{Retry, Cancel}, Retry, Cancel}}};
    const auto index = static_cast<std::size_t>(buttons);
    return index < choices.size() ? choices.at(index) : choices.front();
}

TextView nameOf(AlertAnswer answer)
{
    constexpr std::array<TextView, 8> names{u"", u"OK", u"Cancel", u"Abort", u"Retry", u"Ignore", u"Yes", u"No"};
    return names.at(static_cast<std::size_t>(answer));
}

} // namespace rf::host
