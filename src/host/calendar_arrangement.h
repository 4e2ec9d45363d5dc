#pragma once

#include "host/calendar_days.h"
#include "host/calendar_entries.h"
#include "host/day_layout.h"

#include <cstddef>
#include <span>
#include <vector>

namespace rf::host {

/// A booking, or the part of one that lies in one day, in a column of hours.
struct PlacedEntry {
    std::size_t entry = 0;
    /// From 0 up, as the view shows the days.
    int day = 0;
    int fromMinute = 0;
    int toMinute = 0;
    Lane lane;

    friend bool operator==(const PlacedEntry&, const PlacedEntry&) = default;
};

/// A booking as a bar over days.
struct PlacedBar {
    std::size_t entry = 0;
    int firstDay = 0;
    int endDay = 0;
    int row = 0;

    friend bool operator==(const PlacedBar&, const PlacedBar&) = default;
};

/// Bookings as a view of days with hours shows them: long ones as bars above, the others in the columns.
struct DayArrangement {
    std::vector<PlacedEntry> entries;
    std::vector<PlacedBar> bars;
    int rows = 0;
};

/// No booking is drawn shorter, so that its subject can be read; those that touch it then stand beside it.
inline constexpr int shortestShownMinutes = 30;

[[nodiscard]] DayArrangement arrangedByHours(std::span<const CalendarEntry> entries, const ShownDays& shown);

/// The bookings of a row of days as bars, as a month shows each of its weeks.
[[nodiscard]] std::vector<PlacedBar> arrangedByDays(std::span<const CalendarEntry> entries, const ShownDays& shown);

} // namespace rf::host
