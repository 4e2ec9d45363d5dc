#include "basic/pattern_regional.h"
#include "host/host_error.h"
#include "host/restriction_plan.h"

#include "fuzz_input.h"

#include <algorithm>

namespace rf::host {
namespace {

const std::vector<FieldDefinition>& folderFields()
{
    static const std::vector<FieldDefinition> fields{{u"OCID", 1}, {u"Guests", 3}, {u"Seen", 5}, {u"Paid", 6}};
    return fields;
}

std::vector<ItemRecord> makeItems()
{
    std::vector<ItemRecord> items(4);
    for (std::size_t index = 0; index < items.size(); ++index) {
        ItemRecord& item = items[index];
        item.start = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 8 + static_cast<int>(index)});
        item.end = item.start.plusMinutes(static_cast<long long>(index) * 45);
        item.subject = index % 2 == 0 ? u"x" : u"";
    }
    items[0].userProperties = {{u"OCID", 1, u"a"}, {u"Guests", 3, 5.0}, {u"Paid", 6, true}};
    items[3].start = items[3].end = Date{};
    return items;
}

bool covers(const TimeWindows& windows, const ItemRecord& item)
{
    return std::any_of(windows.begin(), windows.end(), [&](const TimeWindow& window) {
        return item.start.seconds() <= window.to.seconds() && item.end.seconds() >= window.from.seconds();
    });
}

/// Ends the run when the plan would lose an item that matches.
void check(const Restriction& restriction)
{
    static const std::vector<ItemRecord> items = makeItems();
    const auto windows = planWindows(restriction);
    static_cast<void>(plan(restriction));
    for (const ItemRecord& item : items) {
        if (restriction.matches(item) && windows && !covers(*windows, item)) {
            std::abort();
        }
    }
}

} // namespace
} // namespace rf::host

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    using namespace rf::host;
    static const rf::PatternRegional regional{rf::germanSettings()};
    try {
        check(Restriction::parse(rf::fuzz::unitsOf(bytes, size), folderFields(), regional));
    } catch (const rf::automation::Error& error) {
        if (error.number() != host_error::badArgument) {
            std::abort();
        }
    }
    return 0;
}
