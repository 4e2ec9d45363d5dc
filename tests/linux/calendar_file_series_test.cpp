#include "linux/calendar_file_problems.h"
#include "linux/ical_support.h"

#include <gtest/gtest.h>

namespace rf::host::test {
namespace {

std::string eventOf(std::string_view lines) { return "BEGIN:VEVENT\n" + std::string{lines} + "END:VEVENT\n"; }

CalendarImport read(const std::string& events)
{
    return readCalendar("BEGIN:VCALENDAR\n" + events + "END:VCALENDAR\n");
}

class SeriesInFile : public ::testing::Test {
protected:
    ItemRecord only(const std::string& events)
    {
        const CalendarImport import = read(events);
        EXPECT_EQ(linesOf(import), Lines{}) << events;
        EXPECT_EQ(import.events.size(), 1U) << events;
        return import.events.empty() ? ItemRecord{} : import.events.front().item;
    }
    Starts all(const std::string& events) { return startsOf(only(events), "20240101", "20250101"); }

    const InZone newYork_{"America/New_York"};
    const std::string master_ = eventOf("UID:s\nSUMMARY:Series\nDTSTART;TZID=Europe/Brussels:20240304T090000\n"
                                        "DTEND;TZID=Europe/Brussels:20240304T100000\nRRULE:FREQ=WEEKLY;COUNT=3\n");
    const std::string moved_ = eventOf("UID:s\nRECURRENCE-ID;TZID=Europe/Brussels:20240311T090000\nSUMMARY:Moved\n"
                                       "LOCATION:Hall\nDTSTART;TZID=Europe/Brussels:20240312T110000\n"
                                       "DTEND;TZID=Europe/Brussels:20240312T120000\n");
};

TEST_F(SeriesInFile, KeepsItsZone)
{
    const ItemRecord item = only(master_);
    EXPECT_EQ(item.timeZone, u"Europe/Brussels");
    EXPECT_EQ(item.start, date("20240304T030000"));
    ASSERT_TRUE(item.recurrence);
    EXPECT_EQ(item.recurrence->rule, u"FREQ=WEEKLY;COUNT=3");
    EXPECT_EQ(item.recurrence->lastEnd, date("20240318T050000"));
    EXPECT_EQ(
        startsOf(item, "20240101", "20250101"), (Starts{"20240304T030000", "20240311T040000", "20240318T040000"}));
}

TEST_F(SeriesInFile, HasNoZoneWithoutOne)
{
    const ItemRecord item = only(eventOf("DTSTART:20240304T090000\nRRULE:FREQ=DAILY;COUNT=2\n"));
    EXPECT_EQ(item.timeZone, u"");
    EXPECT_EQ(item.start, date("20240304T090000"));
    EXPECT_EQ(only(eventOf("DTSTART:20240304T090000Z\nRRULE:FREQ=DAILY\n")).timeZone, u"Etc/UTC");
    EXPECT_EQ(only(eventOf("DTSTART;VALUE=DATE:20240304\nRRULE:FREQ=DAILY\n")).timeZone, u"");
}

TEST_F(SeriesInFile, EndsByTheClocksOfItsZone)
{
    const auto rule = [this](const std::string& lines) { return only(eventOf(lines)).recurrence->rule; };
    EXPECT_EQ(
        rule("DTSTART;TZID=Europe/Brussels:20240304T090000\nRRULE:FREQ=DAILY;UNTIL=20240401T070000Z;INTERVAL=2\n"),
        u"FREQ=DAILY;UNTIL=20240401T090000;INTERVAL=2");
    EXPECT_EQ(rule("DTSTART:20240304T090000\nRRULE:UNTIL=20240401T130000Z;FREQ=DAILY\n"),
        u"UNTIL=20240401T090000;FREQ=DAILY");
    EXPECT_EQ(
        rule("DTSTART;VALUE=DATE:20240304\nRRULE:FREQ=DAILY;UNTIL=20240401T000000Z\n"), u"FREQ=DAILY;UNTIL=20240401");
}

TEST_F(SeriesInFile, TakesItsChangesBeforeAndBehindIt)
{
    for (const std::string& text : {master_ + moved_, moved_ + master_}) {
        const ItemRecord item = only(text);
        ASSERT_EQ(item.recurrence->changes.size(), 1U);
        const OccurrenceChange& change = item.recurrence->changes.front();
        EXPECT_EQ(change.original, date("20240311T040000"));
        EXPECT_EQ(change.start, date("20240312T060000"));
        EXPECT_EQ(change.end, date("20240312T070000"));
        EXPECT_EQ(change.subject, u"Moved");
        EXPECT_EQ(change.location, u"Hall");
        EXPECT_EQ(
            startsOf(item, "20240101", "20250101"), (Starts{"20240304T030000", "20240312T060000*", "20240318T040000"}));
    }
}

TEST_F(SeriesInFile, IsToldItsOccurrencesInAnyForm)
{
    const std::string head = "UID:s\nDTSTART;TZID=Europe/Brussels:20240304T090000\nRRULE:FREQ=WEEKLY;COUNT=3\n";
    for (const char* const line : {"EXDATE;TZID=Europe/Brussels:20240311T090000\n", "EXDATE:20240311T080000Z\n",
             "EXDATE;VALUE=DATE:20240311\n", "EXDATE:20240311T040000\n", "EXDATE;TZID=Asia/Tokyo:20240311T170000\n"}) {
        EXPECT_EQ(all(eventOf(head + line)), (Starts{"20240304T030000", "20240318T040000"})) << line;
    }
    const std::string days = "DTSTART;VALUE=DATE:20240304\nRRULE:FREQ=DAILY;COUNT=3\n";
    for (const char* const line : {"EXDATE;VALUE=DATE:20240305\n", "EXDATE:20240305T000000\n"}) {
        EXPECT_EQ(all(eventOf(days + line)), (Starts{"20240304T000000", "20240306T000000"})) << line;
    }
}

TEST_F(SeriesInFile, LosesCancelledOccurrences)
{
    const std::string cancelled = eventOf("UID:s\nRECURRENCE-ID:20240311T080000Z\nSTATUS:CANCELLED\n");
    EXPECT_EQ(all(master_ + cancelled), (Starts{"20240304T030000", "20240318T040000"}));
    EXPECT_EQ(all(moved_ + master_ + cancelled), (Starts{"20240304T030000", "20240318T040000"}));
}

TEST_F(SeriesInFile, TakesFurtherStarts)
{
    EXPECT_EQ(all(eventOf("DTSTART:20240304T090000\nRDATE:20240401T100000,20240304T090000\nRDATE:20240402T100000\n")),
        (Starts{"20240304T090000", "20240401T100000", "20240402T100000"}));
    EXPECT_EQ(all(eventOf("DTSTART:20240304T090000\nRDATE;VALUE=PERIOD:20240401T100000/PT1H\n")),
        (Starts{"20240304T090000", "20240401T100000"}));
}

TEST_F(SeriesInFile, ThatIsMissingLeavesItsChangesAsSingleEvents)
{
    const ItemRecord item = only(moved_);
    EXPECT_FALSE(item.recurrence);
    EXPECT_EQ(item.subject, u"Moved");
    EXPECT_EQ(item.start, date("20240312T060000"));
    EXPECT_EQ(item.uid, u"s");
}

TEST_F(SeriesInFile, ThatIsCancelledTakesItsChangesAlong)
{
    const CalendarImport import
        = read(eventOf("UID:s\nSTATUS:CANCELLED\nDTSTART:20240304T090000\nRRULE:FREQ=DAILY\n") + moved_);
    EXPECT_TRUE(import.events.empty());
    EXPECT_EQ(linesOf(import), Lines{2});
}

TEST_F(SeriesInFile, NamesWhatItCannotFollow)
{
    const auto problems
        = [](const std::string& lines) { return linesOf(read(eventOf("DTSTART:20240304T090000\n" + lines))); };
    EXPECT_EQ(problems("RRULE:FREQ=OFTEN\n"), Lines{4});
    EXPECT_EQ(problems("RRULE:FREQ=DAILY\nRRULE:FREQ=WEEKLY\n"), Lines{5});
    EXPECT_EQ(problems("RRULE:FREQ=DAILY\nEXRULE:FREQ=WEEKLY\n"), Lines{5});
    EXPECT_EQ(problems("RRULE:FREQ=DAILY\nEXDATE:20240305T090000,never\n"), Lines{5});
    EXPECT_EQ(problems("RDATE:never\n"), Lines{4});
    EXPECT_EQ(problems("RECURRENCE-ID:never\n"), Lines{4});
    EXPECT_EQ(problems("RECURRENCE-ID;RANGE=THISANDFUTURE:20240304T090000\n"), Lines{4});
    EXPECT_FALSE(read(eventOf("DTSTART:20240304T090000\nRRULE:FREQ=OFTEN\n")).events.at(0).item.recurrence);
}

/// Clocks that are half an hour ahead of UTC in winter and two hours in summer, as nobody's are.
constexpr std::string_view ownZone = "BEGIN:VTIMEZONE\nTZID:Custom\n"
                                     "BEGIN:STANDARD\nDTSTART:19701025T030000\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0030\n"
                                     "RRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU\nEND:STANDARD\n"
                                     "BEGIN:DAYLIGHT\nDTSTART:19700329T020000\nTZOFFSETFROM:+0030\nTZOFFSETTO:+0200\n"
                                     "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\nEND:DAYLIGHT\nEND:VTIMEZONE\n";

TEST_F(SeriesInFile, FollowsAZoneThatTheTextDefines)
{
    const std::string events
        = eventOf("DTSTART;TZID=Custom:20240304T120000\n") + eventOf("DTSTART;TZID=Custom:20240704T120000\n");
    for (const std::string& text : {std::string{ownZone} + events, events + std::string{ownZone}}) {
        const CalendarImport import = read(text);
        ASSERT_EQ(import.events.size(), 2U);
        EXPECT_TRUE(import.problems.empty());
        EXPECT_EQ(import.events[0].item.start, date("20240304T063000"));
        EXPECT_EQ(import.events[1].item.start, date("20240704T060000"));
    }
}

TEST_F(SeriesInFile, NamesAZoneWhoseHoursItCannotKeep)
{
    const CalendarImport import
        = read(std::string{ownZone} + eventOf("DTSTART;TZID=Custom:20240304T120000\nRRULE:FREQ=DAILY;COUNT=2\n"));
    ASSERT_EQ(import.events.size(), 1U);
    EXPECT_EQ(linesOf(import), Lines{18});
    EXPECT_EQ(import.events[0].item.timeZone, u"");
    EXPECT_EQ(import.events[0].item.start, date("20240304T063000"));
}

TEST_F(SeriesInFile, FindsTheNameOfAZoneThatIsDefinedUnderAnother)
{
    const std::string zone = "BEGIN:VTIMEZONE\nTZID:Our office\n"
                             "BEGIN:STANDARD\nDTSTART:16011028T030000\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0100\n"
                             "RRULE:FREQ=YEARLY;BYMONTH=10;BYDAY=-1SU\nEND:STANDARD\n"
                             "BEGIN:DAYLIGHT\nDTSTART:16010325T020000\nTZOFFSETFROM:+0100\nTZOFFSETTO:+0200\n"
                             "RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\nEND:DAYLIGHT\nEND:VTIMEZONE\n";
    const std::string text = zone + eventOf("DTSTART;TZID=Our office:20240304T090000\nRRULE:FREQ=WEEKLY;COUNT=2\n");
    const ItemRecord abroad = only(text);
    EXPECT_NE(abroad.timeZone, u"");
    EXPECT_EQ(startsOf(abroad, "20240101", "20250101"), (Starts{"20240304T030000", "20240311T040000"}));
    const InZone brussels{"Europe/Brussels"};
    EXPECT_EQ(only(text).timeZone, u"Europe/Brussels");
}

} // namespace
} // namespace rf::host::test
