#include "dbus_fixture.h"

#include <fstream>

namespace rf::native::dbus {
namespace {

using automation::Object;

TEST(BusName, IsTheNameOfTheClass)
{
    EXPECT_EQ(busName(u"Outlook.Application"), QStringLiteral("Outlook.Application"));
    EXPECT_EQ(busName(u"Outlook.Application.11"), QStringLiteral("Outlook.Application._11"));
}

TEST(BusName, IsEmptyForWhatCanHaveNone)
{
    for (const TextView name : {u"", u"Excel", u"Outlook.", u".Application", u"Outlook..Application",
             u"{0006F03A-0000-0000-C000-000000000046}", u"Outlook.\u00c4pfel", u"Outlook.Appli cation"})
        EXPECT_TRUE(busName(name).isEmpty()) << toUtf8(name);
    EXPECT_TRUE(busName(u"Outlook." + Text(250, u'x')).isEmpty());
}

/// A host and a registry on connections of their own.
struct DbusClassRegistry : DbusTest {
    std::shared_ptr<Bridge> host = connect();
    std::shared_ptr<Boiler> own = std::make_shared<Boiler>();
    std::unique_ptr<Server> server = host ? std::make_unique<Server>(host) : nullptr;
    LinuxClassRegistry registry;
};

TEST_F(DbusClassRegistry, FindsTheRunningObjectOfAClass)
{
    ASSERT_TRUE(server->exportClass(u"Test.Boiler", [&] { return own; }));
    ASSERT_TRUE(server->exportClass(u"Test.Boiler.11", [&] { return own; }));
    const Object boiler = registry.running(u"Test.Boiler");
    EXPECT_EQ(boiler.get(u"Temperature").integer32(), 20);
    EXPECT_EQ(registry.running(u"Test.Boiler.11"), boiler);
    EXPECT_EQ(registry.create(u"Test.Boiler"), boiler);
    EXPECT_EQ(registry.running(u"test.BOILER"), boiler);
    EXPECT_EQ(registry.create(u"test.BOILER"), boiler);
}

TEST_F(DbusClassRegistry, CannotCreateWhatNobodyOffers)
{
    ASSERT_TRUE(server->exportClass(u"Test.Nothing", [] { return nullptr; }));
    ASSERT_TRUE(server->exportClass(u"Test.Failing",
        []() -> std::shared_ptr<automation::Dispatch> { throw RuntimeError{error_number::overflow}; }));
    for (const TextView name : {u"Test.Boiler", u"{0006F03A-0000-0000-C000-000000000046}", u"Excel", u"",
             u"org.freedesktop.DBus", u"Test.Nothing", u"Test.Failing"}) {
        EXPECT_EQ(errorOf([&] { return registry.running(name); }), 429) << toUtf8(name);
        EXPECT_EQ(errorOf([&] { return registry.create(name); }), 429) << toUtf8(name);
        EXPECT_EQ(errorOf([&] { return registry.bind(name); }), 429) << toUtf8(name);
    }
}

TEST_F(DbusClassRegistry, NamesTheCallersLine)
{
    try {
        static_cast<void>(registry.running(u"Test.Boiler"));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.where().line(), static_cast<unsigned>(__LINE__ - 3));
        EXPECT_EQ(error.description(), u"ActiveX component can't create object");
    }
}

TEST_F(DbusClassRegistry, GivesAProgramItsOwnClassDirectly)
{
    ASSERT_TRUE(server->exportClass(boilerClass, [&] { return own; }));
    LinuxClassRegistry ownRegistry{host};
    EXPECT_EQ(ownRegistry.running(boilerClass).dispatch(), own);
}

TEST_F(DbusClassRegistry, MakesScriptingObjectsInThisProcess)
{
    EXPECT_EQ(registry.create(u"Scripting.Dictionary").get(u"Count").integer32(), 0);
}

TEST(DbusClassRegistryWithoutABus, SaysSoAtOnce)
{
    const QtProcess process;
    for (const char* address : {"", "unix:path=/nowhere/bus", "nonsense"}) {
        const rf::test::EnvironmentVariable bus{"DBUS_SESSION_BUS_ADDRESS", address};
        const rf::test::EnvironmentVariable runtime{"XDG_RUNTIME_DIR", ""};
        LinuxClassRegistry registry;
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(errorOf([&] { return registry.running(boilerClass); }), 429);
        EXPECT_EQ(errorOf([&] { return registry.create(boilerClass); }), 429);
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds{1});
    }
}

TEST(DbusClassRegistryWithoutABus, NeedsAQtApplication)
{
    LinuxClassRegistry registry;
    EXPECT_EQ(errorOf([&] { return registry.running(boilerClass); }), 429);
}

/// A folder from which the bus learns how to start a host.
class ServicesFolder {
public:
    ServicesFolder()
    {
        std::string folder = std::filesystem::temp_directory_path() / "services-XXXXXX";
        path_ = mkdtemp(folder.data());
        const auto services = path_ / "dbus-1" / "services";
        std::filesystem::create_directories(services);
        std::ofstream file{services / "Test.Boiler.service"};
        file << "[D-BUS Service]\nName=Test.Boiler\nExec=";
        for (const auto& word : commandFor("BoilerServer.DISABLED_Serves"))
            file << word << ' ';
        variable_.emplace("XDG_DATA_HOME", path_.string());
    }
    ServicesFolder(const ServicesFolder&) = delete;
    ServicesFolder& operator=(const ServicesFolder&) = delete;
    ~ServicesFolder() { std::filesystem::remove_all(path_); }

private:
    std::filesystem::path path_;
    std::optional<rf::test::EnvironmentVariable> variable_;
};

struct DbusActivation : testing::Test {
    QtProcess process;
    ServicesFolder services;
    PrivateBus bus;
    LinuxClassRegistry registry;
};

TEST_F(DbusActivation, StartsTheProcessOfAClassForANewObjectOnly)
{
    if (!bus.isThere())
        GTEST_SKIP() << "no dbus-daemon; install it with: apt-get install dbus-daemon";
    EXPECT_EQ(errorOf([&] { return registry.running(boilerClass); }), 429);
    const Object boiler = registry.create(u"test.boiler");
    EXPECT_EQ(boiler.get(u"Temperature").integer32(), 20);
    EXPECT_EQ(registry.running(boilerClass), boiler);
    EXPECT_EQ(registry.create(boilerClass), boiler);
}

} // namespace
} // namespace rf::native::dbus
