#pragma once

#include "ui/form.h"

#include <chrono>
#include <functional>
#include <memory>

namespace rf {

/// A hidden form that is a timer for whoever needs one.
class frmTimer final : public ui::Form {
public:
    static constexpr TextView formName = u"frmTimer";

    explicit frmTimer(ui::Toolkit& toolkit);

    [[nodiscard]] TextView name() const override { return formName; }
    /// Stops the timer.
    void unload() override;

    [[nodiscard]] const ui::Timer& timTimer() const { return *timTimer_; }
    [[nodiscard]] bool TimerEnabled() const { return timTimer_->enabled(); }
    void setTimerEnabled(bool enabled) { timTimer_->setEnabled(enabled); }
    /// In milliseconds.
    [[nodiscard]] std::int32_t TimerInterval() const;
    void setTimerInterval(std::int32_t milliseconds);
    /// Raised at every tick.
    std::function<void()> TimerFired;

private:
    std::unique_ptr<ui::Timer> timTimer_;
};

} // namespace rf
