#pragma once

#include "host/appointment_times.h"

namespace rf::host {

/// What is dragged of a booking: all of it, or one of its ends.
enum class DragPart { Whole, Start, End };

/// Where a drag began and where it is now, as moments of the calendar.
struct DragPath {
    Date from;
    Date to;
};

/// The slots that times snap to.
inline constexpr int slotMinutes = 15;

/// The times that a booking gets. A booking that is moved begins with a slot once it has left its own, and keeps its
/// length; one that is stretched keeps one slot at least. Of an all-day event only the days count.
[[nodiscard]] AppointmentTimes draggedTimes(const AppointmentTimes& times, DragPart part, const DragPath& path);

/// The same between days, where a view shows no hours: a booking keeps its time of day.
[[nodiscard]] AppointmentTimes draggedDays(const AppointmentTimes& times, const DragPath& path);

/// The times that a person chooses by dragging over free slots of the given length, in either direction.
[[nodiscard]] AppointmentTimes chosenTimes(const DragPath& path, int minutesOfASlot);

} // namespace rf::host
