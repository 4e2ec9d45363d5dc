#include "basic/locales.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace rf {
namespace {

class ParseNumber : public ::testing::Test {
protected:
    const PatternRegional english_{englishSettings()};
    const PatternRegional german_{germanSettings()};
    const PatternRegional french_{test::frenchSettings()};
    const PatternRegional swedish_{test::swedishSettings()};
    const PatternRegional swiss_{test::swissSettings()};
};

TEST_F(ParseNumber, ReadsTheUsersSeparators)
{
    EXPECT_EQ(german_.parseNumber(u"1,5"), 1.5);
    EXPECT_EQ(english_.parseNumber(u"1,5"), 15);
    EXPECT_EQ(german_.parseNumber(u"1.000"), 1000);
    EXPECT_EQ(english_.parseNumber(u"1.000"), 1);
    EXPECT_EQ(german_.parseNumber(u"1.234.567,25"), 1234567.25);
    EXPECT_EQ(swiss_.parseNumber(u"1’234,5"), 1234.5);
}

TEST_F(ParseNumber, TakesGroupSeparatorsAnywhereAmongTheWholeDigits)
{
    EXPECT_EQ(english_.parseNumber(u"1,2,3"), 123);
    EXPECT_EQ(english_.parseNumber(u"1,,2"), 12);
    EXPECT_EQ(english_.parseNumber(u"12,"), 12);
    EXPECT_EQ(english_.parseNumber(u",5"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"1.5,5"), std::nullopt);
    EXPECT_EQ(german_.parseNumber(u"1,5.5"), std::nullopt);
}

TEST_F(ParseNumber, TakesEveryBlankForABlankBetweenGroups)
{
    for (const TextView text : {u"12 345,5", u"12\u00A0345,5", u"12\u202F345,5"}) {
        EXPECT_EQ(french_.parseNumber(text), 12345.5);
        EXPECT_EQ(swedish_.parseNumber(text), 12345.5);
        EXPECT_EQ(german_.parseNumber(text), std::nullopt);
    }
    EXPECT_EQ(swedish_.parseNumber(u"5 kr"), 5);
    EXPECT_EQ(french_.parseNumber(u"5\u202F€"), 5);
}

TEST_F(ParseNumber, IgnoresBlanksAround)
{
    EXPECT_EQ(english_.parseNumber(u"  7 "), 7);
    EXPECT_EQ(english_.parseNumber(u"\t7\r\n"), 7);
    EXPECT_EQ(english_.parseNumber(u"\u00A07"), 7);
    EXPECT_EQ(english_.parseNumber(u"1 000"), std::nullopt);
}

TEST_F(ParseNumber, ReadsSignsInFrontAndBehind)
{
    EXPECT_EQ(english_.parseNumber(u"-5"), -5);
    EXPECT_EQ(english_.parseNumber(u"- 5"), -5);
    EXPECT_EQ(english_.parseNumber(u"5-"), -5);
    EXPECT_EQ(english_.parseNumber(u"5 -"), -5);
    EXPECT_EQ(english_.parseNumber(u"+5"), 5);
    EXPECT_EQ(english_.parseNumber(u"5+"), 5);
    EXPECT_EQ(english_.parseNumber(u"--5"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"-5-"), std::nullopt);
}

TEST_F(ParseNumber, ReadsParenthesesAsASign)
{
    EXPECT_EQ(english_.parseNumber(u"(5)"), -5);
    EXPECT_EQ(english_.parseNumber(u" ( 5.5 ) "), -5.5);
    EXPECT_EQ(english_.parseNumber(u"($5)"), -5);
    EXPECT_EQ(english_.parseNumber(u"$(5)"), -5);
    EXPECT_EQ(english_.parseNumber(u"(5"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"5)"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"((5))"), std::nullopt);
}

TEST_F(ParseNumber, ReadsTheCurrencySymbolInFrontAndBehind)
{
    EXPECT_EQ(english_.parseNumber(u"$5"), 5);
    EXPECT_EQ(english_.parseNumber(u"5$"), 5);
    EXPECT_EQ(english_.parseNumber(u"-$5"), -5);
    EXPECT_EQ(english_.parseNumber(u"$-5"), -5);
    EXPECT_EQ(german_.parseNumber(u"1.234,5 €"), 1234.5);
    EXPECT_EQ(german_.parseNumber(u"€ 1,5"), 1.5);
    EXPECT_EQ(english_.parseNumber(u"$$5"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"€5"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"5$5"), std::nullopt);
}

TEST_F(ParseNumber, TakesTheSeparatorsForMoneyAsWell)
{
    EXPECT_EQ(swiss_.parseNumber(u"1’234.5"), 1234.5);
    EXPECT_EQ(swiss_.parseNumber(u"CHF 1’234.5"), 1234.5);
    EXPECT_EQ(swiss_.parseNumber(u"1.5"), 1.5);
    EXPECT_EQ(swiss_.parseNumber(u"1,5"), 1.5);
}

TEST_F(ParseNumber, ReadsAnAmountWithTheSeparatorsForMoneyFirst)
{
    RegionalSettings settings = germanSettings();
    settings.currencyDecimalSeparator = u".";
    settings.currencyGroupSeparator = u",";
    const PatternRegional regional{settings};
    EXPECT_EQ(regional.parseNumber(u"1.234,5"), 1234.5);
    EXPECT_EQ(regional.parseNumber(u"1,234.5 €"), 1234.5);
}

TEST_F(ParseNumber, ReadsExponents)
{
    EXPECT_EQ(english_.parseNumber(u"1E5"), 1e5);
    EXPECT_EQ(english_.parseNumber(u"1.5e-3"), 0.0015);
    EXPECT_EQ(english_.parseNumber(u"1E+20"), 1e20);
    EXPECT_EQ(english_.parseNumber(u"2D3"), 2000);
    EXPECT_EQ(english_.parseNumber(u"-1E2"), -100);
    EXPECT_EQ(english_.parseNumber(u"1E"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"1E+"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"1E5.5"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"E5"), std::nullopt);
}

TEST_F(ParseNumber, KeepsTheRangeOfADouble)
{
    EXPECT_EQ(english_.parseNumber(u"1.7976931348623157E308"), std::numeric_limits<double>::max());
    EXPECT_EQ(english_.parseNumber(u"1E309"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"-1E99999999999999999999"), std::nullopt);
    EXPECT_EQ(english_.parseNumber(u"1E-400"), 0);
    EXPECT_EQ(english_.parseNumber(u"1E-99999999999999999999"), 0);
    EXPECT_EQ(english_.parseNumber(u"0E99999"), 0);
    EXPECT_EQ(english_.parseNumber(Text(400, u'9')), std::nullopt);
    EXPECT_EQ(english_.parseNumber(Text(400, u'0') + u"7"), 7);
}

TEST_F(ParseNumber, ReadsHexadecimalAndOctalDigits)
{
    EXPECT_EQ(english_.parseNumber(u"&H1F"), 31);
    EXPECT_EQ(english_.parseNumber(u" &hff "), 255);
    EXPECT_EQ(english_.parseNumber(u"&O17"), 15);
    EXPECT_EQ(english_.parseNumber(u"&o0"), 0);
    EXPECT_EQ(english_.parseNumber(u"&HFFFFFFFF"), 4294967295.0);
    for (const TextView text : {u"&", u"&H", u"&HG", u"&O8", u"&H-1", u"&H 1", u"&X1", u"&H11111111111111111"}) {
        EXPECT_EQ(english_.parseNumber(text), std::nullopt) << testing::PrintToString(text);
    }
}

TEST_F(ParseNumber, NeedsADigit)
{
    for (const TextView text : {u"", u" ", u".", u",", u"-", u"+", u"$", u"()", u"-.", u"$ -", u"abc", u"1a", u"a1"}) {
        EXPECT_EQ(english_.parseNumber(text), std::nullopt) << testing::PrintToString(text);
    }
    EXPECT_EQ(english_.parseNumber(u".5"), 0.5);
    EXPECT_EQ(english_.parseNumber(u"5."), 5);
}

TEST_F(ParseNumber, ReadsNoTextBehindANul) { EXPECT_EQ(english_.parseNumber(Text{u'5', u'\0'}), std::nullopt); }

TEST_F(ParseNumber, IsNotDisturbedByAnEmptySymbol)
{
    RegionalSettings settings = englishSettings();
    settings.currencySymbol.clear();
    settings.groupSeparator.clear();
    EXPECT_EQ(PatternRegional{settings}.parseNumber(u"1.5"), 1.5);
}

class ParseCurrency : public ParseNumber {
protected:
    [[nodiscard]] std::optional<std::int64_t> amount(TextView text) const
    {
        const auto currency = english_.parseCurrency(text);
        return currency ? std::optional{currency->tenThousandths()} : std::nullopt;
    }
};

TEST_F(ParseCurrency, IsExactToTheFourthDecimal)
{
    EXPECT_EQ(amount(u"1.2345"), 12345);
    EXPECT_EQ(amount(u"922337203685477.5807"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(amount(u"-922337203685477.5808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(amount(u"(922,337,203,685,477.5801)"), -9223372036854775801);
    EXPECT_EQ(amount(u"1.2345E3"), 12345000);
    EXPECT_EQ(amount(u"0.00000000000000000001E20"), 10000);
    EXPECT_EQ(amount(u"&H10"), 160000);
}

TEST_F(ParseCurrency, RoundsFurtherDigitsHalfToEven)
{
    EXPECT_EQ(amount(u"0.00005"), 0);
    EXPECT_EQ(amount(u"0.00015"), 2);
    EXPECT_EQ(amount(u"0.00025"), 2);
    EXPECT_EQ(amount(u"-0.00015"), -2);
    EXPECT_EQ(amount(u"0.000050000000000000000000000000001"), 1);
    EXPECT_EQ(amount(u"0.00004999999999999999999999999999"), 0);
    EXPECT_EQ(amount(u"0.0000500000"), 0);
    EXPECT_EQ(amount(u"0.99995"), 10000);
    EXPECT_EQ(amount(u"0.000005"), 0);
    EXPECT_EQ(amount(u"1E-30"), 0);
}

TEST_F(ParseCurrency, IsNothingOutsideTheRange)
{
    EXPECT_EQ(amount(u"922337203685477.5808"), std::nullopt);
    EXPECT_EQ(amount(u"-922337203685477.5809"), std::nullopt);
    EXPECT_EQ(amount(u"922337203685477.58075"), std::nullopt);
    EXPECT_EQ(amount(u"1E15"), std::nullopt);
    EXPECT_EQ(amount(u"1E99999"), std::nullopt);
    EXPECT_EQ(amount(u"abc"), std::nullopt);
    EXPECT_EQ(amount(u""), std::nullopt);
}

TEST_F(ParseCurrency, ReadsThePriceOfASupplyLine)
{
    EXPECT_EQ(german_.parseCurrency(u"2,50"), Currency::fromTenThousandths(25000));
    EXPECT_EQ(english_.parseCurrency(u"2.50"), Currency::fromTenThousandths(25000));
}

} // namespace
} // namespace rf
