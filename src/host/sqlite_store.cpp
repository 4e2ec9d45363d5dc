#include "host/sqlite_store.h"

#include "host/sqlite_codec.h"
#include "host/sqlite_items.h"

#include <algorithm>
#include <utility>

namespace rf::host {
namespace {

constexpr Sql readFolders{R"(SELECT id, coalesce(parent, 0), role, name, item_type, web_view_url, web_view_on, fields
    FROM folder ORDER BY id)"};
constexpr Sql readFolder{R"(SELECT id, coalesce(parent, 0), role, name, item_type, web_view_url, web_view_on, fields
    FROM folder WHERE id = ?1)"};
// "IS" finds the stores too, whose parent is no folder.
constexpr Sql countFoldersIn{"SELECT count(*) FROM folder WHERE parent IS nullif(?1, 0)"};
constexpr Sql readFolderAt{"SELECT id FROM folder WHERE parent IS nullif(?1, 0) ORDER BY id LIMIT 1 OFFSET ?2"};
constexpr Sql readFolderNames{"SELECT id, name FROM folder WHERE parent IS nullif(?1, 0) ORDER BY id"};
constexpr Sql insertFolder{R"(INSERT INTO folder(parent, role, name, item_type, web_view_url, web_view_on, fields)
    VALUES(nullif(?1, 0), ?2, ?3, ?4, ?5, ?6, ?7))"};
constexpr Sql updateFolderRow{R"(UPDATE folder SET parent = nullif(?1, 0), role = ?2, name = ?3, item_type = ?4,
    web_view_url = ?5, web_view_on = ?6, fields = ?7 WHERE id = ?8)"};
constexpr Sql readFoldersBelow{R"(WITH RECURSIVE below(id) AS (SELECT id FROM folder WHERE id = ?1
    UNION ALL SELECT folder.id FROM folder JOIN below ON folder.parent = below.id) SELECT id FROM below)"};
constexpr Sql deleteFolder{"DELETE FROM folder WHERE id = ?1"};
constexpr Sql deleteKeysOfFolder{"DELETE FROM property_text WHERE folder = ?1"};
constexpr Sql deleteItemsOfFolder{"DELETE FROM item WHERE folder = ?1"};
constexpr Sql deleteLeaseOfFolder{"DELETE FROM lease WHERE folder = ?1"};
constexpr Sql logItemsOfFolder{R"(INSERT INTO change(kind, folder, item, arrived_together, writer)
    SELECT ?1, folder, id, 1, ?2 FROM item WHERE folder = ?3 ORDER BY id)"};

constexpr Sql countItems{"SELECT count(*) FROM item INDEXED BY item_by_time WHERE folder = ?1"};
constexpr Sql readItems{"SELECT id FROM item INDEXED BY item_by_time WHERE folder = ?1 ORDER BY id"};
// The lengths that occur in the folder, from the index itself; for each the piece of the index where the items lie that
// reach into the window.
constexpr Sql readOverlapping{R"(WITH RECURSIVE lengths(reach) AS (
        SELECT min(reach) FROM item WHERE folder = ?1
        UNION ALL
        SELECT (SELECT min(reach) FROM item WHERE folder = ?1 AND reach > lengths.reach) FROM lengths
            WHERE lengths.reach IS NOT NULL)
    SELECT start_second, id FROM lengths CROSS JOIN item INDEXED BY item_by_time
        WHERE folder = ?1 AND item.reach = lengths.reach AND first BETWEEN ?2 - lengths.reach AND ?3 AND last >= ?2)"};
constexpr Sql readWithSubject{"SELECT id FROM item WHERE folder = ?1 AND subject_key = ?2 ORDER BY id"};
constexpr Sql readSubjects{"SELECT id, subject FROM item WHERE folder = ?1 AND subject_key = ?2 ORDER BY id"};
constexpr Sql readWithProperty{
    "SELECT item FROM property_text WHERE folder = ?1 AND name_key = ?2 AND text_key = ?3 ORDER BY item"};

constexpr Sql readLastChange{"SELECT max(sequence) FROM change"};
constexpr Sql readChanges{R"(SELECT sequence, kind, folder, item, arrived_together, writer FROM change
    WHERE sequence > ?1 ORDER BY sequence)"};
constexpr Sql insertChange{
    "INSERT INTO change(kind, folder, item, arrived_together, writer) VALUES(?1, ?2, ?3, ?4, ?5)"};
constexpr Sql deleteChanges{"DELETE FROM change WHERE sequence <= ?1"};
/// Old changes are forgotten so many at a time.
constexpr std::int64_t changesForgottenTogether = 1000;

void bindFolder(Query& query, const FolderRecord& folder, const Bytes& fields)
{
    query.bind(folder.parent).bind(folder.role).bind(TextView{folder.name});
    query.bind(std::int64_t{folder.defaultItemType}).bind(TextView{folder.webViewUrl});
    query.bind(std::int64_t{folder.webViewOn ? 1 : 0}).bind(std::span{fields});
}

FolderRecord folderOf(const Database& database, const Query& row)
{
    auto fields = decodeFields(row.bytes(7));
    if (!fields)
        throw database.error(StoreFault::Damaged, u"The store", u"holds a folder that cannot be read.");
    return {FolderId{row.integer(0)}, FolderId{row.integer(1)}, FolderRole{row.integer32(2)}, row.text(3),
        row.integer32(4), row.text(5), row.integer(6) != 0, *std::move(fields)};
}

std::vector<ItemId> idsOf(Query& query)
{
    std::vector<ItemId> ids;
    while (query.next())
        ids.push_back(ItemId{query.integer(0)});
    return ids;
}

StoreError missingFolder(const Database& database)
{
    return database.error(StoreFault::Missing, u"The folder is no longer in the store", u".");
}

StoreError missingItem(const Database& database)
{
    return database.error(StoreFault::Missing, u"The item is no longer in the store", u".");
}

void fillIn(ItemRecord& item, const ItemRecord& kept)
{
    item.id = kept.id;
    item.revision = kept.revision;
    item.size = kept.size;
}

} // namespace

SqliteStore::SqliteStore(const std::filesystem::path& path, Opening opening, std::chrono::milliseconds busyLimit)
    : database_(openStoreFile(path, opening, busyLimit))
    , writer_(randomWriter())
    , leases_(std::make_unique<Leases>(*database_, writer_))
{
}

std::vector<FolderRecord> SqliteStore::folders() const
{
    std::vector<FolderRecord> all;
    Query query{*database_, readFolders};
    while (query.next())
        all.push_back(folderOf(*database_, query));
    return parentsFirst(std::move(all));
}

std::optional<FolderRecord> SqliteStore::folder(FolderId folder) const
{
    Query query{*database_, readFolder};
    return query.bind(folder).next() ? std::optional{folderOf(*database_, query)} : std::nullopt;
}

std::size_t SqliteStore::countFolders(FolderId parent) const
{
    Query query{*database_, countFoldersIn};
    return query.bind(parent).next() ? static_cast<std::size_t>(query.integer(0)) : 0;
}

std::optional<FolderId> SqliteStore::folderAt(FolderId parent, std::size_t position) const
{
    Query query{*database_, readFolderAt};
    query.bind(parent).bind(static_cast<std::int64_t>(position));
    return query.next() ? std::optional{FolderId{query.integer(0)}} : std::nullopt;
}

std::optional<FolderId> SqliteStore::folderNamed(FolderId parent, TextView name) const
{
    Query query{*database_, readFolderNames};
    query.bind(parent);
    while (query.next()) {
        if (equalIgnoringCase(query.text(1), name))
            return FolderId{query.integer(0)};
    }
    return std::nullopt;
}

FolderId SqliteStore::addFolder(const FolderRecord& folder)
{
    const Bytes fields = encode(folder.fields);
    Transaction transaction{*database_};
    {
        Query query{*database_, insertFolder};
        bindFolder(query, folder, fields);
        query.run();
    }
    const FolderId id{database_->lastRow()};
    transaction.commit();
    return id;
}

void SqliteStore::updateFolder(const FolderRecord& folder)
{
    Transaction transaction{*database_};
    replace(folder);
    transaction.commit();
}

void SqliteStore::change(FolderId folder, const std::function<void(FolderRecord&)>& work)
{
    Transaction transaction{*database_};
    std::optional<FolderRecord> record = this->folder(folder);
    if (!record)
        throw missingFolder(*database_);
    work(*record);
    record->id = folder;
    replace(*record);
    transaction.commit();
}

void SqliteStore::replace(const FolderRecord& folder)
{
    const std::vector<FolderId> below = withFoldersBelow(folder.id);
    if (below.empty())
        throw missingFolder(*database_);
    if (std::ranges::find(below, folder.parent) != below.end())
        throw StoreError{StoreFault::Failed, u"A folder cannot lie inside itself."};
    const Bytes fields = encode(folder.fields);
    Query query{*database_, updateFolderRow};
    bindFolder(query, folder, fields);
    query.bind(folder.id).run();
}

void SqliteStore::removeFolder(FolderId folder)
{
    Transaction transaction{*database_};
    std::vector<FolderId> all = withFoldersBelow(folder);
    if (all.empty())
        throw missingFolder(*database_);
    std::ranges::reverse(all);
    for (const FolderId each : all) {
        removeItemsOf(each);
        Query{*database_, deleteFolder}.bind(each).run();
    }
    transaction.commit();
}

std::vector<FolderId> SqliteStore::withFoldersBelow(FolderId folder) const
{
    std::vector<FolderId> all;
    Query query{*database_, readFoldersBelow};
    query.bind(folder);
    while (query.next())
        all.push_back(FolderId{query.integer(0)});
    return all;
}

void SqliteStore::removeItemsOf(FolderId folder)
{
    Query{*database_, logItemsOfFolder}.bind(ChangeKind::Removed).bind(writer_).bind(folder).run();
    for (const Sql& statement : {deleteKeysOfFolder, deleteItemsOfFolder, deleteLeaseOfFolder})
        Query{*database_, statement}.bind(folder).run();
}

std::optional<ItemRecord> SqliteStore::read(ItemId item) const { return readItem(*database_, item); }

void SqliteStore::save(ItemRecord& item)
{
    if (item.id == ItemId::None) {
        saveTogether({&item, 1});
        return;
    }
    ItemRecord record = keptRecord(item);
    Transaction transaction{*database_};
    replace(record);
    transaction.commit();
    fillIn(item, record);
}

void SqliteStore::change(ItemId item, const std::function<void(ItemRecord&)>& work)
{
    Transaction transaction{*database_};
    std::optional<ItemRecord> record = read(item);
    if (!record)
        throw missingItem(*database_);
    work(*record);
    ItemRecord changed = keptRecord(*std::move(record));
    changed.id = item;
    replace(changed);
    transaction.commit();
}

void SqliteStore::replace(ItemRecord& item)
{
    const std::optional<StoredItem> before = storedItem(*database_, item.id);
    if (!before)
        throw missingItem(*database_);
    item.size = sizeOf(item);
    item.revision = before->revision + 1;
    replaceItem(*database_, item, *before);
    if (before->folder == item.folder) {
        log(ChangeKind::Changed, item.folder, item.id);
    } else {
        log(ChangeKind::Removed, before->folder, item.id);
        log(ChangeKind::Added, item.folder, item.id);
    }
}

void SqliteStore::saveTogether(std::span<ItemRecord> items)
{
    if (items.empty())
        return;
    std::unordered_map<FolderId, std::int32_t> arrived;
    for (const ItemRecord& item : items)
        ++arrived[item.folder];
    std::vector<std::pair<ItemId, std::int32_t>> written;
    written.reserve(items.size());
    Transaction transaction{*database_};
    for (const ItemRecord& item : items) {
        ItemRecord record = keptRecord(item);
        record.revision = 1;
        record.size = sizeOf(record);
        const ItemId id = insertItem(*database_, record);
        log(ChangeKind::Added, record.folder, id, arrived[record.folder]);
        written.emplace_back(id, record.size);
    }
    transaction.commit();
    for (std::size_t index = 0; index < items.size(); ++index) {
        items[index].revision = 1;
        std::tie(items[index].id, items[index].size) = written[index];
    }
}

bool SqliteStore::remove(ItemId item)
{
    Transaction transaction{*database_};
    const std::optional<StoredItem> before = storedItem(*database_, item);
    if (!before)
        return false;
    deleteItem(*database_, item, *before);
    log(ChangeKind::Removed, before->folder, item);
    transaction.commit();
    return true;
}

std::size_t SqliteStore::count(FolderId folder) const
{
    // Counting looks at every item of the folder, so it is done once between two changes.
    Counted& known = counted_[folder];
    const std::int64_t change = lastChange();
    if (known.change != change) {
        Query query{*database_, countItems};
        known.items = query.bind(folder).next() ? static_cast<std::size_t>(query.integer(0)) : 0;
        known.change = change;
    }
    return known.items;
}

std::vector<ItemId> SqliteStore::items(FolderId folder) const
{
    Query query{*database_, readItems};
    return idsOf(query.bind(folder));
}

std::vector<ItemId> SqliteStore::overlapping(FolderId folder, Date from, Date to) const
{
    std::vector<std::pair<std::int64_t, std::int64_t>> found;
    Query query{*database_, readOverlapping};
    query.bind(folder).bind(orderedSeconds(from)).bind(orderedSeconds(to));
    while (query.next())
        found.emplace_back(query.integer(0), query.integer(1));
    std::ranges::sort(found);
    std::vector<ItemId> ids;
    ids.reserve(found.size());
    for (const auto& [start, id] : found)
        ids.push_back(ItemId{id});
    return ids;
}

std::vector<ItemId> SqliteStore::withSubject(FolderId folder, TextView subject) const
{
    const Text key = searchKey(subject);
    if (!isCut(key)) {
        Query query{*database_, readWithSubject};
        return idsOf(query.bind(folder).bind(TextView{key}));
    }
    std::vector<ItemId> found;
    Query query{*database_, readSubjects};
    query.bind(folder).bind(TextView{key});
    while (query.next()) {
        if (equalIgnoringCase(query.text(1), subject))
            found.push_back(ItemId{query.integer(0)});
    }
    return found;
}

std::vector<ItemId> SqliteStore::withProperty(FolderId folder, TextView name, TextView text) const
{
    const Text nameKey = searchKey(name);
    const Text textKey = searchKey(text);
    std::vector<ItemId> found;
    {
        Query query{*database_, readWithProperty};
        found = idsOf(query.bind(folder).bind(TextView{nameKey}).bind(TextView{textKey}));
    }
    if (isCut(nameKey) || isCut(textKey)) {
        std::erase_if(found, [&](ItemId item) {
            const std::optional<ItemRecord> record = read(item);
            return !record || !hasText(record->userProperties, name, text);
        });
    }
    return found;
}

std::int64_t SqliteStore::lastChange() const
{
    Query query{*database_, readLastChange};
    return query.next() ? query.integer(0) : 0;
}

std::vector<Change> SqliteStore::changesAfter(std::int64_t sequence) const
{
    std::vector<Change> changes;
    Query query{*database_, readChanges};
    query.bind(sequence);
    while (query.next()) {
        changes.push_back({query.integer(0), ChangeKind{query.integer32(1)}, FolderId{query.integer(2)},
            ItemId{query.integer(3)}, query.integer32(4), query.integer(5)});
    }
    return changes;
}

void SqliteStore::log(ChangeKind kind, FolderId folder, ItemId item, std::int32_t arrivedTogether)
{
    Query{*database_, insertChange}
        .bind(kind)
        .bind(folder)
        .bind(item)
        .bind(std::int64_t{arrivedTogether})
        .bind(writer_)
        .run();
    const std::int64_t sequence = database_->lastRow();
    if (sequence > keptChanges && sequence % changesForgottenTogether == 0)
        Query{*database_, deleteChanges}.bind(sequence - keptChanges).run();
}

bool SqliteStore::takeLease(FolderId folder, std::chrono::milliseconds duration, std::chrono::milliseconds limit)
{
    return leases_->take(folder, duration, limit);
}

bool SqliteStore::holdsLease(FolderId folder) const { return leases_->holds(folder); }

void SqliteStore::giveUpLease(FolderId folder) { leases_->giveUp(folder); }

} // namespace rf::host
