#include "host/calendar_drag.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

Date onDay(int day, int hour, int minute = 0)
{
    return Date::fromFields({.year = 2007, .month = 3, .day = day, .hour = hour, .minute = minute});
}

AppointmentTimes morning() { return {onDay(5, 10), onDay(5, 11)}; }

TEST(CalendarDrag, MovesABookingAndKeepsItsLength)
{
    EXPECT_EQ(draggedTimes(morning(), DragPart::Whole, {onDay(5, 10, 20), onDay(7, 14, 20)}),
        (AppointmentTimes{onDay(7, 14), onDay(7, 15)}));
}

TEST(CalendarDrag, LeavesABookingThatIsMovedByLessThanHalfASlot)
{
    const AppointmentTimes odd{onDay(5, 10, 5), onDay(5, 11)};
    EXPECT_EQ(draggedTimes(odd, DragPart::Whole, {onDay(5, 10, 20), onDay(5, 10, 27)}), odd);
    EXPECT_EQ(draggedTimes(odd, DragPart::Whole, {onDay(5, 10, 20), onDay(5, 10, 13)}), odd);
}

TEST(CalendarDrag, MovesABookingToTheBeginOfASlot)
{
    const AppointmentTimes odd{onDay(5, 10, 5), onDay(5, 11)};
    EXPECT_EQ(draggedTimes(odd, DragPart::Whole, {onDay(5, 10, 20), onDay(5, 10, 35)}),
        (AppointmentTimes{onDay(5, 10, 15), onDay(5, 11, 10)}));
}

TEST(CalendarDrag, StretchesABookingToTheSlotUnderThePointer)
{
    EXPECT_EQ(draggedTimes(morning(), DragPart::End, {onDay(5, 11), onDay(5, 11, 50)}),
        (AppointmentTimes{onDay(5, 10), onDay(5, 12)}));
    EXPECT_EQ(draggedTimes(morning(), DragPart::Start, {onDay(5, 10), onDay(5, 9, 20)}),
        (AppointmentTimes{onDay(5, 9, 15), onDay(5, 11)}));
}

TEST(CalendarDrag, LeavesABookingOneSlotAtLeast)
{
    EXPECT_EQ(draggedTimes(morning(), DragPart::End, {onDay(5, 11), onDay(5, 8)}),
        (AppointmentTimes{onDay(5, 10), onDay(5, 10, 15)}));
    EXPECT_EQ(draggedTimes(morning(), DragPart::Start, {onDay(5, 10), onDay(5, 15)}),
        (AppointmentTimes{onDay(5, 10, 45), onDay(5, 11)}));
}

TEST(CalendarDrag, MovesAnAllDayEventByWholeDays)
{
    const AppointmentTimes fair{onDay(5, 0), onDay(7, 0), true};
    EXPECT_EQ(draggedTimes(fair, DragPart::Whole, {onDay(6, 3), onDay(8, 1)}),
        (AppointmentTimes{onDay(7, 0), onDay(9, 0), true}));
}

TEST(CalendarDrag, KeepsTheTimeOfDayBetweenDays)
{
    EXPECT_EQ(draggedDays(morning(), {onDay(5, 23), onDay(3, 1)}), (AppointmentTimes{onDay(3, 10), onDay(3, 11)}));
}

TEST(CalendarDrag, ChoosesSlotsInEitherDirection)
{
    const AppointmentTimes chosen{onDay(5, 9, 30), onDay(5, 11)};
    EXPECT_EQ(chosenTimes({onDay(5, 9, 40), onDay(5, 10, 45)}, 30), chosen);
    EXPECT_EQ(chosenTimes({onDay(5, 10, 45), onDay(5, 9, 40)}, 30), chosen);
    EXPECT_EQ(chosenTimes({onDay(5, 9, 40), onDay(5, 9, 40)}, 30), (AppointmentTimes{onDay(5, 9, 30), onDay(5, 10)}));
}

TEST(CalendarDrag, ChoosesWholeDaysAboveTheHours)
{
    EXPECT_EQ(chosenTimes({onDay(5, 0), onDay(6, 0)}, 1440), (AppointmentTimes{onDay(5, 0), onDay(7, 0), true}));
}

} // namespace

} // namespace rf::host
