#pragma once

#include "ui/form_window.h"

namespace rf {

class Session;

} // namespace rf

namespace rf::orders {

/// The generations of the spreadsheet control. They differ in the names of constants and of a few members.
enum class Generation { Oldest, Later };

/// A spreadsheet that stands on a form.
struct SpreadsheetControl {
    /// Null when there is none.
    ui::AutomationControl* control = nullptr;
    Generation generation = Generation::Later;
};

/// Whether the first of the control's classes is tried.
enum class FirstClass { Try, Skip };

/// Puts a spreadsheet on a form, of the first class that the system has; a form accepts every class at run time.
[[nodiscard]] SpreadsheetControl makeSpreadsheetControl(ui::FormWindow& form, TextView name, FirstClass first);

/// Tells the user that there is no spreadsheet to be had, opens the page that has it when the user wants that, and
/// ends the program.
[[noreturn]] void endWithoutSpreadsheet(Session& session);

} // namespace rf::orders
