#pragma once

#include "host/store.h"

#include <span>
#include <string>
#include <vector>

namespace rf::host {

/// Whether a folder shows the home page of the calendar product.
[[nodiscard]] bool hasHomePage(const FolderRecord& folder);

/// The calendars that the home page of a root folder offers, in the order in which they were made.
[[nodiscard]] std::vector<FolderRecord> homePageCalendars(const Store& store, FolderId root);

/// What the selection file says of the calendars that are to be watched: a name on each line.
[[nodiscard]] std::string selectionText(std::span<const Text> names);

/// The page that describes a resource, as its post in the root folder has it; empty without one. Of several posts the
/// oldest counts.
[[nodiscard]] Text descriptionOf(const Store& store, FolderId root, TextView resource);

/// Why a resource cannot have a name; empty when it can.
[[nodiscard]] Text objectionToName(const Store& store, FolderId root, TextView name);

} // namespace rf::host
