#include "linux/rfhost/windows/placed_window.h"

#include <QCloseEvent>
#include <utility>

namespace rf::native {

namespace {

using host::WindowPlace;

std::int32_t stateOf(const QWidget& window)
{
    if (window.isMinimized())
        return WindowPlace::minimized;
    return window.isMaximized() ? WindowPlace::maximized : WindowPlace::normal;
}

Qt::WindowStates qtState(std::int32_t state)
{
    switch (state) {
    case WindowPlace::maximized:
        return Qt::WindowMaximized;
    case WindowPlace::minimized:
        return Qt::WindowMinimized;
    default:
        return Qt::WindowNoState;
    }
}

} // namespace

PlacedWindow::PlacedWindow(WindowPlace& place)
    : place_(place)
{
    // Where nobody says a place, the desktop chooses one.
    resize(known_.width, known_.height);
}

void PlacedWindow::present()
{
    // A window that a person has minimized comes back as it was.
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    if (std::exchange(presented_, true))
        activateWindow();
}

void PlacedWindow::takePlace()
{
    if (place_ == known_)
        return;
    const WindowPlace before = std::exchange(known_, place_);
    const WindowPlace wanted = place_;
    if (wanted.state != before.state)
        setWindowState(qtState(wanted.state));
    if (wanted.left != before.left || wanted.top != before.top)
        move(wanted.left, wanted.top);
    if (wanted.width != before.width || wanted.height != before.height)
        resize(wanted.width, wanted.height);
}

void PlacedWindow::tellPlace()
{
    // What a program has assigned meanwhile goes first.
    if (!isVisible() || place_ != known_ || released_)
        return;
    known_ = {x(), y(), width(), height(), stateOf(*this)};
    place_ = known_;
}

void PlacedWindow::letGo()
{
    released_ = true;
    hide();
    deleteLater();
}

void PlacedWindow::closeEvent(QCloseEvent* event)
{
    // The object decides; its closing takes the window along.
    event->setAccepted(released_);
    if (!released_)
        closeWanted();
}

void PlacedWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    tellPlace();
}

void PlacedWindow::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    tellPlace();
}

void PlacedWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    tellPlace();
}

void PlacedWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        tellPlace();
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !released_)
        cameToFront();
}

} // namespace rf::native
