#include "host/calendar_arrangement.h"

#include "host/store.h"

#include <algorithm>

namespace rf::host {

namespace {

constexpr std::int64_t daySeconds = 86400;
constexpr std::int64_t minuteSeconds = 60;
constexpr std::int64_t dayMinutes = 1440;

/// The shown days that a booking takes; one that ends at midnight takes nothing of the day behind.
Span daysOf(const CalendarEntry& entry, const ShownDays& shown)
{
    const std::int64_t first = shown.first.seconds();
    const std::int64_t start = orderedSeconds(entry.start) - first;
    const std::int64_t end = std::max(orderedSeconds(entry.end) - first, start + 1);
    return {std::clamp<std::int64_t>(start < 0 ? 0 : start / daySeconds, 0, shown.count),
        std::clamp<std::int64_t>(end <= 0 ? 0 : (end - 1) / daySeconds + 1, 0, shown.count)};
}

/// The minutes of one day that a booking is drawn in.
Span minutesOf(const CalendarEntry& entry, std::int64_t midnight)
{
    const std::int64_t from = std::max<std::int64_t>((orderedSeconds(entry.start) - midnight) / minuteSeconds, 0);
    const std::int64_t to = std::min((orderedSeconds(entry.end) - midnight) / minuteSeconds, dayMinutes);
    const std::int64_t begin = std::min(from, dayMinutes - shortestShownMinutes);
    return {begin, std::max(to, begin + shortestShownMinutes)};
}

void arrangeDay(DayArrangement& arrangement, std::span<const CalendarEntry> entries, const ShownDays& shown, int day)
{
    const std::int64_t midnight = shown.first.seconds() + day * daySeconds;
    std::vector<Span> spans;
    const std::size_t first = arrangement.entries.size();
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const Span days = daysOf(entries[index], shown);
        if (entries[index].isLong() || day < days.from || day >= days.to)
            continue;
        const Span minutes = minutesOf(entries[index], midnight);
        spans.push_back(minutes);
        arrangement.entries.push_back({index, day, static_cast<int>(minutes.from), static_cast<int>(minutes.to), {}});
    }
    const auto lanes = sideBySide(spans);
    for (std::size_t index = 0; index < lanes.size(); ++index)
        arrangement.entries[first + index].lane = lanes[index];
}

template <class Condition>
std::vector<PlacedBar> barsWhere(
    std::span<const CalendarEntry> entries, const ShownDays& shown, const Condition& condition)
{
    std::vector<PlacedBar> bars;
    std::vector<Span> spans;
    for (std::size_t index = 0; index < entries.size(); ++index) {
        const Span days = daysOf(entries[index], shown);
        if (days.from >= days.to || !condition(entries[index]))
            continue;
        spans.push_back(days);
        bars.push_back({index, static_cast<int>(days.from), static_cast<int>(days.to), 0});
    }
    const auto rows = stackedRows(spans);
    for (std::size_t index = 0; index < rows.size(); ++index)
        bars[index].row = rows[index];
    return bars;
}

} // namespace

DayArrangement arrangedByHours(std::span<const CalendarEntry> entries, const ShownDays& shown)
{
    DayArrangement arrangement;
    arrangement.bars = barsWhere(entries, shown, [](const CalendarEntry& entry) { return entry.isLong(); });
    for (const PlacedBar& bar : arrangement.bars)
        arrangement.rows = std::max(arrangement.rows, bar.row + 1);
    for (int day = 0; day < shown.count; ++day)
        arrangeDay(arrangement, entries, shown, day);
    return arrangement;
}

std::vector<PlacedBar> arrangedByDays(std::span<const CalendarEntry> entries, const ShownDays& shown)
{
    return barsWhere(entries, shown, [](const CalendarEntry&) { return true; });
}

} // namespace rf::host
