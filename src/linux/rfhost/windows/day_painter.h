#pragma once

#include "linux/rfhost/windows/calendar_colors.h"
#include "linux/rfhost/windows/day_geometry.h"

#include <QPainter>
#include <optional>
#include <span>

namespace rf::native {

/// What a view with hours draws.
struct DayPicture {
    DayGeometry geometry;
    CalendarColors colors;
    std::span<const host::CalendarEntry> entries;
    const host::DayArrangement& arrangement;
    /// Null when none is chosen.
    const host::CalendarEntry* chosen = nullptr;
    /// The free slots that are chosen; nothing while a booking is.
    std::optional<host::AppointmentTimes> free;
    /// Where the booking that is dragged would come to lie.
    const host::DayArrangement* preview = nullptr;
    std::span<const host::CalendarEntry> previewEntries;
    Date now;
    int height = 0;
};

void paintDays(QPainter& painter, const DayPicture& picture);

/// The body of one booking, as every view draws it.
struct BookingBox {
    QRect rect;
    bool isChosen = false;
    /// Begin and end that lie outside are drawn open.
    bool hasTime = true;
};
void paintBooking(
    QPainter& painter, const CalendarColors& colors, const host::CalendarEntry& entry, const BookingBox& box);

} // namespace rf::native
