#include "basic/date_parser.h"

#include "basic/clock.h"
#include "basic/date_scanner.h"

#include <algorithm>
#include <span>

namespace rf {
namespace {

constexpr int lastDay = 31;
constexpr int lastMonth = 12;
constexpr int firstYearOfLastCentury = 30; ///< Years of two digits from here on are in the 1900s.

/// Where the year, the month and the day stand among three numbers.
struct Places {
    std::size_t year;
    std::size_t month;
    std::size_t day;
};

constexpr Places monthDayYear{2, 0, 1};
constexpr Places dayMonthYear{2, 1, 0};
constexpr Places yearMonthDay{0, 1, 2};
constexpr Places yearDayMonth{0, 2, 1};

// For each order of the settings, the orders to try until one fits.
constexpr Places triedMonthFirst[] = {monthDayYear, dayMonthYear, yearMonthDay};
constexpr Places triedDayFirst[] = {dayMonthYear, monthDayYear, yearMonthDay};
constexpr Places triedYearFirst[] = {yearMonthDay, monthDayYear, dayMonthYear};
// Behind a leading year the day comes first as well where it does otherwise.
constexpr Places triedBehindYear[] = {yearMonthDay, yearDayMonth};
constexpr Places triedBehindYearDayFirst[] = {yearDayMonth, yearMonthDay};

bool standsOnlyForYear(DateNumber number) { return number.digits > 2 || number.value > lastDay; }

std::span<const Places> triedOrders(DateOrder order, DateNumber first)
{
    if (standsOnlyForYear(first)) {
        return order == DateOrder::DayMonthYear ? std::span<const Places>{triedBehindYearDayFirst} : triedBehindYear;
    }
    switch (order) {
    case DateOrder::MonthDayYear:
        return triedMonthFirst;
    case DateOrder::DayMonthYear:
        return triedDayFirst;
    default:
        return triedYearFirst;
    }
}

int fullYear(DateNumber year)
{
    if (year.digits > 2) {
        return year.value;
    }
    return year.value + (year.value < firstYearOfLastCentury ? 2000 : 1900);
}

std::optional<DateFields> fit(int year, int month, int day)
{
    constexpr int firstYear = 100;
    if (year < firstYear || month < 1 || month > lastMonth || day < 1 || day > daysInMonth(year, month)) {
        return std::nullopt;
    }
    return DateFields{.year = year, .month = month, .day = day};
}

int currentYear() { return SystemClock{}.now().fields().year; }

std::optional<DateFields> fitThree(DateOrder order, std::span<const DateNumber> numbers)
{
    for (const Places& places : triedOrders(order, numbers[0])) {
        const auto fields = fit(fullYear(numbers[places.year]), numbers[places.month].value, numbers[places.day].value);
        if (fields && numbers[places.month].digits <= 2 && numbers[places.day].digits <= 2) {
            return fields;
        }
    }
    return std::nullopt;
}

/// Day and month of the current year, or a month and a year of four digits.
std::optional<DateFields> fitTwo(DateOrder order, DateNumber first, DateNumber second)
{
    if (standsOnlyForYear(first)) {
        std::swap(first, second);
    }
    if (second.digits == 4) {
        return fit(second.value, first.value, 1);
    }
    if (order == DateOrder::DayMonthYear) {
        std::swap(first, second);
    }
    const int year = currentYear();
    const auto fields = fit(year, first.value, second.value);
    return fields ? fields : fit(year, second.value, first.value);
}

/// A named month with its day and year, or with one of them.
std::optional<DateFields> fitNamedMonth(DateOrder order, int month, std::span<const DateNumber> numbers)
{
    if (numbers.size() == 1) {
        const DateNumber number = numbers[0];
        return number.digits == 4 ? fit(number.value, month, 1) : fit(currentYear(), month, number.value);
    }
    DateNumber day = numbers[0];
    DateNumber year = numbers[1];
    if (order == DateOrder::YearMonthDay || standsOnlyForYear(day)) {
        std::swap(day, year);
    }
    const auto fields = standsOnlyForYear(day) ? std::nullopt : fit(fullYear(year), month, day.value);
    return fields || standsOnlyForYear(year) ? fields : fit(fullYear(day), month, year.value);
}

/// Between numbers alone a comma separates no date: "1,5" is meant as a number.
bool hasComma(std::span<const DateNumber> numbers)
{
    return std::any_of(numbers.begin(), numbers.end(), [](const DateNumber& number) { return number.afterComma; });
}

std::optional<DateFields> fitDate(DateOrder order, const DateText& date)
{
    const std::size_t count = date.numbers.size();
    if (date.month && (count == 1 || count == 2)) {
        return fitNamedMonth(order, *date.month, date.numbers);
    }
    if (date.month || hasComma(date.numbers)) {
        return std::nullopt;
    }
    if (count == 3) {
        return fitThree(order, date.numbers);
    }
    return count == 2 ? fitTwo(order, date.numbers[0], date.numbers[1]) : std::nullopt;
}

/// An hour above 12 says more than the designator behind it, which is ignored then.
int hourOfDay(int hour, std::optional<bool> afternoon)
{
    if (!afternoon || hour > 12) {
        return hour;
    }
    return hour % 12 + (*afternoon ? 12 : 0);
}

bool addClock(DateFields& fields, const DateText& date)
{
    fields.hour = hourOfDay(date.clock[0], date.afternoon);
    fields.minute = date.clock.size() > 1 ? date.clock[1] : 0;
    fields.second = date.clock.size() > 2 ? date.clock[2] : 0;
    return fields.hour < 24 && fields.minute < 60 && fields.second < 60;
}

} // namespace

std::optional<Date> readDate(const RegionalSettings& settings, TextView text)
{
    const auto date = scanDate(settings, text);
    if (!date || (date->clock.empty() && date->afternoon)) {
        return std::nullopt;
    }
    const bool onlyTime = date->numbers.empty() && !date->month;
    if (onlyTime && date->clock.empty()) {
        return std::nullopt;
    }
    // The fields begin with the zero date, where a time alone belongs.
    std::optional<DateFields> fields = onlyTime ? DateFields{} : fitDate(settings.dateOrder, *date);
    if (!fields || (!date->clock.empty() && !addClock(*fields, *date))) {
        return std::nullopt;
    }
    return Date::fromFields(*fields);
}

} // namespace rf
