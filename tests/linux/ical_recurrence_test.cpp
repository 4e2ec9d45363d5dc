#include "linux/ical_support.h"

#include <gtest/gtest.h>

namespace rf::host::test {
namespace {

TEST(Recurrence, OfASingleAppointmentIsTheAppointmentItself)
{
    const ItemRecord item = appointment("20240304T090000", "20240304T100000");
    EXPECT_EQ(startsOf(item, "20240304", "20240305"), (Starts{"20240304T090000"}));
    EXPECT_TRUE(startsOf(item, "20240305", "20240306").empty());
    EXPECT_EQ(makeRecurrenceEngine()->lastEnd(item), item.end);
}

TEST(Recurrence, TakesAnOccurrenceThatTouchesTheWindow)
{
    const ItemRecord item = series("20240304T090000", "20240304T100000", u"FREQ=DAILY");
    EXPECT_EQ(startsOf(item, "20240306T100000", "20240307T090000"), (Starts{"20240306T090000", "20240307T090000"}));
    EXPECT_TRUE(startsOf(item, "20240306T100001", "20240307T085959").empty());
}

TEST(Recurrence, FindsALongOccurrenceThatBeganBeforeTheWindow)
{
    const ItemRecord item = series("20240304T090000", "20240318T100000", u"FREQ=MONTHLY");
    EXPECT_EQ(startsOf(item, "20240612", "20240613"), (Starts{"20240604T090000"}));
}

TEST(Recurrence, BeginsWithTheAppointmentThoughTheRuleWouldNotGiveIt)
{
    const ItemRecord item = series("20240304T090000", "20240304T100000", u"FREQ=WEEKLY;BYDAY=TH;COUNT=3");
    EXPECT_EQ(
        startsOf(item, "20240101", "20250101"), (Starts{"20240304T090000", "20240307T090000", "20240314T090000"}));
}

TEST(Recurrence, AddsFurtherStartsOnce)
{
    ItemRecord item = series("20240304T090000", "20240304T100000", u"FREQ=DAILY;COUNT=2");
    item.recurrence->additions = {date("20240401T120000"), date("20240305T090000")};
    EXPECT_EQ(
        startsOf(item, "20240101", "20250101"), (Starts{"20240304T090000", "20240305T090000", "20240401T120000"}));
    EXPECT_EQ(makeRecurrenceEngine()->lastEnd(item), date("20240401T130000"));
}

TEST(Recurrence, WithFurtherStartsAloneHasNoOthers)
{
    ItemRecord item = series("20240304T090000", "20240304T100000", u"");
    item.recurrence->additions = {date("20240401T120000")};
    EXPECT_EQ(startsOf(item, "20240101", "20250101"), (Starts{"20240304T090000", "20240401T120000"}));
}

TEST(Recurrence, EndsWithItsCountAndWithItsDate)
{
    const auto engine = makeRecurrenceEngine();
    const auto lastEnd = [&engine](TextView rule) {
        const auto end = engine->lastEnd(series("20240304T090000", "20240304T100000", rule));
        return end ? written(*end) : "none";
    };
    EXPECT_EQ(lastEnd(u"FREQ=DAILY;COUNT=10"), "20240313T100000");
    EXPECT_EQ(lastEnd(u"FREQ=WEEKLY;UNTIL=20240401T090000"), "20240401T100000");
    EXPECT_EQ(lastEnd(u"FREQ=WEEKLY;UNTIL=20240401T085959"), "20240325T100000");
    EXPECT_EQ(lastEnd(u"FREQ=WEEKLY;UNTIL=20240401"), "20240401T100000");
    EXPECT_EQ(lastEnd(u"FREQ=YEARLY;UNTIL=20990101"), "20980304T100000");
    EXPECT_EQ(lastEnd(u"FREQ=YEARLY;UNTIL=19990101"), "20240304T100000");
    EXPECT_EQ(lastEnd(u"FREQ=SECONDLY;COUNT=1000000000"), "20240305T134639");
    EXPECT_EQ(lastEnd(u"FREQ=DAILY"), "none");
}

TEST(Recurrence, TakesAnUnreadableRuleAsNone)
{
    for (const TextView rule :
        {TextView{u"FREQ=SOMETIMES"}, TextView{u"nonsense"}, TextView{u"FREQ=DAILY;INTERVAL=0"}}) {
        const ItemRecord item = series("20240304T090000", "20240304T100000", rule);
        EXPECT_EQ(startsOf(item, "20240101", "20250101"), (Starts{"20240304T090000"}));
        EXPECT_EQ(makeRecurrenceEngine()->lastEnd(item), item.end);
    }
}

class Changes : public ::testing::Test {
protected:
    OccurrenceChange& change(std::string_view original)
    {
        OccurrenceChange& result = item_.recurrence->changes.emplace_back();
        result.original = date(original);
        return result;
    }
    void move(std::string_view original, std::string_view start, std::string_view end)
    {
        OccurrenceChange& moved = change(original);
        moved.start = date(start);
        moved.end = date(end);
    }

    ItemRecord item_ = series("20240304T090000", "20240304T100000", u"FREQ=DAILY;COUNT=4");
};

TEST_F(Changes, TakeADeletedOccurrenceAway)
{
    change("20240305T090000").deleted = true;
    EXPECT_EQ(
        startsOf(item_, "20240101", "20250101"), (Starts{"20240304T090000", "20240306T090000", "20240307T090000"}));
    EXPECT_FALSE(makeRecurrenceEngine()->occurrence(item_, date("20240305T090000")));
}

TEST_F(Changes, MoveAnOccurrenceIntoItsNewPlace)
{
    move("20240305T090000", "20240306T140000", "20240306T150000");
    EXPECT_EQ(startsOf(item_, "20240101", "20250101"),
        (Starts{"20240304T090000", "20240306T090000", "20240306T140000*", "20240307T090000"}));
}

TEST_F(Changes, AreSoughtWhereTheOccurrenceWasMovedTo)
{
    move("20240305T090000", "20260305T090000", "20260305T100000");
    EXPECT_TRUE(startsOf(item_, "20240305", "20240305T235959").empty());
    EXPECT_EQ(startsOf(item_, "20260305", "20260306"), (Starts{"20260305T090000*"}));
    EXPECT_EQ(makeRecurrenceEngine()->lastEnd(item_), date("20260305T100000"));
}

TEST_F(Changes, AreToldByTheStartThatTheSeriesGives)
{
    move("20240305T090000", "20240306T140000", "20240306T150000");
    const auto engine = makeRecurrenceEngine();
    const std::optional<Occurrence> moved = engine->occurrence(item_, date("20240305T090000"));
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved->start, date("20240306T140000"));
    EXPECT_EQ(moved->change, 0U);
    EXPECT_TRUE(engine->occurrence(item_, date("20240307T090000")));
    EXPECT_FALSE(engine->occurrence(item_, date("20240307T090001")));
    EXPECT_FALSE(engine->occurrence(item_, date("20240308T090000")));
}

TEST_F(Changes, KeepTheirTimesWhenTwoTradePlaces)
{
    move("20240305T090000", "20240306T090000", "20240306T100000");
    move("20240306T090000", "20240305T090000", "20240305T100000");
    EXPECT_EQ(startsOf(item_, "20240101", "20250101"),
        (Starts{"20240304T090000", "20240305T090000*", "20240306T090000*", "20240307T090000"}));
}

} // namespace
} // namespace rf::host::test
