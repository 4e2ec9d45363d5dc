#include "windows/com_connection_point.h"
#include "windows/com_event_sink.h"

#include "com_fixture.h"

namespace rf::native::com {
namespace {

using automation::Connection;
using automation::Object;
using automation::Variant;

struct ComEvents : ComTest {
    std::shared_ptr<Boiler> boiler = std::make_shared<Boiler>();
    Object imported = throughCom(boiler);
    std::vector<Text> heard;

    [[nodiscard]] Connection listen()
    {
        return imported.advise(boilerEvents, [this](TextView event, std::span<Variant> arguments) {
            heard.push_back(Text{event} + u" " + decimal(arguments[0].integer32()));
        });
    }
};

TEST_F(ComEvents, ReachTheHandlerByNameInTheOrderOfTheirArguments)
{
    const Connection connection = listen();
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_EQ(heard, (std::vector<Text>{u"BeforeHeat 50", u"Heated 50"}));
}

TEST_F(ComEvents, LetAHandlerCancel)
{
    const Connection connection = imported.advise(boilerEvents, [](TextView event, std::span<Variant> arguments) {
        if (event == u"BeforeHeat")
            arguments[1].assignThrough(arguments[0].integer32() > 90);
    });
    EXPECT_FALSE(boiler->heat(95));
    EXPECT_TRUE(boiler->heat(85));
    EXPECT_FALSE(imported.call(u"Heat", 99).boolean());
    EXPECT_EQ(imported.get(u"Temperature").integer32(), 85);
}

TEST_F(ComEvents, TakeACancelThatIsNoTruthValue)
{
    const Connection connection = imported.advise(boilerEvents, [](TextView event, std::span<Variant> arguments) {
        if (event == u"BeforeHeat")
            arguments[1].assignThrough(1);
    });
    EXPECT_FALSE(boiler->heat(50));
}

TEST_F(ComEvents, EndWithTheConnection)
{
    Connection connection = listen();
    EXPECT_TRUE(boiler->isHeard());
    connection.disconnect();
    EXPECT_FALSE(boiler->isHeard());
    boiler->heat(50);
    EXPECT_TRUE(heard.empty());
}

TEST_F(ComEvents, LetAHandlerCutItsOwnConnection)
{
    Connection connection;
    int calls = 0;
    connection = imported.advise(boilerEvents, [&](TextView, std::span<Variant>) {
        ++calls;
        connection.disconnect();
    });
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(boiler->isHeard());
}

TEST_F(ComEvents, SurviveTheClientsLastHandleToTheSource)
{
    const Connection connection = listen();
    imported = {};
    boiler->heat(50);
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(ComEvents, OutliveASourceThatForgetsItsClients)
{
    Connection connection = listen();
    ASSERT_EQ(CoDisconnectObject(bridge->exportObject(boiler).get(), 0), S_OK);
    EXPECT_NO_THROW(connection.disconnect());
    EXPECT_NO_THROW(connection.disconnect());
}

TEST_F(ComEvents, GoOnWhenAHandlerFails)
{
    const Connection failing = imported.advise(
        boilerEvents, [](TextView, std::span<Variant>) { throw RuntimeError{error_number::typeMismatch}; });
    const Connection connection = listen();
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_EQ(heard.size(), 2U);
}

TEST_F(ComEvents, AreRefusedForASetThatTheObjectDoesNotHave)
{
    EXPECT_EQ(errorOf([&] { return imported.advise(unknownEvents, {}); }), 459);
    EXPECT_EQ(errorOf([&] { return imported.advise(unraisedEvents, {}); }), 459);
}

struct SinkOfEvents : ComTest {
    ComPtr<EventSink> sink = makeCounted<EventSink>(
        boilerEvents,
        [](TextView event, std::span<Variant> arguments) {
            if (event == u"Heated")
                throw automation::Error{1004, {u"no heat", u"Handler", {}}};
            arguments[1].assignThrough(true);
        },
        bridge);

    HRESULT raise(DISPID id, DISPPARAMS& parameters, EXCEPINFO* told = nullptr)
    {
        return sink->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, told, nullptr);
    }
};

TEST_F(SinkOfEvents, AnswersForTheInterfaceOfItsSet)
{
    EXPECT_TRUE(sink.query<IDispatch>(interfaceId(boilerEvents)));
    EXPECT_FALSE(sink.query<IDispatch>(interfaceId(unknownEvents)));
    wchar_t id[64];
    StringFromGUID2(interfaceId(boilerEvents), id, 64);
    EXPECT_EQ(textOf(id), u"{0006FF01-0000-0000-C000-000000000046}");
}

TEST_F(SinkOfEvents, WritesACancelInTheFormThatTheSourceChose)
{
    VARIANT_BOOL cancel = VARIANT_FALSE;
    VARIANT passed[2];
    passed[1].vt = VT_I4;
    passed[1].lVal = 5;
    passed[0].vt = VT_BYREF | VT_BOOL;
    passed[0].pboolVal = &cancel;
    DISPPARAMS parameters{passed, nullptr, 2, 0};
    EXPECT_EQ(raise(0xF002, parameters), S_OK);
    EXPECT_EQ(cancel, VARIANT_TRUE);

    NativeVariant any = toNative(0, *bridge);
    passed[0].vt = VT_BYREF | VT_VARIANT;
    passed[0].pvarVal = any.get();
    EXPECT_EQ(raise(0xF002, parameters), S_OK);
    EXPECT_EQ(any->vt, VT_BOOL);
    EXPECT_EQ(any->boolVal, VARIANT_TRUE);
}

TEST_F(SinkOfEvents, TurnsWhatAHandlerThrowsIntoACode)
{
    VARIANT degrees;
    degrees.vt = VT_I4;
    degrees.lVal = 5;
    DISPPARAMS parameters{&degrees, nullptr, 1, 0};
    ExceptionInfo told;
    EXPECT_EQ(raise(0xF001, parameters, &told), DISP_E_EXCEPTION);
    EXPECT_EQ(textOfBstr(told.bstrDescription), u"no heat");
    EXPECT_EQ(raise(0xF001, parameters), HRESULT(0x800A03EC));
}

TEST_F(SinkOfEvents, LetsEventsPassThatItDoesNotKnow)
{
    DISPPARAMS parameters{};
    EXPECT_EQ(raise(0xF009, parameters), S_OK);
}

TEST_F(SinkOfEvents, HearsNothingOnceItIsSilent)
{
    sink->silence();
    DISPPARAMS parameters{};
    EXPECT_EQ(raise(0xF001, parameters), S_OK);
}

} // namespace
} // namespace rf::native::com
