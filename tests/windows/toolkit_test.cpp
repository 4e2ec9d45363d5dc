#include "windows/toolkit.h"

#include <gtest/gtest.h>

namespace rf::native {
namespace {

using std::chrono::milliseconds;

struct Toolkit : testing::Test {
    Win32Toolkit toolkit;
};

class TestWindow {
public:
    explicit TestWindow(const wchar_t* caption, DWORD extendedStyle = WS_EX_TOOLWINDOW)
        : handle_(CreateWindowExW(extendedStyle, L"STATIC", caption, WS_POPUP | WS_CAPTION | WS_VISIBLE, 0, 0, 100, 60,
            nullptr, nullptr, GetModuleHandleW(nullptr), nullptr))
    {
    }
    TestWindow(const TestWindow&) = delete;
    TestWindow& operator=(const TestWindow&) = delete;
    ~TestWindow() { DestroyWindow(handle_); }

    [[nodiscard]] HWND handle() const { return handle_; }
    [[nodiscard]] ui::WindowHandle number() const { return reinterpret_cast<ui::WindowHandle>(handle_); }
    [[nodiscard]] DWORD extendedStyle() const { return static_cast<DWORD>(GetWindowLongW(handle_, GWL_EXSTYLE)); }

private:
    HWND handle_;
};

TEST_F(Toolkit, TicksUntilItIsToldNotToGoOn)
{
    int ticks = 0;
    const auto timer = toolkit.makeTimer([&] { ++ticks; });
    timer->setInterval(milliseconds{10});
    timer->setEnabled(true);
    toolkit.run([&] { return ticks < 3; });
    EXPECT_EQ(ticks, 3);
}

TEST_F(Toolkit, AsksWhetherToGoOnBeforeItWaits)
{
    int asked = 0;
    toolkit.run([&] {
        ++asked;
        return false;
    });
    EXPECT_EQ(asked, 1);
}

TEST_F(Toolkit, MakesTimersThatRestUntilTheyAreEnabled)
{
    int ticks = 0;
    const auto resting = toolkit.makeTimer([&] { ++ticks; });
    resting->setInterval(milliseconds{10});
    EXPECT_FALSE(resting->enabled());
    EXPECT_EQ(resting->interval(), milliseconds{10});
    Sleep(50);
    toolkit.yieldToEvents();
    EXPECT_EQ(ticks, 0);
    resting->setEnabled(true);
    EXPECT_TRUE(resting->enabled());
    Sleep(50);
    toolkit.yieldToEvents();
    EXPECT_GE(ticks, 1);
}

TEST_F(Toolkit, HearsNoTickOfATimerThatWasDisabledOrHasGone)
{
    int ticks = 0;
    auto timer = toolkit.makeTimer([&] { ++ticks; });
    timer->setInterval(milliseconds{10});
    timer->setEnabled(true);
    Sleep(50);
    timer->setEnabled(false);
    toolkit.yieldToEvents();
    timer->setEnabled(true);
    Sleep(50);
    timer.reset();
    toolkit.yieldToEvents();
    EXPECT_EQ(ticks, 0);
}

TEST_F(Toolkit, StartsANewIntervalAtOnce)
{
    int ticks = 0;
    const auto timer = toolkit.makeTimer([&] { ++ticks; });
    timer->setInterval(std::chrono::hours{1});
    timer->setEnabled(true);
    timer->setInterval(milliseconds{10});
    toolkit.run([&] { return ticks < 1; });
    EXPECT_EQ(ticks, 1);
}

TEST_F(Toolkit, LetsATickEndItsOwnTimer)
{
    int ticks = 0;
    std::unique_ptr<ui::Timer> timer = toolkit.makeTimer([&] {
        ++ticks;
        timer.reset();
    });
    timer->setInterval(milliseconds{10});
    timer->setEnabled(true);
    toolkit.run([&] { return ticks < 1; });
    EXPECT_EQ(timer, nullptr);
}

TEST_F(Toolkit, ThrowsWhatATickThrowsOutOfItsLoop)
{
    const auto timer = toolkit.makeTimer([] { throw std::out_of_range{"tick"}; });
    timer->setInterval(milliseconds{10});
    timer->setEnabled(true);
    EXPECT_THROW(toolkit.run([] { return true; }), std::out_of_range);
}

TEST_F(Toolkit, ShowsAMessageWhileTimersTickAndGivesTheAnswer)
{
    const auto closing = toolkit.makeTimer([] {
        if (HWND box = FindWindowW(L"#32770", L"Caption of the test"))
            PostMessageW(box, WM_COMMAND, MAKEWPARAM(IDNO, BN_CLICKED), 0);
    });
    closing->setInterval(milliseconds{50});
    closing->setEnabled(true);
    EXPECT_EQ(
        toolkit.showMessage(u"Text", {ui::Buttons::YesNo, ui::Icon::Question}, u"Caption of the test"), ui::Answer::No);
}

TEST(Caption, MatchesTheWholeOrTheBeginningWithoutRegardToCase)
{
    EXPECT_EQ(matchCaption(u"Inbox - Outlook", u"inbox - outlook"), CaptionMatch::Exact);
    EXPECT_EQ(matchCaption(u"Inbox - Outlook", u"Inbox"), CaptionMatch::Beginning);
    EXPECT_EQ(matchCaption(u"Inbox", u"Inbox - Outlook"), CaptionMatch::None);
    EXPECT_EQ(matchCaption(u"Inbox - Outlook", u"Outlook"), CaptionMatch::None);
    EXPECT_EQ(matchCaption(u"", u""), CaptionMatch::None);
    EXPECT_EQ(matchCaption(u"Inbox", u""), CaptionMatch::None);
}

TEST_F(Toolkit, ActivatesTheWindowWithTheExactCaptionBeforeOneThatBeginsSo)
{
    const TestWindow exact{L"Booking test"};
    const TestWindow longer{L"Booking test and more"};
    toolkit.activateWindow(u"Booking test a");
    EXPECT_EQ(GetForegroundWindow(), longer.handle());
    toolkit.activateWindow(u"Booking test");
    EXPECT_EQ(GetForegroundWindow(), exact.handle());
    toolkit.activateWindow(u"no such window");
    EXPECT_EQ(GetForegroundWindow(), exact.handle());
}

TEST_F(Toolkit, KeepsAWindowAboveTheOthersAndLetsItGo)
{
    const TestWindow window{L"Top"};
    toolkit.setTopMost(window.number(), true);
    EXPECT_TRUE(window.extendedStyle() & WS_EX_TOPMOST);
    toolkit.setTopMost(window.number(), false);
    EXPECT_FALSE(window.extendedStyle() & WS_EX_TOPMOST);
}

TEST_F(Toolkit, GivesAWindowItsOwnButtonInTheTaskBarAndLeavesItAsVisibleAsItWas)
{
    const TestWindow window{L"Tool"};
    toolkit.showInTaskBar(window.number());
    EXPECT_TRUE(window.extendedStyle() & WS_EX_APPWINDOW);
    EXPECT_FALSE(window.extendedStyle() & WS_EX_TOOLWINDOW);
    EXPECT_TRUE(IsWindowVisible(window.handle()));
    const TestWindow hidden{L"Hidden"};
    ShowWindow(hidden.handle(), SW_HIDE);
    toolkit.showInTaskBar(hidden.number());
    EXPECT_FALSE(IsWindowVisible(hidden.handle()));
}

} // namespace
} // namespace rf::native
