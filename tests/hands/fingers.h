#pragma once

#include <QEvent>
#include <QPoint>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace rf::test {

/// Mouse and keyboard of one person. Each event goes the way of the window system's own, when the program takes a
/// person's input: not while it waits for another process.
class Fingers {
public:
    Fingers();

    void click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(QWidget& widget, QPoint place);
    /// Presses at the first place, moves in steps and lets go at the second one.
    void drag(QWidget& widget, QPoint from, QPoint to);
    /// Keys on whatever has the focus when their turn comes.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers);
    void type(const QString& text);
    /// The close button of a window.
    void close(QWidget& window);

    /// Whether there is nothing left to do.
    [[nodiscard]] bool areIdle() const { return steps_.empty(); }

private:
    struct Mouse {
        QEvent::Type type = QEvent::None;
        Qt::MouseButton button = Qt::NoButton;
        Qt::MouseButtons held;
    };
    void mouse(QWidget& widget, QPoint place, Mouse mouse);
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text);
    void add(std::function<void()> step);
    void next();

    std::deque<std::function<void()>> steps_;
    QTimer turn_;
    /// The window system's clock, in milliseconds: two clicks are a double click when they follow each other soon.
    int time_ = 0;
};

} // namespace rf::test
