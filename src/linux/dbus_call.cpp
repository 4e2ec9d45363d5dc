#include "linux/dbus_call.h"

#include "linux/dbus_protocol.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <chrono>
#include <exception>
#include <limits>
#include <thread>

namespace rf::native::dbus {

namespace {

/// D-Bus takes the greatest number for no limit.
constexpr int withoutLimit = std::numeric_limits<int>::max();

constexpr auto transportAndPaintingOnly = QEventLoop::ExcludeUserInputEvents | QEventLoop::X11ExcludeTimers;

/// Most replies come within this time. Who has gone to sleep meanwhile wakes later than the reply has come: on a
/// machine with little else to do, waking a processor takes longer than the call.
constexpr std::chrono::microseconds timeAwake{200};

/// Handles what comes until there is a reply.
void waitFor(const bool& done)
{
    const auto bedtime = std::chrono::steady_clock::now() + timeAwake;
    while (!done && std::chrono::steady_clock::now() < bedtime) {
        QCoreApplication::processEvents(transportAndPaintingOnly);
        std::this_thread::yield();
    }
    while (!done)
        QCoreApplication::processEvents(transportAndPaintingOnly | QEventLoop::WaitForMoreEvents);
}

} // namespace

void callAndWait(const QDBusConnection& connection, const QDBusMessage& call,
    const std::function<void(const QDBusMessage& reply)>& take)
{
    bool done = false;
    std::exception_ptr failure;
    QDBusPendingCallWatcher watcher{connection.asyncCall(call, withoutLimit)};
    const auto finish = [&] {
        done = true;
        lookAgain();
        try {
            take(watcher.reply());
        } catch (...) {
            failure = std::current_exception();
        }
    };
    // A reply that is there already must not wait its turn behind messages that came after it.
    if (watcher.isFinished())
        finish();
    else
        QObject::connect(&watcher, &QDBusPendingCallWatcher::finished, &watcher, finish);
    waitFor(done);
    if (failure)
        std::rethrow_exception(failure);
}

void lookAgain() { QAbstractEventDispatcher::instance()->interrupt(); }

QDBusMessage makeCall(const QString& process, const QString& path, const QString& method)
{
    auto call = QDBusMessage::createMethodCall(process, path, interfaceName(), method);
    call.setAutoStartService(false);
    return call;
}

} // namespace rf::native::dbus
