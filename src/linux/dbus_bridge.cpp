#include "linux/dbus_bridge.h"

#include "linux/dbus_dispatch.h"
#include "linux/dbus_error.h"
#include "linux/dbus_receiver.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>
#include <algorithm>
#include <atomic>

namespace rf::native::dbus {

using automation::Dispatch;
using automation::EventInterface;

namespace {

constexpr qsizetype manyReleases = 64;
constexpr std::chrono::seconds busInterval{1};

/// Qt tells connections apart by names of the program's choice.
QString freshConnectionName()
{
    static std::atomic<int> last{0};
    return QStringLiteral("automation-%1").arg(++last);
}

} // namespace

QString sessionBusAddress()
{
    if (QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"); !address.isEmpty())
        return address;
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QString{} : QStringLiteral("unix:path=") + folder + QStringLiteral("/bus");
}

std::shared_ptr<Bridge> Bridge::connect(std::span<const EventInterface* const> events, const QString& address)
{
    if (address.isEmpty() || QCoreApplication::instance() == nullptr)
        return nullptr;
    registerWireTypes();
    auto connection = QDBusConnection::connectToBus(address, freshConnectionName());
    if (!connection.isConnected()) {
        QDBusConnection::disconnectFromBus(connection.name());
        return nullptr;
    }
    readWithoutLimit(connection);
    std::shared_ptr<Bridge> bridge{new Bridge{std::move(connection), events}};
    bridge->startReceiving();
    return bridge;
}

Bridge::Bridge(QDBusConnection connection, std::span<const EventInterface* const> events)
    : connection_(std::move(connection))
    , events_(events)
    , receiver_(std::make_unique<Receiver>(*this))
    , lines_(std::make_unique<Lines>(connection_, *receiver_))
{
    watcher_.setConnection(connection_);
    watcher_.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    QObject::connect(&watcher_, &QDBusServiceWatcher::serviceUnregistered, &watcher_,
        [this](const QString& process) { processEnded(process); });
    releaseTimer_.setSingleShot(true);
    QObject::connect(&releaseTimer_, &QTimer::timeout, &releaseTimer_, [this] { sendReleases(); });
    QObject::connect(&busTimer_, &QTimer::timeout, &busTimer_, [this] { lookAfterBus(); });
}

Bridge::~Bridge()
{
    connection_.unregisterObject(rootPath(), QDBusConnection::UnregisterTree);
    exports_.clear();
    lines_.reset();
    // References that are still held elsewhere end with the connection.
    QDBusConnection::disconnectFromBus(connection_.name());
}

void Bridge::startReceiving()
{
    connection_.registerVirtualObject(rootPath(), receiver_.get(), QDBusConnection::SubPath);
}

const EventInterface* Bridge::findEvents(TextView name) const
{
    const auto found = std::ranges::find(events_, name, &EventInterface::name);
    return found == events_.end() ? nullptr : *found;
}

void Bridge::watch(const QString& process)
{
    if (!watched_.insert(process).second)
        return;
    watcher_.addWatchedService(process);
    // It may have ended before the watch began, and then nobody tells.
    auto question = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("NameHasOwner"));
    question << process;
    auto* const answer = new QDBusPendingCallWatcher{connection_.asyncCall(question), &watcher_};
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &watcher_, [this, answer, process] {
        answer->deleteLater();
        if (const QDBusReply<bool> lives = answer->reply(); lives.isValid() && !lives.value())
            processEnded(process);
    });
}

void Bridge::processEnded(const QString& process)
{
    const auto self = shared_from_this();
    watched_.erase(process);
    watcher_.removeWatchedService(process);
    exports_.drop(process);
    if (const auto past = traffic_.extract(process); !past.empty()) {
        pastTraffic_.calls += past.mapped().calls;
        pastTraffic_.events += past.mapped().events;
    }
    lines_->close(process);
    sayFarewell(process);
}

void Bridge::sayFarewell(const QString& process)
{
    std::vector<quint64> bereaved;
    for (const auto& [number, sink] : sinks_)
        if (sink->source == process && !sink->farewell.empty())
            bereaved.push_back(number);
    for (const quint64 number : bereaved)
        // One may cut the others.
        if (const auto sink = findSink(number))
            try {
                sink->handler(sink->farewell, {});
            } catch (const RuntimeError&) {
                // The failure of a handler is its source's to hear, and that has gone.
                continue;
            }
}

TextView Bridge::farewellOf(const EventInterface& events) const
{
    const auto found = std::ranges::find(farewells_, events.name, &automation::Farewell::events);
    return found == farewells_.end() ? TextView{} : found->event;
}

void Bridge::lookAfterBus()
{
    if (connection_.isConnected())
        return;
    busTimer_.stop();
    const auto self = shared_from_this();
    for (const QString& process : std::set{watched_})
        processEnded(process);
}

Traffic Bridge::trafficOf(const QString& process) const
{
    Traffic sum = process.isEmpty() ? pastTraffic_ : Traffic{};
    for (const auto& [name, traffic] : traffic_)
        if (process.isEmpty() || name == process) {
            sum.calls += traffic.calls;
            sum.events += traffic.events;
        }
    sum.handlers = process.isEmpty() ? exports_.sinkCount() : exports_.sinkCount(process);
    return sum;
}

void Bridge::ask(const QDBusMessage& call, QLatin1StringView signature, TextView member,
    const std::function<void(const QList<QVariant>& reply)>& read)
try {
    const auto self = shared_from_this();
    sendReleasesWhenMany();
    callAndWait(connectionTo(call.service()), call, [&](const QDBusMessage& reply) {
        if (reply.type() != QDBusMessage::ReplyMessage)
            throw errorOf(reply, member);
        if (reply.signature() != signature)
            throw BadMessage{};
        read(reply.arguments());
    });
} catch (const BadMessage&) {
    throw errorOf(error_number::serverUnavailable, member);
}

std::shared_ptr<Dispatch> Bridge::root(const QString& process, const QString& name)
{
    if (process == ownName())
        return ownRoot(name);
    openLine(process);
    auto call = makeCall(process, rootPath(), QStringLiteral("Root"));
    call << name;
    std::shared_ptr<Dispatch> object;
    ask(call, QLatin1StringView{"(yv)"}, {},
        [&](const QList<QVariant>& reply) { object = unpack(argumentOf<WireValue>(reply, 0), *this).dispatch(); });
    return object;
}

void Bridge::openLine(const QString& process)
{
    if (lines_->leadTo(process))
        return;
    auto question = makeCall(process, rootPath(), QStringLiteral("Line"));
    // A process that was asked by the name of its class answers by its own, which its objects go by.
    QString owner;
    Lines::Invitation invitation;
    callAndWait(connection_, question, [&](const QDBusMessage& reply) {
        owner = reply.service();
        if (reply.type() == QDBusMessage::ReplyMessage && reply.signature() == QLatin1StringView{"st"})
            invitation = {reply.arguments().at(0).toString(), reply.arguments().at(1).toULongLong()};
    });
    // Whose answer is another one has no lines, and is called over the bus.
    if (lines_->follow(owner, invitation))
        watch(owner);
}

std::shared_ptr<Dispatch> Bridge::ownRoot(const QString& name) const
{
    const auto offered = std::ranges::find_if(
        roots_, [&](const auto& entry) { return entry.first.compare(name, Qt::CaseInsensitive) == 0; });
    if (offered == roots_.end())
        throw errorOf(error_number::serverUnavailable);
    // The maker may offer and withdraw as it likes.
    const Root make = offered->second;
    return make();
}

std::shared_ptr<Dispatch> Bridge::importObject(const WireObject& object)
{
    const QString path = object.path.path();
    if (object.owner.isEmpty())
        return nullptr;
    if (!object.owner.startsWith(u':') || !numberIn(path, objectFolder))
        throw BadMessage{};
    if (object.owner == ownName()) {
        auto own = exports_.find(*numberIn(path, objectFolder));
        return own ? own : throw BadMessage{};
    }
    auto& known = proxies_[{object.owner, path}];
    auto proxy = known.lock();
    if (!proxy) {
        proxy = std::make_shared<DbusDispatch>(shared_from_this(), object.owner, path);
        known = proxy;
    }
    proxy->addReference();
    return proxy;
}

void Bridge::proxyGone(const DbusDispatch& proxy)
{
    // A new proxy may have been made while the last handle to the old one went.
    if (const auto known = proxies_.find({proxy.process(), proxy.path()}); known->second.expired())
        proxies_.erase(known);
    releases_[proxy.process()].push_back({QDBusObjectPath{proxy.path()}, proxy.references()});
    if (releaseCount_++ == 0)
        releaseTimer_.start(0);
}

void Bridge::sendReleases()
{
    for (const auto& [process, gone] : std::exchange(releases_, {})) {
        auto message = makeCall(process, rootPath(), QStringLiteral("Release"));
        message << QVariant::fromValue(gone);
        // A process that has gone needs no farewell, so nobody waits for an answer.
        connectionTo(process).send(message);
    }
    releaseCount_ = 0;
}

void Bridge::sendReleasesWhenMany()
{
    if (releaseCount_ >= manyReleases)
        sendReleases();
}

quint64 Bridge::addSink(Sink sink)
{
    if (!sink.farewell.empty()) {
        watch(sink.source);
        busTimer_.start(busInterval);
    }
    sinks_.emplace(++lastSink_, std::make_shared<const Sink>(std::move(sink)));
    return lastSink_;
}

std::shared_ptr<const Sink> Bridge::findSink(quint64 number) const
{
    const auto found = sinks_.find(number);
    return found == sinks_.end() ? nullptr : found->second;
}

} // namespace rf::native::dbus
