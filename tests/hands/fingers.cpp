#include "hands/fingers.h"

#include <QGuiApplication>
#include <QPointer>
#include <QTest>
#include <QWindow>

namespace rf::test {

namespace {

constexpr int longerThanADoubleClick = 1000;

/// The window that the keyboard speaks to.
QWindow* windowOfKeys() { return QGuiApplication::focusWindow(); }

} // namespace

Fingers::Fingers()
{
    turn_.setSingleShot(true);
    QObject::connect(&turn_, &QTimer::timeout, [this] { next(); });
}

void Fingers::add(std::function<void()> step)
{
    steps_.push_back(std::move(step));
    if (!turn_.isActive())
        turn_.start(0);
}

void Fingers::next()
{
    if (steps_.empty())
        return;
    const auto step = std::move(steps_.front());
    steps_.pop_front();
    // The step may open a dialog, which the steps behind it are for.
    if (!steps_.empty())
        turn_.start(0);
    step();
}

void Fingers::mouse(QWidget& widget, QPoint place, Mouse mouse)
{
    add([this, target = QPointer{&widget}, place, mouse] {
        if (target == nullptr || target->window()->windowHandle() == nullptr)
            return;
        const QWidget& window = *target->window();
        const QPoint inside = target->mapTo(&window, place);
        qt_handleMouseEvent(window.windowHandle(), inside, window.mapToGlobal(inside), mouse.held, mouse.button,
            mouse.type, Qt::NoModifier, ++time_);
    });
}

void Fingers::click(QWidget& widget, QPoint place, Qt::MouseButton button)
{
    add([this] { time_ += longerThanADoubleClick; });
    mouse(widget, place, {QEvent::MouseMove, Qt::NoButton, Qt::NoButton});
    mouse(widget, place, {QEvent::MouseButtonPress, button, button});
    mouse(widget, place, {QEvent::MouseButtonRelease, button, Qt::NoButton});
}

void Fingers::doubleClick(QWidget& widget, QPoint place)
{
    click(widget, place);
    mouse(widget, place, {QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton});
    mouse(widget, place, {QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton});
}

void Fingers::drag(QWidget& widget, QPoint from, QPoint to)
{
    constexpr int steps = 8;
    add([this] { time_ += longerThanADoubleClick; });
    mouse(widget, from, {QEvent::MouseMove, Qt::NoButton, Qt::NoButton});
    mouse(widget, from, {QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton});
    for (int step = 1; step <= steps; ++step)
        mouse(widget, from + (to - from) * step / steps, {QEvent::MouseMove, Qt::NoButton, Qt::LeftButton});
    mouse(widget, to, {QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton});
}

void Fingers::key(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
        add([key, modifiers, text, type] {
            if (QWindow* const window = windowOfKeys())
                qt_handleKeyEvent(window, type, key, modifiers, text);
        });
}

void Fingers::close(QWidget& window)
{
    add([target = QPointer{&window}] {
        if (target != nullptr)
            target->close();
    });
}

void Fingers::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    const bool ends = key == Qt::Key_Return || key == Qt::Key_Enter;
    const bool isBlank = key == Qt::Key_Space;
    this->key(key, modifiers, ends ? QStringLiteral("\r") : isBlank ? QStringLiteral(" ") : QString{});
}

void Fingers::type(const QString& text)
{
    for (const QChar character : text)
        key(static_cast<Qt::Key>(character.toUpper().unicode()), Qt::NoModifier, QString{character});
}

} // namespace rf::test
