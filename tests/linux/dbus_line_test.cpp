#include "linux/dbus_lines.h"

#include "linux/dbus_receiver.h"

#include "dbus_fixture.h"

#include <csignal>

namespace rf::native::dbus {
namespace {

using automation::Connection;
using automation::Object;
using automation::Variant;

/// Stops a bus for as long as it lives: what goes over the bus waits, what goes past it does not.
class Stopped {
public:
    explicit Stopped(const PrivateBus& bus)
        : bus_(bus)
    {
        bus_.signal(SIGSTOP);
    }
    Stopped(const Stopped&) = delete;
    Stopped& operator=(const Stopped&) = delete;
    ~Stopped() { bus_.signal(SIGCONT); }

private:
    const PrivateBus& bus_;
};

struct DbusLine : DbusTest {
    std::shared_ptr<Bridge> host = connect();
    std::shared_ptr<Bridge> client = connect();
    std::shared_ptr<Boiler> own = std::make_shared<Boiler>();
    std::unique_ptr<Server> server = host ? std::make_unique<Server>(host) : nullptr;

    [[nodiscard]] Object boilerOf(Bridge& asking)
    {
        if (!isOffered_)
            isOffered_ = server->exportClass(boilerClass, [this] { return own; });
        return Object{asking.root(host->ownName(), busName(boilerClass))};
    }
    /// A method of the host's root, called by a stranger on a connection of its own.
    [[nodiscard]] QDBusMessage ask(
        const QDBusConnection& connection, const QString& method, const QList<QVariant>& arguments = {}) const
    {
        auto call = makeCall(host->ownName(), rootPath(), method);
        call.setArguments(arguments);
        QDBusMessage answer;
        callAndWait(connection, call, [&](const QDBusMessage& reply) { answer = reply; });
        return answer;
    }
    [[nodiscard]] static bool isRefused(const QDBusMessage& answer)
    {
        return answer.type() == QDBusMessage::ErrorMessage;
    }

private:
    bool isOffered_ = false;
};

TEST_F(DbusLine, CarriesCallsPastTheBus)
{
    const Object boiler = boilerOf(*client);
    const Stopped stopped{bus};
    EXPECT_EQ(boiler.call(u"Minus", 7, 5).integer32(), 2);
}

TEST_F(DbusLine, LeadsToAProcessThatWasCalledByTheNameOfItsClass)
{
    const Object first = boilerOf(*client);
    const auto other = connect();
    ASSERT_TRUE(other);
    const Object boiler{other->root(busName(boilerClass), busName(boilerClass))};
    const Stopped stopped{bus};
    EXPECT_EQ(boiler.call(u"Minus", 7, 5).integer32(), 2);
}

TEST_F(DbusLine, CarriesEventsAndWhatTheyAnswerPastTheBus)
{
    const Object boiler = boilerOf(*client);
    const Connection connection = boiler.advise(boilerEvents, [](TextView event, std::span<Variant> arguments) {
        if (event == u"BeforeHeat")
            arguments[1].assignThrough(true);
    });
    const Stopped stopped{bus};
    EXPECT_FALSE(boiler.call(u"Heat", 80).boolean());
}

TEST_F(DbusLine, CarriesWhatIsGivenUpPastTheBus)
{
    Object boiler = boilerOf(*client);
    ASSERT_EQ(host->exportedCount(), 1U);
    const Stopped stopped{bus};
    boiler = {};
    EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 0; }));
}

TEST_F(DbusLine, IsOpenedOnceForAProcess)
{
    const Object first = boilerOf(*client);
    const auto line = client->connectionTo(host->ownName()).name();
    const Object second = boilerOf(*client);
    EXPECT_EQ(client->connectionTo(host->ownName()).name(), line);
    EXPECT_NE(line, client->connection().name());
}

TEST_F(DbusLine, EndsWithItsProcess)
{
    Object boiler = boilerOf(*client);
    const QString name = client->ownName();
    ASSERT_NE(host->connectionTo(name).name(), host->connection().name());
    boiler = {};
    client.reset();
    EXPECT_TRUE(runUntil([&] { return host->connectionTo(name).name() == host->connection().name(); }));
}

TEST_F(DbusLine, IsNotUsedBesideABusThatHasEnded)
{
    const Object boiler = boilerOf(*client);
    bus.end();
    EXPECT_TRUE(runUntil([&] { return !client->connection().isConnected(); }));
    EXPECT_EQ(errorOf([&] { boiler.call(u"Minus", 7, 5); }), error_number::serverUnavailable);
}

TEST_F(DbusLine, AnswersNobodyWhoHasNotSaidTheWord)
{
    const Object boiler = boilerOf(*client);
    const auto stranger
        = QDBusConnection::connectToBus(QString::fromStdString(bus.address()), QStringLiteral("stranger"));
    const auto invitation = ask(stranger, QStringLiteral("Line")).arguments();
    ASSERT_EQ(invitation.size(), 2);
    const auto line = QDBusConnection::connectToPeer(invitation.at(0).toString(), QStringLiteral("line of a stranger"));
    const QString traffic = QStringLiteral("Traffic");
    EXPECT_TRUE(isRefused(ask(line, traffic, {QString{}})));
    EXPECT_TRUE(isRefused(ask(line, QStringLiteral("Hello"), {invitation.at(1).toULongLong() + 1})));
    EXPECT_TRUE(isRefused(ask(line, traffic, {QString{}})));
    EXPECT_FALSE(isRefused(ask(line, QStringLiteral("Hello"), {invitation.at(1)})));
    EXPECT_FALSE(isRefused(ask(line, traffic, {QString{}})));
    // A word is good for one line.
    const auto other = QDBusConnection::connectToPeer(invitation.at(0).toString(), QStringLiteral("another line"));
    EXPECT_TRUE(isRefused(ask(other, QStringLiteral("Hello"), {invitation.at(1)})));
    for (const auto& connection : {stranger, line, other})
        QDBusConnection::disconnectFromPeer(connection.name());
}

TEST_F(DbusLine, IsDoneWithoutWhereAProcessHasNone)
{
    Receiver receiver{*client};
    Lines lines{client->connection(), receiver};
    EXPECT_FALSE(lines.follow(host->ownName(), {}));
    EXPECT_FALSE(lines.follow(host->ownName(), {QStringLiteral("unix:abstract=nobody-listens-here"), 1}));
    EXPECT_EQ(lines.to(host->ownName()).name(), client->connection().name());
}

} // namespace
} // namespace rf::native::dbus
