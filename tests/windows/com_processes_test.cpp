#include "windows/class_registry.h"
#include "windows/toolkit.h"

#include "child_process.h"
#include "com_fixture.h"

namespace rf::native::com {
namespace {

using automation::Connection;
using automation::Error;
using automation::Object;
using automation::Reference;
using automation::Variant;

constexpr wchar_t serverVariable[] = L"RF_TEST_SERVER";

/// The class id under which the two processes of a test meet. The one that chooses it does so before the other one
/// starts, which inherits it.
Text chooseServerName()
{
    GUID fresh;
    EXPECT_EQ(CoCreateGuid(&fresh), S_OK);
    wchar_t name[64];
    StringFromGUID2(fresh, name, 64);
    SetEnvironmentVariableW(serverVariable, name);
    return textOf(name);
}

Text inheritedServerName()
{
    wchar_t name[64];
    return textOf(name, GetEnvironmentVariableW(serverVariable, name, 64));
}

class Registration {
public:
    Registration(const Text& name, const ComPtr<IUnknown>& object)
    {
        CLSID id;
        EXPECT_EQ(CLSIDFromString(wide(name), &id), S_OK);
        // The service that keeps the table starts with the first use of it, and may not be up yet.
        HRESULT status = E_FAIL;
        for (int attempt = 0; status != S_OK && attempt < 100; ++attempt) {
            status = RegisterActiveObject(object.get(), id, ACTIVEOBJECT_STRONG, &entry_);
            if (status != S_OK)
                Sleep(100);
        }
        EXPECT_EQ(status, S_OK);
    }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;
    ~Registration() { RevokeActiveObject(entry_, nullptr); }

private:
    DWORD entry_ = 0;
};

/// The other process: offers a boiler for as long as it is wanted.
TEST(BoilerServer, DISABLED_Serves)
{
    const ComApartment apartment;
    const auto bridge = Bridge::make(offeredEvents);
    const auto boiler = std::make_shared<Boiler>();
    const Registration registration{inheritedServerName(), bridge->exportObject(boiler)};
    Win32Toolkit toolkit;
    toolkit.run([] { return true; });
}

/// What the server registered, as soon as it has.
Object waitForServer(ComClassRegistry& registry, const Text& name)
{
    Object server;
    for (int attempt = 0; !server && attempt < 200; ++attempt)
        if (errorOf([&] { return server = registry.running(name); }) != 0)
            Sleep(50);
    return server;
}

/// The other process: listens to the boiler for as long as it is let.
TEST(BoilerClient, DISABLED_Listens)
{
    const ComApartment apartment;
    ComClassRegistry registry{Bridge::make()};
    const Connection connection
        = waitForServer(registry, inheritedServerName()).advise(boilerEvents, [](TextView, std::span<Variant>) {});
    Win32Toolkit toolkit;
    toolkit.run([] { return true; });
}

TEST_F(ComTest, DropsTheSinkOfAProcessThatHasGone)
{
    const auto boiler = std::make_shared<Boiler>();
    const Registration registration{chooseServerName(), bridge->exportObject(boiler)};
    const Child client{ownPath(), argumentsFor(u"BoilerClient.DISABLED_Listens")};
    Win32Toolkit toolkit;
    bool goOn = true;
    const auto limit = toolkit.makeTimer([&] { goOn = false; });
    limit->setInterval(std::chrono::seconds{30});
    limit->setEnabled(true);
    toolkit.run([&] { return goOn && !boiler->isHeard(); });
    ASSERT_TRUE(boiler->isHeard());
    EXPECT_TRUE(boiler->heat(50));
    EXPECT_TRUE(boiler->isHeard());
    client.end();
    EXPECT_TRUE(boiler->heat(60));
    EXPECT_FALSE(boiler->isHeard());
}

struct TwoProcesses : ComTest {
    Text name = chooseServerName();
    Child server{ownPath(), argumentsFor(u"BoilerServer.DISABLED_Serves")};
    ComClassRegistry registry{bridge};
    Object boiler = waitForServer(registry, name);
};

TEST_F(TwoProcesses, ShareTheMembersOfAnObject)
{
    boiler.put(u"Temperature", 33);
    EXPECT_EQ(boiler.get(u"Temperature").integer32(), 33);
    EXPECT_EQ(boiler.call(u"Minus", 7, 5).integer32(), 2);
    const Variant values[] = {Variant{}, automation::Null{}, true, std::uint8_t{1}, std::int16_t{2}, 3, 4.5F, 5.5,
        Currency::fromTenThousandths(6), Date{7.25}, Text{u'8', u'\0', 0xD800},
        automation::Array{{{0, 2}, {1, 2}}, {9, u"10", Date{1.0}, automation::Null{}}}};
    for (const Variant& value : values)
        EXPECT_EQ(boiler.call(u"Echo", value), value);
}

TEST_F(TwoProcesses, WriteArgumentsByReferenceBack)
{
    Variant first{u"warm"};
    Variant second{7};
    boiler.call(u"Swap", Reference{&first}, Reference{&second});
    EXPECT_EQ(first, Variant{7});
    EXPECT_EQ(second, Variant{u"warm"});
}

TEST_F(TwoProcesses, TellEachOtherOfFailures)
{
    try {
        boiler.call(u"Fail", 1004);
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.number(), 1004);
        EXPECT_EQ(error.description(), Text{u"Too hot \u263A"} + char16_t{0xD800});
        EXPECT_EQ(error.source(), u"Boiler.Valve");
    }
    EXPECT_EQ(errorOf([&] { return boiler.get(u"Pressure"); }), 438);
}

TEST_F(TwoProcesses, KnowAnObjectByItsIdentity)
{
    EXPECT_EQ(boiler, registry.running(name));
    EXPECT_EQ(Object{boiler.call(u"Echo", boiler).dispatch()}, boiler);
}

TEST_F(TwoProcesses, GiveAnObjectBackAsTheOneItWas)
{
    const auto own = std::make_shared<Boiler>();
    boiler.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{own});
    EXPECT_EQ(boiler.get(u"Neighbour").dispatch(), own);
    boiler.put(u"Neighbour", std::shared_ptr<automation::Dispatch>{});
    EXPECT_EQ(bridge->exportedCount(), 0U);
}

TEST_F(TwoProcesses, RaiseEventsWithinACallAndTakeTheirAnswer)
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

TEST_F(TwoProcesses, SurviveEachOther)
{
    Connection connection = boiler.advise(boilerEvents, [](TextView, std::span<Variant>) {});
    server.end();
    EXPECT_NE(errorOf([&] { return boiler.get(u"Temperature"); }), 0);
    EXPECT_NO_THROW(connection.disconnect());
}

} // namespace
} // namespace rf::native::com
