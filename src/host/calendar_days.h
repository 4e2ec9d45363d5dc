#pragma once

#include "basic/date.h"

#include <vector>

namespace rf::host {

/// The ways to look at a calendar.
enum class CalendarView { Day, WorkWeek, Week, Month, List };

/// The days of the week as `Date::weekday` counts them.
inline constexpr int sunday = 1;
inline constexpr int monday = 2;

/// What a view shows: a row of days, in a month several rows of seven.
struct ShownDays {
    Date first;
    int count = 1;

    friend bool operator==(const ShownDays&, const ShownDays&) = default;
};

/// The days that a view shows around a day. A month is shown in six whole weeks, so that its rows keep their height.
/// A list shows the month.
[[nodiscard]] ShownDays shownDays(CalendarView view, Date day, int firstWeekday);

/// The day that is shown when a person goes on by a number of views, or back.
[[nodiscard]] Date steppedDay(CalendarView view, Date day, int steps);

/// The same day of another month; the last of a month stands for a day that it lacks.
[[nodiscard]] Date plusMonths(Date day, int months);

[[nodiscard]] std::vector<Date> daysOf(const ShownDays& shown);
/// The midnight behind the last day.
[[nodiscard]] Date endOf(const ShownDays& shown);
[[nodiscard]] bool isWeekend(Date day);

} // namespace rf::host
