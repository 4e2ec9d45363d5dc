#include "app/attachment.h"
#include "app/frm_dummy.h"
#include "app/main.h"
#include "app/root_explorer.h"
#include "booking/inspectors.h"
#include "diagnostics/product.h"
#include "host/inspectors.h"
#include "host/item_factory.h"
#include "storage/frm_room.h"
#include "storage/settings.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

using test::ProgramEnded;

class Start : public test::SessionTest {
protected:
    /// Whether the program is set up and waits for events.
    [[nodiscard]] static bool watches(const Session& session)
    {
        return session.forms.find(frmDummy::formName) != nullptr && session.objSettings != nullptr;
    }

    /// Settings as an administrator has left them.
    void writeProjects() const
    {
        host::ItemRecord post;
        post.folder = host::folderAt(*store, u"\\\\Public Folders\\All Public Folders\\Roomfold")->id;
        post.messageClass = u"IPM.Post";
        post.subject = u"Settings";
        post.userProperties = {{u"strProjects0", 1, Text{u"Alpha;255\r\nBeta;128\r\n"}}, {u"strProjectsCount", 3, 0.0},
            {u"strProjectsCaption", 1, Text{u"Project no."}}};
        store->save(post);
    }
    /// What a person does.
    [[nodiscard]] std::shared_ptr<host::Inspector> openAppointment() const
    {
        auto& model = host->model();
        const auto item = host::makeItem(model.shared_from_this(),
            host::newRecord(model, folder(host::FolderRole::Calendar)->id(), u"IPM.Appointment"));
        auto window = model.inspectors().windowOf(host::itemOf(item));
        window->display();
        return window;
    }

    Session session{services()};
};

TEST_F(Start, WatchesTheHostThatRuns)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_TRUE(watches(session));
    EXPECT_TRUE(session.ouaApp);
    EXPECT_TRUE(session.ounNameSpace);
    EXPECT_EQ(session.strUserName, u"Jane Doe");
    EXPECT_EQ(session.intDefaultLanguage, 1);
    EXPECT_EQ(session.language.phrases().LNGADD, u"Add");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Start, LetsTheVisualStylesTakeEffect)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_EQ(system.commonControls, (std::vector<std::uint32_t>{0x200}));
}

TEST_F(Start, StartsTheTimerOfTheHiddenForm)
{
    runVisibleInstallation();
    Main(session);
    const auto form = std::dynamic_pointer_cast<frmDummy>(session.forms.find(frmDummy::formName));
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->timCheckSelected().enabled());
    EXPECT_EQ(form->timCheckSelected().interval(), std::chrono::milliseconds{2000});
}

TEST_F(Start, GivesTheSettingsTheDefaultLanguage)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_EQ(session.objSettings->intCurrentLanguage(), 1);
}

TEST_F(Start, OnAHostWithoutAnExplorerOpensOneOnTheCalendarAndActivatesIt)
{
    windows.picked = runInstalledHost();
    toolkit.answers = {ui::Answer::Ok};
    Main(session);
    ASSERT_EQ(host->explorers().count(), 1U);
    EXPECT_EQ(host->explorers().item(1)->folder()->id(), folder(host::FolderRole::Calendar)->id());
    EXPECT_EQ(host->explorers().active(), host->explorers().item(1));
    EXPECT_TRUE(watches(session));
}

TEST_F(Start, ActivatesTheFirstExplorerWhenNoneIsInFront)
{
    windows.picked = runInstalledHost();
    toolkit.answers = {ui::Answer::Ok};
    host->explorers().add(folder(host::FolderRole::Inbox));
    Main(session);
    EXPECT_EQ(host->explorers().count(), 1U);
    EXPECT_EQ(host->explorers().active(), host->explorers().item(1));
}

TEST_F(Start, TriesTheRunningHostThenTheClassThenEachVersionFromTheNewest)
{
    EXPECT_THROW(Main(session), ProgramEnded);
    EXPECT_EQ(classes.asked,
        (std::vector<Text>{u"running Outlook.Application", u"create {0006F03A-0000-0000-C000-000000000046}",
            u"create Outlook.Application.12", u"create Outlook.Application.11", u"create Outlook.Application.10",
            u"create Outlook.Application.9", u"create Outlook.Application"}));
}

TEST_F(Start, StopsAtTheFirstClassThatYieldsAHost)
{
    runVisibleInstallation();
    classes.runningObjects.clear();
    classes.factories[u"Outlook.Application.11"] = [this] { return automation::Object{host}; };
    Main(session);
    EXPECT_EQ(classes.asked.at(3), u"create Outlook.Application.11");
    EXPECT_TRUE(watches(session));
}

TEST_F(Start, WithoutAHostSaysSoAndEndsTheProgram)
{
    EXPECT_THROW(Main(session), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, u"Please start Outlook manually before you execute this application!");
    EXPECT_EQ(toolkit.messages[0].caption, u"RFBookingInfo");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::None}));
}

TEST_F(Start, RefusesOutlook97WithItsVersion)
{
    runVisibleInstallation(u"8.5.1", u"Mailbox - Jane Doe");
    EXPECT_THROW(Main(session), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, u"You need Outlook 2000 or later to run this application.\r\n8");
    EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
}

TEST_F(Start, RefusesAHostWhoseVersionIsNoNumber)
{
    runVisibleInstallation(u"beta", u"Mailbox - Jane Doe");
    EXPECT_THROW(Main(session), ProgramEnded);
    EXPECT_EQ(toolkit.messages.at(0).text, u"You need Outlook 2000 or later to run this application.\r\n0");
}

TEST_F(Start, AcceptsOutlook2000)
{
    runVisibleInstallation(u"9.0.0.2711", u"Mailbox - Jane Doe");
    Main(session);
    EXPECT_TRUE(watches(session));
    EXPECT_EQ(session.intOutlookVersion, 9);
}

TEST_F(Start, ReadsTheVersionOnce)
{
    runVisibleInstallation();
    Main(session);
    session.ouaApp = {};
    EXPECT_EQ(fncOutlookVersion(session), 11);
    EXPECT_EQ(fncGetOutlookVersion(session), 11);
}

TEST_F(Start, WithANumberAndAPageShowsThePageInTheRoomViewer)
{
    runVisibleInstallation();
    system.arguments = u"1 /home/jane/room one.html";
    Main(session);
    const auto room = std::dynamic_pointer_cast<frmRoom>(session.forms.find(frmRoom::formName));
    ASSERT_NE(room, nullptr);
    EXPECT_EQ(room->strRoomPage(), u"/home/jane/room one.html");
    EXPECT_EQ(session.strRoomPage, u"/home/jane/room one.html");
}

TEST_F(Start, WithANumberAloneShowsNoPage)
{
    runVisibleInstallation();
    system.arguments = u"  1  ";
    Main(session);
    EXPECT_EQ(session.forms.find(frmRoom::formName), nullptr);
    EXPECT_TRUE(watches(session));
}

TEST_F(Start, ReportsACommandLineWhoseFirstWordIsNoNumber)
{
    for (const TextView arguments : {u"hello", u"hello /home/jane/room.html"}) {
        runVisibleInstallation();
        toolkit.messages.clear();
        system.arguments = arguments;
        Session other{services()};
        EXPECT_THROW(Main(other), ProgramEnded);
        const Text& report = toolkit.messages.at(0).text;
        EXPECT_TRUE(report.starts_with(u"There has been an error in this application. ")) << toUtf8(report);
        EXPECT_NE(report.find(u"Type mismatch\r\n#13\r\n"), Text::npos);
        EXPECT_NE(report.find(u"Sub routine : Main \r\n"), Text::npos);
    }
}

TEST_F(Start, ReportsACommandLineWhoseNumberIsTooLarge)
{
    runVisibleInstallation();
    system.arguments = u"32768 /home/jane/room.html";
    EXPECT_THROW(Main(session), ProgramEnded);
    EXPECT_NE(toolkit.messages.at(0).text.find(u"Overflow\r\n#6\r\n"), Text::npos);
}

TEST_F(Start, LeavesSilentlyWhenAnotherInstanceRunsAndThereAreNoArguments)
{
    runVisibleInstallation();
    processes.previousInstance = true;
    processes.running = {{77, u"RFBookingInfo.exe"}};
    Main(session);
    EXPECT_EQ(session.forms.count(), 0U);
    EXPECT_TRUE(processes.terminated.empty());
    EXPECT_TRUE(classes.asked.empty());
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Start, LeavesSilentlyWhenAnotherInstanceRunsAndThereIsANumberAlone)
{
    runVisibleInstallation();
    processes.previousInstance = true;
    system.arguments = u" 1 ";
    Main(session);
    EXPECT_EQ(session.forms.count(), 0U);
    EXPECT_TRUE(processes.terminated.empty());
}

TEST_F(Start, WithArgumentsReplacesTheRunningInstance)
{
    runVisibleInstallation();
    processes.previousInstance = true;
    processes.running = {{4, u"init"}, {77, u"RFBookingInfo.exe"}, {78, u"RFBOOKINGINFO.EXE"}};
    system.arguments = u"1 /home/jane/room.html";
    Main(session);
    EXPECT_EQ(processes.terminated, (std::vector<std::uint32_t>{77}));
    EXPECT_TRUE(watches(session));
    EXPECT_NE(session.forms.find(frmRoom::formName), nullptr);
}

TEST_F(Start, SpeaksTheSystemsLanguage)
{
    runVisibleInstallation();
    const PatternRegional german{germanSettings()};
    Session germanSession{{german, clock, classes, system, processes, toolkit}};
    Main(germanSession);
    EXPECT_EQ(germanSession.language.phrases().LNGADD, u"Hinzufügen");
}

/// Whenever a person opens a new appointment while the program starts: once it listens to the host's windows, the bar
/// is whole in the end.
TEST_F(Start, GivesAWindowThatOpensMeanwhileItsWholeBar)
{
    int whole = 0;
    bool struck = true;
    for (int use = 1; struck; ++use) {
        runVisibleInstallation();
        writeProjects();
        std::shared_ptr<host::Inspector> window;
        const auto fault = std::make_shared<test::Fault>();
        *fault = {.failingUse = use, .instead = [&] { window = openAppointment(); }};
        classes.runningObjects[Text{outlook::applicationClass}]
            = test::FaultyDispatch::wrap(automation::Object{host}, fault);
        Session other{services()};
        Main(other);
        struck = window != nullptr;
        const auto bar = struck ? window->commandBars().find(productCaption) : nullptr;
        if (bar == nullptr)
            continue;
        SCOPED_TRACE("opened at the use " + std::to_string(use));
        const auto& controls = bar->controls().all();
        ASSERT_EQ(controls.size(), 2U);
        EXPECT_EQ(controls.front()->caption(), u"Booking info");
        EXPECT_EQ(controls.back()->caption(), u"Project no.");
        EXPECT_EQ(controls.back()->list(), (std::vector<Text>{u"Alpha", u"Beta"}));
        ++whole;
    }
    EXPECT_GT(whole, 100) << "the settings alone are read in more calls";
}

/// Whichever call of the start the host fails at, the program either watches, as though nothing had happened, or it has
/// ended and left nothing behind: with its report, or without a word where it can no longer see the host on the screen.
TEST_F(Start, SurvivesAHostThatFailsAtAnyOneCall)
{
    bool struck = true;
    int reports = 0;
    int watching = 0;
    for (int use = 1; struck; ++use) {
        runVisibleInstallation();
        const auto fault = std::make_shared<test::Fault>(test::Fault{0, use});
        classes.runningObjects[Text{outlook::applicationClass}]
            = test::FaultyDispatch::wrap(automation::Object{host}, fault);
        toolkit.messages.clear();
        Session other{services()};
        try {
            Main(other);
            EXPECT_TRUE(watches(other)) << "at use " << use;
            // A description that could not be made is told, and nothing else is.
            EXPECT_TRUE(toolkit.messages.empty()
                || toolkit.messages.at(0).text.starts_with(u"Failed to save the folder description"))
                << "at use " << use;
            ++watching;
        } catch (const ProgramEnded&) {
            EXPECT_LE(toolkit.messages.size(), 1U) << "at use " << use;
            EXPECT_EQ(other.forms.count(), 0U) << "at use " << use;
            EXPECT_FALSE(other.ouaApp) << "at use " << use;
            reports += static_cast<int>(toolkit.messages.size());
        }
        struck = fault->uses >= use;
    }
    EXPECT_GT(reports, 0);
    EXPECT_GT(watching, 1);
}

} // namespace
} // namespace rf
