#pragma once

#include "host/appointment_times.h"
#include "host/calendar_arrangement.h"
#include "linux/rfhost/windows/qt_date.h"

#include <QRect>
#include <algorithm>

namespace rf::native {

/// Where days, hours and bookings stand in a view with hours, in pixels.
struct DayGeometry {
    static constexpr int hoursOfADay = 24;
    static constexpr int minutesOfADay = 1440;
    static constexpr int gap = 2;

    host::ShownDays shown;
    int width = 0;
    /// The column of the hours' names.
    int hoursWidth = 0;
    /// The names of the days.
    int headerHeight = 0;
    /// The whole-day bookings below them: of one row, and of all.
    int barHeight = 0;
    int barsHeight = 0;
    int hourHeight = 0;
    int scrolled = 0;

    [[nodiscard]] int top() const { return headerHeight + barsHeight; }
    /// The column of a moment's day; below 0 or beyond the last one when it is not shown.
    [[nodiscard]] int columnOf(Date moment) const
    {
        constexpr std::int64_t daySeconds = std::int64_t{minutesOfADay} * 60;
        return static_cast<int>((host::dayOf(moment).seconds() - shown.first.seconds()) / daySeconds);
    }
    [[nodiscard]] bool isShown(int day) const { return day >= 0 && day < shown.count; }
    [[nodiscard]] int leftOf(int day) const { return hoursWidth + (width - hoursWidth) * day / shown.count; }
    [[nodiscard]] int yOf(int minute) const { return top() + minute * hourHeight / 60 - scrolled; }
    [[nodiscard]] int dayAt(int x) const
    {
        const int inside = std::clamp(x - hoursWidth, 0, std::max(width - hoursWidth - 1, 0));
        return std::clamp(inside * shown.count / std::max(width - hoursWidth, 1), 0, shown.count - 1);
    }
    [[nodiscard]] bool isInBars(QPoint point) const { return point.y() >= headerHeight && point.y() < top(); }

    /// The moment under a point of the columns; of a point above them, the midnight of its day.
    [[nodiscard]] Date momentAt(QPoint point) const
    {
        constexpr int lastMinute = minutesOfADay - 1;
        const int minute = std::clamp((point.y() - top() + scrolled) * 60 / hourHeight, 0, lastMinute);
        const Date day = host::plusDays(shown.first, dayAt(point.x()));
        return point.y() < top() ? day : day.plusMinutes(minute);
    }

    [[nodiscard]] QRect rectOf(const host::PlacedEntry& placed) const
    {
        const int left = leftOf(placed.day) + gap;
        const int room = leftOf(placed.day + 1) - left - 3 * gap;
        const int from = left + room * placed.lane.lane / placed.lane.lanes;
        const int to = left + room * (placed.lane.lane + 1) / placed.lane.lanes;
        const int y = yOf(placed.fromMinute);
        return {from, y + 1, std::max(to - from - gap, gap), yOf(placed.toMinute) - y - 1};
    }
    [[nodiscard]] QRect rectOf(const host::PlacedBar& bar) const
    {
        const int left = leftOf(bar.firstDay) + gap;
        return {left, headerHeight + gap + bar.row * barHeight, leftOf(bar.endDay) - left - 2 * gap, barHeight - gap};
    }
};

} // namespace rf::native
