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
    explicit ManualTimer(std::function<void()> tick)
        : tick_(std::move(tick))
    {
    }

    [[nodiscard]] bool enabled() const override { return enabled_; }
    void setEnabled(bool enabled) override { enabled_ = enabled; }
    [[nodiscard]] std::chrono::milliseconds interval() const override { return interval_; }
    void setInterval(std::chrono::milliseconds interval) override { interval_ = interval; }
    void tick() const { tick_(); }

private:
    std::function<void()> tick_;
    bool enabled_ = false;
    std::chrono::milliseconds interval_{0};
};

/// A toolkit without a screen: what is shown is kept, and answers come from the test.
class RecordingToolkit final : public ui::Toolkit, public RecordingWindow::Owner {
public:
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
    [[nodiscard]] RecordingWindow* lastWindow() const { return formWindows.empty() ? nullptr : formWindows.back(); }

    ui::Answer showMessage(TextView text, ui::MessageStyle style, TextView caption) override
    {
        messages.push_back({Text{text}, style, Text{caption}});
        if (whileShown)
            whileShown();
        if (answers.empty())
            return declining(style.buttons);
        const auto answer = answers.front();
        answers.pop_front();
        return answer;
    }
    [[nodiscard]] std::unique_ptr<ui::Timer> makeTimer(std::function<void()> tick) override
    {
        return std::make_unique<ManualTimer>(std::move(tick));
    }
    void yieldToEvents() override
    {
        ++yields;
        if (whileYielding)
            whileYielding();
    }
    void run(const std::function<bool()>& goOn) override
    {
        while (goOn())
            yieldToEvents();
    }
    [[nodiscard]] std::unique_ptr<ui::FormWindow> makeFormWindow() override
    {
        auto window = std::make_unique<RecordingWindow>(*this);
        formWindows.push_back(window.get());
        return window;
    }
    [[nodiscard]] ui::WindowHandle findWindow(TextView caption) override
    {
        const auto found = windows.find(Text{caption});
        return found == windows.end() ? 0 : found->second;
    }
    [[nodiscard]] std::int32_t twipsPerPixel() override { return 15; }
    void activateWindow(TextView caption) override { activated.emplace_back(caption); }
    void setTopMost(ui::WindowHandle window, bool on) override { topMost.emplace_back(window, on); }
    void showInTaskBar(ui::WindowHandle window) override { inTaskBar.push_back(window); }

private:
    [[nodiscard]] automation::Object component(TextView className) override
    {
        const auto found = components.find(Text{className});
        return found == components.end() ? automation::Object{} : found->second();
    }
    void shownModal(RecordingWindow& window) override
    {
        if (const auto act = whileModal)
            act(window);
    }
    void destroyed(RecordingWindow& window) override { std::erase(formWindows, &window); }

    [[nodiscard]] static ui::Answer declining(ui::Buttons buttons)
    {
        switch (buttons) {
        case ui::Buttons::OkCancel:
            return ui::Answer::Cancel;
        case ui::Buttons::YesNo:
            return ui::Answer::No;
        case ui::Buttons::Ok:
            break;
        }
        return ui::Answer::Ok;
    }
};

} // namespace rf::test
