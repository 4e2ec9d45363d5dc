#include "host/memory_store.h"

#include <algorithm>

namespace rf::host {
namespace {

[[noreturn]] void folderIsMissing() { throw StoreError{StoreFault::Missing, u"The folder is no longer in the store."}; }

StoreError missingItem() { return {StoreFault::Missing, u"The item is no longer in the store."}; }

void fillIn(ItemRecord& item, const ItemRecord& kept)
{
    item.id = kept.id;
    item.revision = kept.revision;
    item.size = kept.size;
}

} // namespace

MemoryStore::MemoryStore()
    : writer_(randomWriter())
{
}

std::vector<FolderRecord> MemoryStore::folders() const
{
    std::vector<FolderRecord> all;
    all.reserve(folders_.size());
    for (const auto& [id, folder] : folders_)
        all.push_back(folder);
    return parentsFirst(std::move(all));
}

std::optional<FolderRecord> MemoryStore::folder(FolderId folder) const
{
    const auto found = folders_.find(folder);
    return found == folders_.end() ? std::nullopt : std::optional{found->second};
}

std::size_t MemoryStore::countFolders(FolderId parent) const { return foldersIn(parent).size(); }

std::optional<FolderId> MemoryStore::folderAt(FolderId parent, std::size_t position) const
{
    const auto all = foldersIn(parent);
    return position < all.size() ? std::optional{all[position]} : std::nullopt;
}

std::optional<FolderId> MemoryStore::folderNamed(FolderId parent, TextView name) const
{
    const auto all = foldersIn(parent);
    const auto found
        = std::ranges::find_if(all, [&](FolderId folder) { return equalIgnoringCase(folders_.at(folder).name, name); });
    return found == all.end() ? std::nullopt : std::optional{*found};
}

FolderId MemoryStore::addFolder(const FolderRecord& folder)
{
    if (folder.parent != FolderId::None)
        requireFolder(folder.parent);
    const FolderId id{++lastFolder_};
    folders_[id] = folder;
    folders_[id].id = id;
    keepInOrder(id, folder.parent);
    return id;
}

void MemoryStore::updateFolder(const FolderRecord& folder)
{
    requireFolder(folder.id);
    for (FolderId above = folder.parent; above != FolderId::None; above = folders_[above].parent) {
        requireFolder(above);
        if (above == folder.id)
            throw StoreError{StoreFault::Failed, u"A folder cannot lie inside itself."};
    }
    std::erase(below_[folders_[folder.id].parent], folder.id);
    keepInOrder(folder.id, folder.parent);
    folders_[folder.id] = folder;
}

void MemoryStore::change(FolderId folder, const std::function<void(FolderRecord&)>& work)
{
    requireFolder(folder);
    FolderRecord record = folders_[folder];
    work(record);
    record.id = folder;
    updateFolder(record);
}

void MemoryStore::removeFolder(FolderId folder)
{
    requireFolder(folder);
    while (const auto below = folderAt(folder, 0))
        removeFolder(*below);
    for (const ItemId item : items(folder))
        remove(item);
    leases_.erase(folder);
    below_.erase(folder);
    std::erase(below_[folders_[folder].parent], folder);
    folders_.erase(folder);
}

std::optional<ItemRecord> MemoryStore::read(ItemId item) const
{
    const auto found = items_.find(item);
    return found == items_.end() ? std::nullopt : std::optional{found->second};
}

void MemoryStore::save(ItemRecord& item)
{
    if (item.id == ItemId::None) {
        saveTogether({&item, 1});
        return;
    }
    const auto found = items_.find(item.id);
    if (found == items_.end())
        throw missingItem();
    ItemRecord record = kept(item, item.id, found->second.revision + 1);
    const FolderId before = found->second.folder;
    fillIn(item, record);
    forget(found->second);
    keep(std::move(record));
    if (before == item.folder) {
        log(ChangeKind::Changed, item.folder, item.id);
    } else {
        log(ChangeKind::Removed, before, item.id);
        log(ChangeKind::Added, item.folder, item.id);
    }
}

void MemoryStore::change(ItemId item, const std::function<void(ItemRecord&)>& work)
{
    std::optional<ItemRecord> record = read(item);
    if (!record)
        throw missingItem();
    work(*record);
    record->id = item;
    save(*record);
}

void MemoryStore::saveTogether(std::span<ItemRecord> items)
{
    std::vector<ItemRecord> records;
    records.reserve(items.size());
    std::map<FolderId, std::int32_t> arrived;
    std::int64_t last = lastItem_;
    for (const ItemRecord& item : items) {
        records.push_back(kept(item, ItemId{++last}, 1));
        ++arrived[item.folder];
    }
    lastItem_ = last;
    for (std::size_t index = 0; index < items.size(); ++index) {
        ItemRecord& record = records[index];
        fillIn(items[index], record);
        log(ChangeKind::Added, record.folder, record.id, arrived[record.folder]);
        keep(std::move(record));
    }
}

bool MemoryStore::remove(ItemId item)
{
    const auto found = items_.find(item);
    if (found == items_.end())
        return false;
    log(ChangeKind::Removed, found->second.folder, item);
    forget(found->second);
    items_.erase(found);
    return true;
}

std::size_t MemoryStore::count(FolderId folder) const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(items_, [folder](const auto& entry) { return entry.second.folder == folder; }));
}

std::vector<ItemId> MemoryStore::items(FolderId folder) const
{
    return itemsWhere(folder, [](const ItemRecord&) { return true; });
}

std::vector<ItemId> MemoryStore::overlapping(FolderId folder, Date from, Date to) const
{
    const std::int64_t first = orderedSeconds(from);
    const std::int64_t last = orderedSeconds(to);
    std::vector<ItemId> found = itemsWhere(folder, [first, last](const ItemRecord& item) {
        const Stretch stretch = stretchOf(item);
        return stretch.first <= last && stretch.last >= first;
    });
    std::ranges::stable_sort(found, {}, [this](ItemId item) { return orderedSeconds(items_.at(item).start); });
    return found;
}

std::vector<ItemId> MemoryStore::withSubject(FolderId folder, TextView subject) const
{
    const auto found = bySubject_.find({folder, upper(subject)});
    return found == bySubject_.end() ? std::vector<ItemId>{} : std::vector(found->second.begin(), found->second.end());
}

std::vector<ItemId> MemoryStore::withProperty(FolderId folder, TextView name, TextView text) const
{
    return itemsWhere(
        folder, [name, text](const ItemRecord& item) { return hasText(item.userProperties, name, text); });
}

std::int64_t MemoryStore::lastChange() const { return changes_.empty() ? 0 : changes_.back().sequence; }

std::vector<Change> MemoryStore::changesAfter(std::int64_t sequence) const
{
    const auto next = std::ranges::upper_bound(changes_, sequence, {}, &Change::sequence);
    return {next, changes_.end()};
}

bool MemoryStore::takeLease(FolderId folder, std::chrono::milliseconds duration, std::chrono::milliseconds)
{
    leases_[folder] = std::chrono::steady_clock::now() + duration;
    return true;
}

bool MemoryStore::holdsLease(FolderId folder) const
{
    const auto found = leases_.find(folder);
    return found != leases_.end() && std::chrono::steady_clock::now() < found->second;
}

void MemoryStore::giveUpLease(FolderId folder) { leases_.erase(folder); }

void MemoryStore::requireFolder(FolderId folder) const
{
    if (!folders_.contains(folder))
        folderIsMissing();
}

std::span<const FolderId> MemoryStore::foldersIn(FolderId parent) const
{
    const auto found = below_.find(parent);
    return found == below_.end() ? std::span<const FolderId>{} : std::span<const FolderId>{found->second};
}

void MemoryStore::keepInOrder(FolderId folder, FolderId parent)
{
    auto& siblings = below_[parent];
    siblings.insert(std::ranges::upper_bound(siblings, folder), folder);
}

MemoryStore::Subject MemoryStore::subjectOf(const ItemRecord& item) { return {item.folder, upper(item.subject)}; }

void MemoryStore::keep(ItemRecord item)
{
    bySubject_[subjectOf(item)].insert(item.id);
    const ItemId id = item.id;
    items_.insert_or_assign(id, std::move(item));
}

void MemoryStore::forget(const ItemRecord& item)
{
    const auto found = bySubject_.find(subjectOf(item));
    found->second.erase(item.id);
    if (found->second.empty())
        bySubject_.erase(found);
}

ItemRecord MemoryStore::kept(const ItemRecord& item, ItemId id, std::int64_t revision) const
{
    requireFolder(item.folder);
    ItemRecord record = keptRecord(item);
    record.id = id;
    record.revision = revision;
    record.size = sizeOf(record);
    return record;
}

template <class Condition>
std::vector<ItemId> MemoryStore::itemsWhere(FolderId folder, const Condition& condition) const
{
    std::vector<ItemId> found;
    for (const auto& [id, item] : items_) {
        if (item.folder == folder && condition(item))
            found.push_back(id);
    }
    return found;
}

void MemoryStore::log(ChangeKind kind, FolderId folder, ItemId item, std::int32_t arrivedTogether)
{
    changes_.push_back({lastChange() + 1, kind, folder, item, arrivedTogether, writer_});
}

} // namespace rf::host
