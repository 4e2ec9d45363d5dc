#include "basic/conversion.h"

#include "basic/error_of.h"
#include "basic/pattern_regional.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace rf {
namespace {

using test::errorOf;

class Conversion : public ::testing::Test {
protected:
    const PatternRegional english_{englishSettings()};
    const PatternRegional german_{germanSettings()};
};

TEST(RoundHalfToEven, TakesTheEvenNeighbourOfAHalf)
{
    EXPECT_EQ(roundHalfToEven(0.5), 0);
    EXPECT_EQ(roundHalfToEven(1.5), 2);
    EXPECT_EQ(roundHalfToEven(2.5), 2);
    EXPECT_EQ(roundHalfToEven(-0.5), 0);
    EXPECT_EQ(roundHalfToEven(-1.5), -2);
    EXPECT_EQ(roundHalfToEven(-2.5), -2);
    EXPECT_EQ(roundHalfToEven(2.500001), 3);
    EXPECT_EQ(roundHalfToEven(2.4), 2);
}

TEST(RoundHalfToEven, GivesNoNegativeZero) { EXPECT_FALSE(std::signbit(roundHalfToEven(-0.4))); }

TEST(DivideHalfToEven, RoundsQuotientsOfBothSigns)
{
    EXPECT_EQ(divideHalfToEven(500, 1000), 0);
    EXPECT_EQ(divideHalfToEven(1500, 1000), 2);
    EXPECT_EQ(divideHalfToEven(2500, 1000), 2);
    EXPECT_EQ(divideHalfToEven(2501, 1000), 3);
    EXPECT_EQ(divideHalfToEven(-500, 1000), 0);
    EXPECT_EQ(divideHalfToEven(-1500, 1000), -2);
    EXPECT_EQ(divideHalfToEven(-2500, 1000), -2);
    EXPECT_EQ(divideHalfToEven(-2501, 1000), -3);
    EXPECT_EQ(divideHalfToEven(1, 3), 0);
    EXPECT_EQ(divideHalfToEven(2, 3), 1);
}

TEST(DivideHalfToEven, IsExactWhereADoubleIsNot)
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(divideHalfToEven(largest, 1), largest);
    EXPECT_EQ(divideHalfToEven(smallest, 1), smallest);
    EXPECT_EQ(divideHalfToEven(largest, 2), 4611686018427387904);
    EXPECT_EQ(divideHalfToEven(9007199254740993, 2), 4503599627370496);
    EXPECT_EQ(divideHalfToEven(largest, largest), 1);
    EXPECT_EQ(divideHalfToEven(smallest, largest), -1);
    EXPECT_EQ(divideHalfToEven(largest / 2, largest), 0);
}

TEST(ToInteger, RoundsAndThenKeepsItsRange)
{
    EXPECT_EQ(toInteger(2.5), 2);
    EXPECT_EQ(toInteger(32767.4), 32767);
    EXPECT_EQ(toInteger(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { return toInteger(32767.5); }), 6);
    EXPECT_EQ(errorOf([] { return toInteger(-32768.6); }), 6);
    EXPECT_EQ(errorOf([] { return toInteger(std::numeric_limits<double>::quiet_NaN()); }), 6);
}

TEST(ToLong, RoundsAndThenKeepsItsRange)
{
    EXPECT_EQ(toLong(3.5), 4);
    EXPECT_EQ(toLong(2147483647.4), 2147483647);
    EXPECT_EQ(toLong(-2147483648.5), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(errorOf([] { return toLong(2147483647.5); }), 6);
    EXPECT_EQ(errorOf([] { return toLong(-2147483648.6); }), 6);
    EXPECT_EQ(errorOf([] { return toLong(std::numeric_limits<double>::infinity()); }), 6);
}

TEST_F(Conversion, ReadsWholeNumbersInTheUsersForm)
{
    EXPECT_EQ(toInteger(english_, u" 1,234.5 "), 1234);
    EXPECT_EQ(toInteger(german_, u"1.234,5"), 1234);
    EXPECT_EQ(toLong(german_, u"2,5"), 2);
    EXPECT_EQ(toLong(english_, u"&H1F"), 31);
    EXPECT_EQ(toInteger(german_, u"-3 €"), -3);
}

TEST_F(Conversion, FailsWithTypeMismatchWhereThereIsNoNumber)
{
    for (const TextView text : {u"", u"  ", u"abc", u"1a", u"-", u"1.2.3", u"\t"}) {
        EXPECT_EQ(errorOf([&] { return toInteger(english_, text); }), 13);
        EXPECT_EQ(errorOf([&] { return toLong(english_, text); }), 13);
        EXPECT_EQ(errorOf([&] { return toDouble(english_, text); }), 13);
        EXPECT_EQ(errorOf([&] { return toCurrency(english_, text); }), 13);
        EXPECT_EQ(errorOf([&] { return toBoolean(english_, text); }), 13);
    }
}

TEST_F(Conversion, FailsWithOverflowWhereTheNumberIsTooLarge)
{
    EXPECT_EQ(errorOf([&] { return toInteger(english_, u"32768"); }), 6);
    EXPECT_EQ(errorOf([&] { return toLong(english_, u"1E10"); }), 6);
    EXPECT_EQ(errorOf([&] { return toCurrency(english_, u"1E15"); }), 6);
    EXPECT_EQ(errorOf([&] { return toDate(english_, u"1E10"); }), 6);
}

TEST_F(Conversion, NamesTheCallerInItsErrors)
{
    const auto here = std::source_location::current();
    try {
        static_cast<void>(toLong(english_, u"abc"));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_STREQ(error.where().file_name(), here.file_name());
        EXPECT_EQ(error.where().line(), here.line() + 2);
    }
}

TEST_F(Conversion, ReadsDoublesAndMoney)
{
    EXPECT_EQ(toDouble(german_, u"1,5"), 1.5);
    EXPECT_EQ(toDouble(english_, u"1,5"), 15);
    EXPECT_EQ(toCurrency(german_, u"1.234,56 €"), Currency::fromTenThousandths(12345600));
}

TEST_F(Conversion, ReadsDatesAndNumbersOfDays)
{
    EXPECT_EQ(toDate(german_, u"1.2.2001"), Date{36923});
    EXPECT_EQ(toDate(german_, u"36923,75"), Date{36923.75});
    EXPECT_EQ(toDate(english_, u"36923"), Date{36923});
    EXPECT_EQ(toDate(english_, u"-1.25"), Date{-1.25});
    EXPECT_EQ(errorOf([&] { return toDate(english_, u"soon"); }), 13);
    EXPECT_EQ(errorOf([&] { return toDate(english_, u""); }), 13);
}

TEST_F(Conversion, ReadsTruthValues)
{
    EXPECT_TRUE(toBoolean(german_, u"True"));
    EXPECT_TRUE(toBoolean(german_, u" tRUE "));
    EXPECT_FALSE(toBoolean(german_, u"FALSE"));
    EXPECT_TRUE(toBoolean(german_, u"-1"));
    EXPECT_TRUE(toBoolean(german_, u"0,1"));
    EXPECT_FALSE(toBoolean(german_, u"0"));
    EXPECT_EQ(errorOf([&] { return toBoolean(german_, u"wahr"); }), 13);
}

TEST_F(Conversion, WritesTruthValuesInEnglishEverywhere)
{
    EXPECT_EQ(toText(true), u"True");
    EXPECT_EQ(toText(false), u"False");
}

TEST_F(Conversion, TellsNumbersAndDatesApart)
{
    EXPECT_TRUE(isNumeric(german_, u"1,5 €"));
    EXPECT_FALSE(isNumeric(german_, u"1.2.2001 x"));
    EXPECT_TRUE(isDate(german_, u"1.2.2001"));
    EXPECT_FALSE(isDate(german_, u"12"));
}

} // namespace
} // namespace rf
