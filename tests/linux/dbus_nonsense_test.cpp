#include "dbus_fixture.h"

#include <QDBusVirtualObject>
#include <random>

namespace rf::native::dbus {
namespace {

using automation::Connection;
using automation::Object;
using automation::Variant;

WireValue wire(uchar tag, const QVariant& payload) { return {tag, QDBusVariant{payload}}; }
WireValue wire(Tag tag, const QVariant& payload) { return wire(static_cast<uchar>(tag), payload); }
QVariant list(const QList<WireValue>& values) { return QVariant::fromValue(values); }
QVariant kindOf(automation::Invocation kind) { return QVariant::fromValue(static_cast<uchar>(kind)); }

/// Answers every call alike, whatever it was.
class Parrot final : public QDBusVirtualObject {
public:
    explicit Parrot(QList<QVariant> answer)
        : answer_(std::move(answer))
    {
    }
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        connection.send(message.createReply(answer_));
        return true;
    }

private:
    QList<QVariant> answer_;
};

/// A peer that does not keep to the protocol, and a host that has to bear it.
struct DbusNonsense : DbusTest {
    std::shared_ptr<Bridge> host = connect();
    std::shared_ptr<Bridge> client = connect();
    std::shared_ptr<Boiler> own = std::make_shared<Boiler>();
    std::unique_ptr<Server> server = host ? std::make_unique<Server>(host) : nullptr;
    Object boiler;
    QDBusConnection raw = QDBusConnection::connectToBus(QString::fromStdString(bus.address()), QStringLiteral("raw"));

    void SetUp() override
    {
        DbusTest::SetUp();
        if (!bus.isThere())
            return;
        ASSERT_TRUE(server->exportClass(boilerClass, [this] { return own; }));
        boiler = Object{client->root(host->ownName(), busName(boilerClass))};
    }
    ~DbusNonsense() override { QDBusConnection::disconnectFromBus(QStringLiteral("raw")); }

    QDBusMessage send(const QString& path, const QString& method, const QList<QVariant>& arguments)
    {
        auto call = makeCall(host->ownName(), path, method);
        call.setArguments(arguments);
        QDBusMessage answer;
        callAndWait(raw, call, [&](const QDBusMessage& reply) { answer = reply; });
        return answer;
    }

    bool refuses(const QString& path, const QString& method, const QList<QVariant>& arguments = {})
    {
        return send(path, method, arguments).type() == QDBusMessage::ErrorMessage;
    }

    bool refusesToEcho(const WireValue& value)
    {
        return refuses(objectPath(1), QStringLiteral("Invoke"),
            {QStringLiteral("Echo"), kindOf(automation::Invocation::Call), list({value})});
    }

    void hostStillServes() const { EXPECT_EQ(boiler.get(u"Temperature").integer32(), 20); }
};

TEST_F(DbusNonsense, RefusesCallsThatAreNotOfTheProtocol)
{
    EXPECT_TRUE(refuses(objectPath(1), QStringLiteral("Invoke")));
    EXPECT_TRUE(refuses(objectPath(1), QStringLiteral("Invoke"), {1, 2, 3}));
    EXPECT_TRUE(refuses(objectPath(1), QStringLiteral("Sing"), {QStringLiteral("la")}));
    EXPECT_TRUE(refuses(objectPath(1), QStringLiteral("Root"), {busName(boilerClass)}));
    EXPECT_TRUE(refuses(QStringLiteral("/"), QStringLiteral("Root"), {busName(boilerClass)}));
    EXPECT_TRUE(refuses(rootPath(), QStringLiteral("Root"), {QStringLiteral("Test.Nobody")}));
    EXPECT_TRUE(refuses(rootPath(), QStringLiteral("Release"), {QStringLiteral("all")}));
    EXPECT_TRUE(refuses(objectPath(1), QStringLiteral("Advise"), {QStringLiteral("Songs"), qulonglong{1}}));
    hostStillServes();
}

TEST_F(DbusNonsense, RefusesPathsThatLeadNowhere)
{
    const QList<QVariant> read{QStringLiteral("Temperature"), kindOf(automation::Invocation::Get), list({})};
    EXPECT_FALSE(refuses(objectPath(1), QStringLiteral("Invoke"), read));
    EXPECT_TRUE(refuses(objectPath(77), QStringLiteral("Invoke"), read));
    EXPECT_TRUE(refuses(objectFolder + QStringLiteral("x"), QStringLiteral("Invoke"), read));
    EXPECT_TRUE(refuses(objectFolder + QStringLiteral("99999999999999999999"), QStringLiteral("Invoke"), read));
    EXPECT_TRUE(refuses(sinkPath(1), QStringLiteral("Invoke"), read));
    hostStillServes();
}

TEST_F(DbusNonsense, RefusesTagsThatSayOtherThanTheirValues)
{
    EXPECT_TRUE(refusesToEcho(wire(200, 1)));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Text, 1)));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Text, QByteArray{"odd"})));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Text, QStringLiteral("text"))));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Boolean, 1)));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Int16, 1)));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Object, 1)));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Object, list({}))));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Array, list({}))));
    EXPECT_TRUE(refusesToEcho(wire(Tag::Reference, 1)));
    EXPECT_TRUE(refuses(objectPath(1), QStringLiteral("Invoke"),
        {QStringLiteral("Echo"), QVariant::fromValue(uchar{9}), list({wire(Tag::Empty, 0)})}));
    hostStillServes();
}

TEST_F(DbusNonsense, RefusesObjectsThatDoNotExist)
{
    const auto object = [](const QString& owner, const QString& path) {
        return wire(Tag::Object, QVariant::fromValue(WireObject{owner, QDBusObjectPath{path}}));
    };
    EXPECT_TRUE(refusesToEcho(object(host->ownName(), objectPath(77))));
    EXPECT_TRUE(refusesToEcho(object(host->ownName(), QStringLiteral("/"))));
    EXPECT_TRUE(refusesToEcho(object(QStringLiteral("Test.Boiler"), objectPath(1))));
    EXPECT_FALSE(refusesToEcho(object(host->ownName(), objectPath(1))));
    EXPECT_FALSE(refusesToEcho(object(QStringLiteral(":1.999"), objectPath(1))));
    hostStillServes();
}

TEST_F(DbusNonsense, IsNotFooledAboutReferences)
{
    const auto release = [&](quint64 number, qulonglong count) {
        return QVariant::fromValue(QList<WireRelease>{{QDBusObjectPath{objectPath(number)}, count}});
    };
    send(rootPath(), QStringLiteral("Release"), {release(1, 1)});
    send(rootPath(), QStringLiteral("Release"), {release(77, std::numeric_limits<qulonglong>::max())});
    EXPECT_TRUE(refuses(rootPath(), QStringLiteral("AddRef"),
        {QVariant::fromValue(QDBusObjectPath{objectPath(77)}), raw.baseService()}));
    EXPECT_TRUE(refuses(rootPath(), QStringLiteral("AddRef"),
        {QVariant::fromValue(QDBusObjectPath{objectPath(1)}), QStringLiteral("Test.Boiler")}));
    // A holder that has never been gets its reference and loses it at once.
    EXPECT_FALSE(refuses(rootPath(), QStringLiteral("AddRef"),
        {QVariant::fromValue(QDBusObjectPath{objectPath(1)}), QStringLiteral(":1.999")}));
    hostStillServes();
    boiler = {};
    EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 0; }));
}

TEST_F(DbusNonsense, LetsNobodyElseRaiseEvents)
{
    int calls = 0;
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant>) { ++calls; });
    auto call = makeCall(client->ownName(), sinkPath(1), QStringLiteral("Event"));
    call.setArguments({QStringLiteral("Heated"), list({})});
    callAndWait(raw, call, [](const QDBusMessage&) {});
    EXPECT_EQ(calls, 0);
    own->heat(50);
    EXPECT_EQ(calls, 2);
}

TEST_F(DbusNonsense, DropsASinkThatAnswersNonsense)
{
    for (const QList<QVariant>& answer :
        {QList<QVariant>{}, {1}, {QVariant::fromValue(QList<WireAssignment>{{1, wire(Tag::Text, 1)}})}}) {
        Parrot parrot{answer};
        ASSERT_TRUE(raw.registerVirtualObject(rootPath(), &parrot, QDBusConnection::SubPath));
        EXPECT_FALSE(refuses(objectPath(1), QStringLiteral("Advise"), {QStringLiteral("BoilerEvents"), qulonglong{1}}));
        EXPECT_TRUE(own->heat(50));
        EXPECT_FALSE(own->isHeard());
        raw.unregisterObject(rootPath(), QDBusConnection::UnregisterTree);
    }
}

TEST_F(DbusNonsense, IgnoresAssignmentsToWhatIsNoReference)
{
    Parrot parrot{{QVariant::fromValue(QList<WireAssignment>{
        {0, wire(Tag::Int32, 9)}, {7, wire(Tag::Int32, 9)}, {4'000'000'000U, wire(Tag::Int32, 9)}})}};
    ASSERT_TRUE(raw.registerVirtualObject(rootPath(), &parrot, QDBusConnection::SubPath));
    EXPECT_FALSE(refuses(objectPath(1), QStringLiteral("Advise"), {QStringLiteral("BoilerEvents"), qulonglong{1}}));
    EXPECT_TRUE(own->heat(50));
    EXPECT_TRUE(own->isHeard());
}

TEST_F(DbusNonsense, TakesAHostThatAnswersNonsenseForUnavailable)
{
    for (const QList<QVariant>& answer : {QList<QVariant>{}, {QStringLiteral("warm")},
             {QVariant::fromValue(wire(Tag::Int32, true)), QVariant::fromValue(QList<WireAssignment>{})}}) {
        Parrot parrot{answer};
        ASSERT_TRUE(raw.registerVirtualObject(rootPath(), &parrot, QDBusConnection::SubPath));
        const Object object{client->importObject({raw.baseService(), QDBusObjectPath{objectPath(1)}})};
        EXPECT_EQ(errorOf([&] { return object.get(u"Temperature"); }), 462);
        EXPECT_EQ(errorOf([&] { return client->root(raw.baseService(), busName(boilerClass)); }), 462);
        raw.unregisterObject(rootPath(), QDBusConnection::UnregisterTree);
    }
}

/// Values whose tags and payloads have nothing to do with each other.
class Chaos {
public:
    WireValue value(int depth = 0)
    {
        const auto tag = static_cast<uchar>(below(18));
        switch (below(depth < 5 ? 12 : 9)) {
        case 0:
            return wire(tag, QVariant::fromValue(uchar{0}));
        case 1:
            return wire(tag, true);
        case 2:
            return wire(tag, QVariant::fromValue(short{3}));
        case 3:
            return wire(tag, 4);
        case 4:
            return wire(tag, 1e300);
        case 5:
            return wire(tag, QVariant::fromValue(qlonglong{-1}));
        case 6:
            return wire(tag, QByteArray(below(5), 'x'));
        case 7:
            return wire(tag, QStringLiteral("text"));
        case 8:
            return wire(tag, QVariant::fromValue(WireObject{QStringLiteral(":1.1"), QDBusObjectPath{objectPath(1)}}));
        case 9:
            return wire(tag, QVariant::fromValue(value(depth + 1)));
        case 10:
            return wire(tag, list({value(depth + 1), value(depth + 1)}));
        default:
            return wire(tag, QVariant::fromValue(QDBusVariant{QVariant::fromValue(value(depth + 1))}));
        }
    }

private:
    int below(int limit) { return std::uniform_int_distribution{0, limit - 1}(source_); }

    // NOLINTNEXTLINE(cert-msc51-cpp): each run sends the same chaos.
    std::mt19937 source_{20'000};
};

TEST_F(DbusNonsense, SurvivesAThousandMessagesOfChaos)
{
    Chaos chaos;
    for (int number = 0; number < 1000; ++number)
        static_cast<void>(refusesToEcho(chaos.value()));
    hostStillServes();
}

} // namespace
} // namespace rf::native::dbus
