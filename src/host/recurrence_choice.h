#pragma once

#include "basic/date.h"
#include "basic/text.h"

#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

namespace rf::host {

/// How an appointment repeats, as far as a person chooses it in a dialog.
struct RecurrenceChoice {
    enum class Unit { Day, Week, Month, Year };
    /// In a month or year: on the day of the appointment's date, or on a weekday such as the second Monday.
    enum class MonthDay { Date, Weekday };

    struct Never {
        friend bool operator==(const Never&, const Never&) = default;
    };
    /// After so many times, the first one included.
    struct After {
        int times = 1;
        friend bool operator==(const After&, const After&) = default;
    };
    /// With the last time on or before a day.
    struct Until {
        Date day;
        friend bool operator==(const Until&, const Until&) = default;
    };

    Unit unit = Unit::Week;
    int interval = 1;
    /// The days of a week by the object model's bits, from Sunday on; none stands for the day of the appointment.
    std::int32_t weekdays = 0;
    MonthDay monthDay = MonthDay::Date;
    std::variant<Never, After, Until> end;

    friend bool operator==(const RecurrenceChoice&, const RecurrenceChoice&) = default;
};

/// The bit of the weekday that a date is.
[[nodiscard]] std::int32_t weekdayBit(Date date);
/// Which of its weekday in the month a date is: 1 to 4, and -1 for the fifth, which stands for the last.
[[nodiscard]] int weekOfMonth(Date date);

/// The choice that a rule stands for; nothing for a rule that says more than the dialog can show, so that it is not
/// lost by looking at it.
[[nodiscard]] std::optional<RecurrenceChoice> choiceOf(TextView rule, Date start);
/// The rule of an appointment that begins then.
[[nodiscard]] Text ruleOf(const RecurrenceChoice& choice, Date start);
/// The first day from the appointment's own on that the choice gives it: the appointment moves there, since a series
/// begins with its first occurrence.
[[nodiscard]] Date firstStart(const RecurrenceChoice& choice, Date start);

/// The two ways to place a repetition in a month or year, as a person reads them: "day 14" and "the second Monday".
[[nodiscard]] std::pair<Text, Text> monthDayNames(RecurrenceChoice::Unit unit, Date start);
/// A sentence such as "Every 2 weeks on Monday and Friday, 10 times". Days are written by `formatDay`.
[[nodiscard]] Text describe(const RecurrenceChoice& choice, Date start, Text (*formatDay)(Date day));

} // namespace rf::host
