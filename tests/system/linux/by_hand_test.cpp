#include "hands_fixture.h"

#include "basic/clock.h"
#include "host/store/store_fixture.h"

namespace rf::test {
namespace {

using namespace std::chrono_literals;

constexpr const char* doubleBooking = "No double-bookings are allowed in this calendar. Please select another time!";

constexpr QPoint onTheCircle{8, 8};

/// A person at work with two rooms, whose own calendar is shown first.
class BookingByHand : public ByHand {
protected:
    void SetUp() override
    {
        ByHand::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        makeRooms({u"Room 1", u"Room 2"});
        giveSettings();
        serveWithWindows({"--show", "Mailbox - Jane Doe/Calendar"});
    }

    /// Shows the root folder, which starts the program, and the calendar of a room.
    void openRoom()
    {
        atHost.clickEntry("explorer", "folders", "Roomfold");
        atHost.clickEntry("explorer", "calendars", "Room 1");
        atHost.click("explorer", "Day");
        ASSERT_TRUE(within(30s, [&] { return atProgram.isThere(); }));
    }
    void beginBooking(const QString& subject, int hour)
    {
        atHost.clickAt("explorer", "hours", placeOf(hour) + QPoint{0, 3});
        openNewAppointment();
        atHost.write("inspector", "subject", subject);
        atHost.choose("inspector", "Projects", "New building");
    }
    void order(int row, const QString& quantity)
    {
        atProgram.clickCell({}, "exsOrders", row, 2);
        atProgram.type(quantity);
        atProgram.press("Return");
    }
    [[nodiscard]] bool showsTotal(const QString& total)
    {
        return atProgram.sees({}, "lblSum", [&](const QJsonObject& seen) { return seen["text"] == total; });
    }
    /// Answers the question that the host shows.
    void answer(const QString& message, const QString& button)
    {
        ASSERT_TRUE(atHost.sees("alert"));
        EXPECT_EQ(atHost.textOf("alert").toStdString(), message.toStdString());
        picture(atHost, "alert", message == doubleBooking ? "refusal" : "mandatory-values");
        atHost.click("alert", button);
        ASSERT_TRUE(atHost.misses("alert"));
    }

    static Date today(int hour)
    {
        constexpr long long minutesAnHour = 60;
        const auto now = SystemClock{}.now().fields();
        const auto midnight = Date::fromFields({.year = now.year, .month = now.month, .day = now.day});
        return midnight.plusMinutes(hour * minutesAnHour);
    }
    /// What somebody else puts into a room; the program that watches it makes a booking of it.
    void drop(const Text& subject, int hour) const
    {
        host::SqliteStore elsewhere{folder.file("store.db")};
        auto item
            = host::test::appointment(host::folderAt(elsewhere, room1)->id, subject, today(hour), today(hour + 1));
        item.categories = u"Annual report";
        elsewhere.save(item);
    }
    /// Drops entries behind the day that is shown until the program makes a booking of one.
    [[nodiscard]] bool isWatched()
    {
        constexpr int hoursADay = 24;
        const int before = dropped_;
        const auto subjectOf = [](int number) { return u"Dropped " + decimal(number); };
        const auto isBooked = [&](int number) {
            const auto item = itemIn(room1, subjectOf(number));
            return item && !propertyOf(*item, u"SafeOrganizer").empty();
        };
        const auto isOneBooked = [&] {
            for (int number = before + 1; number <= dropped_; ++number)
                if (isBooked(number))
                    return true;
            return false;
        };
        return within(30s, [&] {
            ++dropped_;
            drop(subjectOf(dropped_), dropped_ * hoursADay);
            return within(500ms, isOneBooked);
        });
    }
    [[nodiscard]] bool isAt(TextView path, TextView subject, int hour) const
    {
        const auto item = itemIn(path, subject);
        return item && item->start.seconds() == today(hour).seconds();
    }
    [[nodiscard]] bool isWithCopiesAt(const Text& subject, int hour) const
    {
        return within(10s, [&] {
            return isAt(room1, subject, hour) && isAt(personalPath, subject, hour)
                && isAt(masterPath, u"FR: " + subject, hour);
        });
    }
    [[nodiscard]] bool showsAt(int hour, const QString& subject)
    {
        return within(5s, [&] {
            atHost.clickAt("explorer", "hours", placeOf(hour + 0.25));
            return atHost.look("explorer", "hours")["told"].toString().contains(subject);
        });
    }

private:
    /// How many entries were dropped.
    int dropped_ = 0;
};

TEST_F(BookingByHand, IsMadeWithItsOrderAndBothCopies)
{
    openRoom();
    beginBooking("Board meeting", 9);
    ASSERT_NO_FATAL_FAILURE(openOrdersForm());
    EXPECT_EQ(atProgram.textOf({}, "txtBooker"), "Jane Doe");
    order(1, "3");
    order(2, "2");
    EXPECT_TRUE(showsTotal("£11.50")) << atProgram.textOf({}, "lblSum").toStdString();
    picture(atHost, "inspector", "booking-bar");
    atProgram.clickAt({}, "optPlaceSetting3", onTheCircle);
    atProgram.write({}, "txtOrderComment", "Coffee at ten");
    atProgram.click({}, "cmdOK");
    // The order costs something, and nobody is to pay for it yet.
    answer("All mandatory values are not filled out!", "OK");
    atProgram.write({}, "txtCC1", "4711");
    picture(atProgram, {}, "orders-form");
    atProgram.click({}, "cmdOK");
    ASSERT_TRUE(atProgram.misses({}, "cmdOK"));
    atHost.click("inspector", "Save and Close");
    ASSERT_TRUE(atHost.misses("inspector"));

    ASSERT_TRUE(isWithCopiesAt(u"Board meeting", 9));
    const auto booking = itemIn(room1, u"Board meeting");
    EXPECT_EQ(booking->categories, u"New building");
    EXPECT_EQ(propertyOf(*booking, u"SafeOrganizer"), u"Jane Doe");
    EXPECT_EQ(propertyOf(*booking, u"PlaceSetting"), u"U shape");
    EXPECT_EQ(propertyOf(*booking, u"OrderComment"), u"Coffee at ten");
    EXPECT_EQ(propertyOf(*booking, u"CostCenter"), u"4711");
    EXPECT_EQ(propertyOf(*booking, u"strOrders0"), u"Coffee\t3\r\nTea\t2\r\n");
    EXPECT_TRUE(propertyOf(*booking, u"OCID").ends_with(u"_Jane Doe"));
}

TEST_F(BookingByHand, IsRefusedOnATakenSlotAndThePersonDecides)
{
    drop(u"Board meeting", 9);
    openRoom();
    beginBooking("Second", 9);
    atHost.click("inspector", "Save and Close");
    answer(doubleBooking, "OK");
    EXPECT_EQ(atHost.textOf("inspector", "subject"), "Second");
    EXPECT_FALSE(itemIn(room1, u"Second"));
    atHost.click("inspector", "Save");
    answer(doubleBooking, "Cancel");
    EXPECT_TRUE(atHost.misses("inspector"));
    EXPECT_FALSE(itemIn(room1, u"Second"));
    EXPECT_TRUE(itemIn(room1, u"Board meeting"));
}

TEST_F(BookingByHand, IsPutBackFromATakenSlotAndItsCopiesFollowItToAFreeOne)
{
    openRoom();
    ASSERT_TRUE(isWatched());
    drop(u"Board meeting", 9);
    drop(u"Review", 11);
    ASSERT_TRUE(isWithCopiesAt(u"Board meeting", 9));
    ASSERT_TRUE(isWithCopiesAt(u"Review", 11));
    ASSERT_TRUE(showsAt(9, "Board meeting"));
    atHost.drag("explorer", "hours", placeOf(9.25), placeOf(11.25));
    ASSERT_TRUE(showsAt(9, "Board meeting")) << "the refused move stays";
    atHost.drag("explorer", "hours", placeOf(9.25), placeOf(14.25));
    EXPECT_TRUE(isWithCopiesAt(u"Board meeting", 14));
    EXPECT_TRUE(isAt(room1, u"Review", 11));
    EXPECT_TRUE(showsAt(14, "Board meeting"));
}

TEST_F(BookingByHand, TicksDecideWhatIsWatched)
{
    openRoom();
    ASSERT_TRUE(isWatched());
    const auto selection = [&] { return host::test::bytesOf(folder.file("RFSel.txt")); };
    EXPECT_TRUE(within(5s, [&] { return selection() == "Room 1\r\nRoom 2\r\n"; }));
    atHost.clickEntry("explorer", "calendars", "Room 1");
    atHost.press("Space");
    EXPECT_TRUE(within(5s, [&] { return selection() == "Room 2\r\n"; }));
    atHost.press("Space");
    EXPECT_TRUE(within(5s, [&] { return selection() == "Room 1\r\nRoom 2\r\n"; }));
}

TEST_F(BookingByHand, EndsWithAnotherFolderAndBeginsAgainWithTheRoot)
{
    openRoom();
    openNewAppointment();
    const auto first = programs();
    ASSERT_EQ(first.size(), 1U);
    // It looks at the explorer last of all.
    ASSERT_TRUE(isWatched());
    atHost.press("Escape");
    ASSERT_TRUE(atHost.misses("inspector"));
    atHost.clickEntry("explorer", "folders", "Inbox");
    EXPECT_TRUE(within(5s, [&] { return programs().empty(); }));
    openRoom();
    openNewAppointment();
    EXPECT_NE(programs(), first);
    ASSERT_TRUE(isWatched());
    atHost.close("inspector");
    ASSERT_TRUE(atHost.misses("inspector"));
    atHost.close("explorer");
    EXPECT_TRUE(within(5s, [&] { return programs().empty(); }));
    EXPECT_EQ(host->waitForEnd(5s), 0);
}

TEST_F(BookingByHand, DoesNotKeepAHostThatIsToldToEnd)
{
    openRoom();
    beginBooking("Lecture", 9);
    expectHostToEndWhenTold();
}

TEST_F(BookingByHand, DoesNotKeepAHostThatIsToldToEndWhileItAsksWhetherToSave)
{
    openRoom();
    beginBooking("Lecture", 9);
    atHost.close("inspector");
    ASSERT_TRUE(atHost.sees("askToSave"));
    expectHostToEndWhenTold();
}

TEST_F(BookingByHand, GoesWithAHostThatIsKilledWhileTheOrdersFormIsOpen)
{
    openRoom();
    beginBooking("Board meeting", 9);
    ASSERT_NO_FATAL_FAILURE(openOrdersForm());
    order(1, "3");
    host->end();
    EXPECT_TRUE(within(5s, [&] { return programs().empty(); }));
    EXPECT_FALSE(itemIn(room1, u"Board meeting"));
}

/// An installation in which nobody has added a room yet.
using FirstRoom = ByHand;

TEST_F(FirstRoom, IsAddedInTheDialogAndStandsOnTheHomePage)
{
    serveWithWindows();
    ASSERT_TRUE(atProgram.sees("Roomfold for Outlook Booking Info"));
    picture(atProgram, "Roomfold for Outlook Booking Info", "no-room");
    atProgram.click("Roomfold for Outlook Booking Info", "Yes");
    ASSERT_TRUE(atProgram.sees({}, "txtResourceName"));
    atProgram.write({}, "txtResourceName", "Room 1");
    picture(atProgram, {}, "add-resource");
    atProgram.click({}, "cmdOK");
    EXPECT_TRUE(atProgram.misses({}, "txtResourceName"));
    EXPECT_TRUE(atHost.sees("explorer", "calendars",
        [](const QJsonObject& seen) { return seen["rows"].toArray().first()["text"] == "Room 1"; }));
    openNewAppointment();
}

TEST_F(FirstRoom, IsAskedForNoLongerWhenTheHostQuits)
{
    serveWithWindows();
    ASSERT_TRUE(atProgram.sees("Roomfold for Outlook Booking Info"));
    expectHostToEndWhenTold();
}

TEST_F(FirstRoom, IsAskedForNoLongerWhenTheHostIsKilled)
{
    serveWithWindows();
    ASSERT_TRUE(atProgram.sees("Roomfold for Outlook Booking Info"));
    host->end();
    EXPECT_TRUE(within(5s, [&] { return programs().empty(); }));
}

TEST_F(FirstRoom, IsLeftOutWhenThePersonDeclinesAndTheProgramEnds)
{
    serveWithWindows();
    ASSERT_TRUE(atProgram.sees("Roomfold for Outlook Booking Info"));
    atProgram.click("Roomfold for Outlook Booking Info", "No");
    EXPECT_TRUE(within(5s, [&] { return programs().empty(); }));
}

} // namespace
} // namespace rf::test
