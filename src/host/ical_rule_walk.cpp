#include "host/ical_rule_walk.h"

#include "basic/date.h"

#include <algorithm>

namespace rf::host::ical {
namespace {

/// The list, or the one value that the first start gives where the rule has none; in order, each once.
std::vector<int> orElse(std::vector<int> list, int value, int most)
{
    if (list.empty()) {
        list.push_back(value);
    }
    for (int& number : list) {
        number = std::min(number, most);
    }
    std::sort(list.begin(), list.end());
    list.erase(std::unique(list.begin(), list.end()), list.end());
    return list;
}

template <std::size_t size>
std::bitset<size> allowed(const std::vector<int>& list)
{
    std::bitset<size> numbers;
    for (const int number : list) {
        numbers.set(std::min(static_cast<std::size_t>(number), size - 1));
    }
    return list.empty() ? numbers.set() : numbers;
}

Seconds unitOf(Frequency frequency)
{
    return frequency == Frequency::Secondly ? 1 : frequency == Frequency::Minutely ? 60 : 3600;
}

} // namespace

RuleWalk::RuleWalk(const Rule& rule, Seconds first, std::int64_t steps)
    : rule_(rule)
    , first_(first)
    , days_(rule, dayOf(first))
    , hours_(allowed<24>(rule.hours))
    , minutes_(allowed<60>(rule.minutes))
    , seconds_(allowed<60>(rule.seconds))
    , unit_(unitOf(rule.frequency))
    , stepsLeft_(steps)
{
    times_ = rule_.frequency < Frequency::Daily ? timesOfUnit() : timesOfDay();
}

std::vector<int> RuleWalk::timesOfDay() const
{
    const int time = timeOfDay(first_);
    std::vector<int> times;
    for (const int hour : orElse(rule_.hours, time / 3600, 23)) {
        for (const int minute : orElse(rule_.minutes, time / 60 % 60, 59)) {
            for (const int second : orElse(rule_.seconds, time % 60, 59)) {
                times.push_back(hour * 3600 + minute * 60 + second);
            }
        }
    }
    return times;
}

std::vector<int> RuleWalk::timesOfUnit() const
{
    const int time = timeOfDay(first_);
    std::vector<int> times;
    if (rule_.frequency == Frequency::Secondly) {
        return {0};
    }
    const std::vector<int> minutes
        = rule_.frequency == Frequency::Hourly ? orElse(rule_.minutes, time / 60 % 60, 59) : std::vector<int>{0};
    for (const int minute : minutes) {
        for (const int second : orElse(rule_.seconds, time % 60, 59)) {
            times.push_back(minute * 60 + second);
        }
    }
    return times;
}

bool RuleWalk::walk(Seconds from, Seconds to, const Sink& sink)
{
    from_ = std::max(from, first_);
    to_ = std::min({to, rule_.until.value_or(to), lastSecond()});
    sink_ = &sink;
    goesOn_ = from_ <= to_;
    if (rule_.frequency < Frequency::Daily) {
        walkUnits();
    } else {
        walkPeriods();
    }
    return stepsLeft_ > 0;
}

bool RuleWalk::mayGoOn(std::int64_t steps)
{
    stepsLeft_ -= steps;
    goesOn_ = goesOn_ && stepsLeft_ > 0;
    return goesOn_;
}

std::int64_t RuleWalk::periodOf(Day day) const
{
    switch (rule_.frequency) {
    case Frequency::Yearly:
        return civil(day).year;
    case Frequency::Monthly: {
        const Civil date = civil(day);
        return std::int64_t{date.year} * 12 + date.month - 1;
    }
    case Frequency::Weekly:
        return floorDivide(days_.weekBegin(day) - rule_.weekStart + 5, 7);
    default:
        return day;
    }
}

RuleWalk::Period RuleWalk::period(std::int64_t number) const
{
    switch (rule_.frequency) {
    case Frequency::Yearly: {
        const auto year = static_cast<int>(number);
        return {.first = dayNumber(year, 1, 1), .last = dayNumber(year, 12, 31)};
    }
    case Frequency::Monthly: {
        const auto year = static_cast<int>(number / 12);
        const auto month = static_cast<int>(number % 12) + 1;
        const Day first = dayNumber(year, month, 1);
        return {.first = first, .last = first + daysInMonth(year, month) - 1};
    }
    case Frequency::Weekly: {
        const Day first = number * 7 + rule_.weekStart - 5;
        return {.first = first, .last = first + 6};
    }
    default:
        return {.first = number, .last = number};
    }
}

void RuleWalk::walkPeriods()
{
    const std::int64_t begin = periodOf(dayOf(first_));
    const std::int64_t end = periodOf(dayOf(to_));
    const std::int64_t passed = (periodOf(dayOf(from_)) - begin + rule_.interval - 1) / rule_.interval;
    for (std::int64_t number = begin + passed * rule_.interval; goesOn_ && number <= end; number += rule_.interval) {
        const Period days = period(number);
        found_.clear();
        if (rule_.frequency == Frequency::Yearly) {
            days_.collectYear(static_cast<int>(number), found_);
        } else {
            days_.collect(days.first, days.last, found_);
        }
        if (mayGoOn(days.last - days.first + 1)) {
            give(found_, 0);
        }
    }
}

void RuleWalk::walkUnits()
{
    for (Day day = dayOf(from_); goesOn_ && day <= dayOf(to_); ++day) {
        if (!mayGoOn() || !days_.matches(day)) {
            continue;
        }
        for (std::size_t hour = 0; hour < hours_.size(); ++hour) {
            const Seconds begin = day * secondsPerDay + static_cast<Seconds>(hour) * 3600;
            if (hours_.test(hour) && begin <= to_ && begin + 3600 > from_ && goesOn_) {
                walkHour(begin);
            }
        }
    }
}

void RuleWalk::walkHour(Seconds begin)
{
    const std::int64_t firstUnit = floorDivide(first_, unit_);
    const std::int64_t perHour = 3600 / unit_;
    const std::int64_t ahead = std::max(floorDivide(begin, unit_) - firstUnit, std::int64_t{0});
    const std::int64_t steps = (ahead + rule_.interval - 1) / rule_.interval;
    std::int64_t unit = firstUnit + steps * rule_.interval;
    for (; unit < floorDivide(begin, unit_) + perHour && mayGoOn(); unit += rule_.interval) {
        if (matchesUnit(unit * unit_)) {
            const Day day = dayOf(unit * unit_);
            give({&day, 1}, timeOfDay(unit * unit_));
        }
    }
}

bool RuleWalk::matchesUnit(Seconds begin) const
{
    const auto time = static_cast<std::size_t>(timeOfDay(begin));
    return (rule_.frequency == Frequency::Hourly || minutes_.test(time / 60 % 60))
        && (rule_.frequency != Frequency::Secondly || seconds_.test(time % 60));
}

void RuleWalk::give(std::span<const Day> days, int offset)
{
    const auto perDay = static_cast<std::int64_t>(times_.size());
    const auto giveNumber = [&](std::int64_t number) {
        giveAt(days[static_cast<std::size_t>(number / perDay)] * secondsPerDay + offset
            + times_[static_cast<std::size_t>(number % perDay)]);
    };
    const std::int64_t total = static_cast<std::int64_t>(days.size()) * perDay;
    if (rule_.positions.empty()) {
        // Whole days outside the interval are passed over: a year may have its every second in it.
        const auto begin = std::lower_bound(days.begin(), days.end(), dayOf(from_)) - days.begin();
        const auto end = std::upper_bound(days.begin(), days.end(), dayOf(to_)) - days.begin();
        for (std::int64_t number = begin * perDay; number < end * perDay && mayGoOn(); ++number) {
            giveNumber(number);
        }
        return;
    }
    std::vector<std::int64_t> chosen;
    for (const int position : rule_.positions) {
        const std::int64_t number = position > 0 ? position - 1 : total + position;
        if (number >= 0 && number < total) {
            chosen.push_back(number);
        }
    }
    std::sort(chosen.begin(), chosen.end());
    chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
    std::for_each(chosen.begin(), chosen.end(), giveNumber);
}

void RuleWalk::giveAt(Seconds start)
{
    if (goesOn_ && start >= from_ && start <= to_) {
        goesOn_ = (*sink_)(start);
    }
}

} // namespace rf::host::ical
