#include "host/appointment_times.h"

namespace rf::host {

namespace {

constexpr int minuteSeconds = 60;
constexpr int hourSeconds = 3600;
constexpr std::int64_t daySeconds = 86400;
constexpr int morning = 8 * hourSeconds;
constexpr int shortMeeting = hourSeconds / 2;

std::int64_t lengthOf(const AppointmentTimes& times) { return times.end.seconds() - times.start.seconds(); }

/// Whole days, one at least.
AppointmentTimes wholeDays(Date start, Date end)
{
    const Date first = dayOf(start);
    Date last = dayOf(end);
    if (last.seconds() < end.seconds() || last.seconds() <= first.seconds())
        last = plusDays(last, 1);
    return {first, last, true};
}

} // namespace

Date dayOf(Date moment)
{
    const DateFields fields = moment.fields();
    return Date::fromFields({.year = fields.year, .month = fields.month, .day = fields.day});
}

int timeOfDay(Date moment)
{
    const DateFields fields = moment.fields();
    return fields.hour * hourSeconds + fields.minute * minuteSeconds + fields.second;
}

Date plusDays(Date day, int days) { return Date::fromSeconds(day.seconds() + days * daySeconds); }

AppointmentTimes withStart(AppointmentTimes times, Date start)
{
    const Date begin = times.allDay ? dayOf(start) : start;
    return {begin, Date::fromSeconds(begin.seconds() + lengthOf(times)), times.allDay};
}

AppointmentTimes withEnd(AppointmentTimes times, Date end)
{
    const bool before = end.seconds() < times.start.seconds() + (times.allDay ? daySeconds : 0);
    if (times.allDay)
        return wholeDays(before ? plusDays(dayOf(end), -1) : times.start, dayOf(end));
    return {before ? Date::fromSeconds(end.seconds() - lengthOf(times)) : times.start, end, false};
}

AppointmentTimes withAllDay(AppointmentTimes times, bool allDay)
{
    if (allDay == times.allDay)
        return times;
    if (allDay)
        return wholeDays(times.start, times.end);
    const Date start = Date::fromSeconds(dayOf(times.start).seconds() + morning);
    return {start, Date::fromSeconds(start.seconds() + shortMeeting), false};
}

Date shownEnd(const AppointmentTimes& times)
{
    return times.allDay && lengthOf(times) >= daySeconds ? plusDays(times.end, -1) : times.end;
}

Date endOfShown(Date shown, bool allDay) { return allDay ? plusDays(dayOf(shown), 1) : shown; }

} // namespace rf::host
