#include "booking/acceptance.h"

#include "booking/app_copy.h"
#include "booking/booking_fixture.h"

namespace rf {
namespace {

using test::at;

class Acceptance : public test::BookingTest {
protected:
    Text accept(const outlook::AppointmentItem& item) const
    {
        BookingItem booking{item};
        CopyCalendars copies{*session};
        return acceptBooking(*session, booking, copies);
    }
    [[nodiscard]] AcceptedTime acceptedTimeOf(const outlook::AppointmentItem& item) const
    {
        BookingItem booking{item};
        return acceptedTime(*session, booking);
    }
};

TEST_F(Acceptance, GivesANewBookingItsProperties)
{
    const auto item = newAppointment(u"Board", at(9), 90);
    EXPECT_EQ(accept(item), u"2007-3-5:9.4.17_Jane Doe");
    item.save();
    const auto booking = only(room);
    EXPECT_EQ(property(booking, u"SafeOrganizer"), automation::Variant{u"Jane Doe"});
    EXPECT_EQ(property(booking, u"OriginalStartDate"), automation::Variant{at(9)});
    EXPECT_EQ(property(booking, u"OriginalDuration"), automation::Variant{90.0});
    EXPECT_EQ(property(booking, u"OCID"), automation::Variant{u"2007-3-5:9.4.17_Jane Doe"});
}

TEST_F(Acceptance, KeepsTheOrganizerAndTheLinkOfABookingAndRemembersItsNewTime)
{
    const auto item = booked(u"Board", at(9), 60);
    setProperty(item, u"SafeOrganizer", u"Rita Roe");
    item.setStart(at(14));
    EXPECT_EQ(accept(item), u"2024-2-3:8.0.0_Board");
    item.save();
    EXPECT_EQ(property(only(room), u"SafeOrganizer"), automation::Variant{u"Rita Roe"});
    EXPECT_EQ(property(only(room), u"OriginalStartDate"), automation::Variant{at(14)});
    EXPECT_EQ(property(only(room), u"OCID"), automation::Variant{u"2024-2-3:8.0.0_Board"});
}

TEST_F(Acceptance, SavesNothingItself)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    static_cast<void>(accept(item));
    EXPECT_TRUE(stored(room).empty());
}

TEST_F(Acceptance, GivesNoLinkToABookingThatDoesNotTakeTheProperties)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    item.userProperties().add(u"OCID", outlook::UserPropertyType::Number, false);
    EXPECT_EQ(accept(item), u"");
    EXPECT_FALSE(item.userProperties().find(u"OriginalStartDate").value() == automation::Variant{at(9)});
}

TEST_F(Acceptance, GivesNoLinkWhereItCannotTellWhetherThereIsOne)
{
    const auto item = booked(u"Board", at(9), 60);
    const auto fault = std::make_shared<test::Fault>();
    // UserProperties and seven additions, the organizer's value, start and duration with their values, the link's.
    fault->failingUse = 14;
    EXPECT_EQ(accept(outlook::AppointmentItem{test::FaultyDispatch::wrap(item.object(), fault)}), u"");
    item.save();
    EXPECT_EQ(property(only(room), u"OCID"), automation::Variant{u"2024-2-3:8.0.0_Board"});
}

TEST_F(Acceptance, RemembersNoTimeOfABookingWithoutProperties)
{
    const auto time = acceptedTimeOf(saved(u"Dropped", at(9), 60));
    EXPECT_EQ(time.start, Date{});
    EXPECT_EQ(time.duration, 0);
}

TEST_F(Acceptance, TakesADateThatWasNeverSetForNone)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    fncAddBookingProps(item);
    EXPECT_EQ(item.userProperties().find(u"OriginalStartDate").value(), automation::Variant{noDate});
    EXPECT_EQ(acceptedTimeOf(item).start, Date{});
}

TEST_F(Acceptance, RemembersMoreMinutesThanAShortNumberHolds)
{
    const auto item = booked(u"Exhibition", at(9), 57600);
    EXPECT_EQ(acceptedTimeOf(item).duration, 57600);
}

class BookingProperties : public test::BookingTest { };

TEST_F(BookingProperties, AreAddedOnceAndKeepTheirValues)
{
    const auto item = booked(u"Board", at(9), 60);
    EXPECT_TRUE(fncAddBookingProps(item));
    EXPECT_EQ(item.userProperties().count(), 7);
    EXPECT_EQ(item.userProperties().find(u"SafeOrganizer").value(), automation::Variant{u"Jane Doe"});
}

TEST_F(BookingProperties, AreAddedAsFarAsTheHostTakesThem)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    item.userProperties().add(u"PlaceSetting", outlook::UserPropertyType::Number, false);
    EXPECT_FALSE(fncAddBookingProps(item));
    EXPECT_EQ(item.userProperties().count(), 7);
    EXPECT_FALSE(fncAddBookingProps(outlook::AppointmentItem{}));
}

} // namespace
} // namespace rf
