#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace rf::native {

/// The window that a dialog stands before; null when none is in front. One that is closing goes, and would take the
/// dialog along.
[[nodiscard]] QWidget* windowInFront();

/// Runs what a person asked for. A failure is told in front of the window, which may have gone meanwhile.
void attempt(const QPointer<QWidget>& window, const std::function<void()>& step);

/// Runs it as soon as the event that asked for it is over: programs may close the window on the way.
inline void later(QWidget* window, std::function<void()> step)
{
    QTimer::singleShot(
        0, window, [window = QPointer<QWidget>{window}, step = std::move(step)] { attempt(window, step); });
}

/// Gathers many tellings into one step, which runs when the program's call that made them is over.
class Gathered {
public:
    explicit Gathered(std::function<void()> step)
    {
        timer_.setSingleShot(true);
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [step = std::move(step)] { step(); });
    }
    void tell() { timer_.start(0); }

private:
    QTimer timer_;
};

} // namespace rf::native
