#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace rf::host {

/// What one booking takes of a row or column, in whatever unit; the end is the first that is free again.
struct Span {
    std::int64_t from = 0;
    std::int64_t to = 0;
};

/// Where a booking stands among those that it overlaps.
struct Lane {
    int lane = 0;
    /// How many stand side by side there.
    int lanes = 1;

    friend bool operator==(const Lane&, const Lane&) = default;
};

/// Overlapping bookings side by side: each in the first lane that is free, and all that hang together, each with the
/// next, share their width alike. The spans stand in the order of their begin.
[[nodiscard]] std::vector<Lane> sideBySide(std::span<const Span> spans);

/// The rows of bars that may not cover each other: each in the first row that is free.
[[nodiscard]] std::vector<int> stackedRows(std::span<const Span> spans);

} // namespace rf::host
