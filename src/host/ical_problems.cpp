#include "host/ical_problems.h"

#include <algorithm>
#include <utility>

namespace rf::host::ical {

void Problems::add(std::size_t line, Text sentence)
{
    if (problems_.size() < most) {
        problems_.push_back({.line = line, .sentence = std::move(sentence)});
    } else {
        isFull_ = true;
    }
}

std::vector<CalendarProblem> Problems::take()
{
    std::stable_sort(problems_.begin(), problems_.end(),
        [](const CalendarProblem& left, const CalendarProblem& right) { return left.line < right.line; });
    if (std::exchange(isFull_, false)) {
        problems_.push_back({.line = 0, .sentence = u"There is more that could not be read."});
    }
    return std::exchange(problems_, {});
}

} // namespace rf::host::ical
