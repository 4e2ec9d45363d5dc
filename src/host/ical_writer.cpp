#include "host/calendar_file.h"
#include "host/ical_event_writer.h"

#include <utility>

namespace rf::host {

using namespace ical;

CalendarExport writeCalendar(std::span<const ItemRecord> items, Date stamp)
{
    // The events tell which zones are needed, and these stand before them.
    ZoneTable zones;
    UsedZones used;
    std::string events;
    EventWriter writer{events, zones, used, stamp};
    for (const ItemRecord& item : items) {
        writer.write(item);
    }
    CalendarExport result{.bytes = {}, .problems = std::move(writer.problems())};
    LineWriter lines{result.bytes};
    lines.line("BEGIN", "VCALENDAR");
    lines.line("VERSION", "2.0");
    lines.line("PRODID", "-//rfhost//Calendar//EN");
    for (const auto& [name, earliest] : used) {
        // A rule sets in with its first change of the clocks, so the one before the first event belongs to it.
        constexpr Seconds year = 366 * secondsPerDay;
        lines.raw(zoneDefinition(name, earliest - year));
    }
    lines.raw(events);
    lines.line("END", "VCALENDAR");
    return result;
}

} // namespace rf::host
