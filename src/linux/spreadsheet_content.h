#pragma once

#include "linux/control_content.h"
#include "linux/spreadsheet_constants.h"

namespace rf::native {

/// A spreadsheet of one generation of the control.
[[nodiscard]] std::unique_ptr<ControlContent> makeSpreadsheetContent(
    std::shared_ptr<const Regional> regional, spreadsheet::Generation generation);

} // namespace rf::native
