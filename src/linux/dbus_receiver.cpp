#include "linux/dbus_receiver.h"

#include "linux/dbus_arguments.h"
#include "linux/dbus_bridge.h"
#include "linux/dbus_error.h"
#include "linux/dbus_parcel.h"
#include "linux/dbus_remote_sink.h"

#include <algorithm>

namespace rf::native::dbus {

using automation::Dispatch;
using automation::Invocation;
using automation::Variant;

namespace {

constexpr int deepestNesting = 100;

/// Counts a call for as long as it is being answered.
class Nested {
public:
    explicit Nested(int& depth)
        : depth_(depth)
    {
        ++depth_;
    }
    Nested(const Nested&) = delete;
    Nested& operator=(const Nested&) = delete;
    ~Nested() { --depth_; }

private:
    int& depth_;
};

Invocation invocationOf(uchar kind)
{
    if (kind > static_cast<uchar>(Invocation::Call))
        throw BadMessage{};
    return static_cast<Invocation>(kind);
}

} // namespace

/// A call as it came.
struct Call {
    const QDBusMessage& message;
    const QDBusConnection& connection;
    /// The process that sent it; empty on a line whose process is not known yet.
    QString sender;
    /// That of the object or sink that is called.
    quint64 number = 0;
};

/// A method of the interface, and where it is called: at the objects of a folder, or at the root without one.
struct Method {
    QLatin1StringView name;
    QLatin1StringView signature;
    QLatin1StringView folder;
    QDBusMessage (*answer)(Bridge& bridge, const Call& call) = nullptr;
};

/// What the methods do.
class Methods {
public:
    static QDBusMessage root(Bridge& bridge, const Call& call)
    {
        const Variant object{bridge.ownRoot(call.message.arguments().at(0).toString())};
        Parcel parcel{bridge, call.sender};
        QDBusMessage reply = call.message.createReply(parcel.pack(object));
        parcel.seal();
        return reply;
    }

    static QDBusMessage addReference(Bridge& bridge, const Call& call)
    {
        const auto arguments = call.message.arguments();
        const auto number = numberIn(argumentOf<QDBusObjectPath>(arguments, 0).path(), objectFolder);
        const QString holder = arguments.at(1).toString();
        if (!number || !holder.startsWith(u':') || !bridge.exports_.hold(*number, holder))
            throw BadMessage{};
        bridge.watch(holder);
        return call.message.createReply();
    }

    static QDBusMessage release(Bridge& bridge, const Call& call)
    {
        for (const auto& [path, count] : argumentOf<QList<WireRelease>>(call.message.arguments(), 0))
            if (const auto number = numberIn(path.path(), objectFolder))
                bridge.exports_.release(*number, call.sender, count);
        return call.message.createReply();
    }

    static QDBusMessage invoke(Bridge& bridge, const Call& call)
    {
        const auto object = find(bridge, call.number);
        const auto passed = call.message.arguments();
        const Invocation kind = invocationOf(argumentOf<uchar>(passed, 1));
        IncomingArguments arguments{argumentOf<QList<WireValue>>(passed, 2), bridge};
        const Variant result = object->invoke(textOf(passed.at(0).toString()), kind, arguments.values());
        Parcel parcel{bridge, call.sender};
        QDBusMessage reply = call.message.createReply(
            {parcel.pack(result.dereferenced()), QVariant::fromValue(arguments.assignments(parcel.packer()))});
        parcel.seal();
        return reply;
    }

    static QDBusMessage advise(Bridge& bridge, const Call& call)
    {
        const auto object = find(bridge, call.number);
        const Text name = textOf(call.message.arguments().at(0).toString());
        const auto sink = argumentOf<qulonglong>(call.message.arguments(), 1);
        const automation::EventInterface* events = bridge.findEvents(name);
        if (events == nullptr)
            throw automation::Error{
                error_number::eventsNotSupported, {Text{errorDescription(error_number::eventsNotSupported)}, {}, name}};
        const QString holder = call.sender;
        bridge.exports_.connect(
            holder, sink, object->advise(*events, RemoteSink{bridge.weak_from_this(), holder, sink}));
        bridge.watch(holder);
        return call.message.createReply();
    }

    static QDBusMessage unadvise(Bridge& bridge, const Call& call)
    {
        bridge.exports_.disconnect(call.sender, argumentOf<qulonglong>(call.message.arguments(), 0));
        return call.message.createReply();
    }

    /// An event for a handler that has gone meanwhile passes unheard.
    static QDBusMessage event(Bridge& bridge, const Call& call)
    {
        const auto sink = bridge.findSink(call.number);
        const auto passed = call.message.arguments();
        IncomingArguments arguments{argumentOf<QList<WireValue>>(passed, 1), bridge};
        if (sink && sink->source == call.sender)
            sink->handler(textOf(passed.at(0).toString()), arguments.values());
        Parcel parcel{bridge, call.sender};
        QDBusMessage reply = call.message.createReply(QVariant::fromValue(arguments.assignments(parcel.packer())));
        parcel.seal();
        return reply;
    }

    static QDBusMessage traffic(Bridge& bridge, const Call& call)
    {
        const Traffic traffic = bridge.trafficOf(call.message.arguments().at(0).toString());
        return call.message.createReply({traffic.calls, traffic.events, traffic.handlers});
    }

    static QDBusMessage line(Bridge& bridge, const Call& call)
    {
        const Lines::Invitation invitation = bridge.lines_->invite(call.sender);
        // Its end takes the line along, and an invitation that was not followed.
        bridge.watch(call.sender);
        return call.message.createReply({invitation.address, invitation.word});
    }

    static QDBusMessage hello(Bridge& bridge, const Call& call)
    {
        if (!bridge.lines_->accept(call.connection, argumentOf<qulonglong>(call.message.arguments(), 0)))
            throw BadMessage{};
        return call.message.createReply();
    }

    static const Method* find(const QDBusMessage& call);

private:
    static std::shared_ptr<Dispatch> find(Bridge& bridge, quint64 number)
    {
        auto object = bridge.exports_.find(number);
        return object ? object : throw BadMessage{};
    }
};

const Method* Methods::find(const QDBusMessage& call)
{
    static constexpr Method table[] = {
        {QLatin1StringView{"Invoke"}, QLatin1StringView{"sya(yv)"}, objectFolder, invoke},
        {QLatin1StringView{"Event"}, QLatin1StringView{"sa(yv)"}, sinkFolder, event},
        {QLatin1StringView{"Advise"}, QLatin1StringView{"st"}, objectFolder, advise},
        {QLatin1StringView{"Unadvise"}, QLatin1StringView{"t"}, objectFolder, unadvise},
        {QLatin1StringView{"Release"}, QLatin1StringView{"a(ot)"}, {}, release},
        {QLatin1StringView{"AddRef"}, QLatin1StringView{"os"}, {}, addReference},
        {QLatin1StringView{"Root"}, QLatin1StringView{"s"}, {}, root},
        {QLatin1StringView{"Traffic"}, QLatin1StringView{"s"}, {}, traffic},
        {QLatin1StringView{"Line"}, QLatin1StringView{""}, {}, line},
        {QLatin1StringView{"Hello"}, QLatin1StringView{"t"}, {}, hello},
    };
    const auto* const found = std::ranges::find(table, call.member(), &Method::name);
    return found == std::end(table) || found->signature != call.signature() ? nullptr : found;
}

namespace {

/// Nobody waits for what a process gives up, and opening a line is no use of an object.
bool isCounted(const Method& method)
{
    return method.answer != Methods::release && method.answer != Methods::line && method.answer != Methods::hello;
}

std::optional<quint64> numberFor(const Method& method, const QString& path)
{
    if (!method.folder.isEmpty())
        return numberIn(path, method.folder);
    return path == rootPath() ? std::optional<quint64>{0} : std::nullopt;
}

} // namespace

QDBusMessage Receiver::answer(const QDBusMessage& message, const QDBusConnection& connection)
try {
    const Nested nested{depth_};
    if (depth_ > deepestNesting)
        throw errorOf(error_number::outOfStackSpace);
    const Method* method = Methods::find(message);
    if (method == nullptr)
        throw BadMessage{};
    const auto number = numberFor(*method, message.path());
    const Call call{message, connection, bridge_.lines_->senderOf(message, connection), number.value_or(0)};
    if (!number || (call.sender.isEmpty() && method->answer != Methods::hello))
        throw BadMessage{};
    if (isCounted(*method))
        ++bridge_.traffic_[call.sender].calls;
    return method->answer(bridge_, call);
} catch (...) {
    return errorReply(message);
}

bool Receiver::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    // Other interfaces, such as Introspectable, are Qt's.
    if (message.interface() != interfaceName())
        return false;
    // What the call does may drop the last handle to the bridge.
    const auto bridge = bridge_.shared_from_this();
    const QDBusMessage reply = answer(message, connection);
    if (message.isReplyRequired())
        connection.send(reply);
    lookAgain();
    return true;
}

} // namespace rf::native::dbus
