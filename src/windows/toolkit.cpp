#include "windows/toolkit.h"

#include "ui/unseen_window.h"

#include <algorithm>
#include <limits>
#include <system_error>
#include <utility>

namespace rf::native {

using std::chrono::milliseconds;
using ui::WindowHandle;

namespace {

constexpr wchar_t timerClass[] = L"RFBookingInfoTimer";
constexpr UINT_PTR timerId = 1;

HWND windowOf(WindowHandle window) { return reinterpret_cast<HWND>(window); }

Text captionOf(HWND window)
{
    Text caption(static_cast<std::size_t>(std::max(0, GetWindowTextLengthW(window))), u'\0');
    const int length
        = GetWindowTextW(window, reinterpret_cast<wchar_t*>(caption.data()), static_cast<int>(caption.size()) + 1);
    caption.resize(static_cast<std::size_t>(std::clamp(length, 0, static_cast<int>(caption.size()))));
    return caption;
}

struct CaptionSearch {
    TextView wanted;
    HWND beginning = nullptr;
    HWND exact = nullptr;
};

/// Goes on until a window has the exact caption; of those whose caption only begins so, the foremost one counts.
BOOL CALLBACK searchCaption(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<CaptionSearch*>(parameter);
    if (!IsWindowVisible(window))
        return TRUE;
    const CaptionMatch match = matchCaption(captionOf(window), search.wanted);
    if (match == CaptionMatch::Exact)
        search.exact = window;
    else if (match == CaptionMatch::Beginning && search.beginning == nullptr)
        search.beginning = window;
    return search.exact == nullptr;
}

/// Shares the foreground thread's input, since Windows lets only the program in front choose the next one.
class InputAttachment {
public:
    InputAttachment()
        : attached_(foreground_ != 0 && foreground_ != GetCurrentThreadId()
            && AttachThreadInput(GetCurrentThreadId(), foreground_, TRUE))
    {
    }
    InputAttachment(const InputAttachment&) = delete;
    InputAttachment& operator=(const InputAttachment&) = delete;
    ~InputAttachment()
    {
        if (attached_)
            AttachThreadInput(GetCurrentThreadId(), foreground_, FALSE);
    }

private:
    DWORD foreground_ = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
    bool attached_;
};

} // namespace

CaptionMatch matchCaption(TextView windowCaption, TextView wanted)
{
    if (wanted.empty() || !equalIgnoringCase(windowCaption.substr(0, wanted.size()), wanted))
        return CaptionMatch::None;
    return windowCaption.size() == wanted.size() ? CaptionMatch::Exact : CaptionMatch::Beginning;
}

/// A timer with a window of its own, so that every message loop, a message box's too, makes it tick.
class Win32Toolkit::WindowTimer final : public ui::Timer {
public:
    WindowTimer(Win32Toolkit& toolkit, std::function<void()> tick)
        : toolkit_(toolkit)
        , tick_(std::make_shared<std::function<void()>>(std::move(tick)))
        , window_(CreateWindowExW(
              0, timerClass, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, GetModuleHandleW(nullptr), nullptr))
    {
        if (window_ == nullptr)
            throw std::system_error{static_cast<int>(GetLastError()), std::system_category()};
        SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    }
    ~WindowTimer() override { DestroyWindow(window_); }

    [[nodiscard]] bool enabled() const override { return enabled_; }
    void setEnabled(bool enabled) override
    {
        if (enabled != enabled_) {
            enabled_ = enabled;
            apply();
        }
    }
    [[nodiscard]] milliseconds interval() const override { return interval_; }
    void setInterval(milliseconds interval) override
    {
        interval_ = interval;
        apply();
    }

    void tick() const noexcept
    {
        // A tick that was waiting when the timer was stopped is none any more.
        if (!enabled_)
            return;
        // The tick may make the timer go.
        const auto held = tick_;
        auto& failure = toolkit_.failure_;
        try {
            (*held)();
        } catch (...) {
            if (!failure)
                failure = std::current_exception();
        }
    }

private:
    void apply() const
    {
        KillTimer(window_, timerId);
        if (enabled_ && interval_.count() > 0)
            SetTimer(window_, timerId, static_cast<UINT>(std::min<long long>(interval_.count(), USER_TIMER_MAXIMUM)),
                nullptr);
    }

    Win32Toolkit& toolkit_;
    std::shared_ptr<std::function<void()>> tick_;
    HWND window_;
    bool enabled_ = false;
    milliseconds interval_{0};
};

Win32Toolkit::Win32Toolkit()
{
    WNDCLASSEXW windowClass{};
    windowClass.cbSize = sizeof windowClass;
    windowClass.lpfnWndProc = timerProcedure;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = timerClass;
    // A second toolkit of this process finds the class registered, which serves it as well.
    RegisterClassExW(&windowClass);
}

Win32Toolkit::~Win32Toolkit() = default;

LRESULT CALLBACK Win32Toolkit::timerProcedure(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message != WM_TIMER)
        return DefWindowProcW(window, message, first, second);
    if (const auto* timer = reinterpret_cast<const WindowTimer*>(GetWindowLongPtrW(window, GWLP_USERDATA)))
        timer->tick();
    return 0;
}

ui::Answer Win32Toolkit::showMessage(TextView text, ui::MessageStyle style, TextView caption)
{
    const UINT flags = static_cast<UINT>(style.buttons) | static_cast<UINT>(style.icon) | MB_TASKMODAL;
    return static_cast<ui::Answer>(MessageBoxW(nullptr, wide(Text{text}), wide(Text{caption}), flags));
}

std::unique_ptr<ui::Timer> Win32Toolkit::makeTimer(std::function<void()> tick)
{
    return std::make_unique<WindowTimer>(*this, std::move(tick));
}

void Win32Toolkit::dispatch(const MSG& message)
{
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (const auto failure = std::exchange(failure_, nullptr))
        std::rethrow_exception(failure);
}

void Win32Toolkit::yieldToEvents()
{
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            // It ends the loop that this call is nested in.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        dispatch(message);
    }
}

void Win32Toolkit::run(const std::function<bool()>& goOn)
{
    MSG message;
    while (goOn() && GetMessageW(&message, nullptr, 0, 0) > 0)
        dispatch(message);
}

std::unique_ptr<ui::FormWindow> Win32Toolkit::makeFormWindow() { return std::make_unique<ui::UnseenWindow>(); }

WindowHandle Win32Toolkit::findWindow(TextView caption)
{
    return reinterpret_cast<WindowHandle>(FindWindowW(nullptr, wide(Text{caption})));
}

std::int32_t Win32Toolkit::twipsPerPixel()
{
    const HDC screen = GetDC(nullptr);
    const std::int32_t twips = 1440 / GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return twips;
}

void Win32Toolkit::activateWindow(TextView caption)
{
    CaptionSearch search{caption};
    EnumWindows(searchCaption, reinterpret_cast<LPARAM>(&search));
    HWND found = search.exact != nullptr ? search.exact : search.beginning;
    if (found == nullptr)
        return;
    const InputAttachment attachment;
    SetForegroundWindow(found);
}

void Win32Toolkit::setTopMost(WindowHandle window, bool topMost)
{
    SetWindowPos(windowOf(window), topMost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
}

void Win32Toolkit::showInTaskBar(WindowHandle window)
{
    HWND handle = windowOf(window);
    // The task bar looks at the style only when a window appears.
    const bool visible = IsWindowVisible(handle) != FALSE;
    if (visible)
        ShowWindow(handle, SW_HIDE);
    const auto style = static_cast<DWORD>(GetWindowLongW(handle, GWL_EXSTYLE));
    SetWindowLongW(handle, GWL_EXSTYLE, static_cast<LONG>((style | WS_EX_APPWINDOW) & ~DWORD{WS_EX_TOOLWINDOW}));
    if (visible)
        ShowWindow(handle, SW_SHOW);
}

} // namespace rf::native
