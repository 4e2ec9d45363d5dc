#pragma once

#include "basic/text.h"
#include "host/ical_wall_time.h"

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace rf::host::ical {

enum class Frequency { Secondly, Minutely, Hourly, Daily, Weekly, Monthly, Yearly };

/// "2MO" is the second Monday, "-1FR" the last Friday; position 0 is every one.
struct WeekdayPosition {
    int position = 0;
    /// 0 is Monday.
    int weekday = 0;

    friend bool operator==(const WeekdayPosition&, const WeekdayPosition&) = default;
};

/// A recurrence rule, each part as it is written; an empty list where the rule has no such part.
struct Rule {
    Frequency frequency = Frequency::Daily;
    std::int64_t interval = 1;
    std::optional<std::int64_t> count;
    /// The last moment at which an occurrence may start; of a date its last second.
    std::optional<Seconds> until;
    bool untilIsUtc = false;
    int weekStart = 0;
    std::vector<int> months;
    std::vector<int> weekNumbers;
    std::vector<int> yearDays;
    std::vector<int> monthDays;
    std::vector<WeekdayPosition> weekdays;
    std::vector<int> hours;
    std::vector<int> minutes;
    std::vector<int> seconds;
    std::vector<int> positions;
};

/// Why a rule cannot be followed: a clause that goes on from "its rule".
struct RuleFault {
    Text clause;
};

[[nodiscard]] std::variant<Rule, RuleFault> readRule(TextView text);

} // namespace rf::host::ical
