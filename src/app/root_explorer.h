#pragma once

#include "automation/events.h"
#include "outlook/application.h"
#include "outlook/explorer.h"

namespace rf {

class Session;

/// Ends the program when the host quits, or when the explorer that was active at the start closes or shows another
/// folder: a new instance is started whenever a resource folder is opened again.
class cRootExplorer {
public:
    explicit cRootExplorer(Session& session)
        : session_(session)
    {
    }

    /// Listens to the host.
    void setOuaMonitorApp(const outlook::Application& application);
    /// Listens to the explorer; nothing is watched when it is empty.
    void setOueCurrExplorer(const outlook::Explorer& explorer);

private:
    [[noreturn]] void ouaMonitorApp_Quit();
    [[noreturn]] void oueCurrExplorer_Close();
    [[noreturn]] void oueCurrExplorer_FolderSwitch();

    Session& session_;
    outlook::Application ouaMonitorApp_;
    outlook::Explorer oueCurrExplorer_;
    automation::Connection applicationEvents_;
    automation::Connection explorerEvents_;
};

} // namespace rf
