#pragma once

#include "host/calendar_file.h"

#include <cstddef>
#include <vector>

namespace rf::host::ical {

/// Gathers what is to be said of a text. A text that is broken on every line is described by its first lines.
class Problems {
public:
    static constexpr std::size_t most = 1000;

    void add(std::size_t line, Text sentence);
    /// In the order of their lines.
    [[nodiscard]] std::vector<CalendarProblem> take();

private:
    std::vector<CalendarProblem> problems_;
    bool isFull_ = false;
};

} // namespace rf::host::ical
