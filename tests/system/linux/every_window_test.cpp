#include "hands_fixture.h"

#include "basic/clock.h"
#include "host/store/store_fixture.h"

namespace rf::test {
namespace {

using namespace std::chrono_literals;

constexpr long long minutesAnHour = 60;
constexpr int hoursADay = 24;

/// Every window of the host and of the program, one after the other, as it comes before a person.
class EveryWindow : public ByHand {
protected:
    void expectWholeCaptions()
    {
        for (auto* const hands : {&atHost, &atProgram})
            if (hands->isThere())
                EXPECT_EQ(hands->clippedTexts(), std::vector<std::string>{});
    }
    void show(HandsOn& hands, const QString& window, const char* name)
    {
        SCOPED_TRACE(name);
        ASSERT_TRUE(hands.sees(window));
        expectWholeCaptions();
        picture(hands, window, name);
    }

    /// Midnight of the Monday of this week.
    static Date monday()
    {
        const auto now = SystemClock{}.now();
        const auto today = now.fields();
        const auto midnight = Date::fromFields({.year = today.year, .month = today.month, .day = today.day});
        const int behindMonday = (now.weekday() + 5) % 7;
        return midnight.plusMinutes(-behindMonday * hoursADay * minutesAnHour);
    }
    struct Entry {
        Text subject;
        int day = 0;
        double hour = 0;
        double hours = 0;
        Text project;
    };
    /// A week of a room that people use.
    void fillWeek(TextView calendar) const
    {
        host::SqliteStore made{folder.file("store.db")};
        const auto room = host::folderAt(made, calendar)->id;
        const std::vector<Entry> entries{{u"Stand-up", 0, 9, 0.5, u"New building"},
            {u"Budget review", 0, 10, 1.5, u"Annual report"}, {u"Customer visit", 1, 9, 3, u"New building"},
            {u"Stand-up", 2, 9, 0.5, u"New building"}, {u"Site plans", 2, 13, 2, u"New building"},
            {u"Design review", 2, 14, 2, u"New building"}, {u"Board meeting", 3, 10, 2, u"Annual report"},
            {u"Tasting", 4, 12, 1, u"Summer party"}, {u"Stand-up", 4, 9, 0.5, u"New building"},
            {u"Rehearsal", 5, 10, 4, u"Summer party"}, {u"Open day", 6, 11, 4, u"Summer party"},
            {u"Auditors", 8, 9, 7, u"Annual report"}, {u"Closing", -4, 15, 2, u"Annual report"}};
        for (const Entry& entry : entries) {
            const auto moment = [&](double hour) {
                return monday().plusMinutes(
                    static_cast<long long>((entry.day * hoursADay + hour) * static_cast<double>(minutesAnHour)));
            };
            auto item
                = host::test::appointment(room, entry.subject, moment(entry.hour), moment(entry.hour + entry.hours));
            item.categories = entry.project;
            made.save(item);
        }
        auto fair = host::test::appointment(room, u"Trade fair", monday().plusMinutes(hoursADay * minutesAnHour),
            monday().plusMinutes(3LL * hoursADay * minutesAnHour));
        fair.allDay = true;
        made.save(fair);
    }
    void describe(const Text& room, const Text& page) const
    {
        host::SqliteStore made{folder.file("store.db")};
        host::ItemRecord post;
        post.folder = host::folderAt(made, rootPath)->id;
        post.messageClass = u"IPM.Post";
        post.subject = room;
        post.userProperties = {{u"strHTMLDesc0", 1, page}, {u"strHTMLDescCount", 3, 0.0}};
        made.save(post);
    }
    /// The host with the person's own calendar in front, so that the program does not start.
    void serveOwnCalendar() { serveWithWindows({"--show", "Mailbox - Jane Doe/Calendar"}); }
    void openOwnAppointment(const QString& subject)
    {
        ASSERT_TRUE(atHost.sees("explorer", "Day"));
        atHost.click("explorer", "Day");
        atHost.clickAt("explorer", "hours", placeOf(9.25));
        atHost.click("explorer", "New");
        ASSERT_TRUE(atHost.sees("inspector", "subject"));
        atHost.write("inspector", "subject", subject);
    }
};

TEST_F(EveryWindow, OfTheCalendarShowsItsCaptionsWhole)
{
    makeRooms({u"Room 1", u"Small meeting room", u"Projector"});
    giveSettings();
    fillWeek(room1);
    serveWithWindows();
    ASSERT_TRUE(atHost.sees("explorer", "calendars"));
    atHost.clickEntry("explorer", "calendars", "Room 1");
    for (const auto& [button, name] : {std::pair{"Day", "home-page"}, {"Work Week", "work-week"}, {"Week", "week"},
             {"Month", "month"}, {"List", "list"}}) {
        atHost.click("explorer", button);
        ASSERT_TRUE(atHost.sees("explorer", button, [](const QJsonObject& seen) { return seen["isChosen"].toBool(); }));
        show(atHost, "explorer", name);
    }
}

TEST_F(EveryWindow, ThatAddsAResourceShowsItsCaptionsWhole)
{
    serveWithWindows();
    // The program asks for the first room as well; it may as well be added in the host.
    ASSERT_TRUE(atProgram.sees(bookingBar, "No"));
    atProgram.click(bookingBar, "No");
    ASSERT_TRUE(within(5s, [&] { return programs().empty(); }));
    atHost.click("explorer", "addResource");
    show(atHost, "Add a resource", "add-in-host");
    atHost.type("Room 1");
    atHost.press("Return");
    EXPECT_TRUE(
        atHost.sees("explorer", "calendars", [](const QJsonObject& seen) { return !seen["rows"].toArray().empty(); }));
}

TEST_F(EveryWindow, OfAnAppointmentShowsItsCaptionsWhole)
{
    fillWeek(personalPath);
    serveOwnCalendar();
    openOwnAppointment("Design review");
    show(atHost, "inspector", "appointment");
    atHost.press("Ctrl+Tab");
    ASSERT_TRUE(atHost.sees("inspector", "scheduling"));
    show(atHost, "inspector", "scheduling");
    atHost.press("Ctrl+Shift+Tab");
    atHost.click("inspector", "recur");
    show(atHost, "recurrenceDialog", "recurrence");
    atHost.press("Escape");
    ASSERT_TRUE(atHost.misses("recurrenceDialog"));
    atHost.close("inspector");
    show(atHost, "askToSave", "ask-to-save");
    atHost.press("Escape");
    ASSERT_TRUE(atHost.misses("askToSave"));
}

TEST_F(EveryWindow, OfASeriesAsksWhatToOpen)
{
    serveOwnCalendar();
    openOwnAppointment("Stand-up");
    atHost.click("inspector", "recur");
    ASSERT_TRUE(atHost.sees("recurrenceDialog"));
    atHost.press("Return");
    ASSERT_TRUE(atHost.misses("recurrenceDialog"));
    atHost.click("inspector", "Save and Close");
    ASSERT_TRUE(atHost.misses("inspector"));
    ASSERT_TRUE(within(5s, [&] {
        atHost.clickAt("explorer", "hours", placeOf(9.25));
        return atHost.look("explorer", "hours")["told"].toString().contains("Stand-up");
    }));
    atHost.doubleClickAt("explorer", "hours", placeOf(9.25));
    show(atHost, "seriesQuestion", "series-question");
    atHost.press("Escape");
    EXPECT_TRUE(atHost.misses("seriesQuestion"));
}

TEST_F(EveryWindow, OfAMessageShowsItsCaptionsWhole)
{
    {
        host::SqliteStore made{folder.file("store.db")};
        host::ItemRecord mail;
        mail.folder = host::folderAt(made, u"\\\\Mailbox - Jane Doe\\Drafts")->id;
        mail.messageClass = u"IPM.Note";
        mail.subject = u"Error in Roomfold for Outlook Booking Info";
        mail.to = u"support@roomfold.example";
        mail.body = u"There has been an error in this application.\r\n";
        mail.lastModificationTime = monday();
        made.save(mail);
    }
    serveOwnCalendar();
    atHost.clickEntry("explorer", "folders", "Drafts");
    ASSERT_TRUE(atHost.sees("explorer", "items"));
    show(atHost, "explorer", "items");
    atHost.clickEntry("explorer", "items", "Error in Roomfold for Outlook Booking Info");
    atHost.press("Return");
    ASSERT_TRUE(atHost.sees("inspector", "to"));
    show(atHost, "inspector", "message");
}

TEST_F(EveryWindow, ThatLooksForTheRootFolderShowsItsCaptionsWhole)
{
    makeRooms({u"Room 1"});
    giveSettings();
    serveOwnCalendar();
    ASSERT_TRUE(atHost.sees("explorer"));
    const Child program{{RF_PROGRAM}};
    ASSERT_TRUE(within(30s, [&] { return atProgram.isThere(); }));
    ASSERT_TRUE(atProgram.sees({}, "OK"));
    show(atProgram, {}, "choose-folder");
    atProgram.click({}, "OK");
    ASSERT_TRUE(atHost.sees("folderPicker"));
    atHost.clickEntry("folderPicker", "folders", "Roomfold");
    show(atHost, "folderPicker", "folder-picker");
    atHost.click("folderPicker", "OK");
    EXPECT_TRUE(atHost.misses("folderPicker"));
}

TEST_F(EveryWindow, OfARoomShowsItsPage)
{
    makeRooms({u"Room 1"});
    giveSettings();
    describe(u"Room 1",
        u"<h1>Large meeting room</h1><p>On the second floor, next to the <b>library</b>. Up to 24 people.</p>"
        u"<ul><li>projector and screen</li><li>two flip charts</li><li>telephone for conferences</li></ul>"
        u"<table border=1 cellpadding=4><tr><th>Seats</th><th>as</th></tr><tr><td>24</td><td>Theatre</td></tr>"
        u"<tr><td>12</td><td>U shape</td></tr></table>");
    serveWithWindows();
    ASSERT_TRUE(atHost.sees("explorer", "description"));
    atHost.click("explorer", "description");
    ASSERT_TRUE(atProgram.sees({}, "wb"));
    show(atProgram, {}, "room");
    EXPECT_TRUE(atProgram.textOf({}, "wb").contains("Up to 24 people."));
}

TEST_F(EveryWindow, OfABookingWithoutSuppliesShowsItsCaptionsWhole)
{
    makeRooms({u"Room 1"});
    giveSettings({.supplies = u""});
    serveWithWindows();
    ASSERT_TRUE(atHost.sees("explorer", "hours"));
    openNewAppointment();
    ASSERT_NO_FATAL_FAILURE(openOrdersForm());
    show(atProgram, {}, "orders-form-no-supplies");
}

/// Somebody removes the calendar while an order for it is made.
TEST_F(EveryWindow, OfAnErrorReportShowsItsCaptionsWhole)
{
    makeRooms({u"Room 1"});
    giveSettings();
    serveWithWindows();
    ASSERT_TRUE(atHost.sees("explorer", "hours"));
    openNewAppointment();
    ASSERT_NO_FATAL_FAILURE(openOrdersForm());
    {
        host::SqliteStore elsewhere{folder.file("store.db")};
        elsewhere.removeFolder(host::folderAt(elsewhere, room1)->id);
    }
    atProgram.click({}, "cmdOK");
    ASSERT_TRUE(atProgram.sees({}, "Yes"));
    show(atProgram, {}, "error-report");
    atProgram.click({}, "No");
    EXPECT_TRUE(within(5s, [&] { return programs().empty(); }));
}

} // namespace
} // namespace rf::test
