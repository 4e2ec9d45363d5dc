#pragma once

#include "host/sqlite_leases.h"
#include "host/sqlite_opening.h"
#include "host/store.h"

#include <unordered_map>

namespace rf::host {

/// A store in one SQLite file with its write-ahead log. Any number of processes on one machine use it at once: readers
/// wait for nobody, writers for each other, and no longer than the limit for a locked file.
class SqliteStore final : public Store {
public:
    static constexpr std::chrono::milliseconds usualBusyLimit{10'000};

    explicit SqliteStore(const std::filesystem::path& path, Opening opening = Opening::CreateIfMissing,
        std::chrono::milliseconds busyLimit = usualBusyLimit);

    [[nodiscard]] std::vector<FolderRecord> folders() const override;
    [[nodiscard]] std::optional<FolderRecord> folder(FolderId folder) const override;
    [[nodiscard]] std::size_t countFolders(FolderId parent) const override;
    [[nodiscard]] std::optional<FolderId> folderAt(FolderId parent, std::size_t position) const override;
    [[nodiscard]] std::optional<FolderId> folderNamed(FolderId parent, TextView name) const override;
    FolderId addFolder(const FolderRecord& folder) override;
    void updateFolder(const FolderRecord& folder) override;
    void change(FolderId folder, const std::function<void(FolderRecord&)>& work) override;
    void removeFolder(FolderId folder) override;

    [[nodiscard]] std::optional<ItemRecord> read(ItemId item) const override;
    void save(ItemRecord& item) override;
    void change(ItemId item, const std::function<void(ItemRecord&)>& work) override;
    void saveTogether(std::span<ItemRecord> items) override;
    bool remove(ItemId item) override;

    [[nodiscard]] std::size_t count(FolderId folder) const override;
    [[nodiscard]] std::vector<ItemId> items(FolderId folder) const override;
    [[nodiscard]] std::vector<ItemId> overlapping(FolderId folder, Date from, Date to) const override;
    [[nodiscard]] std::vector<ItemId> withSubject(FolderId folder, TextView subject) const override;
    [[nodiscard]] std::vector<ItemId> withProperty(FolderId folder, TextView name, TextView text) const override;

    [[nodiscard]] std::int64_t lastChange() const override;
    [[nodiscard]] std::vector<Change> changesAfter(std::int64_t sequence) const override;
    [[nodiscard]] std::int64_t writer() const override { return writer_; }

    [[nodiscard]] bool takeLease(
        FolderId folder, std::chrono::milliseconds duration, std::chrono::milliseconds limit) override;
    [[nodiscard]] bool holdsLease(FolderId folder) const override;
    void giveUpLease(FolderId folder) override;

private:
    /// How many items a folder had when that change was the latest.
    struct Counted {
        std::int64_t change = -1;
        std::size_t items = 0;
    };

    void log(ChangeKind kind, FolderId folder, ItemId item, std::int32_t arrivedTogether = 1);
    /// Writes a folder anew within a transaction.
    void replace(const FolderRecord& folder);
    /// Writes the next revision of an item within a transaction, and fills that in.
    void replace(ItemRecord& item);
    [[nodiscard]] std::vector<FolderId> withFoldersBelow(FolderId folder) const;
    void removeItemsOf(FolderId folder);

    // SQLite itself keeps state while it reads.
    std::unique_ptr<Database> database_;
    std::int64_t writer_;
    std::unique_ptr<Leases> leases_;
    mutable std::unordered_map<FolderId, Counted> counted_;
};

} // namespace rf::host
