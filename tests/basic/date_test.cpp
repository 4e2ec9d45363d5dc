#include "basic/date.h"

#include "basic/error_of.h"

#include <gtest/gtest.h>

#include <limits>

namespace rf {
namespace {

using test::errorOf;

void printFields(const DateFields& fields, std::ostream& out)
{
    out << fields.year << '-' << fields.month << '-' << fields.day << ' ' << fields.hour << ':' << fields.minute << ':'
        << fields.second;
}

std::string shown(const DateFields& fields)
{
    std::ostringstream out;
    printFields(fields, out);
    return out.str();
}

TEST(Date, BeginsOnTheZeroDate)
{
    EXPECT_EQ(Date{}.days(), 0);
    EXPECT_EQ(Date{}.fields(), DateFields{});
    EXPECT_EQ(Date::fromFields({}).days(), 0);
}

TEST(Date, CountsDaysWithTheTimeAsFraction)
{
    EXPECT_EQ(Date::fromFields({.year = 2001, .month = 2, .day = 1}).days(), 36923);
    EXPECT_EQ(Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 18}).days(), 36923.75);
    EXPECT_EQ(Date::fromFields({.year = 4501, .month = 1, .day = 1}), noDate);
}

TEST(Date, CountsTimesUpwardsBeforeTheZeroDate)
{
    EXPECT_EQ(Date::fromFields({.year = 1899, .month = 12, .day = 29, .hour = 6}).days(), -1.25);
    EXPECT_EQ(shown(Date{-1.25}.fields()), "1899-12-29 6:0:0");
    EXPECT_EQ(shown(Date{-1.0}.fields()), "1899-12-29 0:0:0");
    EXPECT_EQ(Date{-1.25}.seconds(), -64800);
    EXPECT_EQ(Date::fromSeconds(-64800).days(), -1.25);
}

TEST(Date, ReadsTheTimeOfTheZeroDateWithEitherSign) { EXPECT_EQ(Date{-0.25}.fields(), Date{0.25}.fields()); }

TEST(Date, CarriesFieldsOutOfTheirRange)
{
    EXPECT_EQ(shown(Date::fromFields({.year = 2001, .month = 13, .day = 1}).fields()), "2002-1-1 0:0:0");
    EXPECT_EQ(shown(Date::fromFields({.year = 2001, .month = 0, .day = 1}).fields()), "2000-12-1 0:0:0");
    EXPECT_EQ(shown(Date::fromFields({.year = 2001, .month = -11, .day = 1}).fields()), "2000-1-1 0:0:0");
    EXPECT_EQ(shown(Date::fromFields({.year = 2001, .month = 2, .day = 29}).fields()), "2001-3-1 0:0:0");
    EXPECT_EQ(shown(Date::fromFields({.year = 2001, .month = 3, .day = 0}).fields()), "2001-2-28 0:0:0");
    EXPECT_EQ(
        shown(Date::fromFields({.year = 2001, .month = 1, .day = 1, .minute = -5}).fields()), "2000-12-31 23:55:0");
    EXPECT_EQ(shown(Date::fromFields({.year = 2001, .month = 1, .day = 1, .hour = 24}).fields()), "2001-1-2 0:0:0");
}

TEST(Date, KnowsLeapYears)
{
    EXPECT_EQ(daysInMonth(2000, 2), 29);
    EXPECT_EQ(daysInMonth(1900, 2), 28);
    EXPECT_EQ(daysInMonth(2024, 2), 29);
    EXPECT_EQ(daysInMonth(2023, 2), 28);
    EXPECT_EQ(daysInMonth(2023, 12), 31);
    EXPECT_EQ(daysInMonth(2023, 4), 30);
}

TEST(Date, ReachesFromTheYear100To9999)
{
    EXPECT_EQ(Date::fromFields({.year = 100, .month = 1, .day = 1}).days(), -657434);
    EXPECT_EQ(shown(Date{-657434.75}.fields()), "100-1-1 18:0:0");
    EXPECT_EQ(
        shown(
            Date::fromFields({.year = 9999, .month = 12, .day = 31, .hour = 23, .minute = 59, .second = 59}).fields()),
        "9999-12-31 23:59:59");
}

TEST(Date, RefusesOtherYears)
{
    EXPECT_EQ(errorOf([] { return Date::fromFields({.year = 99, .month = 12, .day = 31}); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromFields({.year = 10000, .month = 1, .day = 1}); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromFields({.year = std::numeric_limits<int>::max()}); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromFields({.year = 2001, .month = std::numeric_limits<int>::min()}); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromFields({.year = 2001, .day = std::numeric_limits<int>::max()}); }), 5);
    EXPECT_EQ(errorOf([] { return Date::fromSeconds(std::numeric_limits<std::int64_t>::max()); }), 5);
    EXPECT_EQ(errorOf([] { return Date{2958466}.fields(); }), 5);
    EXPECT_EQ(errorOf([] { return Date{-657435}.fields(); }), 5);
    EXPECT_EQ(errorOf([] { return Date{std::numeric_limits<double>::quiet_NaN()}.fields(); }), 5);
    EXPECT_EQ(errorOf([] { return Date{std::numeric_limits<double>::infinity()}.weekday(); }), 5);
}

TEST(Date, RoundsToTheNearestSecond)
{
    const double second = 1.0 / 86400;
    EXPECT_EQ(shown(Date{36923 + 0.4 * second}.fields()), "2001-2-1 0:0:0");
    EXPECT_EQ(shown(Date{36923 + 0.6 * second}.fields()), "2001-2-1 0:0:1");
    EXPECT_EQ(shown(Date{36924 - 0.4 * second}.fields()), "2001-2-2 0:0:0");
    EXPECT_EQ(shown(Date{-1 - (1 - 0.4 * second)}.fields()), "1899-12-30 0:0:0");
}

TEST(Date, SurvivesTheWayThroughFields)
{
    for (std::int64_t seconds = -2'000'000'000; seconds < 6'000'000'000; seconds += std::int64_t{86399} * 37) {
        const Date date = Date::fromSeconds(seconds);
        ASSERT_EQ(date.seconds(), seconds);
        ASSERT_EQ(Date::fromFields(date.fields()), date) << shown(date.fields());
    }
}

TEST(Weekday, CountsFromSunday)
{
    EXPECT_EQ(Date{}.weekday(), 7);
    EXPECT_EQ(Date{1}.weekday(), 1);
    EXPECT_EQ(Date{-1.5}.weekday(), 6);
    EXPECT_EQ(Date{36923}.weekday(), 5);
    EXPECT_EQ(Date{-657434}.weekday(), 6);
}

TEST(PlusMinutes, IsExactToTheSecond)
{
    Date date = Date::fromFields({.year = 2001, .month = 2, .day = 1});
    for (int step = 0; step < 10'000; ++step) {
        date = date.plusMinutes(1);
    }
    EXPECT_EQ(shown(date.fields()), "2001-2-7 22:40:0");
    EXPECT_EQ(shown(date.plusMinutes(-10'000).fields()), "2001-2-1 0:0:0");
}

TEST(PlusMinutes, CrossesTheZeroDate)
{
    EXPECT_EQ(Date{0.25}.plusMinutes(-1440).days(), -1.25);
    EXPECT_EQ(Date{-1.25}.plusMinutes(1440).days(), 0.25);
}

TEST(PlusMinutes, RefusesToLeaveTheYears)
{
    EXPECT_EQ(errorOf([] { return Date{}.plusMinutes(std::numeric_limits<long long>::max()); }), 5);
    EXPECT_EQ(errorOf([] { return Date{}.plusMinutes(std::numeric_limits<long long>::min()); }), 5);
    EXPECT_EQ(errorOf([] { return Date{2958465}.plusMinutes(1440); }), 5);
}

} // namespace
} // namespace rf
