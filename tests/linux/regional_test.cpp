#include "linux/regional.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <ostream>

namespace rf::native {
namespace {

struct Expected {
    const char* locale;
    std::uint32_t localeId;
    Text number;
    Text money;
    Text negativeMoney;
    Text date;
    Text weekday;

    friend std::ostream& operator<<(std::ostream& out, const Expected& expected) { return out << expected.locale; }
};

class Settings : public ::testing::TestWithParam<Expected> {
protected:
    const RegionalSettings settings_ = settingsOf(GetParam().locale);
    const PatternRegional regional_{settings_};
    const Date date_ = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 14, .minute = 5, .second = 9});
    const Currency amount_ = Currency::fromTenThousandths(12345000);
};

TEST_P(Settings, AreThoseOfTheCountry)
{
    const Expected& expected = GetParam();
    EXPECT_EQ(settings_.localeId, expected.localeId);
    EXPECT_EQ(regional_.formatNumber(2.5), expected.number);
    EXPECT_EQ(regional_.formatMoney(amount_), expected.money);
    EXPECT_EQ(regional_.formatMoney(Currency{} - amount_), expected.negativeMoney);
    EXPECT_EQ(regional_.formatDate(date_), expected.date);
    EXPECT_EQ(regional_.formatWeekday(date_), expected.weekday);
}

TEST_P(Settings, ReadWhatTheyWrite)
{
    EXPECT_EQ(regional_.parseNumber(regional_.formatNumber(-1234.5)), -1234.5);
    const Currency debt = Currency::fromInteger(-1234);
    EXPECT_EQ(regional_.parseCurrency(regional_.formatMoney(debt)), debt);
    EXPECT_EQ(regional_.parseDate(regional_.formatDate(date_)), date_);
}

INSTANTIATE_TEST_SUITE_P(Locales, Settings,
    ::testing::Values(
        Expected{"de_DE.UTF-8", 1031, u"2,5", u"1.234,50 €", u"-1.234,50 €", u"01.02.2001 14:05:09", u"Do"},
        Expected{"en_US.UTF-8", 1033, u"2.5", u"$1,234.50", u"($1,234.50)", u"2/1/2001 2:05:09 PM", u"Thu"},
        Expected{"sv_SE", 1053, u"2,5", u"1\u00A0234,50 kr", u"-1\u00A0234,50 kr", u"2001-02-01 14:05:09", u"tors"},
        Expected{"es_ES@euro", 3082, u"2,5", u"1.234,50 €", u"-1.234,50 €", u"1/2/2001 14:05:09", u"jue"},
        Expected{
            "fr_FR.ISO8859-1", 1036, u"2,5", u"1\u202F234,50 €", u"-1\u202F234,50 €", u"01/02/2001 14:05:09", u"jeu."},
        Expected{"ko_KR", 1042, u"2.5", u"₩1,235", u"-₩1,235", u"2001. 2. 1. 오후 2:05:09", u"목"},
        Expected{"da_DK", 1030, u"2,5", u"1.234,50 kr.", u"-1.234,50 kr.", u"01.02.2001 14.05.09", u"tors."}));

TEST(SettingsOf, GivesTheDateOrderOfTheCountry)
{
    EXPECT_EQ(settingsOf("en_US").dateOrder, DateOrder::MonthDayYear);
    EXPECT_EQ(settingsOf("de_DE").dateOrder, DateOrder::DayMonthYear);
    EXPECT_EQ(settingsOf("sv_SE").dateOrder, DateOrder::YearMonthDay);
}

TEST(SettingsOf, NamesMonthsAndWeekdaysInTheLanguage)
{
    const RegionalSettings german = settingsOf("de_DE");
    EXPECT_EQ(german.monthNames[2], u"März");
    EXPECT_EQ(german.weekdayNames[0], u"Sonntag");
    EXPECT_EQ(german.shortWeekdayNames[6], u"Sa");
    EXPECT_EQ(german.dateSeparator, u".");
    EXPECT_EQ(german.timeSeparator, u":");
}

TEST(SettingsOf, AreEnglishWhereNoLanguageIsNamed)
{
    for (const char* const name : {"", "C", "C.UTF-8", "POSIX", "xx_YY.UTF-8"}) {
        const RegionalSettings settings = settingsOf(name);
        EXPECT_EQ(settings.localeId, 1033U) << name;
        EXPECT_EQ(settings.shortDatePattern, u"M/d/yyyy") << name;
        EXPECT_EQ(settings.monthNames[0], u"January") << name;
    }
}

TEST(SettingsOf, TakeTheLikelyCountryWhereNoneIsNamed)
{
    const RegionalSettings settings = settingsOf("de");
    EXPECT_EQ(settings.localeId, 1031U);
    EXPECT_EQ(settings.currencySymbol, u"€");
}

TEST(SettingsOf, UseTheDigitsAndTheCalendarOfAutomation)
{
    const PatternRegional thai{settingsOf("th_TH")};
    EXPECT_EQ(thai.formatShortDate(Date{36923}), u"1/2/2001");
    const PatternRegional arabic{settingsOf("ar_EG")};
    EXPECT_EQ(arabic.parseDate(arabic.formatShortDate(Date{36923})), Date{36923});
    EXPECT_EQ(arabic.parseNumber(arabic.formatNumber(-2.5)), -2.5);
}

TEST(SettingsOf, WriteTimesWithoutWords) { EXPECT_EQ(settingsOf("fr_CA").longTimePattern, u"HH:mm:ss"); }

/// Sets the locale variables for a test and restores them behind it.
class Environment : public ::testing::Test {
protected:
    Environment()
    {
        for (const char* const name : names) {
            const char* const value = std::getenv(name);
            if (value != nullptr) {
                saved_[name] = value;
            }
            unsetenv(name);
        }
    }
    ~Environment() override
    {
        for (const char* const name : names) {
            const auto saved = saved_.find(name);
            saved == saved_.end() ? unsetenv(name) : setenv(name, saved->second.c_str(), 1);
        }
    }
    static void set(const char* name, const char* value) { setenv(name, value, 1); }

private:
    static constexpr const char* names[]
        = {"LC_ALL", "LC_NUMERIC", "LC_TIME", "LC_MONETARY", "LC_MESSAGES", "LANG", "LANGUAGE"};
    std::map<std::string, std::string> saved_;
};

TEST_F(Environment, GivesEnglishWhereNothingIsSet)
{
    const auto regional = makeRegional();
    EXPECT_EQ(regional->systemLocaleId(), 1033U);
    EXPECT_EQ(regional->dateOrder(), DateOrder::MonthDayYear);
}

TEST_F(Environment, LetsEachCategoryDifferFromTheLanguage)
{
    set("LANG", "en_US.UTF-8");
    set("LC_NUMERIC", "de_DE.UTF-8");
    set("LC_TIME", "sv_SE.UTF-8");
    set("LC_MONETARY", "fr_FR.UTF-8");
    const auto regional = makeRegional();
    EXPECT_EQ(regional->formatNumber(2.5), u"2,5");
    EXPECT_EQ(regional->formatShortDate(Date{36923}), u"2001-02-01");
    EXPECT_EQ(regional->formatMoney(Currency::fromInteger(1)), u"1,00 €");
    EXPECT_EQ(regional->systemLocaleId(), 1033U);
}

TEST_F(Environment, PutsLcAllBeforeTheCategories)
{
    set("LANG", "en_US.UTF-8");
    set("LC_NUMERIC", "en_US.UTF-8");
    set("LC_MESSAGES", "en_US.UTF-8");
    set("LC_ALL", "de_DE.UTF-8");
    const auto regional = makeRegional();
    EXPECT_EQ(regional->formatNumber(2.5), u"2,5");
    EXPECT_EQ(regional->systemLocaleId(), 1031U);
}

TEST_F(Environment, TakesTheSystemLocaleIdFromTheMessages)
{
    set("LANG", "en_US.UTF-8");
    set("LC_MESSAGES", "sv_SE.UTF-8");
    set("LANGUAGE", "fr");
    const auto regional = makeRegional();
    EXPECT_EQ(regional->systemLocaleId(), 1053U);
    EXPECT_EQ(regional->formatNumber(2.5), u"2.5");
}

TEST_F(Environment, IgnoresEmptyVariables)
{
    set("LC_ALL", "");
    set("LANG", "de_DE.UTF-8");
    EXPECT_EQ(makeRegional()->systemLocaleId(), 1031U);
}

} // namespace
} // namespace rf::native
