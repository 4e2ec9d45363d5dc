#include "host/recurrence_choice.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

using Unit = RecurrenceChoice::Unit;

/// Wednesday, the second one of its month.
Date start() { return Date::fromFields({.year = 2007, .month = 3, .day = 14, .hour = 10}); }
constexpr std::int32_t mondayBit = 2;
constexpr std::int32_t fridayBit = 32;

Text dayNumber(Date day) { return decimal(day.fields().day); }

RecurrenceChoice weekly(std::int32_t days, int interval = 1)
{
    RecurrenceChoice choice;
    choice.interval = interval;
    choice.weekdays = days;
    return choice;
}

RecurrenceChoice monthly(RecurrenceChoice::MonthDay day, Unit unit = Unit::Month)
{
    RecurrenceChoice choice;
    choice.unit = unit;
    choice.monthDay = day;
    return choice;
}

TEST(RecurrenceChoices, BecomeRules)
{
    EXPECT_EQ(ruleOf(weekly(mondayBit | fridayBit, 2), start()), u"FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,FR");
    EXPECT_EQ(ruleOf(weekly(0), start()), u"FREQ=WEEKLY");
    EXPECT_EQ(ruleOf(monthly(RecurrenceChoice::MonthDay::Date), start()), u"FREQ=MONTHLY");
    EXPECT_EQ(ruleOf(monthly(RecurrenceChoice::MonthDay::Weekday), start()), u"FREQ=MONTHLY;BYDAY=2WE");
    EXPECT_EQ(
        ruleOf(monthly(RecurrenceChoice::MonthDay::Weekday, Unit::Year), start()), u"FREQ=YEARLY;BYMONTH=3;BYDAY=2WE");
    auto daily = weekly(0);
    daily.unit = Unit::Day;
    daily.end = RecurrenceChoice::After{10};
    EXPECT_EQ(ruleOf(daily, start()), u"FREQ=DAILY;COUNT=10");
    daily.end = RecurrenceChoice::Until{Date::fromFields({.year = 2007, .month = 12, .day = 1})};
    EXPECT_EQ(ruleOf(daily, start()), u"FREQ=DAILY;UNTIL=20071201T235959");
}

TEST(RecurrenceChoices, ComeBackFromTheirRules)
{
    std::vector<RecurrenceChoice> choices{weekly(0), weekly(mondayBit | fridayBit, 3)};
    for (const Unit unit : {Unit::Month, Unit::Year})
        for (const auto day : {RecurrenceChoice::MonthDay::Date, RecurrenceChoice::MonthDay::Weekday})
            choices.push_back(monthly(day, unit));
    choices[0].end = RecurrenceChoice::After{4};
    choices[1].end = RecurrenceChoice::Until{Date::fromFields({.year = 2008, .month = 1, .day = 31})};
    for (const RecurrenceChoice& choice : choices)
        EXPECT_EQ(choiceOf(ruleOf(choice, start()), start()), choice) << toUtf8(ruleOf(choice, start()));
}

TEST(RecurrenceChoices, AreReadFromRulesThatSayTheSameOtherwise)
{
    EXPECT_EQ(choiceOf(u"byday=mo;freq=weekly;wkst=SU", start()), weekly(mondayBit));
    EXPECT_EQ(choiceOf(u"FREQ=MONTHLY;BYMONTHDAY=14", start()), monthly(RecurrenceChoice::MonthDay::Date));
    EXPECT_EQ(choiceOf(u"FREQ=YEARLY;BYMONTH=3;BYMONTHDAY=14", start()),
        monthly(RecurrenceChoice::MonthDay::Date, Unit::Year));
}

TEST(RecurrenceChoices, AreNoneForARuleThatSaysMore)
{
    for (const TextView rule :
        {TextView{u"FREQ=HOURLY"}, TextView{u"FREQ=MONTHLY;BYDAY=1MO"}, TextView{u"FREQ=MONTHLY;BYMONTHDAY=1,15"},
            TextView{u"FREQ=WEEKLY;BYDAY=1MO"}, TextView{u"FREQ=DAILY;BYHOUR=9,12"}, TextView{u"FREQ=WEEKLY;COUNT=x"},
            TextView{u"FREQ=WEEKLY;INTERVAL=-1"}, TextView{u"FREQ=WEEKLY;UNTIL=2007"}, TextView{u"nonsense"},
            TextView{u""}})
        EXPECT_EQ(choiceOf(rule, start()), std::nullopt) << toUtf8(rule);
}

TEST(RecurrenceChoices, BeginWithTheFirstDayThatTheyGive)
{
    EXPECT_EQ(firstStart(weekly(mondayBit), start()).fields(), (DateFields{2007, 3, 19, 10, 0, 0}));
    EXPECT_EQ(firstStart(weekly(weekdayBit(start())), start()), start());
    EXPECT_EQ(firstStart(weekly(0), start()), start());
    EXPECT_EQ(firstStart(monthly(RecurrenceChoice::MonthDay::Date), start()), start());
}

TEST(RecurrenceChoices, CountTheFifthWeekAsTheLast)
{
    EXPECT_EQ(weekOfMonth(start()), 2);
    EXPECT_EQ(weekOfMonth(Date::fromFields({.year = 2007, .month = 3, .day = 29})), -1);
    EXPECT_EQ(weekOfMonth(Date::fromFields({.year = 2007, .month = 3, .day = 28})), 4);
}

TEST(RecurrenceChoices, AreSaidInWords)
{
    EXPECT_EQ(describe(weekly(0), start(), dayNumber), u"Every week on Wednesday");
    auto choice = weekly(mondayBit | fridayBit, 2);
    choice.end = RecurrenceChoice::After{10};
    EXPECT_EQ(describe(choice, start(), dayNumber), u"Every 2 weeks on Monday and Friday, 10 times");
    EXPECT_EQ(describe(weekly(127), start(), dayNumber),
        u"Every week on Monday, Tuesday, Wednesday, Thursday, Friday, Saturday and Sunday");
    EXPECT_EQ(describe(monthly(RecurrenceChoice::MonthDay::Date), start(), dayNumber), u"Every month on day 14");
    EXPECT_EQ(describe(monthly(RecurrenceChoice::MonthDay::Weekday, Unit::Year), start(), dayNumber),
        u"Every year on the second Wednesday of March");
    choice.unit = Unit::Day;
    choice.interval = 1;
    choice.end = RecurrenceChoice::Until{start()};
    EXPECT_EQ(describe(choice, start(), dayNumber), u"Every day, until 14");
}

} // namespace

} // namespace rf::host
