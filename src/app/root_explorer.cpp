#include "app/root_explorer.h"

#include "app/shutdown.h"
#include "outlook/events.h"

namespace rf {

void cRootExplorer::setOuaMonitorApp(const outlook::Application& application)
{
    ouaMonitorApp_ = application;
    applicationEvents_
        = outlook::connect(application, outlook::ApplicationEvents{.quit = [this] { ouaMonitorApp_Quit(); }});
}

void cRootExplorer::setOueCurrExplorer(const outlook::Explorer& explorer)
{
    oueCurrExplorer_ = explorer;
    explorerEvents_ = {};
    if (explorer)
        explorerEvents_ = outlook::connect(explorer,
            outlook::ExplorerEvents{.folderSwitch = [this] { oueCurrExplorer_FolderSwitch(); },
                .close = [this] { oueCurrExplorer_Close(); }});
}

void cRootExplorer::ouaMonitorApp_Quit() { subEndProgram(session_); }

void cRootExplorer::oueCurrExplorer_Close() { subEndProgram(session_); }

void cRootExplorer::oueCurrExplorer_FolderSwitch() { subEndProgram(session_); }

} // namespace rf
