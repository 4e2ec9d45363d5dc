#pragma once

#include "host/records.h"
#include "host/store_error.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace rf::host {

enum class ChangeKind : std::int32_t { Added = 1, Changed = 2, Removed = 3 };

/// One entry of the log that every process on a store follows.
struct Change {
    /// Grows by the order of the commits.
    std::int64_t sequence = 0;
    ChangeKind kind = ChangeKind::Added;
    FolderId folder = FolderId::None;
    ItemId item = ItemId::None;
    /// How many items were added to the folder in the same transaction; 1 for an entry of another kind.
    std::int32_t arrivedTogether = 1;
    /// The writer, as it named itself when it opened the store; a process knows its own changes by it.
    std::int64_t writer = 0;
};

/// How far behind the latest change a reader may be without missing one.
inline constexpr std::int64_t keptChanges = 100'000;

/// Where the folders and items of an installation are kept. Every change is one transaction: after a call that changes
/// something has returned, the change outlives the process and the system; of one that failed, nothing is there.
/// Several processes may use one store at once. One thread uses one object of this class.
class Store {
public:
    virtual ~Store() = default;

    /// Every folder, parents before their children, siblings in the order in which they were made.
    [[nodiscard]] virtual std::vector<FolderRecord> folders() const = 0;
    /// Nothing when the folder is gone. What it costs does not grow with the number of folders.
    [[nodiscard]] virtual std::optional<FolderRecord> folder(FolderId folder) const = 0;
    /// How many folders lie in a folder, or how many message stores there are in none.
    [[nodiscard]] virtual std::size_t countFolders(FolderId parent) const = 0;
    /// The folder at that position, from 0 up, of those in a folder, in the order in which they were made.
    [[nodiscard]] virtual std::optional<FolderId> folderAt(FolderId parent, std::size_t position) const = 0;
    /// The oldest folder of that name, in any case, of those in a folder.
    [[nodiscard]] virtual std::optional<FolderId> folderNamed(FolderId parent, TextView name) const = 0;
    /// Adds a folder; its `id` is ignored. `Missing` when its parent is gone.
    virtual FolderId addFolder(const FolderRecord& folder) = 0;
    /// Replaces everything but the id. `Missing` when the folder or its parent is gone, `Failed` when the parent lies
    /// inside the folder itself.
    virtual void updateFolder(const FolderRecord& folder) = 0;
    /// Has `work` change a folder as it is stored and replaces everything but the id, in one transaction: nobody else's
    /// change of the folder comes between. Fails as `updateFolder` does. What `work` throws leaves everything as it
    /// was; it does not use the store itself.
    virtual void change(FolderId folder, const std::function<void(FolderRecord&)>& work) = 0;
    /// Removes a folder with all that is in it, folders below it included; the log names every item. `Missing` when it
    /// is gone.
    virtual void removeFolder(FolderId folder) = 0;

    /// Nothing when the item is gone.
    [[nodiscard]] virtual std::optional<ItemRecord> read(ItemId item) const = 0;
    /// Writes a new item (its `id` is none) or the next revision of one, and fills in `id`, `revision` and `size`.
    /// `Missing` when the item or the folder is gone. The times are the caller's. An item that comes in another folder
    /// than before is logged as removed from the one and added to the other. A value by reference is kept as what it
    /// refers to; an object cannot be kept (error 13).
    virtual void save(ItemRecord& item) = 0;
    /// Has `work` change an item as it is stored and writes the next revision, in one transaction: nobody else's change
    /// of the item comes between. Replaces everything but the id, and fails as `save` does. What `work` throws leaves
    /// everything as it was; it does not use the store itself.
    virtual void change(ItemId item, const std::function<void(ItemRecord&)>& work) = 0;
    /// Writes many new items in one transaction: all of them or none. Their `id` is ignored.
    virtual void saveTogether(std::span<ItemRecord> items) = 0;
    /// Whether this call removed the item: of any number of callers exactly one is answered with true.
    virtual bool remove(ItemId item) = 0;

    [[nodiscard]] virtual std::size_t count(FolderId folder) const = 0;
    /// The items of a folder in the order in which they were first saved.
    [[nodiscard]] virtual std::vector<ItemId> items(FolderId folder) const = 0;
    /// The items that may have a moment in common with the closed interval: all that do, perhaps some beside it, and
    /// every series that has begun before its end and not ended before its start. Ordered by start.
    [[nodiscard]] virtual std::vector<ItemId> overlapping(FolderId folder, Date from, Date to) const = 0;
    /// The items with that subject, in any case, oldest first.
    [[nodiscard]] virtual std::vector<ItemId> withSubject(FolderId folder, TextView subject) const = 0;
    /// The items with a user property of that name and text, both in any case, oldest first.
    /// A value that is no text is not found, whatever it reads as.
    [[nodiscard]] virtual std::vector<ItemId> withProperty(FolderId folder, TextView name, TextView text) const = 0;

    /// The number of the latest change; 0 in a new store.
    [[nodiscard]] virtual std::int64_t lastChange() const = 0;
    /// The changes behind that number, in their order. The numbers have no gaps, and at least the latest
    /// `keptChanges` are kept: when the first answered is not the next number, others are lost and the reader looks
    /// at the folders anew.
    [[nodiscard]] virtual std::vector<Change> changesAfter(std::int64_t sequence) const = 0;
    /// The number by which this object's own changes are known in the log.
    [[nodiscard]] virtual std::int64_t writer() const = 0;

    /// Takes the lease of a folder, which one store object can own at a time, waiting for it no longer than `limit`.
    /// It ends when it is given up, `duration` after it was taken, or with its store object or process. Taking it again
    /// while it is held starts the duration anew. False when another kept it.
    [[nodiscard]] virtual bool takeLease(
        FolderId folder, std::chrono::milliseconds duration, std::chrono::milliseconds limit)
        = 0;
    /// Whether the lease is still this object's.
    [[nodiscard]] virtual bool holdsLease(FolderId folder) const = 0;
    virtual void giveUpLease(FolderId folder) = 0;
};

/// The stretch of time in which an item has something to say to `Store::overlapping`, in whole seconds since the zero
/// date. Rounding keeps the order of instants, so no two that touch are taken apart.
struct Stretch {
    std::int64_t first = 0;
    std::int64_t last = 0;
};

/// Later than every date.
inline constexpr std::int64_t endlessSeconds = std::int64_t{1} << 40;

/// Whole seconds of any date; one outside the years that dates have lies before or behind all others.
[[nodiscard]] std::int64_t orderedSeconds(Date date);
/// From the first moment of an item or of its first occurrence, moved ones included, to its last.
[[nodiscard]] Stretch stretchOf(const ItemRecord& item);
/// What an item takes, in bytes: its texts and values without what a store needs around them.
[[nodiscard]] std::int32_t sizeOf(const ItemRecord& item);
/// The value as a store keeps it: without references. Error 13 for an object.
[[nodiscard]] automation::Variant keptValue(const automation::Variant& value);
/// The item with all its values as a store keeps them.
[[nodiscard]] ItemRecord keptRecord(ItemRecord item);
/// Whether one of the properties has that name and text, both in any case.
[[nodiscard]] bool hasText(const std::vector<UserPropertyRecord>& properties, TextView name, TextView text);
/// Folders in the order of `Store::folders`. They come in the order in which they were made.
[[nodiscard]] std::vector<FolderRecord> parentsFirst(std::vector<FolderRecord> folders);
/// A number by which a store object is known to others.
[[nodiscard]] std::int64_t randomWriter();

} // namespace rf::host
