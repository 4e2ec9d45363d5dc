#include "basic/date.h"

#include "basic/runtime_error.h"

#include <chrono>
#include <cmath>

namespace rf {
namespace {

using std::chrono::sys_days;

constexpr std::int64_t secondsPerDay = 86400;

constexpr std::int64_t floorDivide(std::int64_t number, std::int64_t divisor)
{
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

constexpr sys_days monthBegin(int year, int month)
{
    return std::chrono::year{year} / std::chrono::month{static_cast<unsigned>(month)} / 1;
}

constexpr sys_days zeroDay = monthBegin(1899, 12) + std::chrono::days{29};
constexpr std::int64_t firstSecond = (monthBegin(100, 1) - zeroDay).count() * secondsPerDay;
constexpr std::int64_t endDay = (monthBegin(10000, 1) - zeroDay).count();
constexpr std::int64_t endSecond = endDay * secondsPerDay;

/// Days from the zero date to the first of a month, whatever its number. Years far outside those that a date can
/// have are refused here already, since the calendar of the library ends there.
std::int64_t daysToMonth(std::int64_t year, std::int64_t month)
{
    const std::int64_t carried = floorDivide(month - 1, 12);
    year += carried;
    if (year < static_cast<int>(std::chrono::year::min()) || year > static_cast<int>(std::chrono::year::max())) {
        throw RuntimeError{error_number::invalidCall};
    }
    return (monthBegin(static_cast<int>(year), static_cast<int>(month - carried * 12)) - zeroDay).count();
}

/// The calendar day of an instant that is counted in seconds.
sys_days dayOf(std::int64_t seconds)
{
    return zeroDay + std::chrono::days{static_cast<std::chrono::days::rep>(floorDivide(seconds, secondsPerDay))};
}

std::int64_t checkedSeconds(std::int64_t seconds)
{
    if (seconds < firstSecond || seconds >= endSecond) {
        throw RuntimeError{error_number::invalidCall};
    }
    return seconds;
}

} // namespace

int daysInMonth(int year, int month)
{
    return static_cast<int>(daysToMonth(year, std::int64_t{month} + 1) - daysToMonth(year, month));
}

Date Date::fromFields(const DateFields& fields)
{
    const std::int64_t day = daysToMonth(fields.year, fields.month) + fields.day - 1;
    const std::int64_t minutes = std::int64_t{fields.hour} * 60 + fields.minute;
    return fromSeconds(day * secondsPerDay + minutes * 60 + fields.second);
}

Date Date::fromSeconds(std::int64_t seconds)
{
    const std::int64_t day = floorDivide(checkedSeconds(seconds), secondsPerDay);
    const double time = static_cast<double>(seconds - day * secondsPerDay) / static_cast<double>(secondsPerDay);
    return Date{static_cast<double>(day) + (day < 0 ? -time : time)};
}

std::int64_t Date::seconds() const
{
    // Also refuses what is no number at all, before anything is cast.
    if (!(std::abs(days_) < static_cast<double>(endDay))) {
        throw RuntimeError{error_number::invalidCall};
    }
    const double day = std::trunc(days_);
    const double time = std::abs(days_ - day) * static_cast<double>(secondsPerDay);
    return checkedSeconds(static_cast<std::int64_t>(day) * secondsPerDay + std::llround(time));
}

DateFields Date::fields() const
{
    const std::int64_t total = seconds();
    const auto time = static_cast<int>(total - floorDivide(total, secondsPerDay) * secondsPerDay);
    const std::chrono::year_month_day date{dayOf(total)};
    return {.year = static_cast<int>(date.year()),
        .month = static_cast<int>(static_cast<unsigned>(date.month())),
        .day = static_cast<int>(static_cast<unsigned>(date.day())),
        .hour = time / 3600,
        .minute = time / 60 % 60,
        .second = time % 60};
}

int Date::weekday() const { return static_cast<int>(std::chrono::weekday{dayOf(seconds())}.c_encoding()) + 1; }

Date Date::plusMinutes(long long minutes) const
{
    std::int64_t result = 0;
    if (__builtin_mul_overflow(minutes, 60, &result) || __builtin_add_overflow(result, seconds(), &result)) {
        throw RuntimeError{error_number::invalidCall};
    }
    return fromSeconds(result);
}

} // namespace rf
