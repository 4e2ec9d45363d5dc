#pragma once

#include <compare>
#include <cstdint>

namespace rf {

/// The calendar fields of an instant: month 1 to 12, day 1 to 31, hour 0 to 23.
struct DateFields {
    int year = 1899;
    int month = 12;
    int day = 30;
    int hour = 0;
    int minute = 0;
    int second = 0;

    friend bool operator==(const DateFields&, const DateFields&) = default;
};

/// 28 to 31, for a month of 1 to 12.
[[nodiscard]] int daysInMonth(int year, int month);

/// A local date and time as automation carries it: days since 30 December 1899 as a double, the fraction being
/// the time of day. Before that day the whole part counts down while the fraction still counts up
/// (-1.25 is 29 December 1899 06:00).
class Date {
public:
    constexpr Date() = default;
    explicit constexpr Date(double days)
        : days_(days)
    {
    }

    /// The years 100 to 9999; fields out of their range, month 13 or minute -5, carry over into the next one.
    /// Error 5 outside the years.
    [[nodiscard]] static Date fromFields(const DateFields& fields);

    [[nodiscard]] constexpr double days() const { return days_; }
    /// The fields, the time rounded to the nearest second. As all that computes with the instant, error 5 when it
    /// lies outside the years 100 to 9999.
    [[nodiscard]] DateFields fields() const;
    /// 1 (Sunday) to 7 (Saturday).
    [[nodiscard]] int weekday() const;
    /// This instant moved by a number of minutes, exact to the second.
    [[nodiscard]] Date plusMinutes(long long minutes) const;
    /// Whole seconds since the zero date, for comparing and subtracting without a fraction's noise: the operators
    /// below compare the days, which run backwards within a day before the zero date.
    [[nodiscard]] std::int64_t seconds() const;
    [[nodiscard]] static Date fromSeconds(std::int64_t seconds);

    friend constexpr auto operator<=>(Date, Date) = default;

private:
    double days_ = 0;
};

/// What the host answers where there is no date: 1 January 4501.
inline constexpr Date noDate{949998.0};

} // namespace rf
