#pragma once

#include "host/calendar_file.h"
#include "host/ical_line_writer.h"
#include "host/ical_zone.h"

#include <map>
#include <string>
#include <vector>

namespace rf::host::ical {

/// The zones that a text names, and the earliest moment of UTC at which it needs their rules.
using UsedZones = std::map<Text, Seconds>;

/// Writes the events of a calendar text.
class EventWriter {
public:
    EventWriter(std::string& bytes, ZoneTable& zones, UsedZones& used, Date stamp);

    void write(const ItemRecord& item);
    [[nodiscard]] std::vector<CalendarProblem>& problems() { return problems_; }

private:
    void writeSeries(const ItemRecord& series);
    void writeChange(const ItemRecord& series, const OccurrenceChange& change, const std::string& uid);
    void beginEvent(const std::string& uid);
    void writeFields(const Text& subject, const Text& body, const Text& location, const Text& categories);
    void writeCategories(const Text& categories);
    void writeBusyStatus(std::int32_t status);
    void writeStart(const ItemRecord& item, bool isDate);
    /// A time in the form in which it is read back as it is, the item's own zone before any other.
    void writeMoment(const std::string& name, Date local, bool isDate);
    void writeInZone(const std::string& name, Seconds utc);
    void writeText(std::string_view name, const Text& text);
    [[nodiscard]] std::string written(TextView text);
    [[nodiscard]] WrittenTime untilInFile(const WrittenTime& until) const;
    /// `what` goes on from the name of the appointment; it is said once of each.
    void addProblem(TextView what);
    void chooseZone(const ItemRecord& item);

    LineWriter lines_;
    ZoneTable& zones_;
    UsedZones& used_;
    std::string stamp_;
    std::vector<CalendarProblem> problems_;
    /// The subject of the item at work, by which a problem names it.
    Text subject_;
    /// The zone that the item at work is written in; null for the hours of whoever reads it.
    const Zone* clocks_ = nullptr;
    Text zoneName_;
};

} // namespace rf::host::ical
