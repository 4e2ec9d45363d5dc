#include "linux/demo/report.h"
#include "linux/demo/week_picture.h"

#include <QXmlStreamReader>
#include <gtest/gtest.h>
#include <sstream>

namespace rf::demo {
namespace {

Date at(int day, int hour) { return Date::fromFields({2024, 2, day, hour, 0, 0}); }

Booking booking(const Text& id, Date start, std::int32_t minutes = 60)
{
    Booking result;
    result.room = u"Room 1";
    result.entryId = id;
    result.start = start;
    result.minutes = minutes;
    result.isBooked = true;
    return result;
}

Run runOf(bool isAccepted)
{
    Run run;
    run.talks = 1;
    Outcome outcome;
    outcome.isAccepted = isAccepted;
    outcome.reason = u"Project mandatory";
    run.delivered.push_back({Talk{u"Room 1", u"", u"Opening", at(3, 9), 60}, outcome});
    run.time = std::chrono::seconds{2};
    run.bookings = run.personalCopies = run.masterCopies = isAccepted ? 1 : 0;
    return run;
}

std::string told(const Run& run)
{
    std::ostringstream out;
    tellRun(out, run);
    return out.str();
}

TEST(DemoReport, IsCompleteWhenEveryTalkIsBookedWithTwoCopiesOrHeld)
{
    EXPECT_TRUE(runOf(true).isComplete());
    EXPECT_TRUE(runOf(false).isComplete());
}

TEST(DemoReport, IsNotCompleteWithoutACopyWithALostOrWithADoubledTalk)
{
    auto run = runOf(true);
    run.personalCopies = 0;
    EXPECT_FALSE(run.isComplete());
    run = runOf(true);
    run.masterCopies = 2;
    EXPECT_FALSE(run.isComplete());
    run = runOf(true);
    run.lost.push_back(run.delivered.front().talk);
    EXPECT_FALSE(run.isComplete());
    run = runOf(true);
    run.doubled.push_back(booking(u"1", at(3, 9)));
    EXPECT_FALSE(run.isComplete());
    run = runOf(true);
    run.talks = 2;
    EXPECT_FALSE(run.isComplete());
}

TEST(DemoReport, TellsTheRateAndTheShareOfPureLatency)
{
    auto run = runOf(true);
    run.calls = 1000;
    run.latency = 0.5;
    EXPECT_NE(told(run).find("2.0 s, 0.5 bookings/s"), std::string::npos) << told(run);
    EXPECT_NE(told(run).find("1000.0 calls of the program for a booking; at 0.500 ms a call, pure latency is 25 %"),
        std::string::npos)
        << told(run);
}

TEST(DemoReport, NamesWhatIsHeldBackAndWhatWasInterrupted)
{
    auto run = runOf(false);
    run.delivered.front().outcome.interruptions.emplace_back(sentenceOf(Remains::Nothing));
    EXPECT_NE(told(run).find("  Room 1, Sat 3 Feb 09:00 - 10:00  Opening\n    Project mandatory\n"), std::string::npos);
    EXPECT_NE(told(run).find("was started again; missing: the item was taken"), std::string::npos) << told(run);
}

TEST(DemoCollisions, AreNamedWithTheirTimes)
{
    EXPECT_EQ(collisionsIn(u"Board; extended;09:00 - 10:30;1.50;J. Smith;0A;0B\r\nCall;10:30 - 11:00;0.50;;0C;0B"),
        (std::vector<Text>{u"Board; extended (09:00 - 10:30)", u"Call (10:30 - 11:00)"}));
}

TEST(DemoFreeSlot, IsTheNextFreeFullHour)
{
    const std::vector bookings{booking(u"1", at(3, 9)), booking(u"2", at(3, 10)), booking(u"3", at(3, 12))};
    EXPECT_EQ(freeSlot(bookings, bookings[0]), at(3, 11));
    EXPECT_EQ(freeSlot(bookings, bookings[2]), at(3, 13));
}

TEST(DemoFreeSlot, LeavesRoomForTheWholeBooking)
{
    const std::vector bookings{booking(u"1", at(3, 9), 120), booking(u"2", at(3, 12)), booking(u"3", at(3, 14), 240)};
    EXPECT_EQ(freeSlot(bookings, bookings[0]), at(4, 9));
}

TEST(DemoFreeSlot, GoesOnFromTheWeeksBeginning)
{
    const std::vector bookings{booking(u"1", at(4, 17))};
    EXPECT_EQ(freeSlot(bookings, bookings[0]), Date::fromFields({2024, 1, 29, 9, 0, 0}));
}

TEST(WeekPicture, IsWellFormedWhateverTheSubjectsHold)
{
    const Week week{u"Before",
        {{u"<a> & \"b\" \u0001", at(3, 9), 60, Tone::Told}, {u"", at(3, 8), 0, Tone::Plain},
            {u"past midnight", at(4, 23), 300, Tone::Left}, {u"another week", at(20, 9), 60}}};
    const std::string picture = weekPicture(u"Room <1>", mondayOf(at(3, 0)), {week, week});
    QXmlStreamReader reader{QByteArray::fromStdString(picture)};
    int boxes = 0;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"rect")
            ++boxes;
    EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
    // The background, and for each week its own and three entries.
    EXPECT_EQ(boxes, 1 + 2 * 4);
    EXPECT_NE(picture.find("8:00"), std::string::npos);
    EXPECT_NE(picture.find("23:00"), std::string::npos);
}

} // namespace
} // namespace rf::demo
