#pragma once

#include "automation/events.h"
#include "automation/farewell.h"
#include "linux/dbus_call.h"
#include "linux/dbus_exports.h"
#include "linux/dbus_lines.h"
#include "linux/dbus_value.h"

#include <QDBusServiceWatcher>
#include <QTimer>
#include <functional>
#include <memory>
#include <set>
#include <span>

namespace rf::native::dbus {

class DbusDispatch;
class Receiver;

/// A handler of this process for the events of an object elsewhere.
struct Sink {
    /// The process that may call it.
    QString source;
    automation::EventHandler handler;
    /// The event that it hears when that process ends without a word; empty for none.
    TextView farewell = {};
};

/// What passes between this process and others.
struct Traffic {
    /// Those that this process has answered.
    quint64 calls = 0;
    /// Those that it has raised to handlers elsewhere, each handler counted.
    quint64 events = 0;
    /// Those that are connected now.
    quint64 handlers = 0;
};

/// The address of the session bus: the one that the session names, else the place where its bus listens by custom.
/// Empty without a session. No bus is started for the asking.
[[nodiscard]] QString sessionBusAddress();

/// The two-way street between the program's objects and those of other processes on the bus. An object that crosses
/// it twice is itself again: one of this process that comes back is the original, one of another process has one proxy
/// however often it comes. One thread uses it, with a QCoreApplication, whose loop delivers the calls of others.
class Bridge final : public ObjectImporter, public std::enable_shared_from_this<Bridge> {
public:
    using Root = std::function<std::shared_ptr<automation::Dispatch>()>;

    /// `events` are the sets of events that objects of this process may offer; it outlives the bridge. Null when there
    /// is no bus.
    [[nodiscard]] static std::shared_ptr<Bridge> connect(
        std::span<const automation::EventInterface* const> events = {}, const QString& address = sessionBusAddress());
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;
    ~Bridge() override;

    /// What handlers of this process hear when the process of their source has ended without a word, or the bus has.
    /// The list outlives the bridge.
    void setFarewells(std::span<const automation::Farewell> farewells) { farewells_ = farewells; }

    [[nodiscard]] QDBusConnection connection() const { return connection_; }
    /// The connection for messages to another process: a line of its own, else the bus.
    [[nodiscard]] QDBusConnection connectionTo(const QString& process) const { return lines_->to(process); }
    [[nodiscard]] QString ownName() const { return connection_.baseService(); }
    /// The set of events by its name; null when objects of this process offer no such set.
    [[nodiscard]] const automation::EventInterface* findEvents(TextView name) const;

    /// How many objects of this process are in the hands of others: a server without any can go.
    [[nodiscard]] std::size_t exportedCount() const { return exports_.objectCount(); }
    /// How many handlers of others the objects of this process have.
    [[nodiscard]] std::size_t sinkCount() const { return exports_.sinkCount(); }

    /// What has passed between this process and a living one; with an empty name, between this one and all.
    [[nodiscard]] Traffic trafficOf(const QString& process) const;

    /// Sends a call and reads its reply, which must have that signature. Every failure is an `Error` about the member:
    /// the callee's own, or 462.
    void ask(const QDBusMessage& call, QLatin1StringView signature, TextView member,
        const std::function<void(const QList<QVariant>& reply)>& read);

    /// The root object that a process offers under a bus name. Error 462 when it offers none.
    [[nodiscard]] std::shared_ptr<automation::Dispatch> root(const QString& process, const QString& name);
    void offer(const QString& name, Root root) { roots_[name] = std::move(root); }
    void withdraw(const QString& name) { roots_.erase(name); }
    /// Forgets a handler of another process.
    void disconnectSink(const QString& process, quint64 sink) { exports_.disconnect(process, sink); }
    /// Takes back all that other processes hold.
    void withdrawAll() { exports_.clear(); }

    [[nodiscard]] std::shared_ptr<automation::Dispatch> importObject(const WireObject& object) override;

private:
    friend class DbusDispatch;
    friend class Methods;
    friend class Parcel;
    friend class Receiver;
    friend class RemoteSink;

    /// An object elsewhere: its process and its path there.
    using Address = std::pair<QString, QString>;

    Bridge(QDBusConnection connection, std::span<const automation::EventInterface* const> events);
    void startReceiving();
    [[nodiscard]] std::shared_ptr<automation::Dispatch> ownRoot(const QString& name) const;

    /// Opens a line to a process that is going to be called often, unless there is one or none can be had.
    void openLine(const QString& process);
    /// Notices the end of a process that holds something of this one.
    void watch(const QString& process);
    void processEnded(const QString& process);
    void sayFarewell(const QString& process);
    [[nodiscard]] TextView farewellOf(const automation::EventInterface& events) const;
    /// Nobody tells of the end of the bus itself.
    void lookAfterBus();

    /// A proxy has gone, with the references that it was given.
    void proxyGone(const DbusDispatch& proxy);
    /// Sends what has gathered: a call does when it is much, else the idle loop.
    void sendReleases();
    void sendReleasesWhenMany();

    [[nodiscard]] quint64 addSink(Sink sink);
    void removeSink(quint64 number) { sinks_.erase(number); }
    [[nodiscard]] std::shared_ptr<const Sink> findSink(quint64 number) const;

    QDBusConnection connection_;
    std::span<const automation::EventInterface* const> events_;
    std::span<const automation::Farewell> farewells_;
    Exports exports_;
    std::map<Address, std::weak_ptr<DbusDispatch>> proxies_;
    std::map<QString, QList<WireRelease>> releases_;
    qsizetype releaseCount_ = 0;
    std::map<quint64, std::shared_ptr<const Sink>> sinks_;
    quint64 lastSink_ = 0;
    std::map<QString, Root> roots_;
    std::map<QString, Traffic> traffic_;
    /// That with processes that have ended.
    Traffic pastTraffic_;
    std::set<QString> watched_;
    QDBusServiceWatcher watcher_;
    QTimer releaseTimer_;
    QTimer busTimer_;
    std::unique_ptr<Receiver> receiver_;
    std::unique_ptr<Lines> lines_;
};

} // namespace rf::native::dbus
