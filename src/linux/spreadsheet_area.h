#pragma once

#include "basic/text.h"

#include <algorithm>
#include <compare>
#include <cstdint>
#include <optional>

namespace rf::native::spreadsheet {

inline constexpr std::int32_t rowLimit = 65536;
inline constexpr std::int32_t columnLimit = 702;

/// Rows and columns count from 1.
struct Cell {
    std::int32_t row = 1;
    std::int32_t column = 1;

    friend auto operator<=>(Cell, Cell) = default;
};

/// A rectangle of cells, its edges included.
struct Area {
    Cell first;
    Cell last;

    [[nodiscard]] static constexpr Area of(Cell cell) { return {cell, cell}; }
    [[nodiscard]] static constexpr Area whole() { return {{1, 1}, {rowLimit, columnLimit}}; }
    [[nodiscard]] std::int32_t rows() const { return last.row - first.row + 1; }
    [[nodiscard]] std::int32_t columns() const { return last.column - first.column + 1; }
    [[nodiscard]] bool isOneCell() const { return first == last; }
    [[nodiscard]] bool contains(Cell cell) const
    {
        return cell.row >= first.row && cell.row <= last.row && cell.column >= first.column
            && cell.column <= last.column;
    }
    [[nodiscard]] bool covers(const Area& other) const { return contains(other.first) && contains(other.last); }
    /// What two areas share; nothing when they are apart.
    [[nodiscard]] std::optional<Area> common(const Area& other) const;

    friend bool operator==(const Area&, const Area&) = default;
};

/// "B7", "$B$7", "a1:C5", "2:9", "A:C", or a column's letters alone; nothing for a text that is no address.
[[nodiscard]] std::optional<Area> parseAddress(TextView text);
/// "$B$7" or "$A$1:$C$5"; whole rows are "$2:$9", whole columns "$A:$C".
[[nodiscard]] Text addressOf(const Area& area);
[[nodiscard]] Text columnName(std::int32_t column);

} // namespace rf::native::spreadsheet
