#pragma once

#include "host/records.h"

#include <optional>

namespace rf::host {

/// The texts by which programs keep hold of items and folders. They are made of the store's numbers and stay the same
/// for the life of the thing; an id that is none gives an empty text.
[[nodiscard]] Text entryIdOf(ItemId item);
[[nodiscard]] Text entryIdOf(FolderId folder);

/// The number behind a text; nothing when the text is not one of that kind.
[[nodiscard]] std::optional<ItemId> itemIdOf(TextView entryId);
[[nodiscard]] std::optional<FolderId> folderIdOf(TextView entryId);

} // namespace rf::host
