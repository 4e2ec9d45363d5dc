#pragma once

#include "ui/form_window.h"
#include "ui/toolkit.h"

namespace rf::test {

/// Another toolkit, which knows the form's window that was made last.
class KeepingToolkit final : public ui::Toolkit {
public:
    explicit KeepingToolkit(ui::Toolkit& toolkit)
        : toolkit_(toolkit)
    {
    }

    /// Good until the window goes.
    ui::FormWindow* last = nullptr;

    ui::Answer showMessage(TextView text, ui::MessageStyle style, TextView caption) override
    {
        return toolkit_.showMessage(text, style, caption);
    }
    [[nodiscard]] std::unique_ptr<ui::Timer> makeTimer(std::function<void()> tick) override
    {
        return toolkit_.makeTimer(std::move(tick));
    }
    void yieldToEvents() override { toolkit_.yieldToEvents(); }
    void run(const std::function<bool()>& goOn) override { toolkit_.run(goOn); }
    [[nodiscard]] std::unique_ptr<ui::FormWindow> makeFormWindow() override
    {
        auto window = toolkit_.makeFormWindow();
        last = window.get();
        return window;
    }
    [[nodiscard]] ui::WindowHandle findWindow(TextView caption) override { return toolkit_.findWindow(caption); }
    [[nodiscard]] std::int32_t twipsPerPixel() override { return toolkit_.twipsPerPixel(); }
    void activateWindow(TextView caption) override { toolkit_.activateWindow(caption); }
    void setTopMost(ui::WindowHandle window, bool topMost) override { toolkit_.setTopMost(window, topMost); }
    void showInTaskBar(ui::WindowHandle window) override { toolkit_.showInTaskBar(window); }

private:
    ui::Toolkit& toolkit_;
};

} // namespace rf::test
