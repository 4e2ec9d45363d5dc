#include "windows/regional.h"

#include "basic/amount.h"
#include "basic/error_of.h"
#include "windows/win32.h"

#include <gtest/gtest.h>

#include <limits>

namespace rf::native {
namespace {

using test::amount;
using test::errorOf;

constexpr std::uint32_t german = 1031;
constexpr std::uint32_t english = 1033;
constexpr std::uint32_t swedish = 1053;

/// Wine answers some calls otherwise than Windows does.
bool runsUnderWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }

class AutomationRegional : public ::testing::Test {
protected:
    const std::unique_ptr<Regional> german_ = makeRegional(german);
    const std::unique_ptr<Regional> english_ = makeRegional(english);
    const std::unique_ptr<Regional> swedish_ = makeRegional(swedish);
};

TEST_F(AutomationRegional, ReadsNumbersInTheFormOfTheLocale)
{
    EXPECT_EQ(german_->parseNumber(u"1,5"), 1.5);
    EXPECT_EQ(english_->parseNumber(u"1,5"), 15);
    EXPECT_EQ(german_->parseNumber(u"1.000"), 1000);
    EXPECT_EQ(english_->parseNumber(u" (5) "), -5);
    EXPECT_EQ(english_->parseNumber(u"$5-"), -5);
    EXPECT_EQ(german_->parseNumber(u"5 €"), 5);
    EXPECT_EQ(english_->parseNumber(u"&H1F"), 31);
    EXPECT_EQ(english_->parseNumber(u"&O17"), 15);
    EXPECT_EQ(english_->parseNumber(u"1E+20"), 1e20);
}

TEST_F(AutomationRegional, GivesNothingForWhatIsNoNumber)
{
    for (const TextView text : {u"", u" ", u"abc", u"1a", u".", u"-", u"1E400"}) {
        EXPECT_EQ(english_->parseNumber(text), std::nullopt);
        EXPECT_EQ(english_->parseCurrency(text), std::nullopt);
    }
}

TEST_F(AutomationRegional, ReadsNoTextBehindANul)
{
    EXPECT_EQ(english_->parseNumber(Text{u'5', u'\0', u'x'}), std::nullopt);
    EXPECT_EQ(english_->parseNumber(Text{u'5', u'\0'}), std::nullopt);
}

TEST_F(AutomationRegional, ReadsMoneyExactly)
{
    EXPECT_EQ(english_->parseCurrency(u"1.2345"), amount(12345));
    EXPECT_EQ(german_->parseCurrency(u"1.234,56 €"), amount(12345600));
    EXPECT_EQ(english_->parseCurrency(u"1E20"), std::nullopt);
}

TEST_F(AutomationRegional, ReadsTheLargestAmount)
{
    if (runsUnderWine()) {
        GTEST_SKIP() << "Wine loses digits of amounts near the end of the range";
    }
    EXPECT_EQ(english_->parseCurrency(u"922337203685477.5807"), amount(std::numeric_limits<std::int64_t>::max()));
}

TEST_F(AutomationRegional, ReadsDatesInTheOrderOfTheLocale)
{
    EXPECT_EQ(german_->parseDate(u"01/02/2001"), Date{36923});
    EXPECT_EQ(english_->parseDate(u"01/02/2001"), Date{36893});
    EXPECT_EQ(german_->parseDate(u"1.2.2001 14:05"),
        Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 14, .minute = 5}));
    EXPECT_EQ(english_->parseDate(u"12"), std::nullopt);
    EXPECT_EQ(english_->parseDate(u"soon"), std::nullopt);
}

TEST_F(AutomationRegional, ReadsALeadingYearAsWindowsDoes)
{
    EXPECT_EQ(english_->parseDate(u"2001-2-1"), Date{36923});
    EXPECT_EQ(swedish_->parseDate(u"2001-02-01"), Date{36923});
    if (runsUnderWine()) {
        GTEST_SKIP() << "Wine reads a leading year as year-month-day in day-first locales too";
    }
    EXPECT_EQ(german_->parseDate(u"2001-1-2 14:05 PM "),
        Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 14, .minute = 5}));
}

TEST_F(AutomationRegional, WritesNumbers)
{
    EXPECT_EQ(german_->formatNumber(2.5), u"2,5");
    EXPECT_EQ(english_->formatNumber(1e20), u"1E+20");
    EXPECT_EQ(english_->formatNumber(-0.0), u"0");
    EXPECT_EQ(errorOf([&] { return english_->formatNumber(std::numeric_limits<double>::infinity()); }), 6);
}

TEST_F(AutomationRegional, WritesSinglesInSevenDigits)
{
    EXPECT_EQ(english_->formatSingle(0.1F), u"0.1");
    EXPECT_EQ(german_->formatSingle(-2.5F), u"-2,5");
    EXPECT_EQ(english_->formatSingle(12345678), u"1.234568E+07");
    EXPECT_EQ(errorOf([&] { return english_->formatSingle(std::numeric_limits<float>::infinity()); }), 6);
}

TEST_F(AutomationRegional, WritesFixedDecimalsHalfAwayFromZero)
{
    EXPECT_EQ(english_->formatFixed(1.5, 2), u"1.50");
    EXPECT_EQ(german_->formatFixed(-2.675, 2), u"-2,68");
    EXPECT_EQ(english_->formatFixed(1234567.5, 0), u"1234568");
    EXPECT_EQ(english_->formatFixed(-0.001, 2), u"0.00");
    EXPECT_EQ(english_->formatFixed(1e20, 2), u"100000000000000000000.00");
    EXPECT_EQ(errorOf([&] { return english_->formatFixed(std::numeric_limits<double>::quiet_NaN(), 2); }), 6);
}

TEST_F(AutomationRegional, WritesMoney)
{
    EXPECT_EQ(english_->formatMoney(amount(12345678)), u"$1,234.57");
    EXPECT_EQ(english_->formatMoney(amount(-12345678)), u"($1,234.57)");
    EXPECT_EQ(german_->formatMoney(amount(12345678)), u"1.234,57 €");
    EXPECT_EQ(english_->formatMoney(amount(-49)), u"$0.00");
    EXPECT_EQ(german_->formatPlain(amount(-12345)), u"-1,2345");
    EXPECT_EQ(german_->formatPlain(amount(25000)), u"2,5");
}

TEST_F(AutomationRegional, WritesEveryGroupOfALargeAmount)
{
    if (runsUnderWine()) {
        GTEST_SKIP() << "Wine separates only the last group in a locale that is not the user's";
    }
    EXPECT_EQ(english_->formatMoney(amount(std::numeric_limits<std::int64_t>::min())), u"($922,337,203,685,477.58)");
}

TEST_F(AutomationRegional, WritesDates)
{
    const Date date = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 14, .minute = 5, .second = 9});
    EXPECT_EQ(english_->formatDate(date), u"2/1/2001 2:05:09 PM");
    EXPECT_EQ(english_->formatDate(Date{36923}), u"2/1/2001");
    EXPECT_EQ(german_->formatDate(Date{0.75}), u"18:00:00");
    EXPECT_EQ(english_->formatShortDate(date), u"2/1/2001");
    EXPECT_EQ(english_->formatShortDate(Date{0.5}), u"12/30/1899");
    EXPECT_EQ(english_->formatWeekday(date), u"Thu");
    EXPECT_EQ(english_->formatWeekday(Date{-657434}), u"Fri");
    EXPECT_EQ(errorOf([&] { return english_->formatDate(Date{1e9}); }), 5);
    EXPECT_EQ(errorOf([&] { return english_->formatWeekday(Date{1e9}); }), 5);
}

TEST_F(AutomationRegional, WritesGermanShortForms)
{
    if (runsUnderWine()) {
        GTEST_SKIP() << "Wine has other German short forms: 1.2.2001 and Do. with a full stop";
    }
    EXPECT_EQ(german_->formatWeekday(Date{36923}), u"Do");
    EXPECT_EQ(german_->formatShortDate(Date{36923}), u"01.02.2001");
}

TEST_F(AutomationRegional, TellsTheDateOrder)
{
    EXPECT_EQ(english_->dateOrder(), DateOrder::MonthDayYear);
    EXPECT_EQ(german_->dateOrder(), DateOrder::DayMonthYear);
    EXPECT_EQ(swedish_->dateOrder(), DateOrder::YearMonthDay);
}

TEST_F(AutomationRegional, TellsTheLocaleOfTheSystemWhateverItReads)
{
    EXPECT_EQ(german_->systemLocaleId(), GetSystemDefaultLCID());
    EXPECT_EQ(makeRegional()->systemLocaleId(), GetSystemDefaultLCID());
}

TEST_F(AutomationRegional, ReadsWhatItWritesForTheUser)
{
    const auto user = makeRegional();
    EXPECT_EQ(user->parseNumber(user->formatNumber(-1234.5)), -1234.5);
    EXPECT_EQ(user->parseNumber(user->formatFixed(1234.5, 2)), 1234.5);
    EXPECT_EQ(user->parseCurrency(user->formatMoney(amount(-12340000))), amount(-12340000));
    EXPECT_EQ(user->parseDate(user->formatDate(Date{36923.5})), Date{36923.5});
}

TEST_F(AutomationRegional, ReplacesWhatTheCodePageCannotHold)
{
    EXPECT_EQ(english_->toSystemCodePage(u"abc"), "abc");
    EXPECT_EQ(english_->fromSystemCodePage("abc"), u"abc");
    EXPECT_EQ(english_->toSystemCodePage(u""), "");
    EXPECT_EQ(english_->fromSystemCodePage(""), u"");
    if (GetACP() != 1252) {
        GTEST_SKIP() << "the code page of this system holds other characters";
    }
    EXPECT_EQ(english_->toSystemCodePage(u"ä€Ж"), "\xE4\x80?");
    EXPECT_EQ(english_->fromSystemCodePage("\xE4\x80"), u"ä€");
}

} // namespace
} // namespace rf::native
