#include "app/frm_dummy.h"

#include "app/pending_window.h"
#include "app/selection_watch.h"
#include "app/session.h"
#include "booking/inspectors.h"

namespace rf {

namespace {

constexpr std::chrono::milliseconds period{2000};

} // namespace

frmDummy::frmDummy(Session& session)
    : session_(session)
    , timCheckSelected_(session.services.toolkit.makeTimer([this] { timCheckSelected_Timer(); }))
{
}

void frmDummy::load()
{
    timCheckSelected_->setInterval(period);
    timCheckSelected_->setEnabled(true);
}

void frmDummy::unload() { timCheckSelected_->setEnabled(false); }

void frmDummy::timCheckSelected_Timer()
{
    // A message that a handler of an event shows during a tick lets the timer go on.
    if (ticking_)
        return;
    // An event during the tick may end the program, and this form with it.
    const auto keptAlive = weak_from_this().lock();
    ticking_ = true;
    const std::unique_ptr<bool, void (*)(bool*)> untilDone{&ticking_, [](bool* ticking) { *ticking = false; }};
    tick();
}

void frmDummy::tick()
{
    session_.trace.subTrace(u"Checking which folders are selected!");
    const auto names = fncReadSelection(session_);
    if (!names)
        return;
    subWatchSelected(session_, *names);
    session_.trace.subTrace(u"Activate a new inspector in order to make the toolbar appear");
    finishPendingWindow();
    session_.trace.subTrace(u"Handling the inspectors collection");
    if (session_.objInspectors)
        session_.objInspectors->subDropClosed();
}

void frmDummy::finishPendingWindow()
{
    const auto pending = ouiPendingInspector_;
    // Showing it lets events in, and a window that was opened meanwhile keeps its turn.
    if (pending && fncFinishWindow(session_, pending) && ouiPendingInspector_ == pending)
        ouiPendingInspector_ = {};
}

std::shared_ptr<frmDummy> hiddenForm(const Session& session)
{
    return std::dynamic_pointer_cast<frmDummy>(session.forms.find(frmDummy::formName));
}

} // namespace rf
