#pragma once

#include "basic/runtime_error.h"

namespace rf::host {

/// Why a store refused.
enum class StoreFault {
    /// The medium is full; nothing was written.
    Full,
    ReadOnly,
    /// The file is no store, or it is damaged; it was left as it is.
    Damaged,
    /// A newer program made it; it was left as it is.
    NewerVersion,
    /// The item or folder is not there, or no longer.
    Missing,
    /// Another process kept it locked for too long.
    Busy,
    /// Anything else that the system says of the file.
    Failed,
};

/// A failure of the store, with a description that a person can act on. Its number is the result code that programs
/// beside the host know for the same trouble with a message store.
class StoreError : public RuntimeError {
public:
    StoreError(StoreFault fault, Text description, std::source_location where = std::source_location::current());

    [[nodiscard]] StoreFault fault() const { return fault_; }

private:
    StoreFault fault_;
};

} // namespace rf::host
