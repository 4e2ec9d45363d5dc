#include "basic/clock.h"
#include "basic/locales.h"

#include <gtest/gtest.h>

#include <sstream>

namespace rf {
namespace {

std::string shown(const std::optional<Date>& date)
{
    if (!date) {
        return "nothing";
    }
    const DateFields fields = date->fields();
    std::ostringstream out;
    out << fields.year << '-' << fields.month << '-' << fields.day;
    if (date->seconds() % 86400 != 0) {
        out << ' ' << fields.hour << ':' << fields.minute << ':' << fields.second;
    }
    return out.str();
}

int currentYear() { return SystemClock{}.now().fields().year; }

std::string inCurrentYear(const std::string& monthAndDay) { return std::to_string(currentYear()) + '-' + monthAndDay; }

class ParseDate : public ::testing::Test {
protected:
    [[nodiscard]] std::string monthFirst(TextView text) const { return shown(english_.parseDate(text)); }
    [[nodiscard]] std::string dayFirst(TextView text) const { return shown(german_.parseDate(text)); }
    [[nodiscard]] std::string yearFirst(TextView text) const { return shown(swedish_.parseDate(text)); }

    void expectNothing(TextView text) const
    {
        EXPECT_EQ(monthFirst(text), "nothing") << testing::PrintToString(text);
        EXPECT_EQ(dayFirst(text), "nothing") << testing::PrintToString(text);
        EXPECT_EQ(yearFirst(text), "nothing") << testing::PrintToString(text);
    }

    void expectEverywhere(TextView text, const std::string& date) const
    {
        EXPECT_EQ(monthFirst(text), date) << testing::PrintToString(text);
        EXPECT_EQ(dayFirst(text), date) << testing::PrintToString(text);
        EXPECT_EQ(yearFirst(text), date) << testing::PrintToString(text);
    }

    const PatternRegional english_{englishSettings()};
    const PatternRegional german_{germanSettings()};
    const PatternRegional swedish_{test::swedishSettings()};
    const PatternRegional french_{test::frenchSettings()};
    const PatternRegional danish_{test::danishSettings()};
    const PatternRegional korean_{test::koreanSettings()};
};

TEST_F(ParseDate, ReadsNumbersInTheUsersOrder)
{
    EXPECT_EQ(monthFirst(u"01/02/2001"), "2001-1-2");
    EXPECT_EQ(dayFirst(u"01/02/2001"), "2001-2-1");
    EXPECT_EQ(yearFirst(u"01/02/2001"), "2001-1-2");
    EXPECT_EQ(monthFirst(u"5/6/7"), "2007-5-6");
    EXPECT_EQ(dayFirst(u"5/6/7"), "2007-6-5");
    EXPECT_EQ(yearFirst(u"5/6/7"), "2005-6-7");
}

TEST_F(ParseDate, TakesEverySeparatorInEveryLocale)
{
    EXPECT_EQ(dayFirst(u"1.2.2001"), "2001-2-1");
    EXPECT_EQ(dayFirst(u"1-2-2001"), "2001-2-1");
    EXPECT_EQ(monthFirst(u"1.2.2001"), "2001-1-2");
    EXPECT_EQ(dayFirst(u"1. 2. 2001"), "2001-2-1");
    EXPECT_EQ(dayFirst(u"1 / 2 / 2001"), "2001-2-1");
    EXPECT_EQ(dayFirst(u"1 2 2001"), "2001-2-1");
    RegionalSettings settings = germanSettings();
    settings.dateSeparator = u"~";
    EXPECT_EQ(shown(PatternRegional{settings}.parseDate(u"1~2~2001")), "2001-2-1");
}

TEST_F(ParseDate, TriesOtherOrdersWhereTheNumbersDoNotFit)
{
    EXPECT_EQ(monthFirst(u"13/2/2001"), "2001-2-13");
    EXPECT_EQ(dayFirst(u"2/13/2001"), "2001-2-13");
    EXPECT_EQ(yearFirst(u"13/2/2001"), "2001-2-13");
    EXPECT_EQ(monthFirst(u"14/5"), inCurrentYear("5-14"));
    EXPECT_EQ(dayFirst(u"5/14"), inCurrentYear("5-14"));
}

TEST_F(ParseDate, ReadsALeadingYearAsTheUsersOrderHasIt)
{
    EXPECT_EQ(monthFirst(u"2001-1-2"), "2001-1-2");
    EXPECT_EQ(yearFirst(u"2001-1-2"), "2001-1-2");
    EXPECT_EQ(dayFirst(u"2001-1-2"), "2001-2-1");
    EXPECT_EQ(dayFirst(u"2001/01/02"), "2001-2-1");
}

TEST_F(ParseDate, ReadsALeadingYearInTheOtherWayWhereItDoesNotFit)
{
    expectEverywhere(u"2001-2-13", "2001-2-13");
    expectEverywhere(u"2001-13-2", "2001-2-13");
    expectEverywhere(u"2001-13-13", "nothing");
}

TEST_F(ParseDate, ReadsTheLiteralOfASearch)
{
    EXPECT_EQ(dayFirst(u"2001-1-2 14:05 PM "), "2001-2-1 14:5:0");
    EXPECT_EQ(monthFirst(u"2001-2-1 14:05 PM "), "2001-2-1 14:5:0");
    EXPECT_EQ(dayFirst(u"2001-1-2 9:05 AM"), "2001-2-1 9:5:0");
    EXPECT_EQ(dayFirst(u"2001-1-2 0:05 AM"), "2001-2-1 0:5:0");
    EXPECT_EQ(dayFirst(u"2001-1-2 12:05 PM "), "2001-2-1 12:5:0");
}

TEST_F(ParseDate, ReadsYearsOfTwoDigits)
{
    EXPECT_EQ(dayFirst(u"1.2.00"), "2000-2-1");
    EXPECT_EQ(dayFirst(u"1.2.29"), "2029-2-1");
    EXPECT_EQ(dayFirst(u"1.2.30"), "1930-2-1");
    EXPECT_EQ(dayFirst(u"1.2.99"), "1999-2-1");
    EXPECT_EQ(dayFirst(u"1.2.1"), "2001-2-1");
    EXPECT_EQ(dayFirst(u"1.2.0100"), "100-2-1");
    EXPECT_EQ(dayFirst(u"1.2.0099"), "nothing");
}

TEST_F(ParseDate, ReadsNamesOfMonths)
{
    expectEverywhere(u"1 Feb 2001", "2001-2-1");
    expectEverywhere(u"Feb 1, 2001", "2001-2-1");
    expectEverywhere(u"february 1 2001", "2001-2-1");
    expectEverywhere(u"2001 Feb 1", "2001-2-1");
    expectEverywhere(u"1-Feb-2001", "2001-2-1");
    expectEverywhere(u"1. Feb. 2001", "2001-2-1");
    expectEverywhere(u"1feb2001", "2001-2-1");
    EXPECT_EQ(dayFirst(u"1. März 2001"), "2001-3-1");
    EXPECT_EQ(dayFirst(u"1. MÄRZ 2001"), "2001-3-1");
    EXPECT_EQ(dayFirst(u"24 Dez 2001"), "2001-12-24");
    EXPECT_EQ(shown(french_.parseDate(u"1 févr. 2001")), "2001-2-1");
    EXPECT_EQ(shown(french_.parseDate(u"1 févr 2001")), "2001-2-1");
    EXPECT_EQ(monthFirst(u"1 März 2001"), "nothing");
}

TEST_F(ParseDate, ReadsAMonthWithOneNumber)
{
    expectEverywhere(u"Feb 1", inCurrentYear("2-1"));
    expectEverywhere(u"1 Feb", inCurrentYear("2-1"));
    expectEverywhere(u"Feb 2001", "2001-2-1");
    expectEverywhere(u"Feb 30", "nothing");
    expectEverywhere(u"Feb", "nothing");
}

TEST_F(ParseDate, ReadsAYearOfTwoDigitsBesideAMonth)
{
    EXPECT_EQ(dayFirst(u"3 Feb 04"), "2004-2-3");
    EXPECT_EQ(yearFirst(u"03 Feb 04"), "2003-2-4");
    expectEverywhere(u"31 Jan 99", "1999-1-31");
    expectEverywhere(u"99 Jan 31", "1999-1-31");
}

TEST_F(ParseDate, IgnoresNamesOfWeekdays)
{
    expectEverywhere(u"Thu, Feb 1, 2001", "2001-2-1");
    expectEverywhere(u"Monday 1 Feb 2001", "2001-2-1");
    EXPECT_EQ(dayFirst(u"Do, 01.02.2001"), "2001-2-1");
    EXPECT_EQ(dayFirst(u"Donnerstag, 1. Februar 2001"), "2001-2-1");
    EXPECT_EQ(shown(french_.parseDate(u"jeu. 01/02/2001")), "2001-2-1");
    expectNothing(u"Monday");
}

TEST_F(ParseDate, TakesWholeWordsOnly)
{
    expectNothing(u"1 Febru 2001");
    expectNothing(u"1 Market 2001");
    expectNothing(u"1 Feb 2001 please");
    expectNothing(u"1 Feb Mar 2001");
}

TEST_F(ParseDate, ReadsTwoNumbersAsDayAndMonthOfThisYear)
{
    EXPECT_EQ(monthFirst(u"1/2"), inCurrentYear("1-2"));
    EXPECT_EQ(dayFirst(u"1/2"), inCurrentYear("2-1"));
    EXPECT_EQ(yearFirst(u"1/2"), inCurrentYear("1-2"));
    EXPECT_EQ(dayFirst(u"1.2."), inCurrentYear("2-1"));
    expectEverywhere(u"1/2001", "2001-1-1");
    expectEverywhere(u"2001/1", "2001-1-1");
    expectNothing(u"30/2");
    expectNothing(u"2/30");
}

TEST_F(ParseDate, ReadsTimesOfTheDay)
{
    expectEverywhere(u"14:05", "1899-12-30 14:5:0");
    expectEverywhere(u"14:05:09", "1899-12-30 14:5:9");
    expectEverywhere(u"2:05:30 PM", "1899-12-30 14:5:30");
    expectEverywhere(u"2:05pm", "1899-12-30 14:5:0");
    expectEverywhere(u"12:30 AM", "1899-12-30 0:30:0");
    expectEverywhere(u"12:30 PM", "1899-12-30 12:30:0");
    expectEverywhere(u"2 PM", "1899-12-30 14:0:0");
    expectEverywhere(u"0:00", "1899-12-30");
    EXPECT_EQ(english_.parseDate(u"0:00"), Date{});
}

TEST_F(ParseDate, LetsAnHourAboveTwelveStandWhateverFollows)
{
    expectEverywhere(u"14:05 PM", "1899-12-30 14:5:0");
    expectEverywhere(u"14:05 AM", "1899-12-30 14:5:0");
}

TEST_F(ParseDate, ReadsDatesWithTimesInEitherOrder)
{
    expectEverywhere(u"1 Feb 2001 14:05", "2001-2-1 14:5:0");
    expectEverywhere(u"14:05 1 Feb 2001", "2001-2-1 14:5:0");
    expectEverywhere(u"Feb 1, 2001, 2:05 PM", "2001-2-1 14:5:0");
    expectEverywhere(u"Feb 1, 2001 2 PM", "2001-2-1 14:0:0");
    EXPECT_EQ(dayFirst(u"01.02.2001, 14:05"), "2001-2-1 14:5:0");
    EXPECT_EQ(dayFirst(u"1.2.2001 2 PM"), "2001-2-1 14:0:0");
    EXPECT_EQ(dayFirst(u"1. 2. 14:05"), inCurrentYear("2-1 14:5:0"));
}

TEST_F(ParseDate, TakesTheBlanksThatKeepALineTogether)
{
    expectEverywhere(u"\u00A01\u202FFeb\u00A02001 2:05\u202FPM", "2001-2-1 14:5:0");
}

TEST_F(ParseDate, ReadsTimesThatAreWrittenLikeDatesBehindADate)
{
    EXPECT_EQ(shown(danish_.parseDate(u"01.02.2001 14.05.09")), "2001-2-1 14:5:9");
    EXPECT_EQ(shown(danish_.parseDate(u"1. Feb 2001 14.05")), "2001-2-1 14:5:0");
    EXPECT_EQ(shown(danish_.parseDate(u"14:05")), "1899-12-30 14:5:0");
}

TEST_F(ParseDate, ReadsADesignatorInFrontOfTheTime)
{
    EXPECT_EQ(shown(korean_.parseDate(u"2001. 2. 1. 오후 2:05:09")), "2001-2-1 14:5:9");
    EXPECT_EQ(shown(korean_.parseDate(u"오전 12:05")), "1899-12-30 0:5:0");
    EXPECT_EQ(shown(korean_.parseDate(u"오후2:05")), "1899-12-30 14:5:0");
}

TEST_F(ParseDate, RefusesImpossibleDates)
{
    expectNothing(u"30/2/2001");
    expectNothing(u"2001-2-30");
    expectNothing(u"29 Feb 2001");
    expectNothing(u"31 Apr 2001");
    expectNothing(u"0/1/2001");
    expectNothing(u"13/13/2001");
    expectNothing(u"32 Jan 2001");
    expectNothing(u"1/2/20010");
    expectEverywhere(u"29 Feb 2000", "2000-2-29");
}

TEST_F(ParseDate, RefusesImpossibleTimes)
{
    for (const TextView text : {u"25:00", u"24:00", u"14:60", u"14:05:60", u"14:", u":14", u"14:05:06:07", u"1:2 3:4",
             u"2 PM PM", u"PM", u"25 PM", u"14::05", u"1/2/2001 PM"}) {
        expectNothing(text);
    }
}

TEST_F(ParseDate, RefusesNumbersAndOtherTexts)
{
    for (const TextView text : {u"", u"  ", u"12", u"36923", u"2001", u"-12", u"1,5", u"1.234,5", u"36923.5", u"abc",
             u"1/2/3/4", u"1/2/2001x", u"#1/2/2001#", u"/", u","}) {
        expectNothing(text);
    }
}

} // namespace
} // namespace rf
