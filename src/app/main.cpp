#include "app/main.h"

#include "app/attachment.h"
#include "app/frm_dummy.h"
#include "app/instances.h"
#include "app/preloading.h"
#include "app/root_explorer.h"
#include "app/session.h"
#include "app/user_name.h"
#include "booking/app_items.h"
#include "booking/inspectors.h"
#include "booking/root_lookup.h"
#include "orders/frm_orders2k.h"
#include "storage/settings.h"

namespace rf {

namespace {

constexpr std::uint32_t userExClasses = 0x200;

/// Whether this instance may run. One that was started with arguments takes the place of the running one.
bool takeTheField(Session& session)
{
    const bool hasArguments = fncHasArguments(session);
    if (!session.services.processes.previousInstanceRuns())
        return true;
    if (hasArguments)
        KillRFProcess(session);
    return hasArguments;
}

void startWatching(Session& session)
{
    session.colAppItems.clear();
    session.objInspectors = std::make_unique<cInspectors>(session, [&session](const outlook::AppointmentItem& item) {
        return std::make_shared<orders::frmOrders2K>(session, item);
    });
    session.objInspectors->setOuisInspectors(session.ouaApp.inspectors());
    session.forms.load(std::make_shared<frmDummy>(session));
    subGetRoot(session);
    session.objSettings = std::make_unique<cSettings>(session);
    session.objSettings->GetSettings(true);
    session.objInspectors->subAddProjects();
    session.strUserName = fncGetUserName(session);
    session.objRootExplorer->setOueCurrExplorer(session.ouaApp.activeExplorer());
}

void start(Session& session)
{
    session.trace.subTrace(u"Attempting to attach to MS Outlook 2000 or later");
    subInitCommonControls(session);
    session.objRootExplorer = std::make_unique<cRootExplorer>(session);
    fncStartOutlook(session, outlook::DefaultFolder::Calendar);
    subPreLoadingLanguage(session);
    session.intDefaultLanguage = 1;
    if (!session.ouaApp)
        return;
    session.objRootExplorer->setOuaMonitorApp(session.ouaApp);
    if (session.ouaApp.explorers().count() >= 1)
        startWatching(session);
}

} // namespace

void runProgram(const Services& services)
{
    Session session{services};
    Main(session);
    // The selected calendars are watched from the start: what comes into them before the timer first ticks would be
    // heard of by nobody.
    if (const auto form = hiddenForm(session))
        form->timCheckSelected_Timer();
    services.toolkit.run([&] { return session.forms.count() > 0; });
}

void Main(Session& session)
{
    if (takeTheField(session))
        session.reporter.handled(u"Main", [&] { start(session); });
}

void subInitCommonControls(Session& session) { session.services.system.initCommonControls(userExClasses); }

} // namespace rf
