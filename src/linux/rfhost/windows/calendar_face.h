#pragma once

#include "host/appointment_times.h"
#include "host/calendar_days.h"
#include "host/calendar_entries.h"

#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace rf::native {

/// What a person does in a view of a calendar.
struct CalendarActions {
    std::function<void(const host::CalendarEntry& entry)> open;
    /// A new appointment, in its window.
    std::function<void(const host::AppointmentTimes& times)> create;
    /// A new appointment whose subject was typed into the view.
    std::function<void(const host::AppointmentTimes& times, const Text& subject)> createNamed;
    std::function<void(const host::CalendarEntry& entry, const host::AppointmentTimes& times)> move;
    std::function<void(const host::CalendarEntry& entry)> remove;
    /// The days before the shown ones, or behind them, with that day at hand.
    std::function<void(Date day)> showDay;
};

/// A view of a calendar. It draws what it is given and says what a person does.
class CalendarFace {
public:
    CalendarFace() = default;
    CalendarFace(const CalendarFace&) = delete;
    CalendarFace& operator=(const CalendarFace&) = delete;
    virtual ~CalendarFace() = default;

    [[nodiscard]] virtual QWidget& widget() = 0;
    /// Shows days with their bookings; what was chosen stays chosen.
    virtual void show(const host::ShownDays& days, std::vector<host::CalendarEntry> entries) = 0;
    /// The times that a new appointment gets.
    [[nodiscard]] virtual host::AppointmentTimes chosenTimes() const = 0;
    [[nodiscard]] virtual std::optional<host::CalendarEntry> chosenEntry() const = 0;
    /// Chooses a day that is shown.
    virtual void chooseDay(Date day) = 0;
};

/// A booking as a screen reader says it.
[[nodiscard]] Text spokenEntry(const host::CalendarEntry& entry);
[[nodiscard]] inline host::AppointmentTimes timesOf(const host::CalendarEntry& entry)
{
    return {entry.start, entry.end, entry.allDay};
}

} // namespace rf::native
