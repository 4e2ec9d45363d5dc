#include "storage/home_page.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "outlook/explorer.h"

namespace rf {

void subRefreshRFHomepage(Session& session)
{
    session.trace.subTrace(u"Refreshing the homepage.");
    const auto root = session.objRootFolder;
    if (!root)
        return;
    PendingError errors;
    errors.attempt([&] { root.setWebViewOn(true); });
    const auto explorer = errors.attempt([&] { return session.ouaApp.activeExplorer(); });
    errors.attempt([&] { explorer.setCurrentFolder(root.parent().as<outlook::Folder>()); });
    errors.attempt([&] { explorer.setCurrentFolder(root); });
    session.objCurrentFolder = root;
}

} // namespace rf
