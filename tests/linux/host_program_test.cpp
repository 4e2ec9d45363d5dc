#include "host/entry_id.h"
#include "host/installation.h"
#include "host/window_place.h"
#include "linux/rfhost/serve.h"
#include "outlook/application.h"
#include "outlook/appointment_item.h"
#include "outlook/events.h"

#include "dbus_fixture.h"
#include "host_program.h"

namespace rf::native {
namespace {

using dbus::Child;
using namespace std::chrono_literals;

TEST_F(HostProgram, WritesTheSelectionAndStartsTheProgramWhenTheRootFolderIsShown)
{
    serve();
    waitForProgram();
    EXPECT_EQ(host::test::bytesOf(folder.file("RFSel.txt")), "Room 1\r\n");
}

TEST_F(HostProgram, StartsNothingWhenAnotherFolderIsShown)
{
    serve({"--show", "Mailbox - Jane Doe/Calendar"});
    EXPECT_FALSE(test::within(2s, [&] { return program().has_value(); }));
    EXPECT_TRUE(host::test::bytesOf(folder.file("RFSel.txt")).empty());
}

TEST_F(HostProgram, EndsAndItsProgramWithIt)
{
    serve();
    waitForProgram();
    host->terminate();
    EXPECT_TRUE(test::within(2s, [&] { return statusOfProgram().has_value(); }));
    EXPECT_EQ(statusOfProgram(), 0);
    EXPECT_EQ(host->waitForEnd(2s), 0);
}

TEST_F(HostProgram, TakesItsProgramAlongWhenItIsKilled)
{
    serve();
    waitForProgram();
    host->end();
    EXPECT_TRUE(test::within(2s, [&] { return statusOfProgram().has_value(); }));
    EXPECT_EQ(statusOfProgram(), 0);
}

TEST_F(HostProgram, LosesItsProgramWithTheBus)
{
    serve();
    waitForProgram();
    bus.end();
    EXPECT_TRUE(test::within(4s, [&] { return statusOfProgram().has_value(); }));
    EXPECT_EQ(statusOfProgram(), 0);
    EXPECT_EQ(host->waitForEnd(4s), 1);
}

TEST_F(HostProgram, TellsWithinASecondOfWhatAnotherProcessSaves)
{
    const dbus::QtProcess process;
    host = std::make_unique<Child>(std::vector<std::string>{RF_HOST_PROGRAM, "serve", "--user", "Jane Doe"});
    LinuxClassRegistry classes;
    outlook::Application application;
    ASSERT_TRUE(dbus::runUntil([&] {
        return dbus::errorOf([&] {
            return application = outlook::Application{classes.running(outlook::applicationClass)};
        }) == 0;
    }));
    rf::host::SqliteStore elsewhere{folder.file("store.db")};
    const auto room = rf::host::folderAt(elsewhere, u"Public Folders\\All Public Folders\\Roomfold\\Room 1");
    ASSERT_TRUE(room);
    const auto items = application.getNamespace().getFolderFromId(rf::host::entryIdOf(room->id), {}).items();
    std::vector<Text> added;
    outlook::ItemsEvents handlers;
    handlers.itemAdd = [&](const outlook::Item& item) { added.push_back(item.subject()); };
    const auto connection = outlook::connect(items, handlers);
    rf::host::ItemRecord item = rf::host::test::appointment(room->id, u"dropped", Date{45000}, Date{45001});
    elsewhere.save(item);
    EXPECT_TRUE(dbus::runUntil([&] { return !added.empty(); }, std::chrono::seconds{1}));
    EXPECT_EQ(added, std::vector<Text>{u"dropped"});
}

TEST_F(HostProgram, HasWindowsWhenTheyAreAskedFor)
{
    const dbus::QtProcess process;
    host = std::make_unique<Child>(
        std::vector<std::string>{RF_HOST_PROGRAM, "serve", "--user", "Jane Doe", "--windows"});
    LinuxClassRegistry classes;
    outlook::Application application;
    ASSERT_TRUE(dbus::runUntil([&] {
        return dbus::errorOf([&] {
            return application = outlook::Application{classes.running(outlook::applicationClass)};
        }) == 0;
    }));
    const auto explorer = application.activeExplorer();
    const auto usual = explorer.width();
    explorer.setWidth(usual + 100);
    const auto appointment = application.createItem(outlook::ItemType::Appointment).as<outlook::AppointmentItem>();
    appointment.display();
    // A window of the screen has told its place; a host without one keeps the usual width of any window.
    EXPECT_GT(usual, rf::host::WindowPlace::usualWidth);
    EXPECT_EQ(explorer.width(), usual + 100);
    EXPECT_EQ(application.inspectors().count(), 1);
    host->terminate();
    EXPECT_EQ(host->waitForEnd(5s), 0);
}

TEST(WindowsOfTheHost, AreShownWhereThereIsAScreen)
{
    const rf::test::EnvironmentVariable display{"DISPLAY", ""};
    const rf::test::EnvironmentVariable wayland{"WAYLAND_DISPLAY", ""};
    const rf::test::EnvironmentVariable platform{"QT_QPA_PLATFORM", ""};
    EXPECT_FALSE(wantsWindows(false));
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        const rf::test::EnvironmentVariable screen{name, ":0"};
        EXPECT_TRUE(wantsWindows(false)) << name;
    }
}

TEST(WindowsOfTheHost, AreShownToNobodyOnlyWhenTheyAreAskedFor)
{
    const rf::test::EnvironmentVariable display{"DISPLAY", ":0"};
    for (const char* nobody : {"offscreen", "minimal"}) {
        const rf::test::EnvironmentVariable platform{"QT_QPA_PLATFORM", nobody};
        EXPECT_FALSE(wantsWindows(false)) << nobody;
        EXPECT_TRUE(wantsWindows(true)) << nobody;
    }
}

TEST_F(HostProgram, RefusesToServeABusThatIsServed)
{
    serve();
    ASSERT_TRUE(test::within(30s, [&] { return program().has_value(); }));
    EXPECT_EQ(run({"serve", "--user", "Jane Doe"}), 1);
}

} // namespace
} // namespace rf::native
