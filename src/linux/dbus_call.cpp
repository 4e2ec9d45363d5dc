#include "linux/dbus_call.h"

#include "linux/dbus_protocol.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QEventLoop>
#include <exception>
#include <limits>

namespace rf::native::dbus {

namespace {

/// D-Bus takes the greatest number for no limit.
constexpr int withoutLimit = std::numeric_limits<int>::max();

constexpr auto transportAndPaintingOnly
    = QEventLoop::ExcludeUserInputEvents | QEventLoop::X11ExcludeTimers | QEventLoop::WaitForMoreEvents;

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
    while (!done)
        QCoreApplication::processEvents(transportAndPaintingOnly);
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
