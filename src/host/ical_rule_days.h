#pragma once

#include "host/ical_rule.h"

#include <bitset>
#include <vector>

namespace rf::host::ical {

/// The days that a rule means. What it leaves open is as on the day of the first start: a yearly rule without any day
/// is that day of that month.
class RuleDays {
public:
    RuleDays(const Rule& rule, Day first);

    [[nodiscard]] bool matches(Day day) const;
    /// The matching days of a closed interval, in order.
    void collect(Day first, Day last, std::vector<Day>& days) const;
    /// The matching days of a year; as `collect`, passing over whole months.
    void collectYear(int year, std::vector<Day>& days) const;
    /// The first day of the week that the day lies in, as the rule counts weeks.
    [[nodiscard]] Day weekBegin(Day day) const;

private:
    /// Numbers that count from the begin of something, and from its end.
    template <std::size_t size>
    struct Numbers {
        std::bitset<size> fromBegin;
        std::bitset<size> fromEnd;
        bool any = false;

        void add(int number);
        /// Whether the position-th of `count` is meant.
        [[nodiscard]] bool has(int position, int count) const;
    };

    void fillIn(const Rule& rule, Day first);
    [[nodiscard]] bool matchesWeekday(Day day, const Civil& date) const;
    [[nodiscard]] bool matchesWeekNumber(Day day) const;

    Frequency frequency_;
    int weekStart_;
    Numbers<12 + 1> months_;
    Numbers<31 + 1> monthDays_;
    Numbers<366 + 1> yearDays_;
    Numbers<53 + 1> weekNumbers_;
    std::vector<WeekdayPosition> weekdays_;
    /// Whether "the second Monday" is that of the month; of the year if not.
    bool positionsInMonth_;
    bool hasPositions_;
};

} // namespace rf::host::ical
