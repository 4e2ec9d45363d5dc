#include "host/calendar_drag.h"

#include <algorithm>

namespace rf::host {

namespace {

constexpr std::int64_t minuteSeconds = 60;
constexpr std::int64_t daySeconds = 86400;
constexpr std::int64_t slotSeconds = slotMinutes * minuteSeconds;

std::int64_t floorTo(std::int64_t seconds, std::int64_t unit)
{
    const std::int64_t rest = seconds % unit;
    return seconds - rest - (rest < 0 ? unit : 0);
}

std::int64_t daysBetween(const DragPath& path)
{
    return (dayOf(path.to).seconds() - dayOf(path.from).seconds()) / daySeconds;
}

AppointmentTimes startingAt(const AppointmentTimes& times, std::int64_t start)
{
    const auto length = times.end.seconds() - times.start.seconds();
    return {Date::fromSeconds(start), Date::fromSeconds(start + length), times.allDay};
}

AppointmentTimes movedByTime(const AppointmentTimes& times, const DragPath& path)
{
    const std::int64_t way = path.to.seconds() - path.from.seconds();
    const std::int64_t slots = floorTo(way + slotSeconds / 2, slotSeconds);
    if (slots == 0)
        return times;
    return startingAt(times, floorTo(times.start.seconds() + slots, slotSeconds));
}

} // namespace

AppointmentTimes draggedDays(const AppointmentTimes& times, const DragPath& path)
{
    return startingAt(times, times.start.seconds() + daysBetween(path) * daySeconds);
}

AppointmentTimes draggedTimes(const AppointmentTimes& times, DragPart part, const DragPath& path)
{
    const std::int64_t unit = times.allDay ? daySeconds : slotSeconds;
    const std::int64_t start = times.start.seconds();
    const std::int64_t end = times.end.seconds();
    // The end that is held is where the pointer is: the slot under it still belongs to the booking.
    switch (part) {
    case DragPart::Whole:
        break;
    case DragPart::Start:
        return {Date::fromSeconds(std::min(floorTo(path.to.seconds(), unit), end - unit)), times.end, times.allDay};
    case DragPart::End:
        return {times.start, Date::fromSeconds(std::max(floorTo(path.to.seconds(), unit) + unit, start + unit)),
            times.allDay};
    }
    return times.allDay ? draggedDays(times, path) : movedByTime(times, path);
}

AppointmentTimes chosenTimes(const DragPath& path, int minutesOfASlot)
{
    const std::int64_t slot = minutesOfASlot * minuteSeconds;
    const auto [first, last] = std::minmax({floorTo(path.from.seconds(), slot), floorTo(path.to.seconds(), slot)});
    return {Date::fromSeconds(first), Date::fromSeconds(last + slot), slot >= daySeconds};
}

} // namespace rf::host
