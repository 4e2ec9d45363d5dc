#include "linux/toolkit.h"

#include "linux/automation_control.h"
#include "linux/form_window.h"
#include "linux/qt_text.h"
#include "linux/regional.h"
#include "linux/twips.h"

#include <QApplication>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string>

namespace rf::native {

namespace {

constexpr std::int32_t twipsOfAnUnknownScreen = 15;

bool hasScreen()
{
    constexpr std::array screens{"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"};
    return std::ranges::any_of(screens, [](const char* name) {
        const char* value = std::getenv(name);
        return value != nullptr && *value != '\0';
    });
}

bool hasWindows() { return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr; }

QMessageBox::StandardButtons qtButtons(ui::Buttons buttons)
{
    switch (buttons) {
    case ui::Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case ui::Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case ui::Buttons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon qtIcon(ui::Icon icon)
{
    switch (icon) {
    case ui::Icon::Critical:
        return QMessageBox::Critical;
    case ui::Icon::Question:
        return QMessageBox::Question;
    case ui::Icon::Warning:
        return QMessageBox::Warning;
    case ui::Icon::Information:
        return QMessageBox::Information;
    case ui::Icon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

ui::Answer answerOf(int button)
{
    switch (button) {
    case QMessageBox::Ok:
        return ui::Answer::Ok;
    case QMessageBox::Yes:
        return ui::Answer::Yes;
    case QMessageBox::No:
        return ui::Answer::No;
    default:
        return ui::Answer::Cancel;
    }
}

ui::Answer decline(TextView text, ui::MessageStyle style, TextView caption)
{
    const auto [answer, name] = [&]() -> std::pair<ui::Answer, const char*> {
        switch (style.buttons) {
        case ui::Buttons::OkCancel:
            return {ui::Answer::Cancel, "Cancel"};
        case ui::Buttons::YesNo:
            return {ui::Answer::No, "No"};
        case ui::Buttons::Ok:
            break;
        }
        return {ui::Answer::Ok, "OK"};
    }();
    std::cerr << toUtf8(caption) << ": " << toUtf8(replaceAll(text, lineBreak, u"\n")) << "\n[" << name << "]"
              << std::endl;
    return answer;
}

class QtTimer final : public ui::Timer {
public:
    explicit QtTimer(std::function<void()> tick)
    {
        QObject::connect(&timer_, &QTimer::timeout, [tick = std::move(tick)] { tick(); });
    }
    [[nodiscard]] bool enabled() const override { return timer_.isActive(); }
    void setEnabled(bool enabled) override { enabled ? timer_.start() : timer_.stop(); }
    [[nodiscard]] std::chrono::milliseconds interval() const override { return timer_.intervalAsDuration(); }
    void setInterval(std::chrono::milliseconds interval) override { timer_.setInterval(interval); }

private:
    QTimer timer_;
};

/// Changes what kind of window it is; Qt hides a window for that.
void setFlag(ui::WindowHandle handle, Qt::WindowType flag, bool on)
{
    QWidget* window = hasWindows() ? QWidget::find(handle) : nullptr;
    if (window == nullptr || window->windowFlags().testFlag(flag) == on)
        return;
    const bool visible = window->isVisible();
    window->setWindowFlag(flag, on);
    window->setVisible(visible);
}

} // namespace

QtToolkit::QtToolkit(int& argumentCount, char** arguments)
    : regional_(makeRegional())
{
    if (hasScreen())
        application_ = std::make_unique<QApplication>(argumentCount, arguments);
    else
        application_ = std::make_unique<QCoreApplication>(argumentCount, arguments);
    // The program ends when no form is loaded, visible or not.
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

QtToolkit::~QtToolkit()
{
    // Windows that went during their own events.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

ui::Answer QtToolkit::showMessage(TextView text, ui::MessageStyle style, TextView caption)
{
    if (!hasWindows())
        return decline(text, style, caption);
    QMessageBox box{qtIcon(style.icon), qtText(caption), {}, qtButtons(style.buttons)};
    box.setTextFormat(Qt::PlainText);
    box.setText(qtText(text));
    return answerOf(box.exec());
}

std::unique_ptr<ui::Timer> QtToolkit::makeTimer(std::function<void()> tick)
{
    return std::make_unique<QtTimer>(std::move(tick));
}

void QtToolkit::yieldToEvents() { QCoreApplication::processEvents(); }

void QtToolkit::run(const std::function<bool()>& goOn)
{
    while (goOn())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

std::unique_ptr<ui::FormWindow> QtToolkit::makeFormWindow()
{
    if (hasWindows())
        return std::make_unique<QtFormWindow>(regional_);
    return std::make_unique<UnseenWindowWithControls>(regional_);
}

ui::WindowHandle QtToolkit::findWindow(TextView caption)
{
    // The desktops of this platform do not tell a program of the windows of others.
    if (!hasWindows())
        return 0;
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find(windows, qtText(caption), &QWidget::windowTitle);
    return found == windows.end() ? 0 : (*found)->winId();
}

std::int32_t QtToolkit::twipsPerPixel()
{
    const QScreen* screen = hasWindows() ? QGuiApplication::primaryScreen() : nullptr;
    return screen == nullptr ? twipsOfAnUnknownScreen
                             : static_cast<std::int32_t>(Twips::twipsPerInch / screen->logicalDotsPerInch());
}

void QtToolkit::activateWindow(TextView caption)
{
    if (!hasWindows())
        return;
    const auto windows = QApplication::topLevelWidgets();
    const auto found = std::ranges::find(windows, qtText(caption), &QWidget::windowTitle);
    if (found == windows.end())
        return;
    (*found)->raise();
    (*found)->activateWindow();
}

void QtToolkit::setTopMost(ui::WindowHandle window, bool topMost)
{
    setFlag(window, Qt::WindowStaysOnTopHint, topMost);
}

void QtToolkit::showInTaskBar(ui::WindowHandle window)
{
    // A tool window has no button in the task bar.
    constexpr auto toolOnly = static_cast<Qt::WindowType>(Qt::Tool & ~Qt::Window);
    setFlag(window, toolOnly, false);
}

} // namespace rf::native
