#include "linux/dbus_dispatch.h"

#include "linux/dbus_arguments.h"
#include "linux/dbus_parcel.h"

namespace rf::native::dbus {

using automation::Connection;
using automation::EventHandler;
using automation::EventInterface;
using automation::Invocation;
using automation::Variant;

namespace {

/// A name with a NUL would be cut there by D-Bus and might become that of another member.
void checkName(TextView member)
{
    if (member.find(u'\0') != TextView::npos)
        throw automation::Error{
            error_number::memberNotFound, {Text{errorDescription(error_number::memberNotFound)}, {}, Text{member}}};
}

} // namespace

DbusDispatch::DbusDispatch(std::shared_ptr<Bridge> bridge, QString process, QString path)
    : bridge_(std::move(bridge))
    , process_(std::move(process))
    , path_(std::move(path))
{
}

DbusDispatch::~DbusDispatch() { bridge_->proxyGone(*this); }

Variant DbusDispatch::invoke(TextView member, Invocation kind, std::span<Variant> arguments)
{
    checkName(member);
    Parcel parcel{*bridge_, process_};
    auto call = makeCall(process_, path_, QStringLiteral("Invoke"));
    call << qtText(member) << QVariant::fromValue(static_cast<uchar>(kind)) << parcel.pack(arguments);
    Variant result;
    Assignments assignments;
    const auto read = [&](const QList<QVariant>& reply) {
        result = unpack(argumentOf<WireValue>(reply, 0), *bridge_);
        assignments = unpackAssignments(reply.at(1), *bridge_);
    };
    parcel.seal();
    bridge_->ask(call, QLatin1StringView{"(yv)a(u(yv))"}, member, read);
    assign(assignments, arguments);
    return result;
}

Connection DbusDispatch::advise(const EventInterface& events, EventHandler handler)
{
    const auto sink = bridge_->addSink({process_, std::move(handler), bridge_->farewellOf(events)});
    // From here on the handler may be called, whatever becomes of the reply.
    Connection connection{[self = shared_from_this(), sink] {
        self->bridge_->removeSink(sink);
        auto farewell = makeCall(self->process_, self->path_, QStringLiteral("Unadvise"));
        farewell << QVariant::fromValue(qulonglong{sink});
        // A source that has gone needs no farewell, so its failure means nothing.
        self->bridge_->connectionTo(self->process_).send(farewell);
    }};
    auto call = makeCall(process_, path_, QStringLiteral("Advise"));
    call << qtText(events.name) << QVariant::fromValue(qulonglong{sink});
    bridge_->ask(call, {}, events.name, [](const QList<QVariant>&) {});
    return connection;
}

} // namespace rf::native::dbus
