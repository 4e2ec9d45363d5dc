#include "host/ical_rule.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace rf::host::ical {
namespace {

constexpr std::array<std::pair<std::string_view, Frequency>, 7> frequencies{{{"SECONDLY", Frequency::Secondly},
    {"MINUTELY", Frequency::Minutely}, {"HOURLY", Frequency::Hourly}, {"DAILY", Frequency::Daily},
    {"WEEKLY", Frequency::Weekly}, {"MONTHLY", Frequency::Monthly}, {"YEARLY", Frequency::Yearly}}};

constexpr std::array<std::string_view, 7> weekdayNames{"MO", "TU", "WE", "TH", "FR", "SA", "SU"};

/// A part that is a list of numbers: its name, where it goes, and what its numbers may be.
struct NumberList {
    std::string_view name;
    std::vector<int> Rule::*list;
    int least;
    int most;
    /// Whether -1 counts from the end.
    bool fromEnd;
};

constexpr std::array<NumberList, 8> numberLists{{
    {"BYMONTH", &Rule::months, 1, 12, false},
    {"BYWEEKNO", &Rule::weekNumbers, 1, 53, true},
    {"BYYEARDAY", &Rule::yearDays, 1, 366, true},
    {"BYMONTHDAY", &Rule::monthDays, 1, 31, true},
    {"BYHOUR", &Rule::hours, 0, 23, false},
    {"BYMINUTE", &Rule::minutes, 0, 59, false},
    {"BYSECOND", &Rule::seconds, 0, 60, false},
    {"BYSETPOS", &Rule::positions, 1, 366, true},
}};

constexpr std::size_t longestList = 1000;
constexpr std::int64_t mostWeeks = 53;

std::optional<std::int64_t> readNumber(std::string_view text)
{
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        if (text.starts_with('-')) {
            return std::nullopt;
        }
    }
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc{} && end == text.data() + text.size();
    return whole ? std::optional{number} : std::nullopt;
}

std::optional<int> readWeekday(std::string_view text)
{
    const auto* const found = std::find(weekdayNames.begin(), weekdayNames.end(), text);
    return found == weekdayNames.end() ? std::nullopt : std::optional{static_cast<int>(found - weekdayNames.begin())};
}

std::optional<WeekdayPosition> readWeekdayPosition(std::string_view text)
{
    if (text.size() < 2) {
        return std::nullopt;
    }
    const std::optional<int> weekday = readWeekday(text.substr(text.size() - 2));
    text.remove_suffix(2);
    const std::optional<std::int64_t> position = text.empty() ? 0 : readNumber(text);
    if (!weekday || !position || std::abs(*position) > mostWeeks || (*position == 0 && !text.empty())) {
        return std::nullopt;
    }
    return WeekdayPosition{.position = static_cast<int>(*position), .weekday = *weekday};
}

/// Reads one element after the other; false when one is none, or there are too many.
template <class Read>
bool readList(std::string_view text, const Read& read)
{
    for (std::size_t elements = 0; elements < longestList; ++elements) {
        const std::size_t comma = text.find(',');
        if (!read(text.substr(0, comma))) {
            return false;
        }
        if (comma == std::string_view::npos) {
            return true;
        }
        text.remove_prefix(comma + 1);
    }
    return false;
}

bool readNumbers(Rule& rule, const NumberList& part, std::string_view value)
{
    return readList(value, [&](std::string_view element) {
        const std::optional<std::int64_t> number = readNumber(element);
        if (!number || *number > part.most || *number < (part.fromEnd ? -part.most : part.least)
            || (part.fromEnd && *number == 0)) {
            return false;
        }
        (rule.*part.list).push_back(static_cast<int>(*number));
        return true;
    });
}

bool readUntil(Rule& rule, std::string_view value)
{
    const std::optional<WrittenTime> until = readTime(value);
    if (!until) {
        return false;
    }
    rule.until = until->isDate ? until->time + secondsPerDay - 1 : until->time;
    rule.untilIsUtc = until->isUtc;
    return true;
}

/// A whole number from 1 up.
bool readCount(std::int64_t& target, std::string_view value)
{
    constexpr std::int64_t most = 1'000'000'000;
    const std::optional<std::int64_t> number = readNumber(value);
    if (!number || *number < 1) {
        return false;
    }
    target = std::min(*number, most);
    return true;
}

bool readWeekdays(Rule& rule, std::string_view value)
{
    return readList(value, [&rule](std::string_view element) {
        const std::optional<WeekdayPosition> weekday = readWeekdayPosition(element);
        if (weekday) {
            rule.weekdays.push_back(*weekday);
        }
        return weekday.has_value();
    });
}

bool readFrequency(Rule& rule, std::string_view value)
{
    for (const auto& [name, frequency] : frequencies) {
        if (name == value) {
            rule.frequency = frequency;
            return true;
        }
    }
    return false;
}

bool readPart(Rule& rule, std::string_view name, std::string_view value)
{
    for (const NumberList& part : numberLists) {
        if (part.name == name) {
            return readNumbers(rule, part, value);
        }
    }
    if (name == "FREQ") {
        return readFrequency(rule, value);
    }
    if (name == "INTERVAL") {
        return readCount(rule.interval, value);
    }
    if (name == "COUNT") {
        return readCount(rule.count.emplace(), value);
    }
    if (name == "UNTIL") {
        return readUntil(rule, value);
    }
    if (name == "BYDAY") {
        return readWeekdays(rule, value);
    }
    if (name == "WKST") {
        const std::optional<int> weekday = readWeekday(value);
        rule.weekStart = weekday.value_or(0);
        return weekday.has_value();
    }
    // Whatever else calendar programs add is theirs alone, but another calendar's months would give other days.
    return name == "RSCALE" ? value == "GREGORIAN" : name == "SKIP" ? value == "OMIT" : name.starts_with("X-");
}

std::string upperAscii(TextView text)
{
    std::string result;
    for (const char16_t unit : text) {
        const bool isSmall = unit >= u'a' && unit <= u'z';
        result += static_cast<char>(isSmall ? unit - u'a' + u'A' : unit);
    }
    return result;
}

RuleFault fault(std::string_view part) { return {u"has a part that cannot be read: " + fromUtf8(part.substr(0, 100))}; }

} // namespace

std::variant<Rule, RuleFault> readRule(TextView text)
{
    constexpr std::size_t longestRule = 10'000;
    if (text.size() > longestRule) {
        return RuleFault{u"is too long"};
    }
    if (std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit < u' ' || unit > u'~'; })) {
        return RuleFault{u"has characters that no rule has"};
    }
    const std::string written = upperAscii(text);
    Rule rule;
    bool hasFrequency = false;
    for (std::string_view rest = written; !rest.empty();) {
        const std::string_view part = rest.substr(0, rest.find(';'));
        rest.remove_prefix(std::min(part.size() + 1, rest.size()));
        const std::size_t sign = part.find('=');
        if (sign == std::string_view::npos || !readPart(rule, part.substr(0, sign), part.substr(sign + 1))) {
            return fault(part);
        }
        hasFrequency = hasFrequency || part.starts_with("FREQ=");
    }
    if (!hasFrequency) {
        return RuleFault{u"does not say how often it repeats"};
    }
    return rule;
}

} // namespace rf::host::ical
