#include "app/shutdown.h"

#include "app/frm_timer.h"
#include "app/root_explorer.h"
#include "app/session.h"
#include "booking/app_items.h"
#include "booking/inspectors.h"
#include "diagnostics/pending_error.h"
#include "storage/settings.h"

namespace rf {

namespace {

constexpr TextView ordersFormName = u"frmOrders2K";

void unloadForms(ui::Forms& forms, PendingError& errors)
{
    for (auto count = forms.count(); count > 0; --count) {
        errors.attempt([&] { forms.unload(count - 1); });
        if (forms.count() == count)
            return;
    }
}

void unloadNamedForms(Session& session, PendingError& errors)
{
    if (const auto timer = std::dynamic_pointer_cast<frmTimer>(session.forms.find(frmTimer::formName)))
        timer->setTimerEnabled(false);
    for (const TextView name : {frmTimer::formName, ordersFormName})
        errors.attempt([&] { session.forms.unload(name); });
}

} // namespace

void subCleanUp(Session& session)
{
    PendingError errors;
    unloadForms(session.forms, errors);
    unloadNamedForms(session, errors);
    session.colAppItems.clear();
    session.objInspectors.reset();
    session.objRootExplorer.reset();
    session.objSettings.reset();
}

void subUnloadAllForms(Session& session)
{
    PendingError errors;
    unloadForms(session.forms, errors);
    session.ounNameSpace = {};
    session.objRootFolder = {};
    session.objCurrentFolder = {};
    session.ouaApp = {};
}

void subEndProgram(Session& session)
{
    subCleanUp(session);
    subUnloadAllForms(session);
    session.services.system.terminate();
}

} // namespace rf
