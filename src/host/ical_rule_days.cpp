#include "host/ical_rule_days.h"

#include "basic/date.h"

#include <algorithm>
#include <cstdlib>

namespace rf::host::ical {

template <std::size_t size>
void RuleDays::Numbers<size>::add(int number)
{
    (number > 0 ? fromBegin : fromEnd).set(static_cast<std::size_t>(std::abs(number)));
    any = true;
}

template <std::size_t size>
bool RuleDays::Numbers<size>::has(int position, int count) const
{
    return !any || fromBegin.test(static_cast<std::size_t>(position))
        || fromEnd.test(static_cast<std::size_t>(count) - static_cast<std::size_t>(position) + 1);
}

RuleDays::RuleDays(const Rule& rule, Day first)
    : frequency_(rule.frequency)
    , weekStart_(rule.weekStart)
    , weekdays_(rule.weekdays)
    , positionsInMonth_(rule.frequency == Frequency::Monthly || !rule.months.empty())
    // Within a week or a numbered week every weekday is the only one of its name.
    , hasPositions_(
          rule.frequency == Frequency::Monthly || (rule.frequency == Frequency::Yearly && rule.weekNumbers.empty()))
{
    const auto addAll = [](auto& numbers, const std::vector<int>& list) {
        for (const int number : list) {
            numbers.add(number);
        }
    };
    addAll(months_, rule.months);
    addAll(monthDays_, rule.monthDays);
    addAll(yearDays_, rule.yearDays);
    addAll(weekNumbers_, rule.weekNumbers);
    fillIn(rule, first);
}

void RuleDays::fillIn(const Rule& rule, Day first)
{
    const bool namesDays = !rule.monthDays.empty() || !rule.yearDays.empty() || !rule.weekdays.empty();
    if (namesDays || frequency_ < Frequency::Weekly) {
        return;
    }
    if (frequency_ == Frequency::Weekly || (frequency_ == Frequency::Yearly && weekNumbers_.any)) {
        weekdays_.push_back({.weekday = weekday(first)});
        return;
    }
    const Civil date = civil(first);
    monthDays_.add(date.day);
    if (frequency_ == Frequency::Yearly && !months_.any) {
        months_.add(date.month);
    }
}

Day RuleDays::weekBegin(Day day) const { return day - (weekday(day) - weekStart_ + 7) % 7; }

bool RuleDays::matchesWeekNumber(Day day) const
{
    // A week belongs to the year that has most of its days, and so its fourth; 28 December lies in the last week.
    constexpr int fourth = 3;
    const Day middle = weekBegin(day) + fourth;
    const int year = civil(middle).year;
    const Day firstDay = dayNumber(year, 1, 1);
    const Day lastMiddle = weekBegin(dayNumber(year, 12, 28)) + fourth;
    return weekNumbers_.has(
        static_cast<int>((middle - firstDay) / 7) + 1, static_cast<int>((lastMiddle - firstDay) / 7) + 1);
}

bool RuleDays::matchesWeekday(Day day, const Civil& date) const
{
    const auto matchesOne = [&](const WeekdayPosition& wanted) {
        if (wanted.weekday != weekday(day)) {
            return false;
        }
        if (wanted.position == 0 || !hasPositions_) {
            return true;
        }
        const Day first = positionsInMonth_ ? day - date.day + 1 : dayNumber(date.year, 1, 1);
        const Day last
            = positionsInMonth_ ? first + daysInMonth(date.year, date.month) - 1 : dayNumber(date.year, 12, 31);
        return wanted.position > 0 ? (day - first) / 7 + 1 == wanted.position
                                   : (last - day) / 7 + 1 == -wanted.position;
    };
    return weekdays_.empty() || std::any_of(weekdays_.begin(), weekdays_.end(), matchesOne);
}

bool RuleDays::matches(Day day) const
{
    const Civil date = civil(day);
    if (!months_.has(date.month, 12)
        || (monthDays_.any && !monthDays_.has(date.day, daysInMonth(date.year, date.month)))) {
        return false;
    }
    if (yearDays_.any) {
        const Day first = dayNumber(date.year, 1, 1);
        const auto length = static_cast<int>(dayNumber(date.year, 12, 31) - first) + 1;
        if (!yearDays_.has(static_cast<int>(day - first) + 1, length)) {
            return false;
        }
    }
    return matchesWeekday(day, date) && (!weekNumbers_.any || matchesWeekNumber(day));
}

void RuleDays::collect(Day first, Day last, std::vector<Day>& days) const
{
    for (Day day = first; day <= last; ++day) {
        if (matches(day)) {
            days.push_back(day);
        }
    }
}

void RuleDays::collectYear(int year, std::vector<Day>& days) const
{
    for (int month = 1; month <= 12; ++month) {
        if (months_.has(month, 12)) {
            const Day first = dayNumber(year, month, 1);
            collect(first, first + daysInMonth(year, month) - 1, days);
        }
    }
}

} // namespace rf::host::ical
