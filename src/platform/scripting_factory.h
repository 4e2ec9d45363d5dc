#pragma once

#include "automation/class_registry.h"
#include "basic/system.h"
#include "diagnostics/error_reporter.h"
#include "diagnostics/trace.h"
#include "outlook/scripting.h"
#include "ui/toolkit.h"

namespace rf {

/// Makes the scripting components that the program uses. A component that cannot be made is registered with the
/// system once, silently, and tried again; one that is still missing ends the program, since nothing works without.
class ScriptingFactory {
public:
    ScriptingFactory(Trace& trace, automation::ClassRegistry& classes, System& system, ui::Toolkit& toolkit,
        ErrorReporter& reporter, ReportSurroundings& surroundings);

    /// A new, empty dictionary whose keys compare without regard to case.
    [[nodiscard]] outlook::Dictionary fncCreateDic();
    /// The shell object.
    [[nodiscard]] outlook::Shell fncGetShell();

private:
    Trace& trace_;
    automation::ClassRegistry& classes_;
    System& system_;
    ui::Toolkit& toolkit_;
    ErrorReporter& reporter_;
    ReportSurroundings& surroundings_;
};

} // namespace rf
