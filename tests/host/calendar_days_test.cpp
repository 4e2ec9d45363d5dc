#include "host/calendar_days.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

/// 5 March 2007 is a Monday.
Date on(int day, int month = 3) { return Date::fromFields({.year = 2007, .month = month, .day = day}); }

TEST(CalendarDays, AreTheDayItself)
{
    EXPECT_EQ(shownDays(CalendarView::Day, on(7).plusMinutes(600), monday), (ShownDays{on(7), 1}));
}

TEST(CalendarDays, AreMondayToFridayOfAWorkingWeek)
{
    for (const int day : {5, 7, 9, 11})
        EXPECT_EQ(shownDays(CalendarView::WorkWeek, on(day), monday), (ShownDays{on(5), 5})) << day;
    EXPECT_EQ(shownDays(CalendarView::WorkWeek, on(4), sunday), (ShownDays{on(5), 5}));
    EXPECT_EQ(shownDays(CalendarView::WorkWeek, on(10), sunday), (ShownDays{on(5), 5}));
}

TEST(CalendarDays, BeginAWeekAsTheSettingsDo)
{
    EXPECT_EQ(shownDays(CalendarView::Week, on(11), monday), (ShownDays{on(5), 7}));
    EXPECT_EQ(shownDays(CalendarView::Week, on(11), sunday), (ShownDays{on(11), 7}));
    EXPECT_EQ(shownDays(CalendarView::Week, on(5), sunday), (ShownDays{on(4), 7}));
}

TEST(CalendarDays, AreSixWholeWeeksOfAMonth)
{
    EXPECT_EQ(shownDays(CalendarView::Month, on(31), monday), (ShownDays{on(26, 2), 42}));
}

TEST(CalendarDays, AreTheMonthInAList)
{
    EXPECT_EQ(shownDays(CalendarView::List, on(14, 2), monday), (ShownDays{on(1, 2), 28}));
}

TEST(CalendarDays, GoOnByWhatIsShown)
{
    EXPECT_EQ(steppedDay(CalendarView::Day, on(31), 1), on(1, 4));
    EXPECT_EQ(steppedDay(CalendarView::WorkWeek, on(7), -1), on(28, 2));
    EXPECT_EQ(steppedDay(CalendarView::Week, on(7), 1), on(14));
    EXPECT_EQ(steppedDay(CalendarView::Month, on(31), -1), on(28, 2));
    EXPECT_EQ(steppedDay(CalendarView::List, on(31), 1), on(30, 4));
}

TEST(CalendarDays, KeepTheDayOfAnotherMonthWhereItHasIt)
{
    EXPECT_EQ(plusMonths(on(15, 12), 1), Date::fromFields({.year = 2008, .month = 1, .day = 15}));
    EXPECT_EQ(plusMonths(on(15, 1), -1), Date::fromFields({.year = 2006, .month = 12, .day = 15}));
    EXPECT_EQ(plusMonths(on(31, 1), 13), Date::fromFields({.year = 2008, .month = 2, .day = 29}));
}

TEST(CalendarDays, EndWithTheMidnightBehindTheLast)
{
    EXPECT_EQ(endOf({on(5), 5}), on(10));
    EXPECT_EQ(daysOf({on(5), 2}), (std::vector{on(5), on(6)}));
    EXPECT_TRUE(isWeekend(on(10)));
    EXPECT_TRUE(isWeekend(on(11)));
    EXPECT_FALSE(isWeekend(on(12)));
}

} // namespace

} // namespace rf::host
