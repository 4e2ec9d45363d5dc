#pragma once

#include "diagnostics/trace.h"
#include "ui/form.h"
#include "ui/toolkit.h"

namespace rf {

/// Keeps a window of the program above the host's.
class clsAlwaysOnTop {
public:
    explicit clsAlwaysOnTop(ui::Toolkit& toolkit)
        : toolkit_(toolkit)
    {
    }

    void MakeTopMost(ui::WindowHandle window) { toolkit_.setTopMost(window, true); }
    void MakeNormal(ui::WindowHandle window) { toolkit_.setTopMost(window, false); }

private:
    ui::Toolkit& toolkit_;
};

/// Gives a form its own button in the task bar, so that the user finds it again behind the host's windows.
void subEnsureVisibleTaskBar(Trace& trace, ui::Toolkit& toolkit, const ui::Form& form);

} // namespace rf
