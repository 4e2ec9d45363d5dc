#include "linux/demo/fill.h"

#include "host/installation.h"
#include "host/sqlite_store.h"
#include "linux/demo/host_client.h"
#include "outlook/constants.h"

#include <algorithm>

namespace rf::demo {

namespace {

constexpr std::int64_t secondsPerHour = 3600;
constexpr std::int64_t hoursPerDay = 24;
constexpr double halfAnHour = 30;
constexpr std::int64_t atOnce = 10'000;

/// The first of January of 2001, in days since the zero date.
constexpr std::int64_t firstDay = 36'892;

Date startOf(std::int64_t index) { return Date::fromSeconds((firstDay * hoursPerDay + index) * secondsPerHour); }

host::UserPropertyRecord textProperty(TextView name, const Text& value)
{
    return {Text{name}, static_cast<std::int32_t>(outlook::UserPropertyType::Text), value};
}

host::ItemRecord appointment(host::FolderId folder, std::int64_t index)
{
    host::ItemRecord item;
    item.folder = folder;
    item.messageClass = outlook::message_class::appointment;
    item.subject = u"Meeting " + decimal(index);
    item.categories = u"Past";
    item.start = startOf(index);
    item.end = item.start.plusMinutes(static_cast<long long>(halfAnHour));
    item.userProperties = {textProperty(u"OCID", u"2001-1-1:0.0." + decimal(index) + u"_Jane Doe")};
    return item;
}

host::ItemRecord booking(host::FolderId room, std::int64_t index)
{
    host::ItemRecord item = appointment(room, index);
    item.userProperties.push_back(textProperty(u"SafeOrganizer", u"Jane Doe"));
    item.userProperties.push_back(
        {u"OriginalStartDate", static_cast<std::int32_t>(outlook::UserPropertyType::DateTime), item.start});
    item.userProperties.push_back(
        {u"OriginalDuration", static_cast<std::int32_t>(outlook::UserPropertyType::Number), halfAnHour});
    return item;
}

host::FolderId requireFolder(const host::Store& store, TextView path)
{
    const auto folder = host::folderAt(store, path);
    if (!folder)
        throw DemoError{"the store has no folder " + toUtf8(path)};
    return folder->id;
}

/// Saves what `make` makes of the numbers below `count`.
template <class Make>
void saveMany(host::Store& store, std::int64_t count, const Make& make)
{
    for (std::int64_t from = 0; from < count; from += atOnce) {
        std::vector<host::ItemRecord> items;
        for (std::int64_t index = from; index < std::min(from + atOnce, count); ++index)
            items.push_back(make(index));
        store.saveTogether(items);
    }
}

} // namespace

void fillStore(const std::filesystem::path& store, std::span<const Talk> talks, std::int64_t bookings)
{
    host::SqliteStore file{store, host::Opening::Existing};
    const host::FolderId publicFolders = requireFolder(file, u"\\\\Public Folders\\All Public Folders");
    const host::FolderId root = requireFolder(file, u"\\\\Public Folders\\All Public Folders\\Roomfold");
    std::vector<host::FolderId> rooms;
    for (const Text& room : roomsOf(talks))
        rooms.push_back(host::ensureCalendar(file, root, room));
    if (rooms.empty())
        throw DemoError{"the calendar has no talks"};
    // Each room has its own run of hours; the copies of all lie in the order of the rooms' turns.
    saveMany(file, bookings,
        [&](std::int64_t index) { return booking(rooms[static_cast<std::size_t>(index) % rooms.size()], index); });
    const host::FolderId personal = requireFolder(file, u"\\\\Mailbox - Jane Doe\\Calendar");
    const host::FolderId master = host::ensureCalendar(file, publicFolders, u"All bookings");
    for (const host::FolderId folder : {personal, master})
        saveMany(file, bookings, [&](std::int64_t index) { return appointment(folder, index); });
}

} // namespace rf::demo
