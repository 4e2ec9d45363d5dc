#include "installation_fixture.h"

#include "expected_bookings.h"

#include <algorithm>
#include <atomic>
#include <random>
#include <set>

namespace rf::test {
namespace {

using namespace std::chrono_literals;
using host::ItemRecord;

void expectIn(const std::string& output, const std::string& text)
{
    EXPECT_NE(output.find(text), std::string::npos) << "\"" << text << "\" is not in:\n" << output;
}

/// Talks of the conference of 2024. Two of its rooms have 63 of them, among them those that overlap.
std::string talksOf(const std::vector<PlainEvent>& events, const std::set<std::string>& rooms)
{
    std::string blocks;
    for (const PlainEvent& event : events)
        if (rooms.empty() || rooms.contains(event.value("LOCATION")))
            blocks += event.block;
    return blocks;
}

std::string event(
    const std::string& room, const std::string& subject, const std::string& times, const std::string& project = "Alpha")
{
    const std::string start = times.substr(0, times.find('-'));
    const std::string end = times.substr(times.find('-') + 1);
    return "BEGIN:VEVENT\r\nUID:" + subject + "\r\nDTSTART:20240205T" + start + "00\r\nDTEND:20240205T" + end
        + "00\r\nSUMMARY:" + subject + "\r\nLOCATION:" + room + "\r\n"
        + (project.empty() ? "" : "CATEGORIES:" + project + "\r\n") + "END:VEVENT\r\n";
}

Text propertyOf(const ItemRecord& item, TextView name)
{
    const auto found = std::ranges::find(item.userProperties, name, &host::UserPropertyRecord::name);
    return found == item.userProperties.end() ? Text{} : found->value.text();
}

/// Everything that a run leaves of its talks, without what differs between two runs.
std::multiset<std::string> contentsOf(const std::vector<ItemRecord>& items)
{
    std::multiset<std::string> contents;
    for (const ItemRecord& item : items)
        contents.insert(toUtf8(item.subject + u"|" + item.categories + u"|" + item.location + u"|"
            + decimal(item.start.seconds()) + u"|" + decimal(item.end.seconds())));
    return contents;
}

/// A demonstration beside the real host and the real program.
class DemoRun : public Installed {
protected:
    [[nodiscard]] std::vector<std::string> demoWords(
        const std::filesystem::path& calendar, const std::vector<std::string>& more = {"--deliver-only"}) const
    {
        std::vector<std::string> words{RF_DEMO_PROGRAM, "--pictures", folder.path()};
        words.insert(words.end(), more.begin(), more.end());
        words.push_back(calendar);
        return words;
    }

    /// As many bookings as expected, each with its organizer, one personal and one master copy.
    static void expectBooked(const host::Store& store, std::size_t count)
    {
        const auto bookings = itemsOfRooms(store);
        EXPECT_EQ(bookings.size(), count);
        std::map<Text, int> copies;
        for (const TextView path : {personalPath, masterPath})
            for (const ItemRecord& copy : itemsIn(store, path))
                ++copies[propertyOf(copy, u"OCID")];
        EXPECT_EQ(copies.size(), count);
        for (const ItemRecord& booking : bookings) {
            EXPECT_EQ(propertyOf(booking, u"SafeOrganizer"), u"Jane Doe") << toUtf8(booking.subject);
            EXPECT_EQ(copies[propertyOf(booking, u"OCID")], 2) << toUtf8(booking.subject);
        }
    }

    std::vector<PlainEvent> conference = plainEvents(textOfFile(RF_TEST_DATA "/conference-2024.ics"));
};

/// The whole conference in the slow run, a few rooms of it in the quick one.
TEST_F(DemoRun, BooksWhatTheRulesAllowAndHoldsTheRest)
{
    const std::set<std::string> rooms
        = slowTests() ? std::set<std::string>{} : std::set<std::string>{"UB4.136", "J.1.106"};
    const std::string blocks = talksOf(conference, rooms);
    const auto events = plainEvents(blocks);
    const Expected expected = expectedOf(events);
    ASSERT_GT(expected.held, 0U);
    serveDemonstration();
    const auto [status, output] = outputOf(demoWords(writeCalendar(blocks)), 600s);
    EXPECT_EQ(status, 0) << output;
    EXPECT_EQ(expected.accepted + expected.held, events.size());
    expectIn(output, "Accepted        " + std::to_string(expected.accepted) + " bookings");
    expectIn(output, "Held back       " + std::to_string(expected.held) + "\n  UB4.136, ");
    expectIn(output, "collides with ");
    expectBooked(store(), expected.accepted);
}

TEST_F(DemoRun, TellsWhyATalkIsHeldBackAndWithWhatItCollides)
{
    serveDemonstration();
    const auto calendar
        = writeCalendar(event("Room 1", "First; and last", "0900-1000") + event("Room 1", "Second", "0930-1030")
            + event("Room 1", "Third", "1000-1100") + event("Room 2", "Without a project", "0900-1000", ""));
    const auto [status, output] = outputOf(demoWords(calendar));
    EXPECT_EQ(status, 0) << output;
    expectIn(output,
        "  Room 1, Mon 5 Feb 09:30 - 10:30  Second\n    No double-bookings are allowed in this calendar. "
        "Please select another time!\n    collides with First; and last (09:00 - 10:00)\n");
    expectIn(output, "  Room 2, Mon 5 Feb 09:00 - 10:00  Without a project\n    Project mandatory\n");
    expectBooked(store(), 2);
}

TEST_F(DemoRun, GoesOnWithWhatAnEarlierRunHasBooked)
{
    serveDemonstration();
    const std::string first = event("Room 1", "First", "0900-1000");
    EXPECT_EQ(outputOf(demoWords(writeCalendar(first))).first, 0);
    const auto [status, output]
        = outputOf(demoWords(writeCalendar(first + event("Room 2", "Second", "0900-1000", "Beta"))));
    EXPECT_EQ(status, 0) << output;
    expectIn(output, "Known           1 talks");
    expectIn(output, "Accepted        1 bookings");
    expectBooked(store(), 2);
}

TEST_F(DemoRun, GivesTheSameUnderADayFirstAndAMonthFirstLocale)
{
    // The fifth of February is the second of May to who reads it the other way round.
    const auto calendar = writeCalendar(slowTests() ? talksOf(conference, {"UB4.136"})
                                                    : event("Room 1", "First", "0900-1000")
                + event("Room 1", "Second", "0930-1030") + event("Room 1", "Third", "1300-1430"));
    std::vector<std::multiset<std::string>> contents;
    for (const char* const locale : {"de_DE.UTF-8", "en_US.UTF-8"}) {
        const EnvironmentVariable language{"LC_ALL", locale};
        const EnvironmentVariable own{"RFHOST_STORE", folder.file(locale)};
        ASSERT_EQ(run({RF_HOST_PROGRAM, "init", person}), 0);
        serveDemonstration();
        ASSERT_EQ(outputOf(demoWords(calendar)).first, 0);
        host->terminate();
        ASSERT_EQ(host->waitForEnd(5s), 0);
        const host::SqliteStore store{folder.file(locale), host::Opening::Existing};
        contents.push_back(contentsOf(itemsOfRooms(store)));
    }
    EXPECT_FALSE(contents[0].empty());
    EXPECT_EQ(contents[0], contents[1]);
}

/// However often the program is killed while it works, each talk is booked once in the end, and the run names those
/// that it was at work on.
TEST_F(DemoRun, LosesAndDoublesNothingWhenTheProgramIsKilled)
{
    const int kills = slowTests() ? 30 : 3;
    const std::string blocks = slowTests() ? talksOf(conference, {}) : talksOf(conference, {"UB4.136", "J.1.106"});
    const Expected expected = expectedOf(plainEvents(blocks));
    serveDemonstration();
    std::atomic<bool> isOver = false;
    std::atomic<int> killed = 0;
    std::thread killer{[&] {
        std::mt19937 random{20240203};
        std::uniform_int_distribution<int> milliseconds{300, 3000};
        while (killed < kills && !isOver) {
            std::this_thread::sleep_for(std::chrono::milliseconds{milliseconds(random)});
            for (const pid_t id : programs())
                killed += kill(id, SIGKILL) == 0 ? 1 : 0;
        }
    }};
    const auto [status, output] = outputOf(demoWords(writeCalendar(blocks)), 900s);
    isOver = true;
    killer.join();
    EXPECT_EQ(status, 0) << output;
    EXPECT_GT(killed, 0);
    expectBooked(store(), expected.accepted);
    if (slowTests())
        expectIn(output, "the program ended meanwhile and was started again; ");
    RecordProperty("kills", killed);
}

} // namespace
} // namespace rf::test
