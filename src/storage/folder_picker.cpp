#include "storage/folder_picker.h"

#include "app/attachment.h"
#include "app/session.h"
#include "app/shutdown.h"
#include "diagnostics/pending_error.h"

namespace rf {

outlook::Folder fncPickFolder(Session& session, ui::Form* formToReactivate)
{
    if (!session.ouaApp)
        fncStartOutlook(session, outlook::DefaultFolder::Inbox);
    if (!session.ouaApp)
        subEndProgram(session);
    PendingError errors;
    ui::Toolkit& toolkit = session.services.toolkit;
    errors.attempt([&] { session.ouaApp.activeExplorer().activate(); });
    errors.attempt([&] { toolkit.activateWindow(session.ouaApp.activeWindow().caption()); });
    auto folder = errors.attempt([&] { return session.ouaApp.getNamespace().pickFolder(); });
    if (formToReactivate != nullptr) {
        errors.attempt([&] { toolkit.activateWindow(formToReactivate->caption()); });
        errors.attempt([&] { formToReactivate->setFocus(); });
    }
    return folder;
}

} // namespace rf
