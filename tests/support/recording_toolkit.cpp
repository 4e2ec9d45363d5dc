#include "support/recording_toolkit.h"

namespace rf::test {

namespace {

constexpr std::int32_t usualTwipsPerPixel = 15;

ui::Answer declining(ui::Buttons buttons)
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

} // namespace

ManualTimer::ManualTimer(std::function<void()> tick)
    : tick_(std::move(tick))
{
}

bool ManualTimer::enabled() const { return enabled_; }

void ManualTimer::setEnabled(bool enabled) { enabled_ = enabled; }

std::chrono::milliseconds ManualTimer::interval() const { return interval_; }

void ManualTimer::setInterval(std::chrono::milliseconds interval) { interval_ = interval; }

void ManualTimer::tick() const { tick_(); }

RecordingToolkit::RecordingToolkit() = default;
RecordingToolkit::~RecordingToolkit() = default;

RecordingWindow* RecordingToolkit::lastWindow() const { return formWindows.empty() ? nullptr : formWindows.back(); }

ui::Answer RecordingToolkit::showMessage(TextView text, ui::MessageStyle style, TextView caption)
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

std::unique_ptr<ui::Timer> RecordingToolkit::makeTimer(std::function<void()> tick)
{
    return std::make_unique<ManualTimer>(std::move(tick));
}

void RecordingToolkit::yieldToEvents()
{
    ++yields;
    if (whileYielding)
        whileYielding();
}

void RecordingToolkit::run(const std::function<bool()>& goOn)
{
    while (goOn())
        yieldToEvents();
}

std::unique_ptr<ui::FormWindow> RecordingToolkit::makeFormWindow()
{
    auto window = std::make_unique<RecordingWindow>(*this);
    formWindows.push_back(window.get());
    return window;
}

ui::WindowHandle RecordingToolkit::findWindow(TextView caption)
{
    const auto found = windows.find(Text{caption});
    return found == windows.end() ? 0 : found->second;
}

std::int32_t RecordingToolkit::twipsPerPixel() { return usualTwipsPerPixel; }

void RecordingToolkit::activateWindow(TextView caption) { activated.emplace_back(caption); }

void RecordingToolkit::setTopMost(ui::WindowHandle window, bool on) { topMost.emplace_back(window, on); }

void RecordingToolkit::showInTaskBar(ui::WindowHandle window) { inTaskBar.push_back(window); }

automation::Object RecordingToolkit::component(TextView className)
{
    const auto found = components.find(Text{className});
    return found == components.end() ? automation::Object{} : found->second();
}

void RecordingToolkit::shownModal(RecordingWindow& window)
{
    if (const auto act = whileModal)
        act(window);
}

void RecordingToolkit::destroyed(RecordingWindow& window) { std::erase(formWindows, &window); }

} // namespace rf::test
