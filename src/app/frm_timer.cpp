#include "app/frm_timer.h"

namespace rf {

frmTimer::frmTimer(ui::Toolkit& toolkit)
    : timTimer_(toolkit.makeTimer([this] {
        if (TimerFired)
            TimerFired();
    }))
{
}

void frmTimer::unload() { timTimer_->setEnabled(false); }

std::int32_t frmTimer::TimerInterval() const { return static_cast<std::int32_t>(timTimer_->interval().count()); }

void frmTimer::setTimerInterval(std::int32_t milliseconds)
{
    timTimer_->setInterval(std::chrono::milliseconds{milliseconds});
}

} // namespace rf
