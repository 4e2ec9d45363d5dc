#include "basic/error_of.h"
#include "host/host_error.h"
#include "host/host_fixture.h"

namespace rf::outlook {

namespace {

using test::errorOf;

class HostExplorers : public test::HostTest {
protected:
    [[nodiscard]] Explorers explorers() const { return application().explorers(); }
};

TEST_F(HostExplorers, AreNoneAtFirst) { EXPECT_EQ(explorers().count(), 0); }

TEST_F(HostExplorers, AreCountedInTheOrderOfTheirOpening)
{
    const auto first = open(calendar());
    const auto second = open(inbox());
    EXPECT_EQ(explorers().count(), 2);
    EXPECT_TRUE(explorers().item(1) == first);
    EXPECT_TRUE(explorers().item(2) == second);
}

TEST_F(HostExplorers, MayShowOneFolderTwice)
{
    EXPECT_FALSE(open(calendar()) == open(calendar()));
    EXPECT_EQ(explorers().count(), 2);
}

TEST_F(HostExplorers, HaveNoItemOutsideTheirCount)
{
    open(calendar());
    for (const std::int32_t position : {-1, 0, 2}) {
        const auto line = std::source_location::current().line() + 2;
        try {
            static_cast<void>(explorers().item(position));
            ADD_FAILURE() << position;
        } catch (const automation::Error& error) {
            EXPECT_EQ(error.number(), host::host_error::badArgument);
            EXPECT_EQ(error.description(), u"Array index out of bounds.");
            EXPECT_EQ(error.where().line(), line);
        }
    }
}

TEST_F(HostExplorers, OpenForFoldersOnly)
{
    EXPECT_EQ(errorOf([this] { return open(Folder{nameSpace().object()}); }), 13);
    EXPECT_EQ(errorOf([this] { return open(Folder{}); }), 13);
    EXPECT_EQ(errorOf([this] { explorers().object().call(u"Add", u"Calendar"); }), 13);
    EXPECT_EQ(explorers().count(), 0);
}

TEST_F(HostExplorers, ShowAFolderAndItsName)
{
    const auto explorer = open(calendar());
    EXPECT_TRUE(explorer.currentFolder() == calendar());
    EXPECT_EQ(explorer.caption(), u"Calendar - Outlook");
}

TEST_F(HostExplorers, StayInTheBackgroundUntilTheyAreActivated)
{
    const auto first = open(calendar());
    EXPECT_FALSE(application().activeExplorer());
    first.activate();
    open(inbox());
    EXPECT_TRUE(application().activeExplorer() == first);
}

TEST_F(HostExplorers, TellThatTheyAreActivated)
{
    const auto explorer = open(calendar());
    bool inFront = false;
    const auto connection
        = connect(explorer, ExplorerEvents{.activate = [&] { inFront = application().activeExplorer() == explorer; }});
    explorer.activate();
    EXPECT_TRUE(inFront);
}

TEST_F(HostExplorers, ComeToTheFrontWhenTheyAreDisplayed)
{
    const auto explorer = open(calendar());
    explorer.display();
    EXPECT_TRUE(application().activeExplorer() == explorer);
}

TEST_F(HostExplorers, TellThatTheyShowAnotherFolder)
{
    const auto explorer = open(calendar());
    Text heard;
    const auto connection = connect(explorer,
        ExplorerEvents{.activate = [&] { heard += u"activate "; },
            .folderSwitch = [&] { heard += explorer.currentFolder().name(); },
            .close = [&] { heard += u"close "; }});
    explorer.setCurrentFolder(inbox());
    EXPECT_EQ(heard, u"Inbox");
    EXPECT_EQ(explorer.caption(), u"Inbox - Outlook");
}

TEST_F(HostExplorers, ShowFoldersOnly)
{
    const auto explorer = open(calendar());
    EXPECT_EQ(errorOf([&] { explorer.setCurrentFolder(Folder{explorer.object()}); }), 13);
    EXPECT_EQ(errorOf([&] { explorer.setCurrentFolder(Folder{}); }), 13);
    EXPECT_TRUE(explorer.currentFolder() == calendar());
}

TEST_F(HostExplorers, TellThatTheyCloseAndAreGoneByThen)
{
    const auto explorer = open(calendar());
    std::int32_t left = -1;
    const auto connection = connect(explorer, ExplorerEvents{.close = [&] { left = explorers().count(); }});
    explorer.close();
    EXPECT_EQ(left, 0);
}

TEST_F(HostExplorers, CloseUpRanks)
{
    const auto first = open(calendar());
    const auto second = open(inbox());
    first.close();
    EXPECT_EQ(explorers().count(), 1);
    EXPECT_TRUE(explorers().item(1) == second);
}

TEST_F(HostExplorers, GiveWayToTheLastWindowThatIsLeft)
{
    const auto first = open(calendar());
    const auto second = open(inbox());
    const auto third = open(calendar());
    first.activate();
    first.close();
    EXPECT_TRUE(application().activeExplorer() == third);
    second.close();
    EXPECT_TRUE(application().activeExplorer() == third);
    third.close();
    EXPECT_FALSE(application().activeExplorer());
}

TEST_F(HostExplorers, MayBeLetGoWhileTheyClose)
{
    auto explorer = open(calendar());
    const std::weak_ptr<automation::Dispatch> watched = explorer.object().dispatch();
    bool heard = false;
    const auto connection = connect(explorer, ExplorerEvents{.close = [&] {
        explorer = {};
        heard = true;
    }});
    explorer.close();
    EXPECT_TRUE(heard);
    EXPECT_TRUE(watched.expired());
}

TEST_F(HostExplorers, OutliveTheirHost)
{
    const auto explorer = open(calendar());
    int heard = 0;
    const auto connection = connect(explorer, ExplorerEvents{.activate = [&] { ++heard; }, .close = [&] { ++heard; }});
    classes.runningObjects.clear();
    host.reset();
    explorer.activate();
    explorer.close();
    EXPECT_EQ(heard, 2);
    EXPECT_EQ(explorer.caption(), u"Calendar - Outlook");
}

TEST_F(HostExplorers, RaiseNoEventsOfTheHost)
{
    const auto explorer = open(calendar());
    EXPECT_EQ(errorOf([&] { return connect(Application{explorer.object()}, ApplicationEvents{}); }), 459);
    EXPECT_EQ(errorOf([&] { return connect(Explorer{explorers().object()}, ExplorerEvents{}); }), 459);
}

} // namespace

} // namespace rf::outlook
