#include "basic/error_of.h"
#include "host/host_error.h"
#include "host/host_fixture.h"

namespace rf::outlook {

namespace {

using test::errorOf;

class HostApplication : public test::HostTest { };

TEST_F(HostApplication, HasAVersion)
{
    EXPECT_EQ(application().version(), u"11.0.8169");
    runHost(u"10.0.6501");
    EXPECT_EQ(application().version(), u"10.0.6501");
}

TEST_F(HostApplication, HasTheNameSpaceMapiInAnyCase)
{
    const NameSpace same{automation::Object{application().object().call(u"GetNamespace", u"mapi").dispatch()}};
    EXPECT_TRUE(same.getDefaultFolder(DefaultFolder::Calendar) == calendar());
}

TEST_F(HostApplication, HasNoOtherNameSpace)
{
    const auto object = application().object();
    EXPECT_EQ(errorOf([&] { object.call(u"GetNamespace", u"IMAP"); }), host::host_error::badArgument);
    EXPECT_EQ(errorOf([&] { object.call(u"GetNamespace"); }), 450);
}

TEST_F(HostApplication, HasTheSameCollectionsEachTime)
{
    EXPECT_TRUE(application().explorers() == application().explorers());
    EXPECT_TRUE(application().inspectors() == application().inspectors());
    EXPECT_TRUE(application().assistant() == application().assistant());
}

TEST_F(HostApplication, HasNoActiveWindowAtFirst)
{
    EXPECT_FALSE(application().activeExplorer());
    EXPECT_FALSE(application().activeInspector());
    EXPECT_FALSE(application().activeWindow());
}

TEST_F(HostApplication, KnowsTheWindowInFront)
{
    const auto first = open(calendar());
    const auto second = open(inbox());
    first.activate();
    EXPECT_TRUE(application().activeExplorer() == first);
    EXPECT_TRUE(application().activeWindow() == first);
    second.activate();
    EXPECT_TRUE(application().activeExplorer() == second);
    EXPECT_TRUE(application().activeWindow() == second);
}

TEST_F(HostApplication, HasNoItemWindowsAtFirst)
{
    EXPECT_EQ(application().inspectors().count(), 0);
    EXPECT_EQ(errorOf([this] { return application().inspectors().item(1); }), host::host_error::badArgument);
}

TEST_F(HostApplication, MakesItemsOfEachKind)
{
    EXPECT_EQ(application().createItem(ItemType::Mail).objectClass(), ObjectClass::Mail);
    EXPECT_EQ(application().createItem(ItemType::Appointment).objectClass(), ObjectClass::Appointment);
    EXPECT_EQ(application().createItem(ItemType::Post).objectClass(), ObjectClass::Post);
}

TEST_F(HostApplication, TellsThatItQuits)
{
    int quits = 0;
    auto connection = connect(application(), ApplicationEvents{.quit = [&] { ++quits; }});
    host->quit();
    connection.disconnect();
    host->quit();
    EXPECT_EQ(quits, 1);
}

TEST_F(HostApplication, MayBeLetGoWhileItQuits)
{
    const std::weak_ptr<host::Application> watched = host;
    const auto connection = connect(application(), ApplicationEvents{.quit = [this] {
        classes.runningObjects.clear();
        host.reset();
    }});
    host->quit();
    EXPECT_TRUE(watched.expired());
}

TEST_F(HostApplication, RaisesNoEventsOfItsWindows)
{
    const auto line = std::source_location::current().line() + 2;
    try {
        static_cast<void>(connect(Explorer{automation::Object{host}}, ExplorerEvents{}));
        FAIL() << "the host is no window";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), 459);
        EXPECT_EQ(error.source(), u"Application");
        EXPECT_EQ(error.where().line(), line);
    }
}

TEST_F(HostApplication, LetsProgramsListenForItemWindows)
{
    const auto inspectors = application().inspectors();
    EXPECT_TRUE(connect(inspectors, InspectorsEvents{}));
    EXPECT_EQ(errorOf([&] { return connect(Application{inspectors.object()}, ApplicationEvents{}); }), 459);
}

TEST_F(HostApplication, HasNoMembersOfOtherClasses)
{
    const auto object = application().object();
    EXPECT_EQ(errorOf([&] { object.get(u"CurrentFolder"); }), 438);
    EXPECT_EQ(errorOf([&] { object.put(u"Version", u"1"); }), 438);
}

} // namespace

} // namespace rf::outlook
