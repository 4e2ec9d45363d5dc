#pragma once

#include "automation/variant.h"
#include "basic/regional.h"
#include "orders/supply_item.h"

#include <memory>
#include <vector>

namespace rf::orders {

/// The supplies of the settings in their order.
using Supplies = std::vector<std::shared_ptr<cSupplyItem>>;

/// The sheet of an order: a heading, and from row 2 on a row for each supply with its name (A), its price (B), the
/// quantity that the user types (C) and, out of sight, what that costs (D).
namespace grid {
inline constexpr std::int32_t firstRow = 2;
/// The row of the cell that adds up what the rows before it cost; supplies from there on are not in the total.
inline constexpr std::int32_t totalRow = 101;
inline constexpr TextView totalCell = u"D101";
inline constexpr TextView totalFormula = u"=SUM(D2:D100)";
/// Of the first row; in the others it speaks of theirs.
inline constexpr TextView costFormula = u"=B2*C2";
inline constexpr TextView fixedCells = u"A1:B100";
} // namespace grid

/// The row of the last supply; that of the heading without supplies.
[[nodiscard]] std::int32_t lastRow(const Supplies& supplies);

/// Names and prices, a row for each supply.
[[nodiscard]] automation::Array supplyCells(const Supplies& supplies);

/// A quantity and the cell that it stands in.
struct GridQuantity {
    Text cell;
    std::int32_t quantity = 0;

    friend bool operator==(const GridQuantity&, const GridQuantity&) = default;
};

/// Where the quantities of an orders text stand. A row whose name is no supply's, to the letter, has no place. What is
/// no number is 0. Error 6 for a quantity beyond 32 bits, 9 for a text with a short line.
[[nodiscard]] std::vector<GridQuantity> gridQuantities(
    const Regional& regional, const Supplies& supplies, TextView strOrdersList);

/// The orders text of the first three columns of the rows: a line for each quantity that is not empty.
[[nodiscard]] Text orderLines(const Regional& regional, const automation::Array& rows);

} // namespace rf::orders
