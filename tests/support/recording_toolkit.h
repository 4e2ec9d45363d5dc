#pragma once

#include "support/recording_window.h"
#include "ui/toolkit.h"

#include <deque>
#include <map>
#include <vector>

namespace rf::test {

struct ShownMessage {
    Text text;
    ui::MessageStyle style;
    Text caption;
};

/// A timer that ticks when a test says so.
class ManualTimer final : public ui::Timer {
public:
    explicit ManualTimer(std::function<void()> tick);

    [[nodiscard]] bool enabled() const override;
    void setEnabled(bool enabled) override;
    [[nodiscard]] std::chrono::milliseconds interval() const override;
    void setInterval(std::chrono::milliseconds interval) override;
    void tick() const;

private:
    std::function<void()> tick_;
    bool enabled_ = false;
    std::chrono::milliseconds interval_{0};
};

/// A toolkit without a screen: what is shown is kept, and answers come from the test.
class RecordingToolkit final : public ui::Toolkit, public RecordingWindow::Owner {
public:
    RecordingToolkit();
    RecordingToolkit(const RecordingToolkit&) = delete;
    RecordingToolkit& operator=(const RecordingToolkit&) = delete;
    ~RecordingToolkit() override;

    std::vector<ShownMessage> messages;
    /// Taken one for each message; when none is left the message is dismissed with its declining answer.
    std::deque<ui::Answer> answers;
    /// Runs while a message is on the screen, as a nested event would.
    std::function<void()> whileShown;
    std::vector<Text> activated;
    std::vector<std::pair<ui::WindowHandle, bool>> topMost;
    std::vector<ui::WindowHandle> inTaskBar;
    /// The windows of other programs, by caption.
    std::map<Text, ui::WindowHandle> windows;
    /// The windows of the forms, in the order in which they were made; one that is destroyed is not among them.
    std::vector<RecordingWindow*> formWindows;
    /// What stands in for the components that a form can hold, by class; any other is not to be had.
    std::map<Text, std::function<automation::Object()>> components;
    /// Runs while a form is shown that waits to be closed, as what the person does with it.
    std::function<void(RecordingWindow&)> whileModal;
    int yields = 0;
    std::function<void()> whileYielding;

    /// The window of the form that was made last; null when there is none.
    [[nodiscard]] RecordingWindow* lastWindow() const;

    ui::Answer showMessage(TextView text, ui::MessageStyle style, TextView caption) override;
    [[nodiscard]] std::unique_ptr<ui::Timer> makeTimer(std::function<void()> tick) override;
    void yieldToEvents() override;
    void run(const std::function<bool()>& goOn) override;
    [[nodiscard]] std::unique_ptr<ui::FormWindow> makeFormWindow() override;
    [[nodiscard]] ui::WindowHandle findWindow(TextView caption) override;
    [[nodiscard]] std::int32_t twipsPerPixel() override;
    void activateWindow(TextView caption) override;
    void setTopMost(ui::WindowHandle window, bool on) override;
    void showInTaskBar(ui::WindowHandle window) override;

private:
    [[nodiscard]] automation::Object component(TextView className) override;
    void shownModal(RecordingWindow& window) override;
    void destroyed(RecordingWindow& window) override;
};

} // namespace rf::test
