#include "linux/dbus_remote_sink.h"

#include "linux/dbus_arguments.h"
#include "linux/dbus_bridge.h"
#include "linux/dbus_error.h"
#include "linux/dbus_parcel.h"

namespace rf::native::dbus {

using automation::Variant;

RemoteSink::RemoteSink(std::weak_ptr<Bridge> bridge, QString process, quint64 number)
    : bridge_(std::move(bridge))
    , process_(std::move(process))
    , number_(number)
{
}

void RemoteSink::operator()(TextView event, std::span<Variant> arguments) const
{
    const auto bridge = bridge_.lock();
    if (!bridge)
        return;
    auto call = makeCall(process_, sinkPath(number_), QStringLiteral("Event"));
    Parcel parcel{*bridge, process_};
    call << qtText(event) << parcel.pack(arguments);
    parcel.seal();
    ++bridge->traffic_[process_].events;
    Assignments assignments;
    bool isGone = false;
    const auto read = [&](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1StringView{"a(u(yv))"})
            assignments = unpackAssignments(reply.arguments().at(0), *bridge);
        else
            isGone = !isToldByCallee(reply);
    };
    try {
        callAndWait(bridge->connectionTo(process_), call, read);
    } catch (const BadMessage&) {
        isGone = true;
    }
    if (isGone)
        bridge->disconnectSink(process_, number_);
    assign(assignments, arguments);
}

} // namespace rf::native::dbus
