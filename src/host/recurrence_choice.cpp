#include "host/recurrence_choice.h"

#include <algorithm>
#include <array>
#include <map>
#include <vector>

namespace rf::host {

namespace {

using Unit = RecurrenceChoice::Unit;
using MonthDay = RecurrenceChoice::MonthDay;

constexpr int daysInWeek = 7;
constexpr int lastCountedWeek = 4;

struct UnitName {
    TextView frequency;
    TextView one;
    TextView many;
};
constexpr std::array<UnitName, 4> units{{{u"DAILY", u"day", u"days"}, {u"WEEKLY", u"week", u"weeks"},
    {u"MONTHLY", u"month", u"months"}, {u"YEARLY", u"year", u"years"}}};
constexpr std::array<TextView, daysInWeek> dayCodes{u"SU", u"MO", u"TU", u"WE", u"TH", u"FR", u"SA"};
constexpr std::array<TextView, daysInWeek> dayNames{
    u"Sunday", u"Monday", u"Tuesday", u"Wednesday", u"Thursday", u"Friday", u"Saturday"};
constexpr std::array<TextView, lastCountedWeek + 1> weekNames{u"last", u"first", u"second", u"third", u"fourth"};

constexpr std::array<TextView, 12> monthNames{u"January", u"February", u"March", u"April", u"May", u"June", u"July",
    u"August", u"September", u"October", u"November", u"December"};

using Parts = std::map<Text, Text>;

Parts partsOf(TextView rule)
{
    Parts parts;
    for (const Text& part : split(rule, u";"))
        if (const auto equals = part.find(u'='); equals != Text::npos)
            parts[upper(TextView{part}.substr(0, equals))] = upper(TextView{part}.substr(equals + 1));
    return parts;
}

/// Takes a part out, so that in the end those are left that the dialog does not know.
Text take(Parts& parts, TextView name)
{
    const auto part = parts.extract(Text{name});
    return part.empty() ? Text{} : part.mapped();
}

std::optional<int> numberIn(TextView digits)
{
    constexpr std::size_t mostDigits = 8;
    if (digits.empty() || digits.size() > mostDigits)
        return std::nullopt;
    int value = 0;
    for (const char16_t digit : digits) {
        if (digit < u'0' || digit > u'9')
            return std::nullopt;
        value = value * 10 + (digit - u'0');
    }
    return value;
}

std::optional<Date> dayIn(TextView until)
{
    constexpr std::size_t dateLength = 8;
    constexpr std::size_t yearLength = 4;
    if (until.size() < dateLength)
        return std::nullopt;
    const auto year = numberIn(until.substr(0, yearLength));
    const auto rest = numberIn(until.substr(yearLength, yearLength));
    if (!year || !rest)
        return std::nullopt;
    constexpr int hundred = 100;
    return Date::fromFields({.year = *year, .month = *rest / hundred, .day = *rest % hundred});
}

/// The days of a week; nothing when one of them is none, or one of a month.
std::optional<std::int32_t> weekdaysIn(TextView days)
{
    std::int32_t mask = 0;
    for (const Text& day : split(days, u",")) {
        const auto found = std::ranges::find(dayCodes, TextView{day});
        if (found == dayCodes.end())
            return std::nullopt;
        mask |= 1 << (found - dayCodes.begin());
    }
    return mask;
}

Text positionedDay(Date start)
{
    return decimal(weekOfMonth(start)) + Text{dayCodes.at(static_cast<std::size_t>(start.weekday() - 1))};
}

/// Whether the day parts of a rule are understood.
bool takeDays(Parts& parts, RecurrenceChoice& choice, Date start)
{
    const Text days = take(parts, u"BYDAY");
    if (choice.unit == Unit::Week) {
        const auto mask = weekdaysIn(days);
        choice.weekdays = mask.value_or(0);
        take(parts, u"WKST");
        return mask.has_value();
    }
    const DateFields date = start.fields();
    const Text monthDay = take(parts, u"BYMONTHDAY");
    const Text month = take(parts, u"BYMONTH");
    if (!days.empty())
        choice.monthDay = MonthDay::Weekday;
    const bool inMonths = choice.unit == Unit::Month || choice.unit == Unit::Year;
    const bool inYear = choice.unit == Unit::Year;
    return (days.empty() || (inMonths && days == positionedDay(start) && (!inYear || !month.empty())))
        && (monthDay.empty() || (inMonths && monthDay == decimal(date.day)))
        && (month.empty() || (inYear && month == decimal(date.month)));
}

bool takeEnd(Parts& parts, RecurrenceChoice& choice)
{
    const Text count = take(parts, u"COUNT");
    const Text until = take(parts, u"UNTIL");
    const auto times = numberIn(count);
    const auto day = dayIn(until);
    if (times)
        choice.end = RecurrenceChoice::After{*times};
    else if (day)
        choice.end = RecurrenceChoice::Until{*day};
    return (count.empty() || times) && (until.empty() || day);
}

Text padded(int number, std::size_t width)
{
    const Text digits = decimal(number);
    return Text(width - std::min(width, digits.size()), u'0') + digits;
}

Text untilOf(Date day)
{
    constexpr std::size_t yearWidth = 4;
    const DateFields fields = day.fields();
    return padded(fields.year, yearWidth) + padded(fields.month, 2) + padded(fields.day, 2) + u"T235959";
}

/// "Monday", "Monday and Friday", "Monday, Tuesday and Friday".
Text listOf(const std::vector<Text>& names)
{
    if (names.size() < 2)
        return names.empty() ? Text{} : names.front();
    const std::span all{names};
    return join(all.first(names.size() - 1), u", ") + u" and " + names.back();
}

Text weekdayNames(std::int32_t mask)
{
    std::vector<Text> names;
    // A week is read out from its Monday on.
    for (std::size_t index = 1; index <= dayNames.size(); ++index)
        if ((mask >> index % dayNames.size() & 1) != 0)
            names.emplace_back(dayNames.at(index % dayNames.size()));
    return listOf(names);
}

Text weekdayInMonth(Date start)
{
    const auto week = static_cast<std::size_t>(std::max(weekOfMonth(start), 0));
    return u"the " + Text{weekNames.at(week)} + u" " + Text{dayNames.at(static_cast<std::size_t>(start.weekday() - 1))};
}

Text dayWords(const RecurrenceChoice& choice, Date start)
{
    if (choice.unit == Unit::Week)
        return u" on " + weekdayNames(choice.weekdays == 0 ? weekdayBit(start) : choice.weekdays);
    if (choice.unit == Unit::Day)
        return {};
    const auto [date, weekday] = monthDayNames(choice.unit, start);
    return u" on " + (choice.monthDay == MonthDay::Date ? date : weekday);
}

Text endWords(const RecurrenceChoice& choice, Text (*formatDay)(Date day))
{
    if (const auto* after = std::get_if<RecurrenceChoice::After>(&choice.end))
        return after->times == 1 ? Text{u", once"} : u", " + decimal(after->times) + u" times";
    if (const auto* until = std::get_if<RecurrenceChoice::Until>(&choice.end))
        return u", until " + formatDay(until->day);
    return {};
}

} // namespace

std::int32_t weekdayBit(Date date) { return 1 << (date.weekday() - 1); }

int weekOfMonth(Date date)
{
    const int week = (date.fields().day - 1) / daysInWeek + 1;
    return week > lastCountedWeek ? -1 : week;
}

std::optional<RecurrenceChoice> choiceOf(TextView rule, Date start)
{
    Parts parts = partsOf(rule);
    const auto unit = std::ranges::find(units, TextView{take(parts, u"FREQ")}, &UnitName::frequency);
    if (unit == units.end())
        return std::nullopt;
    RecurrenceChoice choice;
    choice.unit = static_cast<Unit>(unit - units.begin());
    const Text interval = take(parts, u"INTERVAL");
    choice.interval = numberIn(interval).value_or(1);
    const bool understood = takeDays(parts, choice, start) && takeEnd(parts, choice);
    return understood && parts.empty() && (interval.empty() || numberIn(interval)) ? std::optional{choice}
                                                                                   : std::nullopt;
}

Text ruleOf(const RecurrenceChoice& choice, Date start)
{
    Text rule = u"FREQ=" + Text{units.at(static_cast<std::size_t>(choice.unit)).frequency};
    if (choice.interval > 1)
        rule += u";INTERVAL=" + decimal(choice.interval);
    if (choice.unit == Unit::Week && choice.weekdays != 0) {
        std::vector<Text> days;
        for (std::size_t index = 0; index < dayCodes.size(); ++index)
            if ((choice.weekdays >> index & 1) != 0)
                days.emplace_back(dayCodes.at(index));
        rule += u";BYDAY=" + join(days, u",");
    }
    const bool inMonths = choice.unit == Unit::Month || choice.unit == Unit::Year;
    if (inMonths && choice.monthDay == MonthDay::Weekday) {
        rule += choice.unit == Unit::Year ? u";BYMONTH=" + decimal(start.fields().month) : Text{};
        rule += u";BYDAY=" + positionedDay(start);
    }
    if (const auto* after = std::get_if<RecurrenceChoice::After>(&choice.end))
        rule += u";COUNT=" + decimal(after->times);
    if (const auto* until = std::get_if<RecurrenceChoice::Until>(&choice.end))
        rule += u";UNTIL=" + untilOf(until->day);
    return rule;
}

Date firstStart(const RecurrenceChoice& choice, Date start)
{
    if (choice.unit != Unit::Week || choice.weekdays == 0)
        return start;
    constexpr std::int64_t daySeconds = 86400;
    Date day = start;
    while ((choice.weekdays & weekdayBit(day)) == 0)
        day = Date::fromSeconds(day.seconds() + daySeconds);
    return day;
}

std::pair<Text, Text> monthDayNames(Unit unit, Date start)
{
    const DateFields date = start.fields();
    const Text month{monthNames.at(static_cast<std::size_t>(date.month - 1))};
    if (unit == Unit::Year)
        return {month + u" " + decimal(date.day), weekdayInMonth(start) + u" of " + month};
    return {u"day " + decimal(date.day), weekdayInMonth(start)};
}

Text describe(const RecurrenceChoice& choice, Date start, Text (*formatDay)(Date day))
{
    const UnitName& unit = units.at(static_cast<std::size_t>(choice.unit));
    const Text every = choice.interval == 1 ? Text{unit.one} : decimal(choice.interval) + u" " + Text{unit.many};
    return u"Every " + every + dayWords(choice, start) + endWords(choice, formatDay);
}

} // namespace rf::host
