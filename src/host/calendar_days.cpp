#include "host/calendar_days.h"

#include "host/appointment_times.h"

#include <algorithm>

namespace rf::host {

namespace {

constexpr int daysInWeek = 7;
constexpr int workDays = 5;
constexpr int weeksOfAMonth = 6;
constexpr int monthsInYear = 12;

/// The last day up to this one that is the first of its week.
Date weekBegin(Date day, int firstWeekday)
{
    return plusDays(day, -((day.weekday() - firstWeekday + daysInWeek) % daysInWeek));
}

Date monthBegin(Date day)
{
    const DateFields fields = day.fields();
    return Date::fromFields({.year = fields.year, .month = fields.month, .day = 1});
}

int daysInMonthOf(Date day)
{
    const DateFields fields = day.fields();
    return daysInMonth(fields.year, fields.month);
}

} // namespace

ShownDays shownDays(CalendarView view, Date day, int firstWeekday)
{
    const Date date = dayOf(day);
    switch (view) {
    case CalendarView::Day:
        break;
    case CalendarView::WorkWeek:
        // A Sunday belongs to the working week before it where weeks begin on Monday, else to the one behind it.
        return {plusDays(weekBegin(date, firstWeekday), firstWeekday == sunday ? 1 : 0), workDays};
    case CalendarView::Week:
        return {weekBegin(date, firstWeekday), daysInWeek};
    case CalendarView::Month:
        return {weekBegin(monthBegin(date), firstWeekday), weeksOfAMonth * daysInWeek};
    case CalendarView::List:
        return {monthBegin(date), daysInMonthOf(date)};
    }
    return {date, 1};
}

Date steppedDay(CalendarView view, Date day, int steps)
{
    switch (view) {
    case CalendarView::Day:
        break;
    case CalendarView::WorkWeek:
    case CalendarView::Week:
        return plusDays(day, steps * daysInWeek);
    case CalendarView::Month:
    case CalendarView::List:
        return plusMonths(day, steps);
    }
    return plusDays(day, steps);
}

Date plusMonths(Date day, int months)
{
    const DateFields fields = day.fields();
    const int month = fields.year * monthsInYear + fields.month - 1 + months;
    const int year = month / monthsInYear;
    const int inYear = month % monthsInYear + 1;
    return Date::fromFields({.year = year, .month = inYear, .day = std::min(fields.day, daysInMonth(year, inYear))});
}

std::vector<Date> daysOf(const ShownDays& shown)
{
    std::vector<Date> days;
    days.reserve(static_cast<std::size_t>(shown.count));
    for (int index = 0; index < shown.count; ++index)
        days.push_back(plusDays(shown.first, index));
    return days;
}

Date endOf(const ShownDays& shown) { return plusDays(shown.first, shown.count); }

bool isWeekend(Date day) { return day.weekday() == sunday || day.weekday() == daysInWeek; }

} // namespace rf::host
