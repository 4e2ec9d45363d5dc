#pragma once

#include "basic/date.h"

namespace rf::host {

/// Start and end of an appointment as a person edits them.
struct AppointmentTimes {
    Date start;
    Date end;
    bool allDay = false;

    friend bool operator==(const AppointmentTimes&, const AppointmentTimes&) = default;
};

/// Midnight of the day that a moment lies in.
[[nodiscard]] Date dayOf(Date moment);
/// Seconds since midnight.
[[nodiscard]] int timeOfDay(Date moment);
/// The day's midnight a number of days later or, below 0, earlier.
[[nodiscard]] Date plusDays(Date day, int days);

/// Moves the appointment and keeps its length. Of an all-day event only the day counts.
[[nodiscard]] AppointmentTimes withStart(AppointmentTimes times, Date start);
/// An end before the start takes the start along, so that nothing a person enters is refused.
[[nodiscard]] AppointmentTimes withEnd(AppointmentTimes times, Date end);
/// Makes whole days of the times, or of whole days half an hour at eight in the morning of the first one.
[[nodiscard]] AppointmentTimes withAllDay(AppointmentTimes times, bool allDay);

/// The day that a person knows as an appointment's last: of an all-day event, which ends with the midnight behind it,
/// the day before.
[[nodiscard]] Date shownEnd(const AppointmentTimes& times);
/// The end that a shown one stands for.
[[nodiscard]] Date endOfShown(Date shown, bool allDay);

} // namespace rf::host
