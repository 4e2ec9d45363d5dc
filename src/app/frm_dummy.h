#pragma once

#include "ui/form.h"

#include <memory>

namespace rf {

class Session;

/// The hidden form that keeps the process alive and does its periodic work.
class frmDummy final : public ui::Form {
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

private:
    void timCheckSelected_Timer();

    std::unique_ptr<ui::Timer> timCheckSelected_;
};

} // namespace rf
