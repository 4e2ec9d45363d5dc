#pragma once

#include "automation/class_registry.h"
#include "basic/clock.h"
#include "basic/process_table.h"
#include "basic/random_numbers.h"
#include "basic/regional.h"
#include "basic/system.h"
#include "diagnostics/error_reporter.h"
#include "diagnostics/trace.h"
#include "language/language.h"
#include "outlook/application.h"
#include "outlook/name_space.h"
#include "platform/alert.h"
#include "platform/file_handling.h"
#include "platform/scripting_factory.h"
#include "ui/form.h"
#include "ui/toolkit.h"

#include <map>
#include <memory>
#include <optional>

namespace rf {

class cAppItems;
class cInspectors;
class cRootExplorer;
class cSettings;

/// What the program is given by the platform it runs on. Everything here outlives the session.
struct Services {
    const Regional& regional;
    const Clock& clock;
    automation::ClassRegistry& classes;
    System& system;
    ProcessTable& processes;
    ui::Toolkit& toolkit;
};

/// The process-wide objects. The entry procedure makes one session and hands it to whatever needs it; `subCleanUp`
/// releases what it holds. Nothing else in the program is shared.
class Session final : public ReportSurroundings {
public:
    explicit Session(const Services& platform);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() override;

    Services services;
    Trace trace;
    ErrorReporter reporter;
    Language language;
    ScriptingFactory scripting;
    FileHandling files;
    ui::Forms forms;

    /// The attached host; empty until `fncStartOutlook` succeeds.
    outlook::Application ouaApp;
    /// The host's "MAPI" name space, held only of a host that is new enough.
    outlook::NameSpace ounNameSpace;
    /// The root folder of the installation, which holds the settings and the resource calendars; empty until it is
    /// found.
    outlook::Folder objRootFolder;
    /// The folder that the program last made the host show; empty until it has done so.
    outlook::Folder objCurrentFolder;
    AlertRoutine alert;
    /// Replaced by tests, so that they know what is drawn.
    RandomNumbers randomNumbers = systemRandomNumbers();

    std::unique_ptr<cRootExplorer> objRootExplorer;
    std::unique_ptr<cInspectors> objInspectors;
    /// One watcher for each watched calendar, by the calendar's name.
    std::map<Text, std::shared_ptr<cAppItems>> colAppItems;
    std::unique_ptr<cSettings> objSettings;

    /// The current user's display name; empty until it is first asked for.
    Text strUserName;
    /// The second that the last link identifier of this session names; nothing before the first.
    std::optional<std::int64_t> lastLink;
    /// The page that the room viewer shows, out of the command line.
    Text strRoomPage;
    /// The host's major version; 0 until it is first asked for.
    std::int16_t intOutlookVersion = 0;
    /// The language that the settings object starts with.
    std::int16_t intDefaultLanguage = 0;

    /// The phrases, for a procedure that may run before the start has loaded the table.
    [[nodiscard]] const Phrases& phrasesAtAnyTime();

private:
    [[nodiscard]] const Phrases& fncReportPhrases() override { return phrasesAtAnyTime(); }
    [[nodiscard]] outlook::Application fncReportOutlook() override { return ouaApp; }
    void subReportAttach() override;
    void endProgram() override;
};

} // namespace rf
