#include "host/store.h"

#include <algorithm>
#include <limits>
#include <random>
#include <unordered_map>

namespace rf::host {
namespace {

using automation::Variant;

constexpr std::size_t bytesOfAnything = 16;
constexpr std::size_t bytesOfAnItem = 128;

std::size_t bytesOf(TextView text) { return text.size() * sizeof(char16_t); }

std::size_t bytesOfValue(const Variant& value)
{
    if (const auto* text = value.getIf<Text>())
        return bytesOfAnything + bytesOf(*text);
    std::size_t bytes = bytesOfAnything;
    if (const auto* array = value.getIf<std::shared_ptr<const automation::Array>>(); array != nullptr && *array) {
        for (const Variant& each : (*array)->values)
            bytes += bytesOfValue(each);
    }
    return bytes;
}

std::size_t bytesOf(const std::vector<UserPropertyRecord>& properties)
{
    std::size_t bytes = 0;
    for (const UserPropertyRecord& property : properties)
        bytes += bytesOf(property.name) + bytesOfValue(property.value);
    return bytes;
}

std::size_t bytesOf(const RecurrenceRecord& recurrence)
{
    std::size_t bytes = bytesOf(recurrence.rule) + recurrence.additions.size() * sizeof(Date);
    for (const OccurrenceChange& change : recurrence.changes)
        bytes += sizeof(Date) * 3 + bytesOf(change.subject) + bytesOf(change.body) + bytesOf(change.location)
            + bytesOf(change.categories) + bytesOf(change.userProperties);
    return bytes;
}

Variant keptArray(const automation::Array& array)
{
    automation::Array kept{array.dimensions, {}};
    kept.values.reserve(array.values.size());
    for (const Variant& each : array.values)
        kept.values.push_back(keptValue(each));
    return kept;
}

void keepValues(std::vector<UserPropertyRecord>& properties)
{
    for (UserPropertyRecord& property : properties)
        property.value = keptValue(property.value);
}

} // namespace

std::int64_t orderedSeconds(Date date)
{
    // The years 100 and 9999 lie within these days; a date beyond cannot be computed with, only compared.
    constexpr double firstDay = -657434;
    constexpr double dayBehind = 2958466;
    if (!(date.days() >= firstDay))
        return -endlessSeconds;
    if (!(date.days() < dayBehind - 1))
        return endlessSeconds;
    return date.seconds();
}

Stretch stretchOf(const ItemRecord& item)
{
    const std::int64_t start = orderedSeconds(item.start);
    const std::int64_t end = orderedSeconds(item.end);
    Stretch stretch{std::min(start, end), std::max(start, end)};
    if (!item.recurrence)
        return stretch;
    const RecurrenceRecord& series = *item.recurrence;
    const std::int64_t length = stretch.last - stretch.first;
    stretch.last = std::max(stretch.last, series.lastEnd ? orderedSeconds(*series.lastEnd) : endlessSeconds);
    const auto include = [&stretch](std::int64_t first, std::int64_t last) {
        stretch = {std::min({stretch.first, first, last}), std::max({stretch.last, first, last})};
    };
    for (const Date addition : series.additions)
        include(orderedSeconds(addition), orderedSeconds(addition) + length);
    for (const OccurrenceChange& change : series.changes) {
        if (!change.deleted)
            include(orderedSeconds(change.start), orderedSeconds(change.end));
    }
    return stretch;
}

std::int32_t sizeOf(const ItemRecord& item)
{
    std::size_t bytes = bytesOfAnItem;
    for (const Text* text : {&item.messageClass, &item.subject, &item.body, &item.categories, &item.location, &item.to,
             &item.timeZone, &item.uid})
        bytes += bytesOf(*text);
    bytes += bytesOf(item.userProperties);
    if (item.recurrence)
        bytes += bytesOf(*item.recurrence);
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(bytes, most));
}

Variant keptValue(const Variant& value)
{
    const Variant& held = value.dereferenced();
    if (held.isObject() || held.is<automation::Reference>())
        throw RuntimeError{error_number::typeMismatch};
    const auto* array = held.getIf<std::shared_ptr<const automation::Array>>();
    return array != nullptr && *array ? keptArray(**array) : held;
}

ItemRecord keptRecord(ItemRecord item)
{
    keepValues(item.userProperties);
    if (item.recurrence) {
        for (OccurrenceChange& change : item.recurrence->changes)
            keepValues(change.userProperties);
    }
    return item;
}

bool hasText(const std::vector<UserPropertyRecord>& properties, TextView name, TextView text)
{
    return std::ranges::any_of(properties, [name, text](const UserPropertyRecord& property) {
        const auto* value = property.value.getIf<Text>();
        return value != nullptr && equalIgnoringCase(property.name, name) && equalIgnoringCase(*value, text);
    });
}

std::vector<FolderRecord> parentsFirst(std::vector<FolderRecord> folders)
{
    std::unordered_map<FolderId, std::vector<FolderRecord*>> children;
    for (FolderRecord& folder : folders)
        children[folder.parent].push_back(&folder);
    std::vector<FolderRecord> ordered;
    ordered.reserve(folders.size());
    const auto addChildren = [&](FolderId parent) {
        if (const auto found = children.find(parent); found != children.end()) {
            for (FolderRecord* child : found->second)
                ordered.push_back(std::move(*child));
        }
    };
    addChildren(FolderId::None);
    // NOLINTNEXTLINE(modernize-loop-convert): the list grows as it is walked.
    for (std::size_t next = 0; next < ordered.size(); ++next)
        addChildren(ordered[next].id);
    return ordered;
}

std::int64_t randomWriter()
{
    std::random_device source;
    std::uniform_int_distribution<std::int64_t> numbers{1, std::numeric_limits<std::int64_t>::max()};
    return numbers(source);
}

} // namespace rf::host
