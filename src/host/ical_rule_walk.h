#pragma once

#include "host/ical_rule.h"
#include "host/ical_rule_days.h"

#include <bitset>
#include <functional>
#include <span>
#include <vector>

namespace rf::host::ical {

/// Goes through the starts that a rule gives. It computes where the periods of the rule (its years, weeks, hours) lie
/// in an interval and looks into these only, so neither an early begin nor a rule that matches nothing takes it long.
class RuleWalk {
public:
    /// Answers whether to go on.
    using Sink = std::function<bool(Seconds)>;

    /// `steps` bounds the work of the whole object: the days, or the hours and less, that it looks at.
    RuleWalk(const Rule& rule, Seconds first, std::int64_t steps);

    /// Gives the sink the starts of a closed interval, in order, up to the rule's UNTIL and regardless of its COUNT.
    /// `from` does not lie before the first start. False when the bound was met before the end.
    bool walk(Seconds from, Seconds to, const Sink& sink);

private:
    /// A span of the day-wise frequencies: which days are looked at together.
    struct Period {
        Day first;
        Day last;
    };

    [[nodiscard]] std::int64_t periodOf(Day day) const;
    [[nodiscard]] Period period(std::int64_t number) const;
    void walkPeriods();
    void walkUnits();
    void walkHour(Seconds begin);
    /// The starts of one period are the times of the days, in order, `offset` later.
    void give(std::span<const Day> days, int offset);
    void giveAt(Seconds start);
    [[nodiscard]] std::vector<int> timesOfDay() const;
    /// The seconds into one unit of a frequency below a day.
    [[nodiscard]] std::vector<int> timesOfUnit() const;
    [[nodiscard]] bool matchesUnit(Seconds begin) const;
    /// Counts the work; false when there is nothing more to do or nothing more may be done.
    [[nodiscard]] bool mayGoOn(std::int64_t steps = 1);

    const Rule& rule_;
    Seconds first_;
    RuleDays days_;
    std::vector<int> times_;
    std::bitset<24> hours_;
    std::bitset<60> minutes_;
    std::bitset<60> seconds_;
    Seconds unit_ = 0;

    Seconds from_ = 0;
    Seconds to_ = 0;
    const Sink* sink_ = nullptr;
    bool goesOn_ = false;
    std::int64_t stepsLeft_;
    std::vector<Day> found_;
};

} // namespace rf::host::ical
