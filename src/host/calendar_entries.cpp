#include "host/calendar_entries.h"

#include "host/host_error.h"
#include "host/inspectors.h"
#include "host/item_factory.h"
#include "host/model.h"
#include "host/recurrence.h"
#include "outlook/constants.h"

#include <algorithm>

namespace rf::host {

namespace {

constexpr std::int64_t daySeconds = 86400;

CalendarEntry entryOf(const ItemRecord& record, std::optional<OccurrenceOf> occurrence)
{
    return {record.id, occurrence, record.start, record.end, record.allDay, record.busyStatus, record.subject,
        record.location, record.categories};
}

/// The index answers with what touches the stretch; a view shows what lies within.
bool liesBetween(const ItemRecord& record, Date from, Date to)
{
    const auto start = orderedSeconds(record.start);
    const auto end = orderedSeconds(record.end);
    return start < orderedSeconds(to)
        && (end > orderedSeconds(from) || (start == end && start >= orderedSeconds(from)));
}

void addOccurrences(std::vector<CalendarEntry>& entries, const RecurrenceEngine& engine, const ItemRecord& series,
    std::pair<Date, Date> stretch)
{
    for (const Occurrence& occurrence : engine.expand(series, stretch.first, stretch.second)) {
        const ItemRecord record = occurrenceRecord(series, occurrence);
        if (liesBetween(record, stretch.first, stretch.second))
            entries.push_back(entryOf(record, OccurrenceOf{series.id, occurrence.original, occurrence.isException()}));
    }
}

ItemRecord recordOf(const Model& model, ItemId id)
{
    auto record = model.store().read(id);
    if (!record)
        throw hostError(host_error::deleted, u"The item has been moved or deleted.");
    return *std::move(record);
}

std::shared_ptr<Item> newAppointment(const std::shared_ptr<Model>& model, FolderId folder, const CalendarEntry& times)
{
    ItemRecord record = newRecord(*model, folder, outlook::message_class::appointment);
    record.start = times.start;
    record.end = times.end;
    record.allDay = times.allDay;
    record.subject = times.subject;
    return itemOf(makeItem(model, std::move(record)));
}

} // namespace

bool CalendarEntry::isLong() const { return allDay || orderedSeconds(end) - orderedSeconds(start) >= daySeconds; }

bool CalendarEntry::isSame(const CalendarEntry& other) const
{
    return item == other.item && occurrence.has_value() == other.occurrence.has_value()
        && (!occurrence || occurrence->original.seconds() == other.occurrence->original.seconds());
}

std::vector<CalendarEntry> entriesBetween(const Model& model, FolderId folder, Date from, Date to)
{
    std::vector<CalendarEntry> entries;
    for (const ItemId id : model.store().overlapping(folder, from, to)) {
        const auto record = model.store().read(id);
        if (!record)
            continue;
        if (record->recurrence && model.recurrence() != nullptr)
            addOccurrences(entries, *model.recurrence(), *record, {from, to});
        else if (liesBetween(*record, from, to))
            entries.push_back(entryOf(*record, std::nullopt));
    }
    std::ranges::stable_sort(entries, {}, [](const CalendarEntry& entry) {
        return std::pair{orderedSeconds(entry.start), -orderedSeconds(entry.end)};
    });
    return entries;
}

std::shared_ptr<Item> itemOfEntry(const std::shared_ptr<Model>& model, const CalendarEntry& entry)
{
    ItemRecord record = recordOf(*model, entry.item);
    if (!entry.occurrence)
        return itemOf(makeItem(model, std::move(record)));
    const auto found
        = record.recurrence ? model->recurrence()->occurrence(record, entry.occurrence->original) : std::nullopt;
    if (!found)
        throw hostError(host_error::deleted, u"The item has been moved or deleted.");
    return itemOf(makeItem(
        model, occurrenceRecord(record, *found), OccurrenceOf{record.id, found->original, found->isException()}));
}

std::shared_ptr<Item> seriesOfEntry(const std::shared_ptr<Model>& model, const CalendarEntry& entry)
{
    return itemOf(makeItem(model, recordOf(*model, entry.item)));
}

void openItem(Item& item)
{
    if (const auto window = item.model().inspectors().findStored(item))
        window->activate();
    else
        displayItem(item);
}

void moveEntry(const std::shared_ptr<Model>& model, const CalendarEntry& entry, Date start, Date end)
{
    const auto item = itemOfEntry(model, entry);
    item->record().start = start;
    item->record().end = end;
    item->touch();
    item->save();
}

void openNewAppointment(const std::shared_ptr<Model>& model, FolderId folder, const CalendarEntry& times)
{
    displayItem(*newAppointment(model, folder, times));
}

void saveNewAppointment(const std::shared_ptr<Model>& model, FolderId folder, const CalendarEntry& times)
{
    newAppointment(model, folder, times)->save();
}

} // namespace rf::host
