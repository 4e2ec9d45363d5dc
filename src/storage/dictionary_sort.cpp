#include "app/session.h"
#include "automation/conversion.h"
#include "storage/settings.h"

#include <algorithm>

namespace rf {

namespace {

using automation::Variant;

constexpr std::size_t weekdayLength = 3;

struct Entry {
    Text key;
    Text newKey;
    Variant item;
    /// What it is sorted by.
    Text text;
};

Text textOf(const Regional& regional, const Variant& item)
{
    PendingError errors;
    return errors.attempt([&] { return toText(regional, item); });
}

TextView behindWeekday(TextView key) { return key.substr(std::min(weekdayLength, key.size())); }

/// Gives each key that is a date its weekday and its date as this user writes them, unless another entry has that key.
void rewriteKeys(const Regional& regional, const outlook::Dictionary& dictionary, std::vector<Entry>& entries)
{
    for (Entry& entry : entries) {
        const auto date = regional.parseDate(behindWeekday(entry.key));
        if (!date)
            continue;
        Text key = regional.formatWeekday(*date) + u" " + regional.formatShortDate(*date);
        if (equalIgnoringCase(key, entry.key) || !dictionary.exists(key))
            entry.newKey = std::move(key);
    }
}

} // namespace

outlook::Dictionary cSettings::fncSortDictionary(
    const outlook::Dictionary& objDict, SortColumn intSort, bool blnDate) const
{
    const Regional& regional = session_.services.regional;
    std::vector<Entry> entries;
    const auto items = objDict.items();
    for (std::size_t position = 0; const Text& key : objDict.keys()) {
        const Variant& item = items.at(position++);
        // Dates, too, are sorted as the texts that they are.
        const Text text
            = intSort == SortColumn::Item ? textOf(regional, item) : Text{blnDate ? behindWeekday(key) : key};
        entries.push_back({key, key, item, text});
    }
    std::ranges::stable_sort(
        entries, [](const Entry& left, const Entry& right) { return compareIgnoringCase(left.text, right.text) < 0; });
    if (blnDate)
        rewriteKeys(regional, objDict, entries);
    objDict.removeAll();
    // Two spellings of one date stay two entries.
    for (const Entry& entry : entries)
        objDict.add(objDict.exists(entry.newKey) ? entry.key : entry.newKey, entry.item);
    return objDict;
}

} // namespace rf
