#pragma once

#include "linux/control_content.h"
#include "linux/form_control.h"
#include "ui/unseen_window.h"

namespace rf::native {

/// A control of a run-time class on a window of Qt.
class QtAutomationControl final : public QtControl<ui::AutomationControl> {
public:
    QtAutomationControl(QWidget* parent, TextView name, std::unique_ptr<ControlContent> content);
    [[nodiscard]] automation::Object object() const override { return content_->object(); }

private:
    std::unique_ptr<ControlContent> content_;
};

/// A window that nobody sees, whose spreadsheets calculate and whose browsers keep their page.
class UnseenWindowWithControls final : public ui::UnseenWindow {
public:
    explicit UnseenWindowWithControls(std::shared_ptr<const Regional> regional)
        : regional_(std::move(regional))
    {
    }
    ui::AutomationControl* addAutomationControl(TextView className, TextView name) override;

private:
    std::shared_ptr<const Regional> regional_;
};

} // namespace rf::native
