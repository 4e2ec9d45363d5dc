#pragma once

#include "linux/spreadsheet_area.h"

namespace rf::native::spreadsheet {

/// By how many rows and columns a formula has moved.
struct Move {
    std::int32_t rows = 0;
    std::int32_t columns = 0;
};

/// A formula speaks of cells beside it; elsewhere it speaks of those there. Rows and columns with a "$" stay, and so do
/// texts in quotes and references that would leave the sheet.
[[nodiscard]] Text movedBy(TextView formula, Move move);

} // namespace rf::native::spreadsheet
