#include "dbus_fixture.h"

#include <QDBusMessage>
#include <algorithm>
#include <limits>

namespace rf::native::dbus {
namespace {

using automation::Array;
using automation::Connection;
using automation::Error;
using automation::Missing;
using automation::Null;
using automation::Object;
using automation::Reference;
using automation::Variant;

/// A host and a client on connections of their own, as two processes have them.
struct DbusBridge : DbusTest {
    std::shared_ptr<Bridge> host = connect();
    std::shared_ptr<Bridge> client = connect();
    std::shared_ptr<Boiler> own = std::make_shared<Boiler>();
    std::unique_ptr<Server> server = host ? std::make_unique<Server>(host) : nullptr;
    Object boiler;

    void SetUp() override
    {
        DbusTest::SetUp();
        if (!bus.isThere())
            return;
        ASSERT_TRUE(server->exportClass(boilerClass, [this] { return own; }));
        boiler = Object{client->root(host->ownName(), busName(boilerClass))};
    }

    void letGo()
    {
        boiler = {};
        EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 0; }));
    }
};

TEST_F(DbusBridge, CarriesEveryKindOfValue)
{
    const Variant values[] = {Variant{}, Null{}, true, false, std::uint8_t{255}, std::int16_t{-2}, 3, 4.5F, 5.5,
        std::numeric_limits<double>::infinity(), Currency::fromTenThousandths(std::numeric_limits<std::int64_t>::min()),
        Date{-7.25}, u"", Text{u'8', u'\0', 0xD800}, Text{0xDC00, u'\u263A'}, std::shared_ptr<automation::Dispatch>{},
        Array{}, Array::list({1, u"two"}), Array{{{0, 2}, {-1, 2}}, {9, u"10", Date{1.0}, Null{}}},
        Array{{{5, 0}}, {}}};
    for (const Variant& value : values) {
        EXPECT_EQ(boiler.call(u"Echo", value), value) << value.value().index();
        EXPECT_EQ(boiler.call(u"Kind", value).integer32(), static_cast<std::int32_t>(value.value().index()));
    }
    EXPECT_EQ(boiler.call(u"Kind", Missing{}).integer32(), 2);
    EXPECT_EQ(boiler.call(u"CountArguments", 1, Missing{}).integer32(), 20);
    EXPECT_EQ(boiler.call(u"CountArguments", 1, 2).integer32(), 21);
}

TEST_F(DbusBridge, UsesMembersWithoutRegardToCase)
{
    boiler.put(u"temperature", 33);
    EXPECT_EQ(boiler.get(u"TEMPERATURE").integer32(), 33);
    EXPECT_EQ(boiler.call(u"Minus", 7, 5).integer32(), 2);
}

TEST_F(DbusBridge, WritesArgumentsByReferenceBack)
{
    Variant first{u"warm"};
    Variant second{boiler};
    boiler.call(u"Swap", Reference{&first}, Reference{&second});
    EXPECT_EQ(first, Variant{boiler});
    EXPECT_EQ(second, Variant{u"warm"});
}

TEST_F(DbusBridge, LeavesAReferenceAloneThatIsNotAssigned)
{
    Variant untouched{5};
    EXPECT_EQ(boiler.call(u"Echo", Reference{&untouched}), Variant{5});
    EXPECT_EQ(untouched, Variant{5});
    Variant byValue{1};
    boiler.call(u"Swap", byValue, 2);
    EXPECT_EQ(byValue, Variant{1});
}

TEST_F(DbusBridge, CarriesTheWholeErrorAndTheCallersPlace)
{
    const int line = __LINE__ + 2;
    try {
        boiler.call(u"Fail", 1004);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 1004);
        EXPECT_EQ(error.description(), Text{u"Too hot \u263A"} + char16_t{0xD800});
        EXPECT_EQ(error.source(), u"Boiler.Valve");
        EXPECT_EQ(error.member(), u"Fail");
        EXPECT_EQ(error.where().line(), static_cast<unsigned>(line));
    }
}

TEST_F(DbusBridge, ReportsEachFailureUnderItsNumber)
{
    EXPECT_EQ(errorOf([&] { return boiler.get(u"Pressure"); }), 438);
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Minus", u"x", 1); }), 13);
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Explode"); }), 51);
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Fail", -2147221233); }), -2147221233);
}

TEST_F(DbusBridge, KnowsNoMemberWithANulInItsName)
{
    const TextView cut{u"Temperature\0x", 13};
    EXPECT_EQ(errorOf([&] { return boiler.dispatch()->invoke(cut, automation::Invocation::Get, {}); }), 438);
}

TEST_F(DbusBridge, KnowsAnObjectByItsIdentity)
{
    const Object again{client->root(host->ownName(), busName(boilerClass))};
    EXPECT_EQ(boiler, again);
    EXPECT_EQ(Object{boiler.call(u"Echo", boiler).dispatch()}, boiler);
    boiler.put(u"Neighbour", boiler);
    EXPECT_EQ(Object{own->invoke(u"Neighbour", automation::Invocation::Get, {}).dispatch()}, Object{own});
    boiler.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{});
}

TEST_F(DbusBridge, CallsObjectsBackThatWereArguments)
{
    const auto mine = std::make_shared<Boiler>();
    EXPECT_TRUE(boiler.call(u"HeatOther", mine, 44).boolean());
    EXPECT_EQ(mine->invoke(u"Temperature", automation::Invocation::Get, {}), Variant{44});
    EXPECT_TRUE(runUntil([&] { return client->exportedCount() == 0; }));
}

TEST_F(DbusBridge, GivesAnObjectBackAsTheOneItWas)
{
    const auto mine = std::make_shared<Boiler>();
    boiler.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{mine});
    EXPECT_EQ(boiler.get(u"Neighbour").dispatch(), mine);
    boiler.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{});
    EXPECT_TRUE(runUntil([&] { return client->exportedCount() == 0; }));
    EXPECT_EQ(mine.use_count(), 1);
}

TEST_F(DbusBridge, LetsGoOfWhatNobodyHolds)
{
    Variant parts = boiler.call(u"Boilers", 500);
    EXPECT_EQ(host->exportedCount(), 501U);
    parts = {};
    EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 1; }));
    EXPECT_EQ(Boiler::count, 1);
    letGo();
}

TEST_F(DbusBridge, ReleasesDuringABusyTime)
{
    // Without an idle moment, as in a long loop of calls.
    for (int round = 0; round < 500; ++round)
        static_cast<void>(boiler.call(u"Boilers", 1));
    EXPECT_LT(host->exportedCount(), 200U);
}

TEST_F(DbusBridge, HoldsAHundredThousandObjects)
{
    Variant parts = boiler.call(u"Boilers", 100'000);
    EXPECT_EQ(host->exportedCount(), 100'001U);
    EXPECT_EQ(Object{parts.array()->values.back().dispatch()}.get(u"Temperature"), Variant{20});
    parts = {};
    EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 1; }));
}

TEST_F(DbusBridge, HandsAnObjectOnToAThirdProcess)
{
    const auto third = connect();
    auto thirdBoiler = std::make_shared<Boiler>();
    Server thirdServer{third};
    ASSERT_TRUE(thirdServer.exportClass(u"Test.Third", [&] { return thirdBoiler; }));
    Object other{client->root(third->ownName(), QStringLiteral("Test.Third"))};
    other.put(u"Neighbour", boiler);
    boiler = {};
    EXPECT_TRUE(runUntil([&] { return third->exportedCount() == 1; }));
    Object neighbour{thirdBoiler->invoke(u"Neighbour", automation::Invocation::Get, {}).dispatch()};
    neighbour.put(u"Temperature", 61);
    EXPECT_EQ(neighbour.get(u"Temperature"), Variant{61});
    // As a result it comes back to the first holder as well.
    EXPECT_EQ(Object{other.get(u"Neighbour").dispatch()}.get(u"Temperature"), Variant{61});
    neighbour = {};
    other.put(u"Neighbour", Variant{std::shared_ptr<automation::Dispatch>{}});
    EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 0; }));
}

TEST_F(DbusBridge, RefusesWhatABusCannotCarry)
{
    Variant nested{1};
    for (int level = 0; level < 8; ++level)
        nested = Array::list({nested});
    EXPECT_EQ(boiler.call(u"Echo", nested), nested);
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Echo", Array::list({nested})); }), 13);
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Echo", Text(40U << 20U, u'x')); }), 7);
}

TEST_F(DbusBridge, CarriesTheLargestTextAndGoesOn)
{
    const Variant largest{Text((32U << 20U) - 64U, u'x')};
    EXPECT_EQ(boiler.call(u"Echo", largest), largest);
    EXPECT_EQ(boiler.get(u"Temperature").integer32(), 20);
}

TEST_F(DbusBridge, TakesBackTheObjectsOfAMessageThatIsNotSent)
{
    const auto mine = std::make_shared<Boiler>();
    EXPECT_EQ(errorOf([&] { return boiler.call(u"CountArguments", mine, Text(40U << 20U, u'x')); }), 7);
    EXPECT_EQ(client->exportedCount(), 0U);
}

TEST_F(DbusBridge, RaisesEventsWithinACallAndTakesTheirAnswer)
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

TEST_F(DbusBridge, CallsTwoHandlersInTheOrderOfTheirConnection)
{
    std::vector<Text> heard;
    const auto listen = [&](TextView name) {
        return boiler.advise(boilerEvents, [&heard, name = Text{name}](TextView event, std::span<Variant> arguments) {
            if (event != u"BeforeHeat")
                return;
            heard.push_back(name + (arguments[1].boolean() ? u" hears a cancel" : u" hears"));
            arguments[1].assignThrough(true);
        });
    };
    const Connection first = listen(u"first");
    const Connection second = listen(u"second");
    EXPECT_FALSE(boiler.call(u"Heat", 50).boolean());
    EXPECT_EQ(heard, (std::vector<Text>{u"first hears", u"second hears a cancel"}));
}

TEST_F(DbusBridge, EndsEventsWithTheConnection)
{
    int calls = 0;
    Connection connection;
    connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant>) {
        ++calls;
        connection.disconnect();
    });
    EXPECT_TRUE(own->isHeard());
    EXPECT_TRUE(own->heat(50));
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(runUntil([&] { return !own->isHeard(); }));
    EXPECT_EQ(host->sinkCount(), 0U);
}

TEST_F(DbusBridge, GoesOnWhenAHandlerFails)
{
    int calls = 0;
    const Connection failing = boiler.advise(
        boilerEvents, [](TextView, std::span<Variant>) { throw RuntimeError{error_number::typeMismatch}; });
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant>) { ++calls; });
    EXPECT_TRUE(own->heat(50));
    EXPECT_EQ(calls, 2);
    EXPECT_EQ(host->sinkCount(), 2U);
}

TEST_F(DbusBridge, KeepsTheSourceOfAConnection)
{
    int calls = 0;
    Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant>) { ++calls; });
    boiler = {};
    EXPECT_FALSE(runUntil([&] { return host->exportedCount() == 0; }, std::chrono::seconds{0}));
    own->heat(50);
    EXPECT_EQ(calls, 2);
    connection = {};
    EXPECT_TRUE(runUntil([&] { return host->exportedCount() == 0; }));
}

TEST_F(DbusBridge, RefusesSetsOfEventsThatAnObjectDoesNotHave)
{
    EXPECT_EQ(errorOf([&] { return boiler.advise(unknownEvents, {}); }), 459);
    EXPECT_EQ(errorOf([&] { return boiler.advise(unraisedEvents, {}); }), 459);
}

TEST_F(DbusBridge, NestsEventsInCallsTwentyDeep)
{
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant> arguments) {
        arguments[1].assignThrough(boiler.call(u"Dive", arguments[0].integer32() - 1));
    });
    EXPECT_EQ(boiler.call(u"Dive", 20).integer32(), 21);
}

TEST_F(DbusBridge, EndsAnEndlessRecursionWithAnError)
{
    std::int32_t deepest = 0;
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant> arguments) {
        deepest = std::max(deepest, errorOf([&] { return boiler.call(u"Dive", arguments[0]); }));
    });
    EXPECT_EQ(errorOf([&] { return boiler.call(u"Dive", 1); }), 0);
    EXPECT_EQ(deepest, 28);
}

TEST_F(DbusBridge, KeepsTimersOutOfACall)
{
    int ticks = 0;
    QTimer fast;
    QTimer idle;
    for (QTimer* timer : {&fast, &idle}) {
        QObject::connect(timer, &QTimer::timeout, [&] { ++ticks; });
        timer->start(timer == &fast ? 1 : 0);
    }
    int ticksWithin = 0;
    const Connection connection = boiler.advise(boilerEvents, [&](TextView, std::span<Variant>) {
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
        static_cast<void>(boiler.get(u"Temperature"));
        ticksWithin = ticks;
    });
    EXPECT_TRUE(boiler.call(u"Heat", 30).boolean());
    EXPECT_EQ(ticksWithin + ticks, 0);
    EXPECT_TRUE(runUntil([&] { return ticks > 10; }));
}

TEST_F(DbusBridge, OffersAClassOnce)
{
    Server second{client};
    EXPECT_FALSE(second.exportClass(boilerClass, [] { return nullptr; }));
    EXPECT_FALSE(second.exportClass(u"Boiler", [] { return nullptr; }));
    server.reset();
    EXPECT_TRUE(second.exportClass(boilerClass, [] { return nullptr; }));
    EXPECT_EQ(errorOf([&] { return boiler.get(u"Temperature"); }), 462);
}

TEST_F(DbusBridge, LosesAllWhenTheBusGoesDown)
{
    const Connection connection = boiler.advise(boilerEvents, [](TextView, std::span<Variant>) {});
    bus.end();
    EXPECT_EQ(errorOf([&] { return boiler.get(u"Temperature"); }), 462);
    EXPECT_TRUE(own->heat(50));
}

TEST_F(DbusBridge, OutlivesItsBridge)
{
    client.reset();
    EXPECT_EQ(boiler.get(u"Temperature"), Variant{20});
}

} // namespace
} // namespace rf::native::dbus
