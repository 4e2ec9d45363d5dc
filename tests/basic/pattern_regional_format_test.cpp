#include "basic/amount.h"
#include "basic/error_of.h"
#include "basic/locales.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace rf {
namespace {

using test::amount;
using test::errorOf;

class Format : public ::testing::Test {
protected:
    const PatternRegional english_{englishSettings()};
    const PatternRegional german_{germanSettings()};
    const PatternRegional korean_{test::koreanSettings()};
};

TEST_F(Format, WritesNumbersInFifteenDigits)
{
    EXPECT_EQ(english_.formatNumber(2.5), u"2.5");
    EXPECT_EQ(german_.formatNumber(-2.5), u"-2,5");
    EXPECT_EQ(english_.formatNumber(0.1), u"0.1");
    EXPECT_EQ(english_.formatNumber(1.0 / 3), u"0.333333333333333");
    EXPECT_EQ(english_.formatNumber(0.1 + 0.2), u"0.3");
    EXPECT_EQ(english_.formatNumber(100), u"100");
    EXPECT_EQ(english_.formatNumber(123456789012345), u"123456789012345");
    EXPECT_EQ(english_.formatNumber(0.0001), u"0.0001");
}

TEST_F(Format, WritesZeroWithoutASign)
{
    EXPECT_EQ(english_.formatNumber(0.0), u"0");
    EXPECT_EQ(english_.formatNumber(-0.0), u"0");
}

TEST_F(Format, WritesVeryLargeAndSmallNumbersWithAPower)
{
    EXPECT_EQ(english_.formatNumber(1e20), u"1E+20");
    EXPECT_EQ(german_.formatNumber(1.5e20), u"1,5E+20");
    EXPECT_EQ(english_.formatNumber(1e15), u"1E+15");
    EXPECT_EQ(english_.formatNumber(1234567890123456), u"1.23456789012346E+15");
    EXPECT_EQ(english_.formatNumber(-1e-5), u"-1E-05");
    EXPECT_EQ(english_.formatNumber(1e300), u"1E+300");
    EXPECT_EQ(english_.formatNumber(999999999999999.9), u"1E+15");
}

TEST_F(Format, WritesSinglesInSevenDigits)
{
    EXPECT_EQ(english_.formatSingle(0.1F), u"0.1");
    EXPECT_EQ(german_.formatSingle(-2.5F), u"-2,5");
    EXPECT_EQ(english_.formatSingle(1.0F / 3), u"0.3333333");
    EXPECT_EQ(english_.formatSingle(1234567), u"1234567");
    EXPECT_EQ(english_.formatSingle(12345678), u"1.234568E+07");
    EXPECT_EQ(english_.formatSingle(-0.0F), u"0");
    EXPECT_EQ(errorOf([&] { return english_.formatSingle(std::numeric_limits<float>::infinity()); }), 6);
}

TEST_F(Format, RefusesWhatIsNoNumber)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(errorOf([&] { return english_.formatNumber(infinity); }), 6);
    EXPECT_EQ(errorOf([&] { return english_.formatNumber(notANumber); }), 6);
    EXPECT_EQ(errorOf([&] { return english_.formatFixed(-infinity, 2); }), 6);
}

TEST_F(Format, RoundsFixedDecimalsHalfAwayFromZero)
{
    EXPECT_EQ(english_.formatFixed(1.5, 2), u"1.50");
    EXPECT_EQ(german_.formatFixed(1.5, 2), u"1,50");
    EXPECT_EQ(english_.formatFixed(0.125, 2), u"0.13");
    EXPECT_EQ(english_.formatFixed(-0.125, 2), u"-0.13");
    EXPECT_EQ(english_.formatFixed(2.675, 2), u"2.68");
    EXPECT_EQ(english_.formatFixed(1.005, 2), u"1.01");
    EXPECT_EQ(english_.formatFixed(0.5, 0), u"1");
    EXPECT_EQ(english_.formatFixed(2.5, 0), u"3");
    EXPECT_EQ(english_.formatFixed(9.995, 2), u"10.00");
    EXPECT_EQ(english_.formatFixed(99.99, 0), u"100");
    EXPECT_EQ(english_.formatFixed(1234567.891, 1), u"1234567.9");
    EXPECT_EQ(english_.formatFixed(1e20, 2), u"100000000000000000000.00");
}

TEST_F(Format, WritesNoSignBeforeAFixedZero)
{
    EXPECT_EQ(english_.formatFixed(-0.001, 2), u"0.00");
    EXPECT_EQ(english_.formatFixed(-0.0, 2), u"0.00");
    EXPECT_EQ(english_.formatFixed(1e-300, 2), u"0.00");
    EXPECT_EQ(english_.formatFixed(0, 0), u"0");
}

TEST_F(Format, WritesPlainAmountsExactly)
{
    EXPECT_EQ(english_.formatPlain(amount(25000)), u"2.5");
    EXPECT_EQ(german_.formatPlain(amount(-12345)), u"-1,2345");
    EXPECT_EQ(english_.formatPlain(amount(1)), u"0.0001");
    EXPECT_EQ(english_.formatPlain(amount(0)), u"0");
    EXPECT_EQ(english_.formatPlain(amount(1000000)), u"100");
    EXPECT_EQ(english_.formatPlain(amount(std::numeric_limits<std::int64_t>::max())), u"922337203685477.5807");
    EXPECT_EQ(english_.formatPlain(amount(std::numeric_limits<std::int64_t>::min())), u"-922337203685477.5808");
}

TEST_F(Format, WritesMoneyAfterThePatternOfTheSettings)
{
    EXPECT_EQ(english_.formatMoney(amount(12345678)), u"$1,234.57");
    EXPECT_EQ(english_.formatMoney(amount(-12345678)), u"($1,234.57)");
    EXPECT_EQ(german_.formatMoney(amount(12345678)), u"1.234,57 €");
    EXPECT_EQ(german_.formatMoney(amount(-12345678)), u"-1.234,57 €");
    EXPECT_EQ(korean_.formatMoney(amount(-12345678)), u"-₩1,235");
    EXPECT_EQ(PatternRegional{test::swissSettings()}.formatMoney(amount(-12345678)), u"CHF-1’234.57");
    EXPECT_EQ(english_.formatMoney(amount(std::numeric_limits<std::int64_t>::min())), u"($922,337,203,685,477.58)");
}

TEST_F(Format, RoundsMoneyHalfAwayFromZero)
{
    EXPECT_EQ(english_.formatMoney(amount(50)), u"$0.01");
    EXPECT_EQ(english_.formatMoney(amount(-50)), u"($0.01)");
    EXPECT_EQ(english_.formatMoney(amount(25050)), u"$2.51");
    EXPECT_EQ(english_.formatMoney(amount(9999950)), u"$1,000.00");
    EXPECT_EQ(korean_.formatMoney(amount(5000)), u"₩1");
}

TEST_F(Format, WritesNoSignBeforeNoMoney)
{
    EXPECT_EQ(english_.formatMoney(amount(-49)), u"$0.00");
    EXPECT_EQ(english_.formatMoney(amount(0)), u"$0.00");
}

TEST_F(Format, GroupsByTheSizeOfTheSettings)
{
    RegionalSettings settings = englishSettings();
    settings.groupSize = 4;
    EXPECT_EQ(PatternRegional{settings}.formatMoney(amount(123456780000)), u"$1234,5678.00");
    settings.groupSize = 0;
    EXPECT_EQ(PatternRegional{settings}.formatMoney(amount(123456780000)), u"$12345678.00");
}

TEST_F(Format, WritesTheGeneralFormOfADate)
{
    const Date date = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 14, .minute = 5, .second = 9});
    EXPECT_EQ(english_.formatDate(date), u"2/1/2001 2:05:09 PM");
    EXPECT_EQ(german_.formatDate(date), u"01.02.2001 14:05:09");
    EXPECT_EQ(korean_.formatDate(date), u"2001. 2. 1. 오후 2:05:09");
}

TEST_F(Format, LeavesOutMidnight)
{
    EXPECT_EQ(german_.formatDate(Date{36923}), u"01.02.2001");
    EXPECT_EQ(german_.formatDate(Date{36922.9999999}), u"01.02.2001");
    EXPECT_EQ(german_.formatDate(Date{-1.25}), u"29.12.1899 06:00:00");
}

TEST_F(Format, WritesOnlyTheTimeOnTheZeroDate)
{
    EXPECT_EQ(german_.formatDate(Date{0.75}), u"18:00:00");
    EXPECT_EQ(german_.formatDate(Date{}), u"00:00:00");
    EXPECT_EQ(english_.formatDate(Date{}), u"12:00:00 AM");
    EXPECT_EQ(english_.formatDate(Date{0.5}), u"12:00:00 PM");
}

TEST_F(Format, WritesShortDatesAndWeekdays)
{
    EXPECT_EQ(english_.formatShortDate(Date{36923.6}), u"2/1/2001");
    EXPECT_EQ(german_.formatShortDate(Date{}), u"30.12.1899");
    EXPECT_EQ(english_.formatWeekday(Date{36923.6}), u"Thu");
    EXPECT_EQ(german_.formatWeekday(Date{36923.6}), u"Do");
    EXPECT_EQ(german_.formatShortDate(Date{-657434}), u"01.01.0100");
}

TEST_F(Format, RefusesDatesOutsideTheYears)
{
    EXPECT_EQ(errorOf([&] { return english_.formatDate(Date{1e7}); }), 5);
    EXPECT_EQ(errorOf([&] { return english_.formatShortDate(Date{-1e7}); }), 5);
    EXPECT_EQ(errorOf([&] { return english_.formatWeekday(Date{std::numeric_limits<double>::quiet_NaN()}); }), 5);
}

TEST_F(Format, KnowsEveryFieldOfAPicture)
{
    const Date date = Date::fromFields({.year = 2003, .month = 3, .day = 4, .hour = 15, .minute = 6, .second = 7});
    const auto written = [date](TextView picture) {
        RegionalSettings settings = englishSettings();
        settings.shortDatePattern = picture;
        return PatternRegional{settings}.formatShortDate(date);
    };
    EXPECT_EQ(written(u"d dd ddd dddd"), u"4 04 Tue Tuesday");
    EXPECT_EQ(written(u"M MM MMM MMMM"), u"3 03 Mar March");
    EXPECT_EQ(written(u"y yy yyyy"), u"3 03 2003");
    EXPECT_EQ(written(u"h hh H HH m mm s ss t tt"), u"3 03 15 15 6 06 7 07 P PM");
    EXPECT_EQ(written(u"d'd'M"), u"4d3");
    EXPECT_EQ(written(u"d 'o''clock' M"), u"4 o'clock 3");
    EXPECT_EQ(written(u"d 'open"), u"4 open");
}

TEST_F(Format, HasUtf8AsTheSystemCodePage)
{
    EXPECT_EQ(english_.toSystemCodePage(u"ä€"), "\xC3\xA4\xE2\x82\xAC");
    EXPECT_EQ(english_.fromSystemCodePage("\xC3\xA4"), u"ä");
}

TEST_F(Format, TellsItsLocaleAndDateOrder)
{
    EXPECT_EQ(english_.systemLocaleId(), 1033U);
    EXPECT_EQ(german_.systemLocaleId(), 1031U);
    EXPECT_EQ(english_.dateOrder(), DateOrder::MonthDayYear);
    EXPECT_EQ(german_.dateOrder(), DateOrder::DayMonthYear);
    EXPECT_EQ(korean_.dateOrder(), DateOrder::YearMonthDay);
}

class RoundTrip : public ::testing::TestWithParam<test::Locale> {
protected:
    const PatternRegional regional_{GetParam().settings};
};

TEST_P(RoundTrip, ReadsTheNumbersItWrites)
{
    for (const double number : {0.0, 2.5, -1234567.25, 1e20, -1.5e-7, 123456789012345.0, 0.0001}) {
        EXPECT_EQ(regional_.parseNumber(regional_.formatNumber(number)), number);
    }
    EXPECT_EQ(regional_.parseNumber(regional_.formatFixed(-1234.5, 2)), -1234.5);
}

TEST_P(RoundTrip, ReadsTheMoneyItWrites)
{
    for (const std::int64_t whole : {0LL, 1LL, -1LL, 1234LL, -1234567LL, 922337203685477LL}) {
        const Currency money = Currency::fromInteger(whole);
        EXPECT_EQ(regional_.parseCurrency(regional_.formatMoney(money)), money);
        EXPECT_EQ(regional_.parseNumber(regional_.formatMoney(money)), static_cast<double>(whole));
    }
    const Currency exact = amount(-12345678);
    EXPECT_EQ(regional_.parseCurrency(regional_.formatPlain(exact)), exact);
}

TEST_P(RoundTrip, ReadsTheDatesItWrites)
{
    for (const double days : {36923.0, 36923.5, 36954.25, -1.25, 45000.75, 42369.0}) {
        EXPECT_EQ(regional_.parseDate(regional_.formatDate(Date{days})), Date{days});
    }
    EXPECT_EQ(regional_.parseDate(regional_.formatShortDate(Date{36923.5})), Date{36923});
}

INSTANTIATE_TEST_SUITE_P(Locales, RoundTrip, ::testing::ValuesIn(test::locales()), ::testing::PrintToStringParamName());

} // namespace
} // namespace rf
