#pragma once

#include "ui/controls.h"
#include "ui/message_box.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace rf::ui {

/// Calls back again and again while it is enabled, always from the event loop.
class Timer {
public:
    virtual ~Timer() = default;

    [[nodiscard]] virtual bool enabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    [[nodiscard]] virtual std::chrono::milliseconds interval() const = 0;
    /// A running timer starts the new interval at once.
    virtual void setInterval(std::chrono::milliseconds interval) = 0;
};

/// A window as the system names it; 0 is none.
using WindowHandle = std::uintptr_t;

class FormWindow;

/// The windows and the event loop of a platform. One thread uses it.
class Toolkit {
public:
    virtual ~Toolkit() = default;

    /// Shows a message and waits for the answer; events are handled meanwhile. Without a screen the message goes to
    /// standard error together with the answer that is taken: the one that declines (Cancel, No), else OK.
    virtual Answer showMessage(TextView text, MessageStyle style, TextView caption) = 0;
    /// A timer that is not yet enabled.
    [[nodiscard]] virtual std::unique_ptr<Timer> makeTimer(std::function<void()> tick) = 0;

    /// Handles the events that are waiting and returns.
    virtual void yieldToEvents() = 0;
    /// Handles events for as long as `goOn` answers true; it is asked before the first event and after each.
    virtual void run(const std::function<bool()>& goOn) = 0;

    /// The empty window of a form, not yet on the screen. A platform without windows gives one that nobody sees, whose
    /// controls keep what they are given.
    [[nodiscard]] virtual std::unique_ptr<FormWindow> makeFormWindow() = 0;
    /// The window with that caption, of whatever program; 0 when there is none or the platform does not tell.
    [[nodiscard]] virtual WindowHandle findWindow(TextView caption) = 0;
    /// How many twips a pixel of the screen is wide and high; 15 where that cannot be told.
    [[nodiscard]] virtual std::int32_t twipsPerPixel() = 0;

    /// Brings the window with that caption to the front; without one nothing happens.
    virtual void activateWindow(TextView caption) = 0;
    /// Keeps a window above all others, or lets it go back among them. Neither moves nor sizes it.
    virtual void setTopMost(WindowHandle window, bool topMost) = 0;
    /// Gives a window its own button in the task bar.
    virtual void showInTaskBar(WindowHandle window) = 0;
};

} // namespace rf::ui
