#pragma once

#include "host/sqlite_database.h"

namespace rf::host {

enum class Opening {
    /// The file must be there.
    Existing,
    /// A new store is made where no file is.
    CreateIfMissing,
};

/// A connection to the store in a file. What the file is is found out before anything in it or beside it is touched.
/// A file or folder that cannot be written gives a connection that reads.
[[nodiscard]] std::unique_ptr<Database> openStoreFile(
    const std::filesystem::path& path, Opening opening, std::chrono::milliseconds busyLimit);

} // namespace rf::host
