#pragma once

#include "automation/object.h"
#include "linux/spreadsheet_sheet.h"

namespace rf::native::spreadsheet {

/// The spreadsheet control as an automation object over a sheet: `Range`, `ActiveSheet`, `ActiveWindow`, `Selection`,
/// `Constants` and what belongs to them. Writing into a locked cell of a protected sheet is error 1004, a member or a
/// constant that the sheet's generation lacks is error 438, an address that cannot be read error 1004.
[[nodiscard]] automation::Object makeSpreadsheetObject(const std::shared_ptr<Sheet>& sheet);

/// The cells of an area, as `Range` answers them.
[[nodiscard]] automation::Object makeRangeObject(const std::shared_ptr<Sheet>& sheet, const Area& area);
/// The cells of an address. Error 1004 when it cannot be read.
[[nodiscard]] automation::Object makeRangeObject(const std::shared_ptr<Sheet>& sheet, TextView address);

/// How the control refuses what it cannot do.
inline constexpr std::int32_t applicationError = 1004;
[[noreturn]] void fail(std::int32_t number, TextView description, TextView member);
/// Error 438 unless the sheet is of that generation.
void requireGeneration(const Sheet& sheet, Generation generation, TextView member);

} // namespace rf::native::spreadsheet
