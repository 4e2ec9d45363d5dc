#pragma once

#include "host/sqlite_database.h"
#include "host/store.h"

#include <optional>
#include <utility>
#include <vector>

namespace rf::host {

/// A text by which items are found in any case: in upper case, cut to a length that an index takes many of.
[[nodiscard]] Text searchKey(TextView text);
/// Texts of one key may differ behind its end, so a match is to be looked at.
[[nodiscard]] bool isCut(const Text& key);

/// The names and texts that an item is found by.
using PropertyKeys = std::vector<std::pair<Text, Text>>;

/// What is to be known of an item before its next revision is written.
struct StoredItem {
    FolderId folder = FolderId::None;
    std::int64_t revision = 0;
    PropertyKeys keys;
};

/// The rows of items and of their keys. Writing takes place inside the caller's transaction.
[[nodiscard]] std::optional<ItemRecord> readItem(Database& database, ItemId item);
[[nodiscard]] std::optional<StoredItem> storedItem(Database& database, ItemId item);
[[nodiscard]] ItemId insertItem(Database& database, const ItemRecord& item);
void replaceItem(Database& database, const ItemRecord& item, const StoredItem& before);
void deleteItem(Database& database, ItemId item, const StoredItem& before);

} // namespace rf::host
