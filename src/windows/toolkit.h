#pragma once

#include "ui/toolkit.h"
#include "windows/win32.h"

#include <exception>

namespace rf::native {

/// Whether windows of this caption are the ones that `Toolkit::activateWindow` looks for: `Exact` goes before
/// `Beginning`. Case does not count. No window has the empty caption.
enum class CaptionMatch { None, Beginning, Exact };
[[nodiscard]] CaptionMatch matchCaption(TextView windowCaption, TextView wanted);

/// The windows of this desktop and the message loop of this thread.
class Win32Toolkit final : public ui::Toolkit {
public:
    Win32Toolkit();
    ~Win32Toolkit() override;

    ui::Answer showMessage(TextView text, ui::MessageStyle style, TextView caption) override;
    /// Ticks also while a message is shown or a call to the host is pending. A timer of no interval rests. The toolkit
    /// outlives its timers.
    [[nodiscard]] std::unique_ptr<ui::Timer> makeTimer(std::function<void()> tick) override;

    void yieldToEvents() override;
    void run(const std::function<bool()>& goOn) override;

    /// A window that nobody sees: this platform draws no forms yet.
    [[nodiscard]] std::unique_ptr<ui::FormWindow> makeFormWindow() override;
    [[nodiscard]] ui::WindowHandle findWindow(TextView caption) override;
    [[nodiscard]] std::int32_t twipsPerPixel() override;
    void activateWindow(TextView caption) override;
    void setTopMost(ui::WindowHandle window, bool topMost) override;
    void showInTaskBar(ui::WindowHandle window) override;

private:
    class WindowTimer;

    static LRESULT CALLBACK timerProcedure(HWND window, UINT message, WPARAM first, LPARAM second);
    void dispatch(const MSG& message);

    /// What a tick threw. It cannot pass through the system's frames, so the loop throws it on.
    std::exception_ptr failure_;
};

} // namespace rf::native
