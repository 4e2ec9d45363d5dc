#pragma once

#include "host/restriction_condition.h"

#include <cstdint>
#include <vector>

namespace rf::host {

/// Whole minutes from the first one to the last one.
struct MinuteSpan {
    std::int64_t from = 0;
    std::int64_t to = 0;

    friend bool operator==(const MinuteSpan&, const MinuteSpan&) = default;
};

/// All the minutes that a date can lie in.
[[nodiscard]] MinuteSpan allMinutes();

/// Every item that can match has a minute in one of these spans. They stand in their order, apart from each other.
[[nodiscard]] std::vector<MinuteSpan> spansOf(const Condition& condition);

} // namespace rf::host
