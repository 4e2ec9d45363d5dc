#include "app/frm_dummy.h"

#include "app/session.h"

namespace rf {

namespace {

constexpr std::chrono::milliseconds period{2000};

} // namespace

frmDummy::frmDummy(Session& session)
    : timCheckSelected_(session.services.toolkit.makeTimer([this] { timCheckSelected_Timer(); }))
{
}

void frmDummy::load()
{
    timCheckSelected_->setInterval(period);
    timCheckSelected_->setEnabled(true);
}

void frmDummy::unload() { timCheckSelected_->setEnabled(false); }

void frmDummy::timCheckSelected_Timer() { }

} // namespace rf
