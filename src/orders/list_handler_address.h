#pragma once

#include "basic/text.h"

#include <cstdint>
#include <optional>

namespace rf::orders {

/// The rows of a sheet that can be reached, counted from 1.
struct ViewedRows {
    std::int32_t first = 0;
    std::int32_t count = 0;

    friend bool operator==(ViewedRows, ViewedRows) = default;
};

/// The rows of an address such as "$A$1:$C$7"; nothing for one without rows, such as "$A:$C".
[[nodiscard]] std::optional<ViewedRows> viewedRows(TextView address);

/// The address of one cell, whose row and column count from 1: "C7".
[[nodiscard]] Text cellAddress(std::int32_t row, std::int32_t column);

/// A column by its name as a whole: "C:C". A name with ":" in it is an address already.
[[nodiscard]] Text columnAddress(TextView name);

/// The column of an address by its first letter, whole ("C:C") or from a row on ("C2:C1999").
[[nodiscard]] Text columnOf(TextView address, std::optional<std::int32_t> fromRow);

/// The last row that lists give a look of its own.
inline constexpr std::int32_t lastStyledRow = 1999;

} // namespace rf::orders
