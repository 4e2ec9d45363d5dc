#include "linux/ical_support.h"

#include "host/ical_rule.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <chrono>
#include <variant>

namespace rf::host::test {
namespace {

bool isReadable(TextView rule) { return std::holds_alternative<ical::Rule>(ical::readRule(rule)); }

TEST(Rule, IsReadWithoutRegardToCaseAndOrder)
{
    EXPECT_TRUE(isReadable(u"byday=mo,-1fr;freq=monthly;wkst=su"));
    EXPECT_TRUE(isReadable(u"FREQ=YEARLY;BYMONTHDAY=+1,-31;BYSETPOS=-366;X-NOTE=anything"));
    EXPECT_TRUE(isReadable(u"FREQ=DAILY;UNTIL=20240229;"));
}

TEST(Rule, ThatSaysNothingOrNonsenseIsNone)
{
    for (const TextView rule : {u"", u";", u"COUNT=3", u"FREQ=", u"FREQ=FORTNIGHTLY", u"FREQ=DAILY;COUNT=0",
             u"FREQ=DAILY;COUNT=-1", u"FREQ=DAILY;COUNT=99999999999999999999", u"FREQ=DAILY;INTERVAL=0",
             u"FREQ=DAILY;UNTIL=20230229", u"FREQ=DAILY;UNTIL=yesterday", u"FREQ=DAILY;BYDAY=", u"FREQ=DAILY;BYDAY=XX",
             u"FREQ=DAILY;BYDAY=0MO", u"FREQ=DAILY;BYMONTH=13", u"FREQ=DAILY;BYMONTHDAY=0", u"FREQ=DAILY;BYHOUR=24",
             u"FREQ=DAILY;BYMINUTE=+-1", u"FREQ=DAILY;BYSETPOS=367", u"FREQ=DAILY;NEVER=1", u"FREQ=DAILY;WKST=1",
             u"FREQ=MONTHLY;RSCALE=HEBREW", u"FREQ=DAILY;X-É=1", u"FREQ"}) {
        EXPECT_FALSE(isReadable(rule)) << toUtf8(rule);
    }
}

TEST(Rule, OfUnboundedLengthIsNone)
{
    EXPECT_FALSE(isReadable(u"FREQ=DAILY;BYHOUR=1" + Text(100'000, u'1')));
    Text list = u"FREQ=DAILY;BYHOUR=1";
    for (int element = 0; element < 1500; ++element) {
        list += u",1";
    }
    EXPECT_FALSE(isReadable(list));
}

class Speed : public ::testing::Test {
protected:
    /// Milliseconds that one call takes, of the quickest of several, since other programs run beside.
    template <class Call>
    static double timeOf(const Call& call)
    {
        using Clock = std::chrono::steady_clock;
        double quickest = 1e9;
        for (int run = 0; run < 5; ++run) {
            const Clock::time_point begin = Clock::now();
            call();
            quickest = std::min(quickest, std::chrono::duration<double, std::milli>(Clock::now() - begin).count());
        }
        return quickest;
    }

    double timeOfDay(TextView rule)
    {
        const ItemRecord item = series("19000101T090000", "19000101T100000", rule, u"Europe/Brussels");
        return timeOf([&] { static_cast<void>(engine_->expand(item, date("20240304"), date("20240305"))); });
    }

    const InZone newYork_{"America/New_York"};
    const std::unique_ptr<RecurrenceEngine> engine_ = makeRecurrenceEngine();
};

TEST_F(Speed, OfADayDoesNotDependOnHowLongASeriesHasRun)
{
    for (const TextView rule : {u"FREQ=DAILY", u"FREQ=DAILY;INTERVAL=3", u"FREQ=WEEKLY;BYDAY=MO,TU,WE",
             u"FREQ=MONTHLY;BYDAY=-1FR", u"FREQ=YEARLY;BYMONTH=3;BYDAY=1MO", u"FREQ=MONTHLY;BYDAY=MO,TU;BYSETPOS=-1",
             u"FREQ=YEARLY;BYWEEKNO=10", u"FREQ=HOURLY;INTERVAL=5"}) {
        EXPECT_LT(timeOfDay(rule), 2.0) << toUtf8(rule);
    }
}

TEST_F(Speed, OfARuleThatMatchesNothingIsThatOfAnyOther)
{
    for (const TextView rule : {u"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", u"FREQ=MONTHLY;BYMONTH=2;BYMONTHDAY=30",
             u"FREQ=WEEKLY;BYMONTH=2;BYMONTHDAY=30", u"FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30",
             u"FREQ=HOURLY;BYMONTH=2;BYMONTHDAY=30", u"FREQ=MINUTELY;BYMONTH=2;BYMONTHDAY=30",
             u"FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30", u"FREQ=MINUTELY;INTERVAL=60;BYMINUTE=30"}) {
        EXPECT_LT(timeOfDay(rule), 2.0) << toUtf8(rule);
    }
}

TEST_F(Speed, OfARuleThatMatchesNothingIsBoundedInAllTheYearsThereAre)
{
    for (const TextView rule : {u"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30;UNTIL=99991231",
             u"FREQ=DAILY;BYMONTH=2;BYMONTHDAY=30;COUNT=5", u"FREQ=SECONDLY;BYMONTH=2;BYMONTHDAY=30;COUNT=5",
             u"FREQ=SECONDLY;INTERVAL=60;BYSECOND=30;COUNT=5", u"FREQ=SECONDLY;INTERVAL=60;BYSECOND=30;UNTIL=99991231",
             u"FREQ=MINUTELY;INTERVAL=60;BYMINUTE=30;UNTIL=99991231"}) {
        const ItemRecord item = series("19000101T090000", "19000101T100000", rule);
        EXPECT_LT(timeOf([&] { static_cast<void>(engine_->lastEnd(item)); }), 5000.0) << toUtf8(rule);
        EXPECT_EQ(startsOf(item, "19000101", "99990101").size(), 1U) << toUtf8(rule);
    }
}

TEST_F(Speed, OfManySecondsIsBoundedByWhatOneCallAnswers)
{
    const Text minutes = u"0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,23,24,25,26,27,28,29,30";
    for (const Text& rule : {Text{u"FREQ=SECONDLY"},
             Text{u"FREQ=YEARLY;BYDAY=MO,TU,WE;BYHOUR=1,2;BYMINUTE="}
                 .append(minutes)
                 .append(u";BYSECOND=")
                 .append(minutes)}) {
        const ItemRecord item = series("20200101T000000", "20200101T000000", rule);
        EXPECT_EQ(startsOf(item, "20200101", "20400101").size(), RecurrenceEngine::mostOccurrences);
    }
}

TEST_F(Speed, OfACountedSeriesIsBoundedByItsCount)
{
    const ItemRecord item = series("20000101T090000", "20000101T100000", u"FREQ=DAILY;COUNT=10000");
    EXPECT_LT(timeOf([&] { static_cast<void>(engine_->expand(item, date("20240304"), date("20240305"))); }), 50.0);
    EXPECT_EQ(startsOf(item, "20240304", "20240304T235959"), (Starts{"20240304T090000"}));
}

} // namespace
} // namespace rf::host::test
