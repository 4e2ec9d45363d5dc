#include "host/ical_wall_time.h"

#include "basic/date.h"

#include <algorithm>
#include <chrono>

namespace rf::host::ical {
namespace {

using std::chrono::sys_days;

constexpr sys_days zeroDay = std::chrono::year{1899} / 12 / 30;
constexpr int lastSecondOfMinute = 59;

/// The number with leading zeros.
std::string padded(int number, std::size_t length)
{
    const std::string text = std::to_string(number);
    return std::string(length - std::min(length, text.size()), '0') + text;
}

/// The number that `length` digits of the text make; -1 where there is anything else.
int digits(std::string_view text, std::size_t from, std::size_t length)
{
    int number = 0;
    for (const char digit : text.substr(from, length)) {
        if (digit < '0' || digit > '9') {
            return -1;
        }
        number = number * 10 + (digit - '0');
    }
    return number;
}

std::optional<Day> readDay(std::string_view text)
{
    const int year = digits(text, 0, 4);
    const int month = digits(text, 4, 2);
    const int day = digits(text, 6, 2);
    if (year < 100 || month < 1 || month > 12 || day < 1 || day > daysInMonth(year, month)) {
        return std::nullopt;
    }
    return dayNumber(year, month, day);
}

} // namespace

Civil civil(Day day)
{
    const std::chrono::year_month_day date{zeroDay + std::chrono::days{static_cast<std::chrono::days::rep>(day)}};
    return {.year = static_cast<int>(date.year()),
        .month = static_cast<int>(static_cast<unsigned>(date.month())),
        .day = static_cast<int>(static_cast<unsigned>(date.day()))};
}

Day dayNumber(int year, int month, int day)
{
    const sys_days first = std::chrono::year{year} / std::chrono::month{static_cast<unsigned>(month)} / 1;
    return (first - zeroDay).count() + day - 1;
}

Seconds firstSecond()
{
    static const Seconds first = dayNumber(100, 1, 1) * secondsPerDay;
    return first;
}

Seconds lastSecond()
{
    static const Seconds last = dayNumber(9999, 12, 31) * secondsPerDay + secondsPerDay - 1;
    return last;
}

Seconds clamped(Seconds time) { return std::clamp(time, firstSecond(), lastSecond()); }

std::optional<WrittenTime> readTime(std::string_view text)
{
    constexpr std::size_t dateLength = 8;
    constexpr std::size_t timeLength = 15;
    if (text.size() != dateLength && text.size() != timeLength && text.size() != timeLength + 1) {
        return std::nullopt;
    }
    const std::optional<Day> day = readDay(text.substr(0, dateLength));
    if (!day) {
        return std::nullopt;
    }
    WrittenTime result{.time = *day * secondsPerDay, .isDate = text.size() == dateLength};
    if (result.isDate) {
        return result;
    }
    const int hour = digits(text, 9, 2);
    const int minute = digits(text, 11, 2);
    const int second = digits(text, 13, 2);
    result.isUtc = text.size() > timeLength;
    if (text[dateLength] != 'T' || hour < 0 || hour >= 24 || minute < 0 || minute >= 60 || second < 0 || second > 60
        || (result.isUtc && text.back() != 'Z')) {
        return std::nullopt;
    }
    result.time += hour * 3600 + minute * 60 + std::min(second, lastSecondOfMinute);
    return result;
}

std::string writeDate(Seconds time)
{
    const Civil date = civil(dayOf(time));
    return padded(date.year, 4) + padded(date.month, 2) + padded(date.day, 2);
}

std::string writeTime(Seconds time)
{
    const int rest = timeOfDay(time);
    return writeDate(time) + "T" + padded(rest / 3600, 2) + padded(rest / 60 % 60, 2) + padded(rest % 60, 2);
}

} // namespace rf::host::ical
