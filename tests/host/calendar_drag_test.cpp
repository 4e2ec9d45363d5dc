#include "host/calendar_drag.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

Date at(int day, int hour, int minute = 0)
{
    return Date::fromFields({.year = 2007, .month = 3, .day = day, .hour = hour, .minute = minute});
}

AppointmentTimes meeting() { return {at(5, 10), at(5, 11)}; }

TEST(CalendarDrag, MovesABookingAndKeepsItsLength)
{
    EXPECT_EQ(draggedTimes(meeting(), DragPart::Whole, {at(5, 10, 20), at(7, 14, 20)}),
        (AppointmentTimes{at(7, 14), at(7, 15)}));
}

TEST(CalendarDrag, LeavesABookingThatIsMovedByLessThanHalfASlot)
{
    const AppointmentTimes odd{at(5, 10, 5), at(5, 11)};
    EXPECT_EQ(draggedTimes(odd, DragPart::Whole, {at(5, 10, 20), at(5, 10, 27)}), odd);
    EXPECT_EQ(draggedTimes(odd, DragPart::Whole, {at(5, 10, 20), at(5, 10, 13)}), odd);
}

TEST(CalendarDrag, MovesABookingToTheBeginOfASlot)
{
    const AppointmentTimes odd{at(5, 10, 5), at(5, 11)};
    EXPECT_EQ(draggedTimes(odd, DragPart::Whole, {at(5, 10, 20), at(5, 10, 35)}),
        (AppointmentTimes{at(5, 10, 15), at(5, 11, 10)}));
}

TEST(CalendarDrag, StretchesABookingToTheSlotUnderThePointer)
{
    EXPECT_EQ(
        draggedTimes(meeting(), DragPart::End, {at(5, 11), at(5, 11, 50)}), (AppointmentTimes{at(5, 10), at(5, 12)}));
    EXPECT_EQ(draggedTimes(meeting(), DragPart::Start, {at(5, 10), at(5, 9, 20)}),
        (AppointmentTimes{at(5, 9, 15), at(5, 11)}));
}

TEST(CalendarDrag, LeavesABookingOneSlotAtLeast)
{
    EXPECT_EQ(
        draggedTimes(meeting(), DragPart::End, {at(5, 11), at(5, 8)}), (AppointmentTimes{at(5, 10), at(5, 10, 15)}));
    EXPECT_EQ(
        draggedTimes(meeting(), DragPart::Start, {at(5, 10), at(5, 15)}), (AppointmentTimes{at(5, 10, 45), at(5, 11)}));
}

TEST(CalendarDrag, MovesAnAllDayEventByWholeDays)
{
    const AppointmentTimes fair{at(5, 0), at(7, 0), true};
    EXPECT_EQ(draggedTimes(fair, DragPart::Whole, {at(6, 3), at(8, 1)}), (AppointmentTimes{at(7, 0), at(9, 0), true}));
}

TEST(CalendarDrag, KeepsTheTimeOfDayBetweenDays)
{
    EXPECT_EQ(draggedDays(meeting(), {at(5, 23), at(3, 1)}), (AppointmentTimes{at(3, 10), at(3, 11)}));
}

TEST(CalendarDrag, ChoosesSlotsInEitherDirection)
{
    const AppointmentTimes chosen{at(5, 9, 30), at(5, 11)};
    EXPECT_EQ(chosenTimes({at(5, 9, 40), at(5, 10, 45)}, 30), chosen);
    EXPECT_EQ(chosenTimes({at(5, 10, 45), at(5, 9, 40)}, 30), chosen);
    EXPECT_EQ(chosenTimes({at(5, 9, 40), at(5, 9, 40)}, 30), (AppointmentTimes{at(5, 9, 30), at(5, 10)}));
}

TEST(CalendarDrag, ChoosesWholeDaysAboveTheHours)
{
    EXPECT_EQ(chosenTimes({at(5, 0), at(6, 0)}, 1440), (AppointmentTimes{at(5, 0), at(7, 0), true}));
}

} // namespace

} // namespace rf::host
