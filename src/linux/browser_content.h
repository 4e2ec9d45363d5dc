#pragma once

#include "linux/control_content.h"

class QTextDocument;

namespace rf::native {

/// Prints a page; false when a person thought better of it.
using PrintPage = std::function<bool(QTextDocument& page)>;

/// Asks for the printer, or for the file to print into. False where there is no screen to ask on.
[[nodiscard]] bool printByDialog(QTextDocument& page);

/// A browser for one page of this machine: its text and its looks. Nothing that the page names is loaded, links lead
/// nowhere, and no script runs. A page that is not there, or not on this machine, shows as an empty one.
[[nodiscard]] std::unique_ptr<ControlContent> makeBrowserContent(PrintPage print = printByDialog);

} // namespace rf::native
