#include "linux/ical_support.h"

#include <gtest/gtest.h>

#include <ostream>
#include <sstream>

namespace rf::host::test {
namespace {

/// A rule of the calendar format's definition and what that says of it. Dates are at nine o'clock; "…" at the end says
/// that it goes on.
struct Example {
    const char* name;
    const char* start;
    const char* rule;
    const char* expected;

    friend std::ostream& operator<<(std::ostream& out, const Example& example) { return out << example.name; }
};

std::vector<std::string> words(const char* text)
{
    std::istringstream in{text};
    std::vector<std::string> result;
    for (std::string word; in >> word;) {
        result.push_back(word.size() == 8 ? word + "T090000" : word);
    }
    return result;
}

class RuleExample : public ::testing::TestWithParam<Example> {
protected:
    const InZone newYork_{"America/New_York"};
};

TEST_P(RuleExample, ExpandsAsTheFormatSaysItDoes)
{
    const Example& example = GetParam();
    std::vector<std::string> expected = words(example.expected);
    const bool goesOn = expected.back() == "…";
    if (goesOn) {
        expected.pop_back();
    }
    const std::string start = words(example.start).front();
    const ItemRecord item = series(start, start, fromUtf8(example.rule), u"America/New_York");
    std::vector<std::string> found = startsOf(item, start, "20200101");
    if (goesOn) {
        ASSERT_GT(found.size(), expected.size());
        found.resize(expected.size());
    }
    EXPECT_EQ(found, expected);
}

TEST_P(RuleExample, GivesADayTheSameWhetherAskedForAloneOrWithAllOthers)
{
    const Example& example = GetParam();
    const std::string start = words(example.start).front();
    const ItemRecord item = series(start, start, fromUtf8(example.rule), u"America/New_York");
    const auto engine = makeRecurrenceEngine();
    const Date begin = date(start);
    std::vector<std::string> together;
    for (const Occurrence& one : engine->expand(item, begin, begin.plusMinutes(1440LL * 400))) {
        together.push_back(written(one.start));
    }
    std::vector<std::string> alone;
    const Date midnight = Date::fromSeconds(ical::dayOf(begin.seconds()) * ical::secondsPerDay);
    for (int day = 0; day <= 400; ++day) {
        const Date from = midnight.plusMinutes(1440LL * day);
        for (const Occurrence& one : engine->expand(item, from, Date::fromSeconds(from.seconds() + 86399))) {
            if (one.start.seconds() <= begin.seconds() + 400LL * 86400) {
                alone.push_back(written(one.start));
            }
        }
    }
    EXPECT_EQ(alone, together);
}

INSTANTIATE_TEST_SUITE_P(Days, RuleExample,
    ::testing::Values(Example{"TenDays", "19970902", "FREQ=DAILY;COUNT=10",
                          "19970902 19970903 19970904 19970905 19970906 19970907 19970908 19970909 19970910 19970911"},
        Example{"EveryOtherDay", "19970902", "FREQ=DAILY;INTERVAL=2", "19970902 19970904 19970906 19970908 19970910 …"},
        Example{"EveryTenDays", "19970902", "FREQ=DAILY;INTERVAL=10;COUNT=5",
            "19970902 19970912 19970922 19971002 19971012"}));

INSTANTIATE_TEST_SUITE_P(Weeks, RuleExample,
    ::testing::Values(Example{"TenWeeks", "19970902", "FREQ=WEEKLY;COUNT=10",
                          "19970902 19970909 19970916 19970923 19970930 19971007 19971014 19971021 19971028 19971104"},
        Example{"WeeksUntilADay", "19970902", "FREQ=WEEKLY;UNTIL=19971224T000000Z",
            "19970902 19970909 19970916 19970923 19970930 19971007 19971014 19971021 19971028 19971104 19971111 "
            "19971118 19971125 19971202 19971209 19971216 19971223"},
        Example{"EveryOtherWeek", "19970902", "FREQ=WEEKLY;INTERVAL=2;WKST=SU",
            "19970902 19970916 19970930 19971014 19971028 19971111 19971125 19971209 19971223 19980106 19980120 …"},
        Example{"TwoDaysOfWeekUntil", "19970902", "FREQ=WEEKLY;UNTIL=19971007T000000Z;WKST=SU;BYDAY=TU,TH",
            "19970902 19970904 19970909 19970911 19970916 19970918 19970923 19970925 19970930 19971002"},
        Example{"TwoDaysOfWeekCounted", "19970902", "FREQ=WEEKLY;COUNT=10;WKST=SU;BYDAY=TU,TH",
            "19970902 19970904 19970909 19970911 19970916 19970918 19970923 19970925 19970930 19971002"},
        Example{"ThreeDaysEveryOtherWeek", "19970901",
            "FREQ=WEEKLY;INTERVAL=2;UNTIL=19971224T000000Z;WKST=SU;BYDAY=MO,WE,FR",
            "19970901 19970903 19970905 19970915 19970917 19970919 19970929 19971001 19971003 19971013 19971015 "
            "19971017 19971027 19971029 19971031 19971110 19971112 19971114 19971124 19971126 19971128 19971208 "
            "19971210 19971212 19971222"},
        Example{"TwoDaysEveryOtherWeek", "19970902", "FREQ=WEEKLY;INTERVAL=2;COUNT=8;WKST=SU;BYDAY=TU,TH",
            "19970902 19970904 19970916 19970918 19970930 19971002 19971014 19971016"},
        Example{"WeeksFromMonday", "19970805", "FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=MO",
            "19970805 19970810 19970819 19970824"},
        Example{"WeeksFromSunday", "19970805", "FREQ=WEEKLY;INTERVAL=2;COUNT=4;BYDAY=TU,SU;WKST=SU",
            "19970805 19970817 19970819 19970831"}));

INSTANTIATE_TEST_SUITE_P(Months, RuleExample,
    ::testing::Values(Example{"FirstFriday", "19970905", "FREQ=MONTHLY;COUNT=10;BYDAY=1FR",
                          "19970905 19971003 19971107 19971205 19980102 19980206 19980306 19980403 19980501 19980605"},
        Example{"FirstFridayUntil", "19970905", "FREQ=MONTHLY;UNTIL=19971224T000000Z;BYDAY=1FR",
            "19970905 19971003 19971107 19971205"},
        Example{"FirstAndLastSunday", "19970907", "FREQ=MONTHLY;INTERVAL=2;COUNT=10;BYDAY=1SU,-1SU",
            "19970907 19970928 19971102 19971130 19980104 19980125 19980301 19980329 19980503 19980531"},
        Example{"LastMondayButOne", "19970922", "FREQ=MONTHLY;COUNT=6;BYDAY=-2MO",
            "19970922 19971020 19971117 19971222 19980119 19980216"},
        Example{"ThirdDayFromTheEnd", "19970928", "FREQ=MONTHLY;BYMONTHDAY=-3",
            "19970928 19971029 19971128 19971229 19980129 19980226 …"},
        Example{"SecondAndFifteenth", "19970902", "FREQ=MONTHLY;COUNT=10;BYMONTHDAY=2,15",
            "19970902 19970915 19971002 19971015 19971102 19971115 19971202 19971215 19980102 19980115"},
        Example{"FirstAndLastDay", "19970930", "FREQ=MONTHLY;COUNT=10;BYMONTHDAY=1,-1",
            "19970930 19971001 19971031 19971101 19971130 19971201 19971231 19980101 19980131 19980201"},
        Example{"EighteenMonths", "19970910", "FREQ=MONTHLY;INTERVAL=18;COUNT=10;BYMONTHDAY=10,11,12,13,14,15",
            "19970910 19970911 19970912 19970913 19970914 19970915 19990310 19990311 19990312 19990313"},
        Example{"TuesdaysOfEveryOtherMonth", "19970902", "FREQ=MONTHLY;INTERVAL=2;BYDAY=TU",
            "19970902 19970909 19970916 19970923 19970930 19971104 19971111 19971118 19971125 19980106 19980113 "
            "19980120 19980127 19980303 19980310 19980317 19980324 19980331 …"},
        Example{"FridayTheThirteenth", "19970902", "FREQ=MONTHLY;BYDAY=FR;BYMONTHDAY=13",
            "19970902 19980213 19980313 19981113 19990813 20001013 …"},
        Example{"SaturdayBehindFirstSunday", "19970913", "FREQ=MONTHLY;BYDAY=SA;BYMONTHDAY=7,8,9,10,11,12,13",
            "19970913 19971011 19971108 19971213 19980110 19980207 19980307 19980411 19980509 19980613 …"},
        Example{"ThirdOfThreeWeekdays", "19970904", "FREQ=MONTHLY;COUNT=3;BYDAY=TU,WE,TH;BYSETPOS=3",
            "19970904 19971007 19971106"},
        Example{"LastWorkdayButOne", "19970929", "FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-2",
            "19970929 19971030 19971127 19971230 19980129 19980226 19980330 …"},
        Example{"DayThatFebruaryLacks", "20070115", "FREQ=MONTHLY;BYMONTHDAY=15,30;COUNT=5",
            "20070115 20070130 20070215 20070315 20070330"}));

INSTANTIATE_TEST_SUITE_P(Years, RuleExample,
    ::testing::Values(Example{"TwoMonths", "19970610", "FREQ=YEARLY;COUNT=10;BYMONTH=6,7",
                          "19970610 19970710 19980610 19980710 19990610 19990710 20000610 20000710 20010610 20010710"},
        Example{"ThreeMonthsEveryOtherYear", "19970310", "FREQ=YEARLY;INTERVAL=2;COUNT=10;BYMONTH=1,2,3",
            "19970310 19990110 19990210 19990310 20010110 20010210 20010310 20030110 20030210 20030310"},
        Example{"DaysOfEveryThirdYear", "19970101", "FREQ=YEARLY;INTERVAL=3;COUNT=10;BYYEARDAY=1,100,200",
            "19970101 19970410 19970719 20000101 20000409 20000718 20030101 20030410 20030719 20060101"},
        Example{"TwentiethMonday", "19970519", "FREQ=YEARLY;BYDAY=20MO", "19970519 19980518 19990517 …"},
        Example{"MondayOfWeekTwenty", "19970512", "FREQ=YEARLY;BYWEEKNO=20;BYDAY=MO", "19970512 19980511 19990517 …"},
        Example{"ThursdaysInMarch", "19970313", "FREQ=YEARLY;BYMONTH=3;BYDAY=TH",
            "19970313 19970320 19970327 19980305 19980312 19980319 19980326 19990304 19990311 19990318 19990325 …"},
        Example{"ThursdaysInSummer", "19970605", "FREQ=YEARLY;BYDAY=TH;BYMONTH=6,7,8",
            "19970605 19970612 19970619 19970626 19970703 19970710 19970717 19970724 19970731 19970807 19970814 "
            "19970821 19970828 19980604 19980611 19980618 19980625 19980702 19980709 19980716 19980723 19980730 "
            "19980806 19980813 19980820 19980827 19990603 …"},
        Example{"ElectionDay", "19961105", "FREQ=YEARLY;INTERVAL=4;BYMONTH=11;BYDAY=TU;BYMONTHDAY=2,3,4,5,6,7,8",
            "19961105 20001107 20041102 …"}));

INSTANTIATE_TEST_SUITE_P(Hours, RuleExample,
    ::testing::Values(Example{"EveryThreeHours", "19970902", "FREQ=HOURLY;INTERVAL=3;UNTIL=19970902T210000Z",
                          "19970902T090000 19970902T120000 19970902T150000"},
        Example{"QuarterHours", "19970902", "FREQ=MINUTELY;INTERVAL=15;COUNT=6",
            "19970902T090000 19970902T091500 19970902T093000 19970902T094500 19970902T100000 19970902T101500"},
        Example{"NinetyMinutes", "19970902", "FREQ=MINUTELY;INTERVAL=90;COUNT=4",
            "19970902T090000 19970902T103000 19970902T120000 19970902T133000"},
        Example{"TwentyMinutesByDay", "19970902", "FREQ=DAILY;COUNT=25;BYHOUR=9,10,11,12,13,14,15,16;BYMINUTE=0,20,40",
            "19970902T090000 19970902T092000 19970902T094000 19970902T100000 19970902T102000 19970902T104000 "
            "19970902T110000 19970902T112000 19970902T114000 19970902T120000 19970902T122000 19970902T124000 "
            "19970902T130000 19970902T132000 19970902T134000 19970902T140000 19970902T142000 19970902T144000 "
            "19970902T150000 19970902T152000 19970902T154000 19970902T160000 19970902T162000 19970902T164000 "
            "19970903T090000"},
        Example{"TwentyMinutesByMinute", "19970902", "FREQ=MINUTELY;COUNT=25;INTERVAL=20;BYHOUR=9,10,11,12,13,14,15,16",
            "19970902T090000 19970902T092000 19970902T094000 19970902T100000 19970902T102000 19970902T104000 "
            "19970902T110000 19970902T112000 19970902T114000 19970902T120000 19970902T122000 19970902T124000 "
            "19970902T130000 19970902T132000 19970902T134000 19970902T140000 19970902T142000 19970902T144000 "
            "19970902T150000 19970902T152000 19970902T154000 19970902T160000 19970902T162000 19970902T164000 "
            "19970903T090000"}));

TEST(RuleExamples, DaysUntilChristmasAreAHundredAndThirteen)
{
    const InZone newYork{"America/New_York"};
    const ItemRecord item
        = series("19970902T090000", "19970902T100000", u"FREQ=DAILY;UNTIL=19971224T000000Z", u"America/New_York");
    const Starts found = startsOf(item, "19970101", "20200101");
    ASSERT_EQ(found.size(), 113U);
    EXPECT_EQ(found.back(), "19971223T090000");
}

TEST(RuleExamples, AllDaysOfJanuaryAreTheSameByYearAndByDay)
{
    const InZone newYork{"America/New_York"};
    const auto found = [](TextView rule) {
        return startsOf(
            series("19980101T090000", "19980101T100000", rule, u"America/New_York"), "19970101", "20200101");
    };
    const Starts byYear = found(u"FREQ=YEARLY;UNTIL=20000131T140000Z;BYMONTH=1;BYDAY=SU,MO,TU,WE,TH,FR,SA");
    EXPECT_EQ(byYear.size(), 93U);
    EXPECT_EQ(byYear.back(), "20000131T090000");
    EXPECT_EQ(found(u"FREQ=DAILY;UNTIL=20000131T140000Z;BYMONTH=1"), byYear);
}

} // namespace
} // namespace rf::host::test
