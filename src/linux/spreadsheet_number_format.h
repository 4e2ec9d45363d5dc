#pragma once

#include "automation/variant.h"
#include "basic/regional.h"

namespace rf::native::spreadsheet {

/// A value as a cell of that format shows it. Named formats are "General", "Text", "General Date", "Short Date",
/// "Currency", "Fixed", "Standard", "Percent"; of a picture the count of decimals and a percent sign count.
[[nodiscard]] Text formatted(const Regional& regional, const automation::Variant& value, TextView format);
[[nodiscard]] bool isTextFormat(TextView format);
[[nodiscard]] bool isDateFormat(TextView format);

} // namespace rf::native::spreadsheet
