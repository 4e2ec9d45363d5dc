#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace rf::host::ical {

/// Seconds and days since 30 December 1899, as `Date` counts them, on the clocks of whatever zone is meant.
using Seconds = std::int64_t;
using Day = std::int64_t;

inline constexpr Seconds secondsPerDay = 86400;

[[nodiscard]] constexpr std::int64_t floorDivide(std::int64_t number, std::int64_t divisor)
{
    return number / divisor - (number % divisor < 0 ? 1 : 0);
}

[[nodiscard]] constexpr Day dayOf(Seconds time) { return floorDivide(time, secondsPerDay); }
[[nodiscard]] constexpr int timeOfDay(Seconds time) { return static_cast<int>(time - dayOf(time) * secondsPerDay); }

struct Civil {
    int year = 1899;
    int month = 12;
    int day = 30;
};

[[nodiscard]] Civil civil(Day day);
[[nodiscard]] Day dayNumber(int year, int month, int day);
/// 0 (Monday) to 6 (Sunday).
[[nodiscard]] constexpr int weekday(Day day) { return static_cast<int>(day + 5 - floorDivide(day + 5, 7) * 7); }

/// What a `Date` can hold: the years 100 to 9999.
[[nodiscard]] Seconds firstSecond();
[[nodiscard]] Seconds lastSecond();
[[nodiscard]] Seconds clamped(Seconds time);

/// A date or a date with time as calendar texts write them: "20240203", "20240203T103000", "20240203T093000Z".
struct WrittenTime {
    /// A date stands for its midnight.
    Seconds time = 0;
    bool isDate = false;
    bool isUtc = false;
};

/// Nothing when the text is none or names a day that no calendar has. Second 60 is read as 59.
[[nodiscard]] std::optional<WrittenTime> readTime(std::string_view text);
[[nodiscard]] std::string writeDate(Seconds time);
[[nodiscard]] std::string writeTime(Seconds time);

} // namespace rf::host::ical
