#include "host/ical_event_writer.h"

#include "host/ical_rule.h"
#include "host/ical_text_value.h"
#include "host/ical_until.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <variant>

namespace rf::host::ical {
namespace {

constexpr TextView utcName = u"Etc/UTC";

bool isMidnight(Date date) { return timeOfDay(date.seconds()) == 0; }

/// Whether the times are written as dates; an end on its own start would be read as a whole day.
bool asDates(bool allDay, Date start, Date end)
{
    return allDay && isMidnight(start) && isMidnight(end) && start.seconds() < end.seconds();
}

/// An identifier for an item that has none, the same for the same appointment.
std::string identifierOf(const ItemRecord& item)
{
    // FNV-1a, since std::hash may answer differently in the next program.
    constexpr std::uint64_t basis = 14695981039346656037U;
    constexpr std::uint64_t prime = 1099511628211U;
    std::uint64_t hash = basis;
    const auto add = [&hash](std::uint64_t value) { hash = (hash ^ value) * prime; };
    add(static_cast<std::uint64_t>(item.id));
    add(static_cast<std::uint64_t>(item.creationTime.seconds()));
    add(static_cast<std::uint64_t>(item.start.seconds()));
    for (const char16_t unit : item.subject) {
        add(unit);
    }
    return std::to_string(hash) + "@rfhost";
}

std::string quotedZone(TextView name)
{
    const std::string bytes = toUtf8(name);
    return bytes.find_first_of(":;,") == std::string::npos ? bytes : '"' + bytes + '"';
}

} // namespace

EventWriter::EventWriter(std::string& bytes, ZoneTable& zones, UsedZones& used, Date stamp)
    : lines_(bytes)
    , zones_(zones)
    , used_(used)
    , stamp_(writeTime(clamped(zones.localToUtc(stamp.seconds()))) + "Z")
{
}

void EventWriter::write(const ItemRecord& item)
{
    subject_ = item.subject;
    chooseZone(item);
    const std::string uid = item.uid.empty() ? identifierOf(item) : written(item.uid);
    const bool isDate = asDates(item.allDay, item.start, item.end);
    beginEvent(uid);
    writeStart(item, isDate);
    writeMoment("DTEND", item.end, isDate);
    if (item.recurrence) {
        writeSeries(item);
    }
    if (item.allDay && !isDate) {
        lines_.line("X-MICROSOFT-CDO-ALLDAYEVENT", "TRUE");
    }
    writeFields(item.subject, item.body, item.location, item.categories);
    writeBusyStatus(item.busyStatus);
    lines_.line("END", "VEVENT");
    if (item.recurrence) {
        for (const OccurrenceChange& change : item.recurrence->changes) {
            if (!change.deleted) {
                writeChange(item, change, uid);
            }
        }
    }
}

void EventWriter::chooseZone(const ItemRecord& item)
{
    clocks_ = nullptr;
    zoneName_.clear();
    if (!item.allDay) {
        zoneName_ = item.recurrence ? item.timeZone : zones_.localName();
        clocks_ = zones_.named(zoneName_);
        if (clocks_ == nullptr && !zoneName_.empty()) {
            addProblem(u"keeps the hours of a time zone that is not known; they were written as local ones.");
        }
    }
}

void EventWriter::beginEvent(const std::string& uid)
{
    lines_.line("BEGIN", "VEVENT");
    lines_.line("UID", uid);
    lines_.line("DTSTAMP", stamp_);
}

void EventWriter::writeStart(const ItemRecord& item, bool isDate)
{
    // The zone of its start is the series' own, so no other form will do.
    if (item.recurrence && clocks_ != nullptr) {
        writeInZone("DTSTART", zones_.localToUtc(item.start.seconds()));
    } else {
        writeMoment("DTSTART", item.start, isDate);
    }
}

void EventWriter::writeMoment(const std::string& name, Date local, bool isDate)
{
    const Seconds wall = local.seconds();
    if (isDate) {
        lines_.line(name + ";VALUE=DATE", writeDate(wall));
        return;
    }
    const Seconds utc = clamped(zones_.localToUtc(wall));
    if (clocks_ == nullptr || zones_.utcToLocal(utc) != wall) {
        lines_.line(name, writeTime(wall));
    } else if (clocks_->toUtc(clocks_->toWall(utc)) == utc) {
        writeInZone(name, utc);
    } else {
        lines_.line(name, writeTime(utc) + "Z");
    }
}

void EventWriter::writeInZone(const std::string& name, Seconds utc)
{
    if (zoneName_ == utcName) {
        lines_.line(name, writeTime(clamped(utc)) + "Z");
        return;
    }
    lines_.line(name + ";TZID=" + quotedZone(zoneName_), writeTime(clamped(clocks_->toWall(utc))));
    Seconds& earliest = used_.emplace(zoneName_, utc).first->second;
    earliest = std::min(earliest, utc);
}

WrittenTime EventWriter::untilInFile(const WrittenTime& until) const
{
    if (until.isDate || until.isUtc || clocks_ == nullptr) {
        return until;
    }
    const Seconds utc = clocks_->toUtc(until.time);
    const bool comesBack = clocks_->toWall(utc) == until.time && clamped(utc) == utc;
    return comesBack ? WrittenTime{.time = utc, .isUtc = true} : until;
}

void EventWriter::writeSeries(const ItemRecord& series)
{
    const RecurrenceRecord& recurrence = *series.recurrence;
    if (std::holds_alternative<RuleFault>(readRule(recurrence.rule)) && !recurrence.rule.empty()) {
        addProblem(u"repeats by a rule that cannot be read; it was written without.");
    } else if (!recurrence.rule.empty()) {
        const Text rule = withUntil(recurrence.rule, [this](const WrittenTime& until) { return untilInFile(until); });
        lines_.line("RRULE", toUtf8(rule));
    }
    const bool isDate = asDates(series.allDay, series.start, series.end);
    for (const Date addition : recurrence.additions) {
        writeMoment("RDATE", addition, isDate && isMidnight(addition));
    }
    for (const OccurrenceChange& change : recurrence.changes) {
        if (change.deleted) {
            writeMoment("EXDATE", change.original, isDate && isMidnight(change.original));
        }
    }
}

void EventWriter::writeChange(const ItemRecord& series, const OccurrenceChange& change, const std::string& uid)
{
    const bool isDate = asDates(series.allDay, change.start, change.end);
    beginEvent(uid);
    writeMoment("RECURRENCE-ID", change.original,
        asDates(series.allDay, series.start, series.end) && isMidnight(change.original));
    writeMoment("DTSTART", change.start, isDate);
    writeMoment("DTEND", change.end, isDate);
    writeFields(change.subject, change.body, change.location, change.categories);
    lines_.line("END", "VEVENT");
}

void EventWriter::writeFields(const Text& subject, const Text& body, const Text& location, const Text& categories)
{
    writeText("SUMMARY", subject);
    writeText("DESCRIPTION", body);
    writeText("LOCATION", location);
    writeCategories(categories);
}

void EventWriter::writeCategories(const Text& categories)
{
    std::string list;
    for (const TextView category : splitViews(categories, u", ")) {
        list += written(category) + ',';
    }
    if (!categories.empty()) {
        list.pop_back();
        lines_.line("CATEGORIES", list);
    }
}

void EventWriter::writeBusyStatus(std::int32_t status)
{
    constexpr std::int32_t free = 0;
    lines_.line("TRANSP", status == free ? "TRANSPARENT" : "OPAQUE");
    // A calendar text itself knows free and busy only.
    if (status == 1 || status == 3) {
        lines_.line("X-MICROSOFT-CDO-BUSYSTATUS", status == 1 ? "TENTATIVE" : "OOF");
    }
}

void EventWriter::writeText(std::string_view name, const Text& text)
{
    if (!text.empty()) {
        lines_.line(name, written(text));
    }
}

void EventWriter::addProblem(TextView what)
{
    const Text sentence = u"The appointment \"" + subject_ + u"\" " + Text{what};
    if (problems_.empty() || problems_.back().sentence != sentence) {
        problems_.push_back({.line = 0, .sentence = sentence});
    }
}

std::string EventWriter::written(TextView text)
{
    WrittenText result = writeTextValue(text);
    if (!result.isWhole) {
        addProblem(u"has a character that a calendar text cannot carry; U+FFFD stands for it.");
    }
    return std::move(result.bytes);
}

} // namespace rf::host::ical
