#include "host/appointment_times.h"

#include "host/store/store_fixture.h"

namespace rf::host {

namespace {

using test::at;

constexpr int nine = 9 * 60;
constexpr int ten = 10 * 60;

TEST(AppointmentTimesOfAPerson, KeepTheirLengthWhenTheStartMoves)
{
    const AppointmentTimes times{at(5, nine), at(5, ten)};
    EXPECT_EQ(withStart(times, at(6, ten)), (AppointmentTimes{at(6, ten), at(6, ten + 60)}));
}

TEST(AppointmentTimesOfAPerson, TakeTheStartAlongWhenTheEndComesBeforeIt)
{
    const AppointmentTimes times{at(5, nine), at(5, ten)};
    EXPECT_EQ(withEnd(times, at(4, nine)), (AppointmentTimes{at(4, nine - 60), at(4, nine)}));
    EXPECT_EQ(withEnd(times, at(5, nine)), (AppointmentTimes{at(5, nine), at(5, nine)}));
    EXPECT_EQ(withEnd(times, at(6, nine)), (AppointmentTimes{at(5, nine), at(6, nine)}));
}

TEST(AppointmentTimesOfAPerson, BecomeWholeDays)
{
    EXPECT_EQ(withAllDay({at(5, nine), at(5, ten)}, true), (AppointmentTimes{at(5), at(6), true}));
    EXPECT_EQ(withAllDay({at(5, nine), at(6, ten)}, true), (AppointmentTimes{at(5), at(7), true}));
    EXPECT_EQ(withAllDay({at(5, nine), at(6)}, true), (AppointmentTimes{at(5), at(6), true}));
    EXPECT_EQ(withAllDay({at(5), at(5)}, true), (AppointmentTimes{at(5), at(6), true}));
}

TEST(AppointmentTimesOfAPerson, BecomeHalfAnHourInTheMorningOfWholeDays)
{
    EXPECT_EQ(withAllDay({at(5), at(7), true}, false), (AppointmentTimes{at(5, 480), at(5, 510)}));
}

TEST(AppointmentTimesOfAPerson, StayWhenTheyAreWholeDaysAlready)
{
    const AppointmentTimes times{at(5), at(7), true};
    EXPECT_EQ(withAllDay(times, true), times);
}

TEST(AppointmentTimesOfAPerson, CountOnlyTheDayOfAnAllDayEvent)
{
    const AppointmentTimes times{at(5), at(7), true};
    EXPECT_EQ(withStart(times, at(8, nine)), (AppointmentTimes{at(8), at(10), true}));
    EXPECT_EQ(withEnd(times, at(6)), (AppointmentTimes{at(5), at(6), true}));
    EXPECT_EQ(withEnd(times, at(4)), (AppointmentTimes{at(3), at(4), true}));
    EXPECT_EQ(withEnd(times, at(5)), (AppointmentTimes{at(4), at(5), true}));
}

TEST(AppointmentTimesOfAPerson, ShowTheLastDayOfAnAllDayEventAsItsEnd)
{
    EXPECT_EQ(shownEnd({at(5), at(6), true}), at(5));
    EXPECT_EQ(shownEnd({at(5), at(8), true}), at(7));
    EXPECT_EQ(shownEnd({at(5, nine), at(5, ten)}), at(5, ten));
    EXPECT_EQ(endOfShown(at(7), true), at(8));
    EXPECT_EQ(endOfShown(at(5, ten), false), at(5, ten));
}

TEST(AppointmentTimesOfAPerson, KnowTheirDay)
{
    EXPECT_EQ(dayOf(at(5, nine)), at(5));
    EXPECT_EQ(timeOfDay(at(5, nine)), nine * 60);
    EXPECT_EQ(plusDays(at(28), 1), Date::fromFields({.year = 2001, .month = 3, .day = 1}));
}

} // namespace

} // namespace rf::host
