#pragma once

#include "host/records.h"
#include "host/sqlite_database.h"

#include <random>
#include <string>

namespace rf::host {

/// The leases of one store object: rows that name their owner, its process and the end of the time. A lease protects
/// what running processes do and means nothing to a machine that has lost power, so its commits do not wait for the
/// medium.
class Leases {
public:
    Leases(Database& database, std::int64_t owner);
    ~Leases();
    Leases(const Leases&) = delete;
    Leases& operator=(const Leases&) = delete;

    /// As `Store::takeLease` and the others.
    [[nodiscard]] bool take(FolderId folder, std::chrono::milliseconds duration, std::chrono::milliseconds limit);
    [[nodiscard]] bool holds(FolderId folder);
    void giveUp(FolderId folder);

private:
    [[nodiscard]] bool isFree(FolderId folder);
    [[nodiscard]] bool takeIfFree(
        FolderId folder, std::chrono::milliseconds duration, std::chrono::milliseconds busyLimit);

    Database& database_;
    std::int64_t owner_;
    std::string process_;
    bool isUsed_ = false;
    /// Waiters that ask at the same moments would find each other's lock instead of the lease.
    std::minstd_rand pauses_;
};

} // namespace rf::host
