#pragma once

#include "host/records.h"

#include <optional>
#include <vector>

namespace rf::native {

/// Lets a person choose one of the folders; programs are served meanwhile. Nothing when the person cancels.
[[nodiscard]] std::optional<host::FolderId> askForFolder(const std::vector<host::FolderRecord>& folders);

} // namespace rf::native
