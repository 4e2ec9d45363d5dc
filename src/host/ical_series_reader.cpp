#include "host/ical_series_reader.h"

#include "host/ical_event_reader.h"
#include "host/ical_rule.h"
#include "host/ical_until.h"

#include <algorithm>
#include <set>
#include <variant>

namespace rf::host::ical {
namespace {

/// More than a series has in a lifetime; a text with more is no calendar.
constexpr std::size_t mostDates = 10'000;

class SeriesReader {
public:
    SeriesReader(ItemRecord& item, const Component& event, const FileTime& start, FileZones& zones, Problems& problems)
        : item_(item)
        , event_(event)
        , start_(start)
        , zones_(zones)
        , problems_(problems)
    {
    }

    void read()
    {
        RecurrenceRecord& recurrence = item_.recurrence.emplace();
        item_.timeZone = timeZone();
        recurrence.rule = rule();
        readAdditions(recurrence);
        readDeletions(recurrence);
        // What is left of a rule that cannot be read is a single event.
        if (recurrence.rule.empty() && recurrence.additions.empty()) {
            item_.recurrence.reset();
            item_.timeZone.clear();
        }
    }

private:
    [[nodiscard]] Text timeZone()
    {
        if (item_.allDay) {
            return {};
        }
        if (start_.isUtc) {
            return u"Etc/UTC";
        }
        if (start_.zone.clocks == nullptr) {
            return {};
        }
        const Property& property = *event_.find("DTSTART");
        const std::string_view name = property.content.parameter("TZID");
        Text zone = zones_.nameFrom(name, start_.zone.clocks->toUtc(start_.wall));
        if (zone.empty()) {
            problems_.add(property.line,
                u"The series keeps the hours of this installation, since no time zone that is known agrees with \""
                    + fromUtf8(name.substr(0, 100)) + u"\".");
        }
        return zone;
    }

    [[nodiscard]] Text rule()
    {
        Text text;
        for (const Property& property : event_.properties) {
            if (property.content.name == "EXRULE") {
                problems_.add(property.line, u"Rules of exception are not known here; this one was left out.");
            } else if (property.content.name != "RRULE") {
                continue;
            } else if (!text.empty()) {
                problems_.add(property.line, u"A series has one rule; this further one was left out.");
            } else {
                text = checkedRule(property);
            }
        }
        return text;
    }

    [[nodiscard]] Text checkedRule(const Property& property)
    {
        const Text text = fromUtf8(property.content.value);
        const std::variant<Rule, RuleFault> rule = readRule(text);
        if (const RuleFault* const fault = std::get_if<RuleFault>(&rule)) {
            problems_.add(property.line, u"The event was taken without its rule, which " + fault->clause + u".");
            return {};
        }
        return withUntil(text, [this](const WrittenTime& until) { return untilInZone(until); });
    }

    /// The end of the rule on the clocks that the series keeps to.
    [[nodiscard]] WrittenTime untilInZone(WrittenTime until)
    {
        if (until.isUtc && start_.isDate) {
            // Dates have no zone, so it can only be the date that is meant.
            until.isDate = true;
        } else if (until.isUtc) {
            const Zone* const clocks = zones_.system().named(item_.timeZone);
            until.time = clamped((clocks == nullptr ? zones_.system().local() : *clocks).toWall(until.time));
        }
        until.isUtc = false;
        return until;
    }

    /// Gives the sink each value of the properties of that name.
    template <class Sink>
    void eachTime(std::string_view name, const Sink& sink)
    {
        std::size_t count = 0;
        for (const Property& property : event_.properties) {
            if (property.content.name != name) {
                continue;
            }
            for (std::string_view rest = property.content.value; !rest.empty();) {
                const std::string_view value = rest.substr(0, rest.find(','));
                rest.remove_prefix(std::min(value.size() + 1, rest.size()));
                if (++count > mostDates) {
                    problems_.add(
                        property.line, u"These are more dates than a series may have; the rest was left out.");
                    return;
                }
                // Of a period only the start counts: the occurrences of a series are equally long.
                if (const auto time = readFileTime(property, value.substr(0, value.find('/')), zones_)) {
                    sink(*time);
                } else {
                    problems_.add(property.line, u"Here is a date that cannot be read; it was left out.");
                }
            }
        }
    }

    void readAdditions(RecurrenceRecord& recurrence)
    {
        std::set<Seconds> known;
        eachTime("RDATE", [&](const FileTime& time) {
            const Date start = originalStart(time, item_, zones_.system());
            if (known.insert(start.seconds()).second) {
                recurrence.additions.push_back(start);
            }
        });
    }

    void readDeletions(RecurrenceRecord& recurrence)
    {
        eachTime("EXDATE", [&](const FileTime& time) {
            OccurrenceChange& change = recurrence.changes.emplace_back();
            change.original = originalStart(time, item_, zones_.system());
            change.deleted = true;
        });
    }

    ItemRecord& item_;
    const Component& event_;
    const FileTime& start_;
    FileZones& zones_;
    Problems& problems_;
};

} // namespace

void readSeries(ItemRecord& item, const Component& event, const FileTime& start, FileZones& zones, Problems& problems)
{
    if (event.find("RRULE") != nullptr || event.find("RDATE") != nullptr) {
        SeriesReader{item, event, start, zones, problems}.read();
    }
}

} // namespace rf::host::ical
