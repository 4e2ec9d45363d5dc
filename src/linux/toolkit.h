#pragma once

#include "basic/regional.h"
#include "ui/toolkit.h"

#include <memory>

class QCoreApplication;

namespace rf::native {

/// Windows and events through Qt. Without a screen there are no windows: messages go to standard error.
class QtToolkit final : public ui::Toolkit {
public:
    /// `arguments` are those of the process; they stay in place as long as the toolkit.
    QtToolkit(int& argumentCount, char** arguments);
    QtToolkit(const QtToolkit&) = delete;
    QtToolkit& operator=(const QtToolkit&) = delete;
    ~QtToolkit() override;

    ui::Answer showMessage(TextView text, ui::MessageStyle style, TextView caption) override;
    [[nodiscard]] std::unique_ptr<ui::Timer> makeTimer(std::function<void()> tick) override;
    void yieldToEvents() override;
    void run(const std::function<bool()>& goOn) override;
    [[nodiscard]] std::unique_ptr<ui::FormWindow> makeFormWindow() override;
    [[nodiscard]] ui::WindowHandle findWindow(TextView caption) override;
    [[nodiscard]] std::int32_t twipsPerPixel() override;
    void activateWindow(TextView caption) override;
    void setTopMost(ui::WindowHandle window, bool topMost) override;
    void showInTaskBar(ui::WindowHandle window) override;

private:
    /// What spreadsheets show and read values by.
    std::shared_ptr<const Regional> regional_;
    std::unique_ptr<QCoreApplication> application_;
};

} // namespace rf::native
