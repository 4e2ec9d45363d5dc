#pragma once

#include "outlook/inspector.h"
#include "ui/form.h"

#include <memory>

namespace rf {

class Session;

/// The hidden form that keeps the process alive and does its periodic work.
class frmDummy final : public ui::Form, public std::enable_shared_from_this<frmDummy> {
public:
    static constexpr TextView formName = u"frmDummy";

    explicit frmDummy(Session& session);

    [[nodiscard]] TextView name() const override { return formName; }
    /// Starts the timer.
    void load() override;
    /// Stops the timer.
    void unload() override;

    /// Every two seconds for the life of the process.
    [[nodiscard]] const ui::Timer& timCheckSelected() const { return *timCheckSelected_; }
    /// One tick: watches the calendars that the calendar product shows, finishes the pending appointment window, and
    /// drops the closed ones. Without a selection file nothing is done at all. No error leaves it.
    void timCheckSelected_Timer();

    /// The appointment window that was opened last and still needs its command bar; empty when there is none.
    [[nodiscard]] const outlook::Inspector& ouiPendingInspector() const { return ouiPendingInspector_; }
    /// A newer window takes the place of the one before.
    void setOuiPendingInspector(const outlook::Inspector& inspector) { ouiPendingInspector_ = inspector; }

private:
    void tick();
    void finishPendingWindow();

    Session& session_;
    outlook::Inspector ouiPendingInspector_;
    bool ticking_ = false;
    std::unique_ptr<ui::Timer> timCheckSelected_;
};

/// The session's hidden form; null before it is loaded.
[[nodiscard]] std::shared_ptr<frmDummy> hiddenForm(const Session& session);

} // namespace rf
