#include "host/ical_event_reader.h"

#include "host/ical_series_reader.h"
#include "host/ical_text_value.h"

#include <algorithm>
#include <array>
#include <utility>

namespace rf::host::ical {
namespace {

constexpr std::array<std::string_view, 4> busyStatusNames{"FREE", "TENTATIVE", "BUSY", "OOF"};

std::int32_t busyStatusOf(const Component& event)
{
    constexpr std::int32_t free = 0;
    constexpr std::int32_t busy = 2;
    const std::string_view name = event.value("X-MICROSOFT-CDO-BUSYSTATUS");
    for (std::size_t status = 0; status < busyStatusNames.size(); ++status) {
        if (sameName(name, busyStatusNames[status])) {
            return static_cast<std::int32_t>(status);
        }
    }
    return sameName(event.value("TRANSP"), "TRANSPARENT") ? free : busy;
}

Text categoriesOf(const Component& event)
{
    std::vector<Text> categories;
    for (const Property& property : event.properties) {
        if (property.content.name == "CATEGORIES") {
            std::ranges::move(readTextList(property.content.value), std::back_inserter(categories));
        }
    }
    return join(categories, u", ");
}

void readOrganizer(ImportedEvent& event, const Component& component)
{
    constexpr std::string_view scheme = "mailto:";
    if (const Property* const organizer = component.find("ORGANIZER")) {
        std::string_view address = organizer->content.value;
        if (sameName(address.substr(0, scheme.size()), scheme)) {
            address.remove_prefix(scheme.size());
        }
        event.organizerName = fromUtf8(organizer->content.parameter("CN"));
        event.organizerAddress = fromUtf8(address);
    }
}

/// Where the event ends, as the text has it. Without an end a day lasts and anything else takes no time.
FileTime endOf(const Component& event, const FileTime& start, FileZones& zones, Problems& problems)
{
    const Duration asLong{.days = start.isDate ? 1 : 0};
    if (const Property* const end = event.find("DTEND")) {
        if (const std::optional<FileTime> time = readFileTime(*end, end->content.value, zones)) {
            return *time;
        }
        problems.add(end->line, u"The end of this event is no time; the event was taken without it.");
    } else if (const Property* const duration = event.find("DURATION")) {
        if (const std::optional<Duration> length = readDuration(duration->content.value)) {
            return later(start, *length);
        }
        problems.add(duration->line, u"The duration of this event cannot be read; the event was taken without it.");
    }
    return later(start, asLong);
}

/// Start, end and whether it takes whole days; a date that ends on itself is the whole of that day.
void placeInTime(ItemRecord& item, const Component& event, const FileTime& start, FileZones& zones, Problems& problems)
{
    const Seconds begin = localTime(start, zones.system());
    Seconds end = localTime(endOf(event, start, zones, problems), zones.system());
    if (end < begin) {
        problems.add(event.line, u"This event ends before it starts; it was taken without an end.");
        end = begin;
    }
    item.allDay = start.isDate || sameName(event.value("X-MICROSOFT-CDO-ALLDAYEVENT"), "TRUE");
    if (start.isDate && end == begin) {
        end = clamped(end + secondsPerDay);
    }
    item.start = Date::fromSeconds(begin);
    item.end = Date::fromSeconds(end);
}

ItemRecord readFields(const Component& event)
{
    const auto text = [&event](std::string_view property) { return readTextValue(event.value(property)); };
    ItemRecord item;
    item.messageClass = u"IPM.Appointment";
    item.subject = text("SUMMARY");
    item.body = text("DESCRIPTION");
    item.location = text("LOCATION");
    item.categories = categoriesOf(event);
    item.busyStatus = busyStatusOf(event);
    item.uid = text("UID");
    return item;
}

/// Which occurrence of a series the event stands for. False when it says so but cannot be understood.
bool readOccurrence(ReadEvent& read, const Component& event, FileZones& zones, Problems& problems)
{
    const Property* const id = event.find("RECURRENCE-ID");
    if (id == nullptr) {
        return true;
    }
    read.occurrenceOf = readFileTime(*id, id->content.value, zones);
    if (!read.occurrenceOf) {
        problems.add(id->line, u"It cannot be told which occurrence this event changes; it was left out.");
        return false;
    }
    if (sameName(id->content.parameter("RANGE"), "THISANDFUTURE")) {
        problems.add(id->line, u"This change was taken for its occurrence alone, not for those behind it.");
    }
    return true;
}

} // namespace

std::optional<ReadEvent> readEvent(const Component& event, FileZones& zones, Problems& problems)
{
    ReadEvent read;
    read.event.line = event.line;
    read.isCancelled = sameName(event.value("STATUS"), "CANCELLED");
    if (!readOccurrence(read, event, zones, problems)) {
        return std::nullopt;
    }
    read.event.item = readFields(event);
    readOrganizer(read.event, event);
    const Property* const written = event.find("DTSTART");
    std::optional<FileTime> start = written == nullptr ? read.occurrenceOf : std::nullopt;
    if (written != nullptr) {
        start = readFileTime(*written, written->content.value, zones);
    }
    if (!start) {
        problems.add(written == nullptr ? event.line : written->line,
            written == nullptr ? u"The event that begins here has no start; it was left out."
                               : u"The start of this event is no time; the event was left out.");
        return std::nullopt;
    }
    placeInTime(read.event.item, event, *start, zones, problems);
    if (!read.occurrenceOf && !read.isCancelled) {
        readSeries(read.event.item, event, *start, zones, problems);
    }
    return read;
}

Date originalStart(const FileTime& time, const ItemRecord& series, ZoneTable& system)
{
    const Zone* const clocks = series.allDay ? nullptr : system.named(series.timeZone);
    const Seconds local = localTime(time, system);
    if (!time.isDate) {
        // All days begin at one hour, whatever time a program writes behind their date.
        const bool isMidnight = series.allDay && timeOfDay(series.start.seconds()) == 0;
        return Date::fromSeconds(isMidnight ? dayOf(time.isUtc ? local : time.wall) * secondsPerDay : local);
    }
    const Seconds start = series.start.seconds();
    if (clocks == nullptr) {
        return Date::fromSeconds(clamped(dayOf(local) * secondsPerDay + timeOfDay(start)));
    }
    const Seconds hour = timeOfDay(clocks->toWall(system.localToUtc(start)));
    return Date::fromSeconds(clamped(system.utcToLocal(clocks->toUtc(time.wall + hour))));
}

} // namespace rf::host::ical
