#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <functional>

namespace rf::native::dbus {

/// Sends a call and waits for its reply, however long that takes: a person may be answering a question. `take` reads
/// the reply as soon as it comes, before anything that the other end sent after it; what it throws leaves here.
///
/// Meanwhile calls and events that other processes send are answered, nested on this thread, and windows are painted.
/// Timers and what a person types or clicks wait until the call has returned: the program's own ticks and handlers are
/// written as if an automation call were one step, and a tick within it would find that step half done.
void callAndWait(const QDBusConnection& connection, const QDBusMessage& call,
    const std::function<void(const QDBusMessage& reply)>& take);

/// Makes the loop that waits look again for its reply, which may have come while a message was being handled. Qt may
/// otherwise go to sleep after the handler, in the same step, and sleep until something else happens.
void lookAgain();

/// A call of the transport's interface. It starts no process: a name without an owner is a failure.
[[nodiscard]] QDBusMessage makeCall(const QString& process, const QString& path, const QString& method);

} // namespace rf::native::dbus
