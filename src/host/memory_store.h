#pragma once

#include "host/store.h"

#include <map>
#include <set>
#include <utility>

namespace rf::host {

/// A store that lives as long as its object and belongs to one process: for tests, and where nothing is to be kept.
/// Nobody competes for its leases, so each is granted.
class MemoryStore final : public Store {
public:
    MemoryStore();

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
    using Instant = std::chrono::steady_clock::time_point;

    using Subject = std::pair<FolderId, Text>;

    void requireFolder(FolderId folder) const;
    [[nodiscard]] std::span<const FolderId> foldersIn(FolderId parent) const;
    void keepInOrder(FolderId folder, FolderId parent);
    [[nodiscard]] static Subject subjectOf(const ItemRecord& item);
    void keep(ItemRecord item);
    void forget(const ItemRecord& item);
    /// What is kept of an item that is to be written, complete with its revision and size.
    [[nodiscard]] ItemRecord kept(const ItemRecord& item, ItemId id, std::int64_t revision) const;
    template <class Condition>
    [[nodiscard]] std::vector<ItemId> itemsWhere(FolderId folder, const Condition& condition) const;
    void log(ChangeKind kind, FolderId folder, ItemId item, std::int32_t arrivedTogether = 1);

    std::map<FolderId, FolderRecord> folders_;
    std::map<FolderId, std::vector<FolderId>> below_;
    std::map<ItemId, ItemRecord> items_;
    std::map<Subject, std::set<ItemId>> bySubject_;
    std::vector<Change> changes_;
    std::map<FolderId, Instant> leases_;
    std::int64_t lastFolder_ = 0;
    std::int64_t lastItem_ = 0;
    std::int64_t writer_;
};

} // namespace rf::host
