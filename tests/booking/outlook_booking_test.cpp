#include "booking/outlook_booking.h"

#include "booking/rules_fixture.h"
#include "storage/long_property.h"

namespace rf {
namespace {

using test::at;

class OutlookBookingRecord : public test::RulesTest {
protected:
    [[nodiscard]] OutlookBooking recordOf(const outlook::AppointmentItem& item) const
    {
        OutlookBooking booking{*session};
        booking.subGetAppData(item);
        return booking;
    }
    [[nodiscard]] outlook::AppointmentItem withOrders(TextView orders) const
    {
        auto item = newAppointment(u"Board", at(9), 90);
        subFixLongProperty(*session, item, orders, u"strOrders");
        item.save();
        return item;
    }
    [[nodiscard]] static std::vector<std::vector<Text>> linesOf(const TextTable& table)
    {
        std::vector<std::vector<Text>> lines(table.rows());
        for (std::size_t row = 0; row < table.rows(); ++row)
            for (std::size_t column = 0; column < table.columns(); ++column)
                lines[row].push_back(table.cell(row, column));
        return lines;
    }
};

TEST_F(OutlookBookingRecord, HoldsEveryValueOfTheAppointment)
{
    const auto item = newAppointment(u"Board", at(9), 90);
    item.setCategories(u"Alpha");
    item.setLocation(u"First floor");
    fncAddBookingProps(item);
    setProperty(item, u"SafeOrganizer", u"Jane Doe");
    setProperty(item, u"CostCenter", u"4711");
    setProperty(item, u"OrderComment", u"No milk");
    setProperty(item, u"PlaceSetting", u"U-shape");
    item.save();
    const auto booking = recordOf(item);
    EXPECT_EQ(booking.start, at(9));
    EXPECT_EQ(booking.end, at(10, 30));
    EXPECT_EQ(booking.subject, u"Board");
    EXPECT_EQ(booking.busyStatus, outlook::BusyStatus::Busy);
    EXPECT_EQ(booking.location, u"First floor");
    EXPECT_EQ(booking.entryId, item.entryId());
    EXPECT_EQ(booking.storeId, folder(room).storeId());
    EXPECT_EQ(booking.hours, 1.5);
    EXPECT_FALSE(booking.isRecurring);
    EXPECT_FALSE(booking.spansDays);
    EXPECT_EQ(booking.recurrenceStart, Date{});
    EXPECT_EQ(booking.recurrenceEnd, Date{});
    EXPECT_EQ(booking.categories, u"Alpha");
    EXPECT_EQ(booking.organizer, u"Jane Doe");
    EXPECT_EQ(booking.costCenter, u"4711");
    EXPECT_EQ(booking.orderComment, u"No milk");
    EXPECT_EQ(booking.placeSetting, u"U-shape");
    EXPECT_EQ(booking.created, clock.now());
    EXPECT_EQ(booking.orderRows.rows(), 0U);
    EXPECT_EQ(booking.item, item);
}

TEST_F(OutlookBookingRecord, SpansDaysFromElevenToOneAtNight)
{
    EXPECT_TRUE(recordOf(saved(u"Late", at(23), 120)).spansDays);
    EXPECT_FALSE(recordOf(saved(u"Early", at(1), 120)).spansDays);
    EXPECT_TRUE(recordOf(saved(u"A month", at(9), 29 * 24 * 60)).spansDays);
}

TEST_F(OutlookBookingRecord, HasNoCreationWhereTheHostTellsNone)
{
    const auto item = newAppointment(u"New", at(9), 60);
    EXPECT_EQ(item.creationTime().fields().year, 4501);
    const auto booking = recordOf(item);
    EXPECT_EQ(booking.created, Date{});
    EXPECT_EQ(booking.UniqueKey(), u"2/3/2024 9:00:00 AM2/3/2024 10:00:00 AMNew12:00:00 AM");
}

TEST_F(OutlookBookingRecord, IsToldFromOthersByItsTimesItsSubjectAndItsCreation)
{
    const auto booking = recordOf(saved(u"Board", at(9), 60));
    EXPECT_EQ(booking.UniqueKey(), u"2/3/2024 9:00:00 AM2/3/2024 10:00:00 AMBoard3/5/2007 9:04:17 AM");
    EXPECT_NE(booking.UniqueKey(), recordOf(saved(u"Other", at(9), 60)).UniqueKey());
}

TEST_F(OutlookBookingRecord, HasEmptyTextsForAnAppointmentWithoutUserProperties)
{
    const auto booking = recordOf(saved(u"Dropped", at(9), 60));
    EXPECT_EQ(booking.organizer, u"");
    EXPECT_EQ(booking.costCenter, u"");
    EXPECT_EQ(booking.orderComment, u"");
    EXPECT_EQ(booking.placeSetting, u"");
    EXPECT_EQ(booking.orderRows.rows(), 0U);
}

TEST_F(OutlookBookingRecord, HoldsTheLinesOfTheOrder)
{
    const auto booking = recordOf(withOrders(u"Coffee\t12\r\nSandwich\t3\r\n"));
    EXPECT_EQ(linesOf(booking.orderRows), (std::vector<std::vector<Text>>{{u"Coffee", u"12"}, {u"Sandwich", u"3"}}));
}

TEST_F(OutlookBookingRecord, HoldsAnOrderThatFillsSeveralProperties)
{
    Text orders;
    for (int line = 0; line < 200; ++line)
        orders += u"Supply number " + decimal(line) + u"\t" + decimal(line) + u"\r\n";
    const auto booking = recordOf(withOrders(orders));
    ASSERT_EQ(booking.orderRows.rows(), 200U);
    EXPECT_EQ(booking.orderRows.cell(199, 0), u"Supply number 199");
}

TEST_F(OutlookBookingRecord, LosesALastLineWithoutItsEnd)
{
    const auto booking = recordOf(withOrders(u"Coffee\t12\r\nSandwich\t3"));
    EXPECT_EQ(linesOf(booking.orderRows), (std::vector<std::vector<Text>>{{u"Coffee", u"12"}}));
}

TEST_F(OutlookBookingRecord, HoldsNoLinesOfADamagedOrder)
{
    EXPECT_EQ(recordOf(withOrders(u"Coffee\t12\r\nSandwich\r\n")).orderRows.rows(), 0U);
}

TEST_F(OutlookBookingRecord, MakesAnOrderOfTheLinesThatTheSupplyListKnows)
{
    settings().Supply.add(u"Coffee", cSupplyItem{Currency::fromInteger(2), u"Coffee"});
    settings().Supply.add(u"Lunch", cSupplyItem{Currency::fromInteger(10), u"Lunch"});
    const auto orders = recordOf(withOrders(u"Coffee\t12\r\nTea\t3\r\nLunch\tmany\r\n")).Orders();
    EXPECT_EQ(orders.OrdersString(), u"Coffee\t12\r\nLunch\t0\r\n");
    EXPECT_EQ(orders.OrderTotal(), Currency::fromInteger(24));
}

TEST_F(OutlookBookingRecord, MakesNoOrderOfLinesWithoutASecondColumn)
{
    settings().Supply.add(u"Coffee", cSupplyItem{Currency::fromInteger(2), u"Coffee"});
    EXPECT_EQ(recordOf(withOrders(u"Coffee\r\n")).Orders().OrdersString(), u"");
}

TEST_F(OutlookBookingRecord, TellsTheTimesOfDayOfASeries)
{
    const auto booking = recordOf(savedSeries(u"Weekly", at(9), 45));
    EXPECT_TRUE(booking.isRecurring);
    EXPECT_EQ(booking.recurrenceStart, Date::fromFields({.hour = 9}));
    EXPECT_EQ(booking.recurrenceEnd, Date::fromFields({.hour = 9, .minute = 45}));
    EXPECT_EQ(booking.storeId, folder(room).storeId());
}

TEST_F(OutlookBookingRecord, TellsOfAnOccurrenceTheTimesOfItsSeriesAndItsOwnProject)
{
    const auto changed = movedOccurrence(savedSeries(u"Weekly", at(9), 45), at(14));
    changed.setCategories(u"Own");
    EXPECT_EQ(changed.messageClass(), outlook::message_class::recurrenceException);
    const auto booking = recordOf(changed);
    EXPECT_TRUE(booking.isRecurring);
    EXPECT_EQ(booking.start, at(14));
    EXPECT_EQ(booking.recurrenceStart, Date::fromFields({.hour = 9}));
    EXPECT_EQ(booking.categories, u"Own");
    EXPECT_EQ(booking.storeId, folder(room).storeId());
}

TEST_F(OutlookBookingRecord, MakesNoSeriesOfAnAppointmentThatStandsAlone)
{
    const auto item = saved(u"Board", at(9), 60);
    static_cast<void>(recordOf(item));
    EXPECT_FALSE(item.isRecurring());
    EXPECT_TRUE(item.saved());
}

TEST_F(OutlookBookingRecord, StartsAnewWithEachItem)
{
    OutlookBooking booking{*session};
    booking.subGetAppData(savedSeries(u"Weekly", at(9), 45));
    booking.subGetAppData(outlook::AppointmentItem{});
    EXPECT_EQ(booking.subject, u"");
    EXPECT_FALSE(booking.isRecurring);
    EXPECT_EQ(booking.start, Date{});
    EXPECT_EQ(booking.recurrenceStart, Date{});
}

TEST_F(OutlookBookingRecord, KeepsWhatCanBeReadBesideAnyFailure)
{
    const auto item = withOrders(u"Coffee\t12\r\n");
    const auto fault = std::make_shared<test::Fault>();
    const outlook::AppointmentItem faulty{test::FaultyDispatch::wrap(item.object(), fault)};
    static_cast<void>(recordOf(faulty));
    const int uses = fault->uses;
    for (int use = 1; use <= uses; ++use) {
        *fault = {.uses = 0, .failingUse = use};
        const auto booking = recordOf(faulty);
        EXPECT_TRUE(booking.subject == u"Board" || booking.start == at(9)) << "at use " << use;
    }
}

} // namespace
} // namespace rf
