#pragma once

#include "basic/error_of.h"
#include "linux/class_registry.h"
#include "linux/dbus_bridge.h"
#include "linux/dbus_server.h"
#include "support/boiler.h"

#include "dbus_processes.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <gtest/gtest.h>

namespace rf::native::dbus {

using test::Boiler;
using test::boilerEvents;
using test::errorOf;
using test::offeredEvents;
using test::unknownEvents;
using test::unraisedEvents;

inline constexpr TextView boilerClass = u"Test.Boiler";

/// Delivers what arrives until the condition holds, which is asked every few milliseconds; false when it does not in
/// time. Asking another process is an event here too, so that asking after each one would never rest.
template <class Condition>
[[nodiscard]] bool runUntil(Condition&& condition, std::chrono::seconds limit = std::chrono::seconds{30})
{
    using std::chrono::steady_clock;
    constexpr std::chrono::milliseconds pause{5};
    const auto end = steady_clock::now() + limit;
    QTimer waker;
    waker.start(pause);
    while (!condition() && steady_clock::now() < end)
        for (const auto next = steady_clock::now() + pause; steady_clock::now() < next;)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return condition();
}

/// Qt's part of a process: its program object, without which nothing arrives.
struct QtProcess {
    int argumentCount = 1;
    char name[5] = "test";
    char* arguments[2] = {name, nullptr};
    QCoreApplication application{argumentCount, arguments};
};

/// A process that plays a part does so as long as there is a bus.
inline void serve(const Bridge& bridge)
{
    static_cast<void>(runUntil([&] { return !bridge.connection().isConnected(); }, std::chrono::seconds{600}));
}

/// A test on a bus of its own.
struct DbusTest : testing::Test {
    QtProcess process;
    PrivateBus bus;

    void SetUp() override
    {
        if (!bus.isThere())
            GTEST_SKIP() << "no dbus-daemon; install it with: apt-get install dbus-daemon";
    }

    [[nodiscard]] std::shared_ptr<Bridge> connect() const
    {
        return bus.isThere() ? Bridge::connect(offeredEvents) : nullptr;
    }
};

} // namespace rf::native::dbus
