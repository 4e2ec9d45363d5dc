#pragma once

#include "basic/runtime_error.h"
#include "basic/system.h"
#include "diagnostics/trace.h"
#include "language/phrases.h"
#include "outlook/application.h"
#include "ui/toolkit.h"

#include <cstdint>
#include <cstdlib>
#include <utility>

namespace rf {

/// What the reporter needs of the program around it.
class ReportSurroundings {
public:
    virtual ~ReportSurroundings() = default;

    /// The phrases; the table is loaded first when an error comes before that step of the start. Never fails: a
    /// table that cannot be read gives empty phrases.
    [[nodiscard]] virtual const Phrases& fncReportPhrases() = 0;
    /// The host that the program holds; empty when it holds none.
    [[nodiscard]] virtual outlook::Application fncReportOutlook() = 0;
    /// Attaches to the host or starts it.
    virtual void subReportAttach() = 0;
    /// Ends the program.
    [[noreturn]] void subReportEnd()
    {
        endProgram();
        std::abort();
    }

protected:
    /// Does not return.
    virtual void endProgram() = 0;
};

/// Tells the user about an error that the program cannot go on after, offers to mail the report, and ends the program.
/// One report is shown in the life of the process; an error that arises while it is on screen only ends the program.
class ErrorReporter {
public:
    ErrorReporter(const Trace& trace, const System& system, ui::Toolkit& toolkit, ReportSurroundings& surroundings);

    /// Shows the report and ends the program. `line` is a line of the source file, `procedure` the label of the
    /// procedure that gave up, such as "Main" or "cListHandler.SetValue".
    [[noreturn]] void subErrorHandler(
        const Text& description, std::int32_t number, std::int16_t line, const Text& procedure);
    [[noreturn]] void subErrorHandler(const RuntimeError& error, TextView procedure);

    /// Opens the report as a mail to support for the user to send (never sent silently), and ends the program.
    [[noreturn]] void subSendErrorReport();

    /// Runs a procedure that must not go on after an error: any run-time error in it is reported under its label.
    template <class Body>
    auto handled(TextView procedure, Body&& body) -> decltype(body())
    {
        try {
            return std::forward<Body>(body)();
        } catch (const RuntimeError& error) {
            subErrorHandler(error, procedure);
        }
    }

private:
    [[nodiscard]] Text heading(const Phrases& phrases) const;
    [[nodiscard]] static Text report(const Phrases& phrases, const Text& lastAction, const Text& description,
        std::int32_t number, std::int16_t line, const Text& procedure);

    const Trace& trace_;
    const System& system_;
    ui::Toolkit& toolkit_;
    ReportSurroundings& surroundings_;
    Text strErrorReport_;
    bool blnErrorShown_ = false;
};

} // namespace rf
