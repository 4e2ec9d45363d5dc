#include "host/sqlite_items.h"

#include "host/sqlite_codec.h"

#include <algorithm>
#include <array>

namespace rf::host {
namespace {

constexpr Sql readRow{R"(SELECT folder, revision, properties, message_class, subject, categories, location, addressees,
    start, end, all_day, busy_status, meeting_status, creation_time, modification_time, size, time_zone, uid, recurrence,
    body FROM item WHERE id = ?1)"};
constexpr Sql readStored{"SELECT folder, revision, properties FROM item WHERE id = ?1"};
constexpr Sql insertRow{R"(INSERT INTO item(folder, revision, reach, first, last, start_second, subject_key, properties,
    message_class, subject, categories, location, addressees, start, end, all_day, busy_status, meeting_status,
    creation_time, modification_time, size, time_zone, uid, recurrence, body)
    VALUES(?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15, ?16, ?17, ?18, ?19, ?20, ?21, ?22, ?23, ?24,
    ?25))"};
constexpr Sql updateRow{R"(UPDATE item SET folder = ?1, revision = ?2, reach = ?3, first = ?4, last = ?5,
    start_second = ?6, subject_key = ?7, properties = ?8, message_class = ?9, subject = ?10, categories = ?11,
    location = ?12, addressees = ?13, start = ?14, end = ?15, all_day = ?16, busy_status = ?17, meeting_status = ?18,
    creation_time = ?19, modification_time = ?20, size = ?21, time_zone = ?22, uid = ?23, recurrence = ?24, body = ?25
    WHERE id = ?26)"};
constexpr Sql deleteRow{"DELETE FROM item WHERE id = ?1"};
constexpr Sql insertKey{"INSERT INTO property_text(folder, name_key, text_key, item) VALUES(?1, ?2, ?3, ?4)"};
constexpr Sql deleteKey{
    "DELETE FROM property_text WHERE folder = ?1 AND name_key = ?2 AND text_key = ?3 AND item = ?4"};

constexpr std::size_t longestKey = 100;
constexpr std::int64_t shortestReach = 900;
/// Each length that stretches are sorted by is so many times the one before.
constexpr std::int64_t reachStep = 4;
constexpr std::int64_t longestReach = 900LL << 22;
/// For series without end, and whatever else is longer than a century.
constexpr std::int64_t endlessReach = endlessSeconds * 2;

std::int64_t reachOf(const Stretch& stretch)
{
    const std::int64_t length = stretch.last - stretch.first;
    std::int64_t reach = shortestReach;
    while (reach < length && reach < longestReach)
        reach *= reachStep;
    return reach < length ? endlessReach : reach;
}

PropertyKeys keysOf(const std::vector<UserPropertyRecord>& properties)
{
    PropertyKeys keys;
    for (const UserPropertyRecord& property : properties) {
        if (const auto* text = property.value.getIf<Text>())
            keys.emplace_back(searchKey(property.name), searchKey(*text));
    }
    std::ranges::sort(keys);
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    return keys;
}

/// Runs a statement for each of the keys that the other list has not.
void forKeys(Database& database, Sql sql, FolderId folder, ItemId item, const PropertyKeys& keys,
    const PropertyKeys& except = {})
{
    for (const auto& key : keys) {
        if (std::ranges::binary_search(except, key))
            continue;
        Query{database, sql}.bind(folder).bind(TextView{key.first}).bind(TextView{key.second}).bind(item).run();
    }
}

/// What is bound beside the record's own members; it lives as long as the statement runs.
struct RowParts {
    explicit RowParts(const ItemRecord& item)
        : stretch(stretchOf(item))
        , subjectKey(searchKey(item.subject))
        , properties(encode(item.userProperties))
        , recurrence(item.recurrence ? encode(*item.recurrence) : Bytes{})
    {
    }

    Stretch stretch;
    Text subjectKey;
    Bytes properties;
    Bytes recurrence;
};

/// Binds the columns in the order that inserting and updating share.
void bindRow(Query& query, const ItemRecord& item, const RowParts& parts)
{
    query.bind(item.folder).bind(item.revision);
    query.bind(reachOf(parts.stretch)).bind(parts.stretch.first).bind(parts.stretch.last);
    query.bind(orderedSeconds(item.start)).bind(TextView{parts.subjectKey}).bind(std::span{parts.properties});
    for (const Text* text : {&item.messageClass, &item.subject, &item.categories, &item.location, &item.to})
        query.bind(TextView{*text});
    query.bind(item.start.days()).bind(item.end.days()).bind(std::int64_t{item.allDay ? 1 : 0});
    query.bind(std::int64_t{item.busyStatus}).bind(std::int64_t{item.meetingStatus});
    query.bind(item.creationTime.days()).bind(item.lastModificationTime.days()).bind(std::int64_t{item.size});
    query.bind(TextView{item.timeZone}).bind(TextView{item.uid});
    if (item.recurrence)
        query.bind(std::span{parts.recurrence});
    else
        query.bindNothing();
    query.bind(TextView{item.body});
}

template <class Decoded>
Decoded whole(const Database& database, std::optional<Decoded> decoded)
{
    if (!decoded)
        throw database.error(StoreFault::Damaged, u"The store", u"holds an item that cannot be read.");
    return *std::move(decoded);
}

/// Takes the columns of a row one after the other.
class Columns {
public:
    explicit Columns(const Query& row)
        : row_(row)
    {
    }

    [[nodiscard]] std::int64_t integer() { return row_.integer(next_++); }
    [[nodiscard]] std::int32_t integer32() { return row_.integer32(next_++); }
    [[nodiscard]] Date date() { return Date{row_.number(next_++)}; }
    [[nodiscard]] Text text() { return row_.text(next_++); }
    [[nodiscard]] std::span<const std::byte> bytes() { return row_.bytes(next_++); }

private:
    const Query& row_;
    int next_ = 0;
};

ItemRecord itemOf(const Database& database, const Query& row)
{
    Columns columns{row};
    ItemRecord item;
    item.folder = FolderId{columns.integer()};
    item.revision = columns.integer();
    item.userProperties = whole(database, decodeProperties(columns.bytes()));
    for (Text* text : {&item.messageClass, &item.subject, &item.categories, &item.location, &item.to})
        *text = columns.text();
    item.start = columns.date();
    item.end = columns.date();
    item.allDay = columns.integer() != 0;
    item.busyStatus = columns.integer32();
    item.meetingStatus = columns.integer32();
    item.creationTime = columns.date();
    item.lastModificationTime = columns.date();
    item.size = columns.integer32();
    item.timeZone = columns.text();
    item.uid = columns.text();
    if (const auto recurrence = columns.bytes(); !recurrence.empty())
        item.recurrence = whole(database, decodeRecurrence(recurrence));
    item.body = columns.text();
    return item;
}

} // namespace

Text searchKey(TextView text) { return upper(text.substr(0, longestKey)); }

bool isCut(const Text& key) { return key.size() == longestKey; }

std::optional<ItemRecord> readItem(Database& database, ItemId item)
{
    Query query{database, readRow};
    if (!query.bind(item).next())
        return std::nullopt;
    ItemRecord record = itemOf(database, query);
    record.id = item;
    return record;
}

std::optional<StoredItem> storedItem(Database& database, ItemId item)
{
    Query query{database, readStored};
    if (!query.bind(item).next())
        return std::nullopt;
    return StoredItem{
        FolderId{query.integer(0)}, query.integer(1), keysOf(whole(database, decodeProperties(query.bytes(2))))};
}

ItemId insertItem(Database& database, const ItemRecord& item)
{
    {
        const RowParts parts{item};
        Query query{database, insertRow};
        bindRow(query, item, parts);
        query.run();
    }
    const ItemId id{database.lastRow()};
    forKeys(database, insertKey, item.folder, id, keysOf(item.userProperties));
    return id;
}

void replaceItem(Database& database, const ItemRecord& item, const StoredItem& before)
{
    {
        const RowParts parts{item};
        Query query{database, updateRow};
        bindRow(query, item, parts);
        query.bind(item.id).run();
    }
    const PropertyKeys keys = keysOf(item.userProperties);
    const bool isMoved = item.folder != before.folder;
    forKeys(database, deleteKey, before.folder, item.id, before.keys, isMoved ? PropertyKeys{} : keys);
    forKeys(database, insertKey, item.folder, item.id, keys, isMoved ? PropertyKeys{} : before.keys);
}

void deleteItem(Database& database, ItemId item, const StoredItem& before)
{
    forKeys(database, deleteKey, before.folder, item, before.keys);
    Query{database, deleteRow}.bind(item).run();
}

} // namespace rf::host
