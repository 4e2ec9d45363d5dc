#pragma once

#include "linux/spreadsheet_sheet.h"

namespace rf::native::spreadsheet {

/// The visible cells of an area as a page of its own: fonts, backgrounds, alignment and borders, and every text as
/// text. Columns and rows that are hidden or out of view are left out.
[[nodiscard]] Text htmlOf(const Sheet& sheet, const Area& area);

} // namespace rf::native::spreadsheet
