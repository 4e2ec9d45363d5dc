#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <chrono>

namespace rf::demo {

/// Delivers what arrives until the condition holds; it is asked again after each delivery, and at the latest after
/// `step`. False when it does not hold in time.
template <class Condition>
[[nodiscard]] bool waitUntil(const Condition& condition, std::chrono::milliseconds limit,
    std::chrono::milliseconds step = std::chrono::milliseconds{10})
{
    const auto end = std::chrono::steady_clock::now() + limit;
    QTimer waker;
    waker.start(step);
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= end)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

} // namespace rf::demo
