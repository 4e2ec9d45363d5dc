#pragma once

#include "automation/class_registry.h"
#include "basic/system.h"
#include "diagnostics/error_reporter.h"
#include "diagnostics/trace.h"
#include "outlook/scripting.h"
#include "platform/scripting_factory.h"
#include "ui/toolkit.h"

namespace rf {

/// Files in the temporary folder, printing, and the opening of pages and programs. Only a missing file-system
/// component is reported; everything else that fails has no effect or gives an empty result.
class FileHandling {
public:
    FileHandling(Trace& trace, automation::ClassRegistry& classes, System& system, ui::Toolkit& toolkit,
        ErrorReporter& reporter, ScriptingFactory& scripting);

    /// Makes the shared file-system object when there is none yet. A failure is reported and ends the program.
    void subSetupFS();
    /// The shared file-system object, made at its first use.
    [[nodiscard]] const outlook::FileSystemObject& fsoShared();
    /// The path of the temporary folder, without a separator at its end.
    [[nodiscard]] Text fncGetTempPath();
    /// Writes a text file (UTF-16, so that no character is lost) into the temporary folder, replacing one of that
    /// name, and answers its path; a name without an ending gets ".tmp". Empty when the file cannot be written.
    Text fncSaveTextFile(const Text& text, const Text& fileName);
    /// Prints a file with the program that the system has for its kind.
    void subPrintFile(const Text& path);
    /// Opens a page or a mail ("http…", "mail…", in any case), else runs the program of that name.
    void subExecute(const Text& target);

private:
    void open(const Text& target);

    Trace& trace_;
    automation::ClassRegistry& classes_;
    System& system_;
    ui::Toolkit& toolkit_;
    ErrorReporter& reporter_;
    ScriptingFactory& scripting_;
    outlook::FileSystemObject fso_;
};

} // namespace rf
