#include "host/calendar_file.h"
#include "host/recurrence.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using namespace rf;
using namespace rf::host;

std::vector<ItemRecord> itemsOf(CalendarImport import)
{
    std::vector<ItemRecord> items;
    for (ImportedEvent& event : import.events) {
        items.push_back(std::move(event.item));
    }
    return items;
}

/// Expands every series in the month behind its start; the occurrences have to be where they were asked for.
void expandAll(const RecurrenceEngine& engine, const std::vector<ItemRecord>& items)
{
    for (const ItemRecord& item : items) {
        if (item.start.seconds() > Date::fromFields({.year = 9999, .month = 11, .day = 1}).seconds()) {
            continue;
        }
        const Date to = item.start.plusMinutes(31LL * 1440);
        for (const Occurrence& occurrence : engine.expand(item, item.start, to)) {
            if (occurrence.start.seconds() > to.seconds() || occurrence.end.seconds() < item.start.seconds()) {
                std::abort();
            }
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const bool isPlaced = ::setenv("TZ", "Europe/Brussels", 1) == 0;
    static const std::unique_ptr<RecurrenceEngine> engine = makeRecurrenceEngine();
    static_cast<void>(isPlaced);
    const std::string bytes{data, data + size};
    const std::vector<ItemRecord> items = itemsOf(readCalendar(bytes));
    expandAll(*engine, items);
    // Whatever a text says that is none, what is written of it says it well.
    const CalendarExport written = writeCalendar(items, Date{45000});
    const std::vector<ItemRecord> back = itemsOf(readCalendar(written.bytes));
    if (back.size() != items.size()) {
        std::abort();
    }
    const CalendarExport again = writeCalendar(back, Date{45000});
    if (again.bytes != written.bytes) {
        std::abort();
    }
    return 0;
}
