#include "app/frm_dummy.h"

#include "app/main.h"
#include "app/selection_watch.h"
#include "booking/app_items.h"
#include "booking/inspectors.h"
#include "diagnostics/product.h"
#include "host/inspectors.h"
#include "host/item_factory.h"
#include "outlook/events.h"
#include "storage/settings.h"
#include "support/session_fixture.h"
#include "support/temporary_files.h"

#include <algorithm>

namespace rf {
namespace {

using test::ProgramEnded;

/// A program that watches, in front of a temporary folder of its own.
class Tick : public test::SessionTest {
protected:
    void start(const Text& version = u"11.0.8169")
    {
        runVisibleInstallation(version);
        Main(session);
    }
    [[nodiscard]] std::shared_ptr<frmDummy> form() const { return hiddenForm(session); }
    void tick() const { dynamic_cast<const test::ManualTimer&>(form()->timCheckSelected()).tick(); }
    void select(std::string_view lines) const { files.write("RFSel.txt", lines); }
    void manage(const Text& name)
    {
        session.objSettings->Calendars.add(name, std::make_shared<cResourceDescription>(session));
    }
    [[nodiscard]] std::vector<Text> watched() const
    {
        std::vector<Text> names;
        for (const auto& [name, watcher] : session.colAppItems) {
            EXPECT_EQ(name, watcher->FolderName());
            names.push_back(name);
        }
        return names;
    }

    /// The window of a new appointment in the first room, not yet shown.
    [[nodiscard]] std::shared_ptr<host::Inspector> newWindow() const
    {
        const auto item = session.objRootFolder.folders().item(u"Room 1").items().add();
        return host->model().inspectors().windowOf(host::itemOf(item.object().dispatch()));
    }
    [[nodiscard]] static outlook::Inspector faceOf(const std::shared_ptr<host::Inspector>& window)
    {
        return outlook::Inspector{automation::Object{window}};
    }
    [[nodiscard]] static bool hasBar(const host::Inspector& window)
    {
        return window.commandBars().find(productCaption) != nullptr;
    }
    [[nodiscard]] outlook::Folder folderOfRoom() const
    {
        const auto room = host::folderAt(*store, u"Public Folders\\All Public Folders\\Roomfold\\Room 1");
        return outlook::Folder{
            automation::Object{std::make_shared<host::Folder>(host->model().shared_from_this(), room->id)}};
    }
    /// A second calendar in the root folder.
    void addRoom2() const
    {
        const auto root = host::folderAt(*store, u"Public Folders\\All Public Folders\\Roomfold");
        host::ensureCalendar(*store, root->id, u"Room 2");
    }
    /// Opens a window and closes it again.
    void openAndClose() const
    {
        const auto window = newWindow();
        window->display();
        window->close(host::CloseMode::Discard);
    }

    test::TemporaryFiles files;
    Session session{services()};
};

TEST_F(Tick, WithoutASelectionFileDoesNothingAtAllNotEvenTheInspectorCleanUp)
{
    start();
    openAndClose();
    form()->setOuiPendingInspector(faceOf(newWindow()));
    tick();
    EXPECT_EQ(session.trace.fncLastAction(), u"Checking which folders are selected!");
    EXPECT_TRUE(watched().empty());
    EXPECT_EQ(session.objInspectors->windows().size(), 1U);
    EXPECT_TRUE(form()->ouiPendingInspector());
}

TEST_F(Tick, WatchesTheSelectedCalendars)
{
    start();
    manage(u"Room 2");
    addRoom2();
    select("Room 1\r\n\r\nRoom 2\r\n");
    tick();
    EXPECT_EQ(watched(), (std::vector<Text>{u"Room 1", u"Room 2"}));
    EXPECT_EQ(session.colAppItems.at(u"Room 2")->folder().name(), u"Room 2");
    EXPECT_EQ(session.trace.fncLastAction(), u"Handling the inspectors collection");
}

TEST_F(Tick, IgnoresANameThatIsNotAManagedCalendarOnEveryTick)
{
    start();
    addRoom2();
    select("Room 2\r\nRoom\r\n");
    tick();
    tick();
    EXPECT_TRUE(watched().empty());
}

TEST_F(Tick, GivesTheSameNameListedTwiceOneWatcher)
{
    start();
    select("Room 1\r\nRoom 1\r\nROOM 1\r\n");
    tick();
    EXPECT_EQ(watched(), (std::vector<Text>{u"Room 1"}));
    const auto watcher = session.colAppItems.at(u"Room 1");
    tick();
    EXPECT_EQ(session.colAppItems.at(u"Room 1"), watcher);
}

TEST_F(Tick, FindsTheCalendarOfAMailboxThroughTheRecipientOfThatName)
{
    start();
    host::ensureMailbox(*store, u"Rita Roe");
    manage(u"Rita Roe");
    select("Rita Roe\r\n");
    tick();
    ASSERT_EQ(watched(), (std::vector<Text>{u"Rita Roe"}));
    EXPECT_EQ(session.colAppItems.at(u"Rita Roe")->folder().parent().name(), u"Mailbox - Rita Roe");
}

TEST_F(Tick, LooksAgainForACalendarThatCouldNotBeHad)
{
    start();
    manage(u"Rita Roe");
    select("Rita Roe\r\nRoom 1\r\n");
    tick();
    EXPECT_EQ(watched(), (std::vector<Text>{u"Room 1"}));
    host::ensureMailbox(*store, u"Rita Roe");
    tick();
    EXPECT_EQ(watched(), (std::vector<Text>{u"Rita Roe", u"Room 1"}));
}

TEST_F(Tick, GoesOnWatchingACalendarThatIsNoLongerSelected)
{
    start();
    select("Room 1\r\n");
    tick();
    select("");
    tick();
    files.remove("RFSel.txt");
    tick();
    EXPECT_EQ(watched(), (std::vector<Text>{u"Room 1"}));
}

TEST_F(Tick, LetsItsWatchersHearOfTheCalendar)
{
    start();
    select("Room 1\r\n");
    tick();
    const auto room = session.objRootFolder.folders().item(u"Room 1");
    auto item = room.items().add().as<outlook::AppointmentItem>();
    item.setSubject(u"Dropped");
    item.save();
    host->model().followChanges();
    EXPECT_TRUE(room.items().item(u"Dropped").userProperties().find(u"SafeOrganizer"));
}

TEST_F(Tick, DoesNothingButEndWhereNoFileCanBeLookedFor)
{
    start();
    select("Room 1\r\n");
    classes.factories.erase(Text{outlook::fileSystemClass});
    tick();
    EXPECT_TRUE(watched().empty());
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Tick, BeforeTheSettingsAreLoadedWatchesNothing)
{
    start();
    session.objSettings.reset();
    select("Room 1\r\n");
    tick();
    EXPECT_TRUE(watched().empty());
}

TEST_F(Tick, ShowsAWindowWithoutItsBarAnewAndGivesItTheTemplateOnceItHasOne)
{
    start();
    session.objSettings->NewItemTemplate = u"Agenda:";
    select("");
    const auto window = newWindow();
    form()->setOuiPendingInspector(faceOf(window));
    int activations = 0;
    const auto connection = outlook::connect(
        session.ouaApp.activeExplorer(), outlook::ExplorerEvents{.activate = [&] { ++activations; }});
    tick();
    EXPECT_TRUE(hasBar(*window));
    EXPECT_EQ(host->model().inspectors().active(), window);
    EXPECT_EQ(window->item().record().body, u"Agenda:");
    EXPECT_FALSE(form()->ouiPendingInspector());
    EXPECT_EQ(activations, 0) << "only Outlook 2000 needs its explorer in front";
}

TEST_F(Tick, OnOutlook2000ShowsAndActivatesANewWindowAgainUntilItsToolbarIsPresentAndThenGivesTheTemplate)
{
    start(u"9.0.0.2711");
    session.objSettings->NewItemTemplate = u"Agenda:";
    select("");
    const auto window = newWindow();
    const auto fault = std::make_shared<test::Fault>();
    fault->failingMember = u"Display";
    form()->setOuiPendingInspector(outlook::Inspector{test::FaultyDispatch::wrap(faceOf(window).object(), fault)});
    int explorerActivations = 0;
    const auto explorer = outlook::connect(
        session.ouaApp.activeExplorer(), outlook::ExplorerEvents{.activate = [&] { ++explorerActivations; }});
    int activations = 0;
    const auto shown = outlook::connect(faceOf(window), outlook::InspectorEvents{.activate = [&] { ++activations; }});
    for (int ticks = 1; ticks <= 2; ++ticks) {
        tick();
        EXPECT_TRUE(form()->ouiPendingInspector()) << "the host refuses to show it";
        EXPECT_EQ(explorerActivations, ticks);
        EXPECT_EQ(activations, ticks);
        EXPECT_FALSE(hasBar(*window));
        EXPECT_EQ(window->item().record().body, u"");
    }
    fault->failingMember.reset();
    tick();
    EXPECT_EQ(explorerActivations, 3);
    EXPECT_TRUE(hasBar(*window));
    EXPECT_EQ(window->item().record().body, u"Agenda:");
    EXPECT_FALSE(form()->ouiPendingInspector());
}

TEST_F(Tick, GivesANewAppointmentWhoseBarIsThereTheTemplate)
{
    start();
    session.objSettings->NewItemTemplate = u"Agenda:";
    select("");
    const auto window = newWindow();
    window->display();
    ASSERT_TRUE(hasBar(*window));
    EXPECT_TRUE(form()->ouiPendingInspector() == faceOf(window));
    tick();
    EXPECT_EQ(window->item().record().body, u"Agenda:");
    EXPECT_FALSE(form()->ouiPendingInspector());
}

TEST_F(Tick, LeavesTheBodyOfASavedAppointmentAlone)
{
    start();
    session.objSettings->NewItemTemplate = u"Agenda:";
    select("");
    const auto window = newWindow();
    window->item().save();
    window->display();
    tick();
    EXPECT_EQ(window->item().record().body, u"");
    EXPECT_FALSE(form()->ouiPendingInspector());
}

TEST_F(Tick, WithoutATemplateLeavesTheBodyAlone)
{
    start();
    select("");
    const auto window = newWindow();
    window->display();
    window->item().record().body = u"typed";
    tick();
    EXPECT_EQ(window->item().record().body, u"typed");
}

TEST_F(Tick, LeavesAWindowThatWasOpenedDuringItForTheNextOne)
{
    start();
    select("");
    const auto first = newWindow();
    const auto second = newWindow();
    form()->setOuiPendingInspector(faceOf(first));
    const auto opensAnother
        = outlook::connect(faceOf(first), outlook::InspectorEvents{.activate = [&] { second->display(); }});
    tick();
    EXPECT_TRUE(form()->ouiPendingInspector() == faceOf(second));
    tick();
    EXPECT_FALSE(form()->ouiPendingInspector());
}

TEST_F(Tick, DoesNotOpenAWindowAgainThatWasClosedBeforeIt)
{
    start();
    select("");
    openAndClose();
    EXPECT_FALSE(form()->ouiPendingInspector());
    tick();
    EXPECT_EQ(host->model().inspectors().count(), 0U);
}

TEST_F(Tick, DropsClosedWindowsAndLeavesTheOneBehindEachForTheNextTick)
{
    start();
    select("");
    openAndClose();
    openAndClose();
    newWindow()->display();
    openAndClose();
    ASSERT_EQ(session.objInspectors->windows().size(), 4U);
    tick();
    EXPECT_EQ(session.objInspectors->windows().size(), 2U);
    tick();
    ASSERT_EQ(session.objInspectors->windows().size(), 1U);
    tick();
    ASSERT_EQ(session.objInspectors->windows().size(), 1U);
    EXPECT_FALSE(session.objInspectors->windows().front()->blnClosed());
}

TEST_F(Tick, NeverOverlapsItself)
{
    start();
    select("");
    const auto window = newWindow();
    form()->setOuiPendingInspector(faceOf(window));
    int nested = 0;
    const auto ticksAgain = outlook::connect(faceOf(window), outlook::InspectorEvents{.activate = [&] {
        session.trace.subTrace(u"before");
        tick();
        nested += static_cast<int>(session.trace.fncLastAction() == u"before");
    }});
    tick();
    EXPECT_EQ(nested, 2);
}

TEST_F(Tick, MayEndTheProgram)
{
    start();
    select("Room 1\r\n");
    const auto window = newWindow();
    form()->setOuiPendingInspector(faceOf(window));
    const auto quits = outlook::connect(faceOf(window), outlook::InspectorEvents{.activate = [&] { host->quit(); }});
    EXPECT_THROW(tick(), ProgramEnded);
    EXPECT_EQ(session.forms.count(), 0U);
}

/// Whatever call of the host fails, a tick says nothing, and the next one makes up for it.
TEST_F(Tick, SurvivesAHostThatFailsAtAnyOneCall)
{
    bool struck = true;
    for (int use = 1; struck; ++use) {
        runVisibleInstallation();
        const auto fault = std::make_shared<test::Fault>();
        classes.runningObjects[Text{outlook::applicationClass}]
            = test::FaultyDispatch::wrap(automation::Object{host}, fault);
        Session other{services()};
        Main(other);
        const auto dummy = hiddenForm(other);
        ASSERT_NE(dummy, nullptr);
        select("Room 1\r\n");
        fault->uses = 0;
        fault->failingUse = use;
        dummy->timCheckSelected_Timer();
        struck = fault->uses >= use;
        dummy->timCheckSelected_Timer();
        EXPECT_TRUE(other.colAppItems.contains(u"Room 1")) << "at use " << use;
        EXPECT_TRUE(toolkit.messages.empty()) << "at use " << use;
    }
}

TEST_F(Tick, ComesAtOnceWhenTheProgramHasStarted)
{
    runVisibleInstallation();
    select("Room 1\r\n");
    const auto room = folderOfRoom();
    toolkit.whileYielding = [&] {
        auto item = room.items().add().as<outlook::AppointmentItem>();
        item.setSubject(u"Dropped");
        item.save();
        host->model().followChanges();
        EXPECT_TRUE(room.items().item(u"Dropped").userProperties().find(u"SafeOrganizer"));
        host->quit();
    };
    EXPECT_THROW(runProgram(services()), ProgramEnded);
    EXPECT_EQ(toolkit.yields, 1);
}

TEST(SelectionFile, HoldsOneNameALine)
{
    EXPECT_EQ(fncSelectedNames(u"Room 1\r\nRoom; 2\r\n"), (std::vector<Text>{u"Room 1", u"Room; 2"}));
    EXPECT_EQ(fncSelectedNames(u"Room 1"), (std::vector<Text>{u"Room 1"}));
}

TEST(SelectionFile, MayHaveEmptyLines)
{
    EXPECT_EQ(fncSelectedNames(u"\r\nRoom 1\r\n\r\n\r\nRoom 2"), (std::vector<Text>{u"Room 1", u"Room 2"}));
    EXPECT_TRUE(fncSelectedNames(u"").empty());
    EXPECT_TRUE(fncSelectedNames(u"\r\n").empty());
}

TEST(SelectionFile, KeepsBlanksAndSingleLineEnds)
{
    EXPECT_EQ(fncSelectedNames(u" Room 1 \nRoom 2\r\n"), (std::vector<Text>{u" Room 1 \nRoom 2"}));
}

} // namespace
} // namespace rf
