#include "linux/calendar_file_problems.h"
#include "linux/ical_support.h"

#include <gtest/gtest.h>

namespace rf::host::test {
namespace {

/// A calendar of these lines, of which the first is line 2.
std::string calendar(std::string_view lines)
{
    std::string text = "BEGIN:VCALENDAR\n";
    text += lines;
    return text + "END:VCALENDAR\n";
}

/// An event of these lines, of which the first is line 3.
std::string event(std::string_view lines) { return calendar("BEGIN:VEVENT\n" + std::string{lines} + "END:VEVENT\n"); }

class Reading : public ::testing::Test {
protected:
    ItemRecord only(std::string_view lines)
    {
        const CalendarImport import = readCalendar(event(lines));
        EXPECT_EQ(linesOf(import), Lines{}) << lines;
        EXPECT_EQ(import.events.size(), 1U) << lines;
        return import.events.empty() ? ItemRecord{} : import.events.front().item;
    }
    std::string times(std::string_view lines)
    {
        const ItemRecord item = only(lines);
        return written(item.start) + " " + written(item.end) + (item.allDay ? " all day" : "");
    }

    const InZone brussels_{"Europe/Brussels"};
};

TEST_F(Reading, TakesTheFieldsOfAnEvent)
{
    const ItemRecord item = only("UID:one@host\nSUMMARY:A\\, b\\; c\\\\d\nDESCRIPTION;LANGUAGE=en:First\\nsecond\n"
                                 "LOCATION:Room \"1\": ground floor\nCATEGORIES:Red,Green\\,ish\nCATEGORIES:Blue\n"
                                 "DTSTART:20240304T090000\nDTEND:20240304T100000\nTRANSP:TRANSPARENT\n");
    EXPECT_EQ(item.uid, u"one@host");
    EXPECT_EQ(item.subject, u"A, b; c\\d");
    EXPECT_EQ(item.body, u"First\r\nsecond");
    EXPECT_EQ(item.location, u"Room \"1\": ground floor");
    EXPECT_EQ(item.categories, u"Red, Green,ish, Blue");
    EXPECT_EQ(item.busyStatus, 0);
    EXPECT_EQ(item.messageClass, u"IPM.Appointment");
    EXPECT_FALSE(item.recurrence);
}

TEST_F(Reading, TakesTheHourOfTheInstallation)
{
    EXPECT_EQ(times("DTSTART:20240304T090000\nDTEND:20240304T100000\n"), "20240304T090000 20240304T100000");
    EXPECT_EQ(times("DTSTART:20240304T090000Z\nDTEND:20240304T100000Z\n"), "20240304T100000 20240304T110000");
    EXPECT_EQ(times("DTSTART;TZID=America/New_York:20240304T090000\nDTEND;TZID=\"Asia/Tokyo\":20240305T000000\n"),
        "20240304T150000 20240304T160000");
    EXPECT_EQ(times("DTSTART;TZID=Eastern Standard Time:20240304T090000\n"), "20240304T150000 20240304T150000");
    EXPECT_EQ(times("DTSTART;TZID=/org.example/2024a/America/Argentina/Salta:20240304T090000\n"),
        "20240304T130000 20240304T130000");
}

TEST_F(Reading, KeepsDatesWhereverTheyAre)
{
    EXPECT_EQ(
        times("DTSTART;VALUE=DATE:20240304\nDTEND;VALUE=DATE:20240306\n"), "20240304T000000 20240306T000000 all day");
    EXPECT_EQ(times("DTSTART;VALUE=DATE:20240304\n"), "20240304T000000 20240305T000000 all day");
    EXPECT_EQ(
        times("DTSTART;VALUE=DATE:20240304\nDTEND;VALUE=DATE:20240304\n"), "20240304T000000 20240305T000000 all day");
    EXPECT_EQ(times("DTSTART;VALUE=DATE:20240304\nDURATION:P1W\n"), "20240304T000000 20240311T000000 all day");
}

TEST_F(Reading, AddsADuration)
{
    EXPECT_EQ(times("DTSTART:20240304T090000\n"), "20240304T090000 20240304T090000");
    EXPECT_EQ(times("DTSTART:20240304T090000\nDURATION:PT1H30M\n"), "20240304T090000 20240304T103000");
    EXPECT_EQ(times("DURATION:P1DT15S\nDTSTART:20240304T090000\n"), "20240304T090000 20240305T090015");
}

TEST_F(Reading, AddsADayThatIsNotTwentyFourHours)
{
    EXPECT_EQ(times("DTSTART;TZID=Europe/Brussels:20240330T120000\nDURATION:P1D\n"), "20240330T120000 20240331T120000");
    EXPECT_EQ(
        times("DTSTART;TZID=Europe/Brussels:20240330T120000\nDURATION:PT24H\n"), "20240330T120000 20240331T130000");
}

TEST_F(Reading, TakesBusyAsOthersWriteIt)
{
    EXPECT_EQ(only("DTSTART:20240304T090000\n").busyStatus, 2);
    EXPECT_EQ(only("DTSTART:20240304T090000\nTRANSP:OPAQUE\n").busyStatus, 2);
    EXPECT_EQ(only("DTSTART:20240304T090000\nX-MICROSOFT-CDO-BUSYSTATUS:OOF\n").busyStatus, 3);
}

TEST_F(Reading, TellsWhoInvites)
{
    const CalendarImport import
        = readCalendar(event("DTSTART:20240304T090000\nORGANIZER;CN=\"Maes, An\":MAILTO:an@example.org\n"));
    ASSERT_EQ(import.events.size(), 1U);
    EXPECT_EQ(import.events[0].organizerName, u"Maes, An");
    EXPECT_EQ(import.events[0].organizerAddress, u"an@example.org");
    EXPECT_EQ(import.events[0].line, 2U);
}

TEST_F(Reading, JoinsFoldedLinesWithEitherEnd)
{
    const std::string folded = event("DTSTART:2024\n 0304T090000\nSUMMARY:Caf\xC3\n \xA9 and\n\t  tea\n");
    std::string withReturns;
    for (const char byte : folded) {
        withReturns += byte == '\n' ? "\r\n" : std::string(1, byte);
    }
    for (const std::string& text : {folded, withReturns, "\xEF\xBB\xBF" + folded}) {
        const CalendarImport import = readCalendar(text);
        ASSERT_EQ(import.events.size(), 1U);
        EXPECT_TRUE(import.problems.empty());
        EXPECT_EQ(import.events[0].item.subject, u"Café and  tea");
    }
}

TEST_F(Reading, PassesOverOtherComponents)
{
    const CalendarImport import = readCalendar(calendar("BEGIN:VTODO\nSUMMARY:No\nBEGIN:VALARM\nEND:VALARM\nEND:VTODO\n"
                                                        "BEGIN:VEVENT\nDTSTART:20240304T090000\nSUMMARY:Yes\n"
                                                        "BEGIN:VALARM\nSUMMARY:No\nDURATION:PT5H\nEND:VALARM\n"
                                                        "END:VEVENT\n"));
    EXPECT_TRUE(import.problems.empty());
    ASSERT_EQ(import.events.size(), 1U);
    EXPECT_EQ(import.events[0].item.subject, u"Yes");
    EXPECT_EQ(import.events[0].item.start, import.events[0].item.end);
}

TEST_F(Reading, TakesACalendarWithoutEvents)
{
    const CalendarImport import = readCalendar(calendar(""));
    EXPECT_TRUE(import.events.empty());
    EXPECT_TRUE(import.problems.empty());
}

TEST_F(Reading, NamesATextThatIsNoCalendar)
{
    for (const std::string_view text : {"", "\n\n", "\xEF\xBB\xBF"}) {
        EXPECT_EQ(linesOf(readCalendar(text)), Lines{0});
    }
    EXPECT_EQ(linesOf(readCalendar("Dear all,\nthe room is taken.\n")), (Lines{0, 1, 2}));
}

TEST_F(Reading, NamesTheLineOfWhatItCannotTake)
{
    EXPECT_EQ(linesOf(readCalendar(event("SUMMARY:No start\n"))), Lines{2});
    EXPECT_EQ(linesOf(readCalendar(event("SUMMARY:x\nDTSTART:20240230T090000\n"))), Lines{4});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART:20240304T090000\nDTEND:soon\n"))), Lines{4});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART:20240304T090000\nDURATION:P\n"))), Lines{4});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART:20240304T090000\nDTEND:20240304T080000\n"))), Lines{2});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART:20240304T090000\nno property\n"))), Lines{4});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART:20240304T090000\nSTATUS:CANCELLED\n"))), Lines{2});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART;TZID=Middle/Earth:20240304T090000\n"))), Lines{3});
    EXPECT_EQ(linesOf(readCalendar(event("DTSTART:20240304T090000\nEND:VALARM\n"))), Lines{4});
}

TEST_F(Reading, TakesTheRestOfABrokenText)
{
    const CalendarImport import = readCalendar(calendar("BEGIN:VEVENT\nSUMMARY:No start\nEND:VEVENT\n"
                                                        "BEGIN:VEVENT\nDTSTART:20240304T090000\nSUMMARY:Not ended\n"
                                                        "BEGIN:VEVENT\nDTSTART:20240304T090000\nSUMMARY:Whole\n"
                                                        "END:VEVENT\nBEGIN:VEVENT\nDTSTART:20240304T090000\n"));
    ASSERT_EQ(import.events.size(), 1U);
    EXPECT_EQ(import.events[0].item.subject, u"Whole");
    EXPECT_EQ(import.events[0].line, 8U);
    EXPECT_EQ(linesOf(import), (Lines{2, 5, 12}));
}

TEST_F(Reading, NamesATextThatIsCutOff)
{
    const std::string text = event("DTSTART:20240304T090000\n");
    const CalendarImport import = readCalendar(std::string_view{text}.substr(0, text.size() - 15));
    EXPECT_EQ(import.events.size(), 1U);
    EXPECT_EQ(linesOf(import), Lines{1});
}

TEST_F(Reading, NamesTheLineThatIsNoUtf8)
{
    const CalendarImport import = readCalendar(event("DTSTART:20240304T090000\nSUMMARY:Caf\xE9\n"
                                                     "DESCRIPTION:One\n two\n \xED\xA0\x80three\n"));
    EXPECT_EQ(linesOf(import), (Lines{4, 7}));
    ASSERT_EQ(import.events.size(), 1U);
    EXPECT_EQ(import.events[0].item.subject, u"Caf\xFFFD");
    EXPECT_EQ(import.events[0].item.body, u"Onetwo\xFFFDthree");
}

TEST_F(Reading, LeavesOutALineWithoutMeasure)
{
    const std::string huge(5 << 20, 'x');
    const CalendarImport import = readCalendar(event(
        "DTSTART:20240304T090000\nSUMMARY:Short\nDESCRIPTION:" + huge + "\nATTACH:" + huge + "\nLOCATION:Hall\n"));
    EXPECT_EQ(linesOf(import), Lines{5});
    ASSERT_EQ(import.events.size(), 1U);
    EXPECT_EQ(import.events[0].item.body, u"");
    EXPECT_EQ(import.events[0].item.location, u"Hall");
    const CalendarImport long64
        = readCalendar(event("DTSTART:20240304T090000\nDESCRIPTION:" + huge.substr(0, 65536) + "\n"));
    EXPECT_EQ(long64.events.at(0).item.body.size(), 65536U);
}

TEST_F(Reading, SaysOfAVeryBrokenTextOnlyTheBegin)
{
    std::string text = "BEGIN:VCALENDAR\n";
    for (int line = 0; line < 5000; ++line) {
        text += "nonsense\n";
    }
    EXPECT_EQ(readCalendar(text + "END:VCALENDAR\n").problems.size(), 1001U);
}

} // namespace
} // namespace rf::host::test
