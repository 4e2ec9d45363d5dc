#include "linux/demo/programme.h"

#include "sqlite_fixture.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace rf::demo {
namespace {

struct DemoProgramme : testing::Test {
    host::test::TemporaryFolder folder;

    [[nodiscard]] Programme read(const std::string& events) const
    {
        const auto file = folder.file("calendar.ics");
        host::test::writeBytes(
            file, "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\n" + events + "END:VCALENDAR\r\n");
        return readProgramme(std::vector{file});
    }

    static std::string event(const std::string& lines)
    {
        return "BEGIN:VEVENT\r\nUID:1\r\nDTSTART:20240203T103000\r\nDTEND:20240203T113000\r\n" + lines
            + "END:VEVENT\r\n";
    }
};

TEST_F(DemoProgramme, TakesRoomProjectSubjectAndTime)
{
    const auto talks = read(event("SUMMARY:Opening\r\nLOCATION:Janson\r\nCATEGORIES:Keynotes\r\n")).talks;
    ASSERT_EQ(talks.size(), 1U);
    EXPECT_EQ(talks.front(), (Talk{u"Janson", u"Keynotes", u"Opening", Date::fromFields({2024, 2, 3, 10, 30, 0}), 60}));
}

TEST_F(DemoProgramme, PutsATalkWithoutALocationIntoARoomOfThatName)
{
    EXPECT_EQ(read(event("SUMMARY:Opening\r\n")).talks.front().room, u"No location");
}

TEST_F(DemoProgramme, MakesRoomNamesThatPathsAndListsCanHold)
{
    EXPECT_EQ(read(event("LOCATION: Hall\\\\1\\nup stairs \r\n")).talks.front().room, u"Hall/1 up stairs");
}

TEST_F(DemoProgramme, MakesProjectNamesThatTheListOfProjectsCanHold)
{
    EXPECT_EQ(read(event("CATEGORIES:Java\\; Kotlin\r\n")).talks.front().project, u"Java, Kotlin");
}

TEST_F(DemoProgramme, TakesTheFirstOccurrenceOfASeriesAndSaysSo)
{
    const auto programme = read(event("SUMMARY:Daily\r\nRRULE:FREQ=DAILY;COUNT=3\r\n"));
    EXPECT_EQ(programme.talks.size(), 1U);
    ASSERT_EQ(programme.problems.size(), 1U);
    EXPECT_NE(programme.problems.front().find("first occurrence"), std::string::npos);
}

TEST_F(DemoProgramme, NamesEachRoomAndProjectOnce)
{
    const auto talks = read(
        event("LOCATION:B\r\nCATEGORIES:x\r\n") + event("LOCATION:A\r\n") + event("LOCATION:b\r\nCATEGORIES:X\r\n"))
                           .talks;
    EXPECT_EQ(roomsOf(talks), (std::vector<Text>{u"B", u"A"}));
    EXPECT_EQ(projectsOf(talks), (std::vector<Text>{u"x"}));
}

TEST_F(DemoProgramme, RefusesAFileThatCannotBeRead)
{
    EXPECT_THROW(static_cast<void>(readProgramme(std::vector{folder.path() / "none.ics"})), std::runtime_error);
}

TEST(DemoWeeks, LieBetweenTheMondaysAroundTheTalks)
{
    const std::vector talks{Talk{u"A", u"", u"", Date::fromFields({2024, 2, 4, 23, 0, 0}), 120},
        Talk{u"A", u"", u"", Date::fromFields({2024, 1, 31, 9, 0, 0}), 60}};
    const Weeks weeks = weeksOf(talks);
    EXPECT_EQ(weeks.from, Date::fromFields({2024, 1, 29, 0, 0, 0}));
    EXPECT_EQ(weeks.to, Date::fromFields({2024, 2, 12, 0, 0, 0}));
}

TEST(DemoWeeks, OfASingleMondayAreItsWeek)
{
    const std::vector talks{Talk{u"A", u"", u"", Date::fromFields({2024, 1, 29, 0, 0, 0}), 60}};
    EXPECT_EQ(weeksOf(talks).from, Date::fromFields({2024, 1, 29, 0, 0, 0}));
    EXPECT_EQ(weeksOf(talks).to, Date::fromFields({2024, 2, 5, 0, 0, 0}));
}

} // namespace
} // namespace rf::demo
