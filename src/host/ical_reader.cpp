#include "host/calendar_file.h"
#include "host/ical_components.h"
#include "host/ical_event_reader.h"
#include "host/recurrence.h"

#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace rf::host {
namespace {

using namespace ical;

/// The changes that a text makes to one series, by the start that the series gives their occurrence. What it deletes
/// stays deleted; of two changes to one occurrence the later counts.
using ChangesByStart = std::map<Seconds, OccurrenceChange>;

OccurrenceChange changeOf(ReadEvent&& read, Date original)
{
    OccurrenceChange change;
    change.original = original;
    change.deleted = read.isCancelled;
    if (!change.deleted) {
        ItemRecord& item = read.event.item;
        change.start = item.start;
        change.end = item.end;
        change.subject = std::move(item.subject);
        change.body = std::move(item.body);
        change.location = std::move(item.location);
        change.categories = std::move(item.categories);
    }
    return change;
}

/// Brings the events of one text together.
class Assembly {
public:
    Assembly(ZoneTable& system, Problems& problems)
        : system_(system)
        , problems_(problems)
    {
    }

    void add(ReadEvent read)
    {
        const ItemRecord& item = read.event.item;
        if (!read.occurrenceOf && (item.recurrence || read.isCancelled) && !item.uid.empty()) {
            series_.emplace(item.uid, events_.size());
        }
        ChangesByStart& changes = changes_.emplace_back();
        if (item.recurrence) {
            for (const OccurrenceChange& change : item.recurrence->changes) {
                changes.insert_or_assign(change.original.seconds(), change);
            }
        }
        events_.push_back(std::move(read));
    }

    std::vector<ImportedEvent> finish()
    {
        std::vector<bool> isPartOfSeries(events_.size());
        for (std::size_t index = 0; index < events_.size(); ++index) {
            isPartOfSeries[index] = bringToSeries(events_[index]);
        }
        std::vector<ImportedEvent> result;
        for (std::size_t index = 0; index < events_.size(); ++index) {
            if (isPartOfSeries[index]) {
                continue;
            }
            if (events_[index].isCancelled) {
                problems_.add(events_[index].event.line, u"The event that begins here is cancelled; it was left out.");
                continue;
            }
            takeChanges(events_[index].event.item, changes_[index]);
            result.push_back(std::move(events_[index].event));
        }
        return result;
    }

private:
    /// Whether the event is a change of a series that the text has, to which it then goes.
    bool bringToSeries(ReadEvent& read)
    {
        const auto series = read.occurrenceOf ? series_.find(read.event.item.uid) : series_.end();
        if (series == series_.end()) {
            return false;
        }
        const Date original = originalStart(*read.occurrenceOf, events_[series->second].event.item, system_);
        OccurrenceChange& change = changes_[series->second][original.seconds()];
        if (!change.deleted) {
            change = changeOf(std::move(read), original);
        }
        return true;
    }

    static void takeChanges(ItemRecord& item, ChangesByStart& changes)
    {
        if (item.recurrence) {
            item.recurrence->changes.clear();
            for (auto& [start, change] : changes) {
                item.recurrence->changes.push_back(std::move(change));
            }
        }
    }

    ZoneTable& system_;
    Problems& problems_;
    std::vector<ReadEvent> events_;
    /// Beside each event.
    std::vector<ChangesByStart> changes_;
    /// Where the series are; a cancelled one takes its changes along.
    std::unordered_map<Text, std::size_t> series_;
};

} // namespace

CalendarImport readCalendar(std::string_view bytes)
{
    Problems problems;
    const Components components = readComponents(bytes, problems);
    ZoneTable system;
    FileZones zones{components.zones, system, problems};
    Assembly assembly{system, problems};
    for (const Component& event : components.events) {
        if (std::optional<ReadEvent> read = readEvent(event, zones, problems)) {
            assembly.add(std::move(*read));
        }
    }
    CalendarImport result{.events = assembly.finish(), .problems = {}};
    const std::unique_ptr<RecurrenceEngine> engine = makeRecurrenceEngine();
    for (ImportedEvent& event : result.events) {
        if (event.item.recurrence) {
            event.item.recurrence->lastEnd = engine->lastEnd(event.item);
        }
    }
    result.problems = problems.take();
    return result;
}

} // namespace rf::host
