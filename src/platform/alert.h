#pragma once

#include "diagnostics/trace.h"
#include "outlook/application.h"
#include "ui/toolkit.h"

#include <cstdint>

namespace rf {

/// Shows messages to the user through the host's assistant, in front of the host's own windows.
class AlertRoutine {
public:
    AlertRoutine(Trace& trace, ui::Toolkit& toolkit, const outlook::Application& ouaApp);

    /// Shows a message and answers the number of the button pressed, 2 for Cancel. A host without an assistant leaves
    /// it to a message box with the same title and buttons. 0 when showing fails.
    std::int32_t fncDoAlert(const Text& message);
    std::int32_t fncDoAlert(const Text& message, ui::Buttons buttons);
    std::int32_t fncDoAlert(const Text& message, ui::Buttons buttons, ui::Icon icon);

private:
    Trace& trace_;
    ui::Toolkit& toolkit_;
    /// The session's own reference, since the host is attached after this is made.
    const outlook::Application& ouaApp_;
};

} // namespace rf
