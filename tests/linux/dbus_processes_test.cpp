#include "dbus_fixture.h"

namespace rf::native::dbus {
namespace {

using automation::Connection;
using automation::Object;
using automation::Variant;

using Seconds = std::chrono::duration<double>;

/// What the host offers, as soon as it does.
Object waitForBoiler(LinuxClassRegistry& registry)
{
    Object boiler;
    static_cast<void>(runUntil([&] {
        if (errorOf([&] { return boiler = registry.running(boilerClass); }) != 0)
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
        return static_cast<bool>(boiler);
    }));
    return boiler;
}

/// The parts that other processes play, each a disabled test. They find the bus in their environment.
struct Part : testing::Test {
    QtProcess process;
    std::shared_ptr<Bridge> bridge = Bridge::connect(offeredEvents);
};

struct BoilerServer : Part { };

TEST_F(BoilerServer, DISABLED_Serves)
{
    auto boiler = std::make_shared<Boiler>();
    Server server{bridge};
    ASSERT_TRUE(server.exportClass(boilerClass, [&] { return boiler; }));
    serve(*bridge);
}

struct BoilerClient : Part {
    LinuxClassRegistry registry{bridge};
    Object boiler = waitForBoiler(registry);
};

TEST_F(BoilerClient, DISABLED_Listens)
{
    const Connection connection = boiler.advise(boilerEvents, [](TextView, std::span<Variant>) {});
    serve(*bridge);
}

TEST_F(BoilerClient, DISABLED_NeverAnswers)
{
    const Connection connection = boiler.advise(boilerEvents, [](TextView, std::span<Variant>) { pause(); });
    serve(*bridge);
}

TEST_F(BoilerClient, DISABLED_EndsInItsHandler)
{
    const Connection connection = boiler.advise(boilerEvents, [](TextView, std::span<Variant>) { std::exit(0); });
    serve(*bridge);
}

TEST_F(BoilerClient, DISABLED_HoldsMany)
{
    const Variant parts = boiler.call(u"Boilers", 100'000);
    serve(*bridge);
}

TEST_F(BoilerClient, DISABLED_CallsOften)
{
    for (int number = 1; number <= 100; ++number)
        boiler.put(u"Temperature", number);
    serve(*bridge);
}

/// This process is the host.
struct DbusHost : DbusTest {
    std::shared_ptr<Bridge> bridge = connect();
    std::shared_ptr<Boiler> boiler = std::make_shared<Boiler>();
    std::unique_ptr<Server> server;

    void SetUp() override
    {
        DbusTest::SetUp();
        if (!bus.isThere())
            return;
        server = std::make_unique<Server>(bridge);
        ASSERT_TRUE(server->exportClass(boilerClass, [this] { return boiler; }));
    }
};

TEST_F(DbusHost, DropsTheSinkOfAProcessThatHasGone)
{
    Child client{commandFor("BoilerClient.DISABLED_Listens")};
    ASSERT_TRUE(runUntil([&] { return boiler->isHeard(); }));
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_TRUE(boiler->isHeard());
    client.end();
    EXPECT_TRUE(boiler->heat(60));
    EXPECT_FALSE(boiler->isHeard());
    EXPECT_TRUE(runUntil([&] { return bridge->exportedCount() == 0; }));
}

TEST_F(DbusHost, NoticesTheEndOfAProcessWithoutCallingIt)
{
    Child client{commandFor("BoilerClient.DISABLED_Listens")};
    ASSERT_TRUE(runUntil([&] { return boiler->isHeard(); }));
    client.end();
    EXPECT_TRUE(runUntil([&] { return !boiler->isHeard() && bridge->exportedCount() == 0; }));
}

TEST_F(DbusHost, SurvivesAProgramThatEndsInItsHandler)
{
    const Child client{commandFor("BoilerClient.DISABLED_EndsInItsHandler")};
    ASSERT_TRUE(runUntil([&] { return boiler->isHeard(); }));
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_TRUE(runUntil([&] { return !boiler->isHeard(); }));
}

TEST_F(DbusHost, DropsAHundredThousandReferencesOfAProcessThatHasGone)
{
    Child client{commandFor("BoilerClient.DISABLED_HoldsMany")};
    ASSERT_TRUE(runUntil([&] { return bridge->exportedCount() > 100'000; }));
    client.end();
    EXPECT_TRUE(runUntil([&] { return bridge->exportedCount() == 0; }));
    EXPECT_EQ(Boiler::count, 1);
}

TEST_F(DbusHost, ServesOthersWhileASinkDoesNotAnswer)
{
    Child mute{commandFor("BoilerClient.DISABLED_NeverAnswers")};
    ASSERT_TRUE(runUntil([&] { return boiler->isHeard(); }));
    int assignments = 0;
    boiler->onAssignment = [&](std::int32_t degrees) {
        ++assignments;
        if (degrees == 100)
            mute.end();
    };
    const Child busy{commandFor("BoilerClient.DISABLED_CallsOften")};
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_EQ(assignments, 100);
}

/// This process is the client.
struct DbusClient : DbusTest {
    std::unique_ptr<Child> host;
    std::shared_ptr<Bridge> bridge = connect();
    LinuxClassRegistry registry{bridge};
    Object boiler;

    void SetUp() override
    {
        DbusTest::SetUp();
        if (!bus.isThere())
            return;
        host = std::make_unique<Child>(commandFor("BoilerServer.DISABLED_Serves"));
        boiler = waitForBoiler(registry);
        ASSERT_TRUE(boiler);
    }
};

TEST_F(DbusClient, SharesTheMembersOfAnObject)
{
    boiler.put(u"Temperature", 33);
    EXPECT_EQ(boiler.get(u"Temperature").integer32(), 33);
    EXPECT_EQ(boiler, registry.running(boilerClass));
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Fail", 1004); }), 1004);
}

TEST_F(DbusClient, HearsEventsWithinItsCallAndCancels)
{
    std::vector<Text> heard;
    const Connection connection = boiler.advise(boilerEvents, [&](TextView event, std::span<Variant> arguments) {
        heard.push_back(Text{event} + u" at " + decimal(boiler.get(u"Temperature").integer32()));
        if (event == u"BeforeHeat")
            arguments[1].assignThrough(arguments[0].integer32() > 90);
    });
    EXPECT_FALSE(boiler.call(u"Heat", 95).boolean());
    EXPECT_TRUE(boiler.call(u"Heat", 85).boolean());
    EXPECT_EQ(heard, (std::vector<Text>{u"BeforeHeat at 20", u"BeforeHeat at 20", u"Heated at 85"}));
}

TEST_F(DbusClient, NestsEventsInCallsTwentyDeep)
{
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant> arguments) {
        arguments[1].assignThrough(boiler.call(u"Dive", arguments[0].integer32() - 1));
    });
    EXPECT_EQ(boiler.call(u"Dive", 20).integer32(), 21);
}

/// Qt waits in GLib's loop or in one of its own, which sleep and wake at different moments.
struct WithoutGLib {
    const rf::test::EnvironmentVariable variable{"QT_NO_GLIB", "1"};
};

struct DbusWithoutGLib : WithoutGLib, DbusClient { };

TEST_F(DbusWithoutGLib, WakesUpForEveryReply)
{
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant> arguments) {
        arguments[1].assignThrough(boiler.call(u"Dive", arguments[0].integer32() - 1));
    });
    for (int number = 0; number < 50; ++number)
        EXPECT_EQ(boiler.call(u"Dive", 5).integer32(), 6);
}

TEST_F(DbusClient, FailsQuicklyWhenTheHostEndsWithinACall)
{
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Die"); }), 462);
    EXPECT_LT(Seconds{std::chrono::steady_clock::now() - start}.count(), 2);
}

TEST_F(DbusClient, SurvivesItsHost)
{
    Connection connection = boiler.advise(boilerEvents, [](TextView, std::span<Variant>) {});
    host->end();
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(errorOf([&] { return boiler.get(u"Temperature"); }), 462);
    EXPECT_LT(Seconds{std::chrono::steady_clock::now() - start}.count(), 2);
    EXPECT_NO_THROW(connection.disconnect());
    EXPECT_EQ(errorOf([&] { return registry.running(boilerClass); }), 429);
}

struct DbusFarewell : DbusClient {
    std::vector<Text> heard;
    Connection connection;

    void SetUp() override
    {
        static constexpr automation::Farewell farewells[] = {{boilerEvents.name, u"Heated"}};
        DbusClient::SetUp();
        if (!boiler)
            return;
        bridge->setFarewells(farewells);
        connection
            = boiler.advise(boilerEvents, [this](TextView event, std::span<Variant>) { heard.emplace_back(event); });
    }
};

TEST_F(DbusFarewell, IsHeardWhenTheHostIsKilled)
{
    host->end();
    EXPECT_TRUE(runUntil([&] { return !heard.empty(); }, std::chrono::seconds{2}));
    EXPECT_EQ(heard, std::vector<Text>{u"Heated"});
}

TEST_F(DbusFarewell, IsHeardWhenTheBusGoes)
{
    bus.end();
    EXPECT_TRUE(runUntil([&] { return !heard.empty(); }, std::chrono::seconds{5}));
    EXPECT_EQ(heard, std::vector<Text>{u"Heated"});
}

TEST_F(DbusFarewell, IsNotHeardByWhoHasLeft)
{
    connection.disconnect();
    host->end();
    EXPECT_FALSE(runUntil([&] { return !heard.empty(); }, std::chrono::seconds{1}));
}

TEST_F(DbusFarewell, MayFail)
{
    connection = boiler.advise(boilerEvents, [this](TextView event, std::span<Variant>) {
        heard.emplace_back(event);
        throw RuntimeError{error_number::overflow};
    });
    host->end();
    EXPECT_TRUE(runUntil([&] { return !heard.empty(); }, std::chrono::seconds{2}));
}

TEST_F(DbusClient, FindsANewHostUnderTheSameName)
{
    host->end();
    host = std::make_unique<Child>(commandFor("BoilerServer.DISABLED_Serves"));
    const Object fresh = waitForBoiler(registry);
    EXPECT_EQ(fresh.get(u"Temperature").integer32(), 20);
    EXPECT_FALSE(fresh == boiler);
}

TEST_F(DbusTest, ListensWhereNoFileCanBeLeftBehind)
{
    EXPECT_TRUE(bus.address().starts_with("unix:abstract=")) << bus.address();
    EXPECT_NE(connect(), nullptr);
}

} // namespace
} // namespace rf::native::dbus
