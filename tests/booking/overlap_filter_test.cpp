#include "booking/overlap_filter.h"

#include "basic/locales.h"
#include "host/fields.h"
#include "host/restriction.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

Date afternoon() { return Date::fromFields({2001, 2, 1, 14, 5, 0}); }
Date nextMorning() { return Date::fromFields({2001, 2, 2, 9, 0, 0}); }

/// A system that reads one text as a test says and every other as English systems do.
class ProbeAnswers final : public PatternRegional {
public:
    explicit ProbeAnswers(std::optional<Date> answer)
        : PatternRegional(englishSettings())
        , answer_(answer)
    {
    }

    [[nodiscard]] std::optional<Date> parseDate(TextView text) const override
    {
        if (text != u"01/02/2001")
            return PatternRegional::parseDate(text);
        ++probes;
        return answer_;
    }

    mutable int probes = 0;

private:
    std::optional<Date> answer_;
};

TEST(LocalDateString, SwapsDayAndMonthWhereTheDayComesFirst)
{
    EXPECT_EQ(fncLocalDateString(PatternRegional{germanSettings()}, afternoon()), u"2001-1-2");
    EXPECT_EQ(
        fncLocalDateString(PatternRegional{test::frenchSettings()}, Date::fromFields({2007, 12, 31})), u"2007-31-12");
}

TEST(LocalDateString, StandsYearMonthDayWhereTheMonthComesFirst)
{
    EXPECT_EQ(fncLocalDateString(PatternRegional{englishSettings()}, afternoon()), u"2001-2-1");
}

TEST(LocalDateString, StandsYearMonthDayWhereTheYearComesFirst)
{
    EXPECT_EQ(fncLocalDateString(PatternRegional{test::swedishSettings()}, afternoon()), u"2001-2-1");
    const ProbeAnswers takesTheYearForTheDay{Date::fromFields({2001, 1, 20})};
    EXPECT_EQ(fncLocalDateString(takesTheYearForTheDay, afternoon()), u"2001-2-1");
}

TEST(LocalDateString, IsEmptyWhereTheProbeAnswersNoneOfThem)
{
    EXPECT_EQ(fncLocalDateString(ProbeAnswers{Date::fromFields({2001, 2, 3})}, afternoon()), u"");
    EXPECT_EQ(fncLocalDateString(ProbeAnswers{std::nullopt}, afternoon()), u"");
}

TEST(LocalDateString, FindsTheOrderOutOnceForEachCall)
{
    const ProbeAnswers regional{Date::fromFields({2001, 1, 2})};
    static_cast<void>(fncLocalDateString(regional, afternoon()));
    EXPECT_EQ(regional.probes, 1);
    static_cast<void>(fncLocalDateString(regional, afternoon()));
    EXPECT_EQ(regional.probes, 2);
}

TEST(TimeHHNN, PadsHoursAndMinutes)
{
    EXPECT_EQ(fncTimeHHNN(Date::fromFields({2001, 2, 1, 9, 5, 0})), u"09:05");
    EXPECT_EQ(fncTimeHHNN(Date::fromFields({2001, 2, 1, 0, 0, 59})), u"00:00");
    EXPECT_EQ(fncTimeHHNN(Date::fromFields({2001, 2, 1, 23, 59, 0})), u"23:59");
}

TEST(TwoDigit, PutsAZeroInFrontOfASingleCharacterOnly)
{
    EXPECT_EQ(fncTwoDigit(0), u"00");
    EXPECT_EQ(fncTwoDigit(7), u"07");
    EXPECT_EQ(fncTwoDigit(10), u"10");
    EXPECT_EQ(fncTwoDigit(123), u"123");
    EXPECT_EQ(fncTwoDigit(-5), u"-5");
}

TEST(AmPm, HasABlankBehindTheAfternoonOnly)
{
    EXPECT_EQ(fncAmPm(Date::fromFields({2001, 2, 1, 0, 0, 0})), u" AM");
    EXPECT_EQ(fncAmPm(Date::fromFields({2001, 2, 1, 11, 59, 59})), u" AM");
    EXPECT_EQ(fncAmPm(Date::fromFields({2001, 2, 1, 12, 0, 0})), u" PM ");
    EXPECT_EQ(fncAmPm(Date::fromFields({2001, 2, 1, 23, 0, 0})), u" PM ");
}

TEST(OverlapFilter, StandsToTheLastBlankOnADayFirstSystem)
{
    EXPECT_EQ(fncMakeOverlapFilter(PatternRegional{germanSettings()}, afternoon(), nextMorning()),
        u"([Start] >= \"#2001-1-2 14:05 PM #\" and [Start] < \"#2001-2-2 9:00 AM#\")"
        u"or ([End] > \"#2001-1-2 14:05 PM #\" and [End] <= \"#2001-2-2 9:00 AM#\")  "
        u"or ([Start] < \"#2001-1-2 14:05 PM #\" and [End] >= \"#2001-2-2 9:00 AM#\")");
}

TEST(OverlapFilter, StandsToTheLastBlankOnAMonthFirstSystem)
{
    EXPECT_EQ(fncMakeOverlapFilter(PatternRegional{englishSettings()}, afternoon(), nextMorning()),
        u"([Start] >= \"#2001-2-1 14:05 PM #\" and [Start] < \"#2001-2-2 9:00 AM#\")"
        u"or ([End] > \"#2001-2-1 14:05 PM #\" and [End] <= \"#2001-2-2 9:00 AM#\")  "
        u"or ([Start] < \"#2001-2-1 14:05 PM #\" and [End] >= \"#2001-2-2 9:00 AM#\")");
}

TEST(OverlapFilter, IsWrittenOnAYearFirstSystemAsOnAMonthFirstOne)
{
    EXPECT_EQ(fncMakeOverlapFilter(PatternRegional{test::koreanSettings()}, afternoon(), nextMorning()),
        fncMakeOverlapFilter(PatternRegional{englishSettings()}, afternoon(), nextMorning()));
}

TEST(OverlapFilter, HoldsNoDatePartWhereTheOrderIsUnknown)
{
    EXPECT_EQ(fncMakeOverlapFilter(ProbeAnswers{std::nullopt}, afternoon(), nextMorning()),
        u"([Start] >= \"# 14:05 PM #\" and [Start] < \"# 9:00 AM#\")"
        u"or ([End] > \"# 14:05 PM #\" and [End] <= \"# 9:00 AM#\")  "
        u"or ([Start] < \"# 14:05 PM #\" and [End] >= \"# 9:00 AM#\")");
}

TEST(OverlapFilter, KeepsTheSpacingBetweenClauses)
{
    const Text filter = fncMakeOverlapFilter(PatternRegional{englishSettings()}, afternoon(), nextMorning());
    EXPECT_NE(filter.find(u"\")or (["), Text::npos);
    EXPECT_NE(filter.find(u"\")  or (["), Text::npos);
}

/// Every kind of system at the other end: what is written here must be read there as the same instant.
class OverlapFilterReadBack : public ::testing::TestWithParam<test::Locale> {
protected:
    [[nodiscard]] static bool finds(const host::Restriction& overlap, Date itemStart, Date itemEnd)
    {
        host::ItemRecord item;
        item.start = itemStart;
        item.end = itemEnd;
        return overlap.matches(item);
    }

    const PatternRegional regional{GetParam().settings};
};

TEST_P(OverlapFilterReadBack, IsTheSameInstantToTheMinuteOnEveryDayAndAtEveryHour)
{
    for (const Date day : {Date::fromFields({2001, 2, 1}), Date::fromFields({2001, 12, 3}),
             Date::fromFields({2004, 2, 29}), Date::fromFields({2010, 10, 11}), Date::fromFields({2023, 1, 31})})
        for (int hour = 0; hour < 24; ++hour) {
            const Date from = day.plusMinutes(60LL * hour + 5);
            const Date to = from.plusMinutes(60);
            const Text filter = fncMakeOverlapFilter(regional, from, to);
            SCOPED_TRACE(toUtf8(filter));
            const auto overlap = host::Restriction::parse(filter, {}, regional);
            EXPECT_TRUE(finds(overlap, from, to));
            EXPECT_TRUE(finds(overlap, from.plusMinutes(59), to.plusMinutes(59)));
            EXPECT_TRUE(finds(overlap, from.plusMinutes(-59), from.plusMinutes(1)));
            EXPECT_FALSE(finds(overlap, to, to.plusMinutes(60)));
            EXPECT_FALSE(finds(overlap, from.plusMinutes(-60), from));
        }
}

INSTANTIATE_TEST_SUITE_P(In, OverlapFilterReadBack, ::testing::ValuesIn(test::locales()),
    [](const auto& tested) { return tested.param.name; });

TEST(OverlapFilter, FindsNothingWhereTheOrderIsUnknown)
{
    const ProbeAnswers regional{std::nullopt};
    const auto restriction
        = host::Restriction::parse(fncMakeOverlapFilter(regional, afternoon(), nextMorning()), {}, regional);
    host::ItemRecord item;
    item.start = afternoon();
    item.end = nextMorning();
    EXPECT_FALSE(restriction.matches(item));
}

} // namespace
} // namespace rf
