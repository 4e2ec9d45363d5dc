#include "diagnostics/product.h"
#include "host/installation.h"
#include "outlook/application.h"
#include "outlook/appointment_item.h"

#include "dbus_fixture.h"
#include "host_program.h"

namespace rf::native {
namespace {

using namespace std::chrono_literals;

constexpr double february2024 = 45323;
constexpr double hour = 1.0 / 24;

/// The real host and the real program, and this process as the person in front of them, who speaks to the host as they
/// do. Nobody has a screen: alerts are declined, or agreed to where a test says so.
struct BookingProgram : HostProgram {
    const rf::test::EnvironmentVariable noPlatform{"QT_QPA_PLATFORM", ""};
    const rf::test::EnvironmentVariable noDisplay{"DISPLAY", ""};
    const rf::test::EnvironmentVariable noWayland{"WAYLAND_DISPLAY", ""};
    dbus::QtProcess process;
    std::unique_ptr<LinuxClassRegistry> classes;
    outlook::Application application;

    void TearDown() override
    {
        application = {};
        classes.reset();
        HostProgram::TearDown();
    }

    /// Puts the settings there that the program finds.
    void giveSettings(std::vector<rf::host::UserPropertyRecord> properties) const
    {
        rf::host::SqliteStore settings{folder.file("store.db")};
        rf::host::ItemRecord post;
        post.folder = rf::host::folderAt(settings, u"Public Folders\\All Public Folders\\Roomfold")->id;
        post.messageClass = u"IPM.Post";
        post.subject = u"Settings";
        post.userProperties = std::move(properties);
        settings.save(post);
    }
    void start(const std::vector<std::string>& options = {})
    {
        serve(options);
        classes = std::make_unique<LinuxClassRegistry>();
        ASSERT_TRUE(dbus::runUntil([&] {
            return dbus::errorOf([&] {
                return application = outlook::Application{classes->running(outlook::applicationClass)};
            }) == 0;
        }));
    }

    [[nodiscard]] outlook::Folder room() const
    {
        const auto publicFolders = application.getNamespace().folders().item(u"Public Folders").folders();
        return publicFolders.item(1).folders().item(u"Roomfold").folders().item(u"Room 1");
    }
    /// A new appointment of an hour.
    [[nodiscard]] static outlook::AppointmentItem newAppointment(
        const outlook::Folder& calendar, const Text& subject, int startHour)
    {
        auto item = calendar.items().add().as<outlook::AppointmentItem>();
        item.setSubject(subject);
        item.setStart(Date{february2024 + startHour * hour});
        item.setDuration(60);
        return item;
    }
    /// Drops appointments into a calendar, apart from all others, until the program makes a booking of one.
    [[nodiscard]] static bool isWatched(const outlook::Folder& calendar)
    {
        constexpr int hoursADay = 24;
        int tries = 0;
        return dbus::runUntil([&] {
            const Text subject = u"Dropped " + decimal(++tries);
            newAppointment(calendar, subject, tries * hoursADay).save();
            return dbus::runUntil([&] { return organizerOf(calendar, subject) == u"Jane Doe"; }, 1s);
        });
    }
    /// Starts both and waits until the program is set up.
    void startAndWait(const std::vector<std::string>& options = {})
    {
        start(options);
        ASSERT_TRUE(isWatched(room())) << "the program does not watch";
    }
    /// Opens the window of a new appointment.
    [[nodiscard]] outlook::Inspector open(const Text& subject, int startHour) const
    {
        newAppointment(room(), subject, startHour).display();
        return application.activeInspector();
    }
    [[nodiscard]] static outlook::CommandBar barOf(const outlook::Inspector& window)
    {
        return window.commandBars().item(productCaption);
    }
    [[nodiscard]] static bool hasBar(const outlook::Inspector& window)
    {
        return dbus::errorOf([&] { return barOf(window); }) == 0;
    }
    [[nodiscard]] static Text organizerOf(const outlook::Item& item)
    {
        const auto organizer = item.userProperties().find(u"SafeOrganizer");
        return organizer ? organizer.value().text() : Text{};
    }
    /// The organizer of what lies in a calendar under that subject; empty when nothing does.
    [[nodiscard]] static Text organizerOf(const outlook::Folder& calendar, const Text& subject)
    {
        const auto item = calendar.items().find(u"[Subject] = '" + subject + u"'");
        return item ? organizerOf(item) : Text{};
    }
};

TEST_F(BookingProgram, GivesANewAppointmentWindowItsBarAndItsItemAnOrganizer)
{
    startAndWait();
    const auto window = open(u"Board", 14);
    ASSERT_TRUE(hasBar(window));
    EXPECT_TRUE(barOf(window).visible());
    EXPECT_EQ(barOf(window).controls().item(1).caption(), u"Booking info");
    EXPECT_EQ(organizerOf(window.currentItem()), u"Jane Doe");
}

TEST_F(BookingProgram, SavesABookingWithItsLink)
{
    startAndWait();
    const auto item = open(u"Board", 14).currentItem();
    item.save();
    EXPECT_TRUE(item.saved());
    EXPECT_TRUE(item.userProperties().find(u"OCID").value().text().ends_with(u"_Jane Doe"));
}

TEST_F(BookingProgram, DeletesADoubleBookingThatThePersonCancels)
{
    startAndWait();
    open(u"First", 14).currentItem().save();
    const auto before = room().items().count();
    const auto second = open(u"Second", 14).currentItem();
    const auto windows = application.inspectors().count();
    second.save();
    EXPECT_EQ(room().items().count(), before);
    EXPECT_EQ(application.inspectors().count(), windows - 1);
    EXPECT_NE(dbus::errorOf([&] { return second.subject(); }), 0) << "the item is still there";
    EXPECT_FALSE(statusOfProgram());
}

TEST_F(BookingProgram, KeepsADoubleBookingOpenAndUnsavedOtherwise)
{
    startAndWait({"--accept-alerts"});
    open(u"First", 14).currentItem().save();
    const auto before = room().items().count();
    const auto second = open(u"Second", 14).currentItem().as<outlook::AppointmentItem>();
    const auto windows = application.inspectors().count();
    second.save();
    EXPECT_EQ(room().items().count(), before);
    EXPECT_EQ(application.inspectors().count(), windows);
    EXPECT_FALSE(second.saved());
    second.setStart(Date{february2024 + 16 * hour});
    second.save();
    EXPECT_TRUE(second.saved());
    EXPECT_EQ(room().items().count(), before + 1);
}

TEST_F(BookingProgram, MakesABookingOfWhatIsDroppedIntoASelectedCalendar)
{
    start();
    EXPECT_TRUE(isWatched(room()));
}

TEST_F(BookingProgram, WatchesAMailboxCalendarOnceItIsSelected)
{
    ASSERT_EQ(run({"init", "Rita Roe"}), 0);
    giveSettings({{u"Folders0", 1, Text{u"Rita Roe"}}, {u"FoldersCount", 3, 0.0}});
    startAndWait();
    const auto space = application.getNamespace();
    const auto calendar
        = space.getSharedDefaultFolder(space.createRecipient(u"Rita Roe"), outlook::DefaultFolder::Calendar);
    newAppointment(calendar, u"Too early", 9).save();
    host::test::writeBytes(folder.file("RFSel.txt"), "Room 1\r\nRita Roe\r\n");
    EXPECT_TRUE(isWatched(calendar));
    EXPECT_EQ(organizerOf(calendar, u"Too early"), u"");
}

TEST_F(BookingProgram, PutsTheTemplateIntoANewAppointmentAndOffersTheProjects)
{
    giveSettings({{u"strNewItemTemplate0", 1, Text{u"Agenda:"}}, {u"strNewItemTemplateCount", 3, 0.0},
        {u"strProjects0", 1, Text{u"Alpha;255\r\nBeta;128\r\n"}}, {u"strProjectsCount", 3, 0.0}});
    startAndWait();
    const auto window = open(u"Board", 14);
    ASSERT_TRUE(hasBar(window));
    const auto combo = barOf(window).controls().item(2).as<outlook::CommandBarComboBox>();
    EXPECT_EQ(combo.listCount(), 2);
    EXPECT_EQ(combo.list(2), u"Beta");
    EXPECT_TRUE(dbus::runUntil([&] { return window.currentItem().body() == u"Agenda:"; }, 10s));
}

TEST_F(BookingProgram, OpensTheOrdersFormAndClosesItWithItsWindow)
{
    giveSettings({{u"strSupply0", 1, Text{u"Coffee\t2\r\n"}}, {u"strSupplyCount", 3, 0.0}});
    startAndWait();
    const auto window = open(u"Board", 14);
    barOf(window).controls().item(1).execute();
    ASSERT_FALSE(statusOfProgram()) << "the program has ended";
    window.close(outlook::CloseMode::Discard);
    const auto another = open(u"Board", 14);
    ASSERT_TRUE(hasBar(another));
    another.currentItem().save();
    EXPECT_TRUE(another.currentItem().saved());
    EXPECT_FALSE(test::within(1s, [&] { return statusOfProgram().has_value(); })) << "the program has ended";
}

} // namespace
} // namespace rf::native
