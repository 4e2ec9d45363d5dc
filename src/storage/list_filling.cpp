#include "storage/list_filling.h"

#include "diagnostics/pending_error.h"

#include <algorithm>

namespace rf {

void fillList(ui::ListControl& control, std::span<const Text> lines, TextView text)
{
    const Text shown = control.text();
    control.clear();
    for (const Text& line : lines)
        if (!trim(line).empty())
            control.addItem(line);
    const TextView wanted = text.empty() ? TextView{shown} : text;
    if (wanted.empty())
        return;
    // A list box refuses a text that is none of its lines.
    PendingError errors;
    errors.attempt([&] { control.setText(wanted); });
}

std::size_t randomPosition(const RandomNumbers& randomNumbers, std::size_t count)
{
    const auto position = static_cast<std::size_t>(randomNumbers() * static_cast<double>(count));
    return std::min(position, count - 1);
}

} // namespace rf
