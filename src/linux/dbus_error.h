#pragma once

#include "automation/error.h"

#include <QDBusMessage>

namespace rf::native::dbus {

// The error policy of the transport: within the program a failure is an exception, an automation::Error for everything
// that the other end reports; on the bus it is an error reply. `errorOf` turns the one into the other on the way in,
// `errorReply` on the way out, and no exception leaves a message's handler. Only what cannot be told to anybody, such
// as a farewell to a process that has gone, is ignored, and says so where it is.

/// A failure that the transport itself finds, by its classic number.
[[nodiscard]] automation::Error errorOf(std::int32_t number, TextView member = {});
/// The failure that an error reply tells of: the callee's own, or 462 for one of the bus.
[[nodiscard]] automation::Error errorOf(const QDBusMessage& reply, TextView member);
/// Whether the reply is a failure that the callee itself tells of.
[[nodiscard]] bool isToldByCallee(const QDBusMessage& reply);

/// The exception that is being handled, as the reply to a call.
[[nodiscard]] QDBusMessage errorReply(const QDBusMessage& call);

} // namespace rf::native::dbus
