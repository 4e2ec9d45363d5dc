#include "booking/validation.h"

#include "booking/rules_fixture.h"

namespace rf {
namespace {

using test::at;

constexpr TextView doubleBooking = u"No double-bookings are allowed in this calendar. Please select another time!";
constexpr TextView projectMissing = u"Project mandatory";
constexpr TextView recurring = u"Recurring appointments are not allowed in this calendar.";

class Validation : public test::RulesTest {
protected:
    [[nodiscard]] Text reason(const outlook::AppointmentItem& item) const { return fncValidateBooking(*session, item); }
    [[nodiscard]] Text reasonOf(const Text& categories) const
    {
        const auto item = newAppointment(u"Board", at(9), 60);
        item.setCategories(categories);
        return reason(item);
    }
    void forbidEverything() const
    {
        settings().NoDoubles = settings().NoRecurring = settings().ProjectMandatory = true;
    }
};

TEST_F(Validation, PassesEverythingWhereNothingIsForbidden)
{
    saved(u"First", at(9), 60);
    EXPECT_EQ(reason(savedSeries(u"Second", at(9), 60)), u"");
}

TEST_F(Validation, RefusesADoubleBooking)
{
    settings().NoDoubles = true;
    saved(u"First", at(9), 60);
    EXPECT_EQ(reason(newAppointment(u"Second", at(9, 30), 60)), doubleBooking);
}

TEST_F(Validation, PassesNeighboursThatTouch)
{
    settings().NoDoubles = true;
    saved(u"First", at(9), 60);
    EXPECT_EQ(reason(newAppointment(u"Second", at(10), 60)), u"");
    EXPECT_EQ(reason(newAppointment(u"Third", at(8), 60)), u"");
}

TEST_F(Validation, RefusesABookingAroundAnother)
{
    settings().NoDoubles = true;
    saved(u"Inner", at(9), 60);
    EXPECT_EQ(reason(newAppointment(u"Outer", at(8), 240)), doubleBooking);
}

TEST_F(Validation, NeverHoldsASavedBookingAgainstItself)
{
    settings().NoDoubles = true;
    const auto item = saved(u"Board", at(9), 60);
    EXPECT_EQ(reason(item), u"");
    item.setStart(at(9, 30));
    EXPECT_EQ(reason(item), u"");
}

TEST_F(Validation, HoldsABookingThatWasNeverSavedAgainstEveryItem)
{
    settings().NoDoubles = true;
    const auto item = newAppointment(u"Board", at(9), 60);
    EXPECT_EQ(reason(item), u"");
    saved(u"Quicker", at(9), 60);
    EXPECT_EQ(reason(item), doubleBooking);
}

TEST_F(Validation, PassesAMeetingWhateverItIs)
{
    forbidEverything();
    saved(u"First", at(9), 60);
    auto record = host::ItemRecord{};
    record.folder = room;
    record.messageClass = u"IPM.Appointment";
    record.start = at(9);
    record.end = at(10);
    record.meetingStatus = 1;
    record.recurrence = host::RecurrenceRecord{u"FREQ=DAILY", {}, {}, {}};
    record.subject = u"Meeting";
    store->save(record);
    EXPECT_EQ(reason(folder(room).items().item(u"Meeting").as<outlook::AppointmentItem>()), u"");
}

TEST_F(Validation, RefusesABookingWithoutAProjectWhereOneIsMandatory)
{
    settings().ProjectMandatory = true;
    settings().Projects.FromString(u"Alpha;255\r\nBeta;65280\r\n");
    EXPECT_EQ(reasonOf(u""), projectMissing);
    EXPECT_EQ(reasonOf(u"Alpha"), u"");
    EXPECT_EQ(reasonOf(u"Gamma"), projectMissing);
}

TEST_F(Validation, TakesTheWholeTextOfTheCategoriesForTheProject)
{
    settings().ProjectMandatory = true;
    settings().Projects.FromString(u"Alpha;255\r\nBeta;65280\r\n");
    EXPECT_EQ(reasonOf(u"Alpha, Beta"), projectMissing);
    settings().Projects.FromString(u"Alpha, Beta;255\r\n");
    EXPECT_EQ(reasonOf(u"Alpha, Beta"), u"");
}

TEST_F(Validation, FindsAProjectInAnyCase)
{
    settings().ProjectMandatory = true;
    settings().Projects.FromString(u"Alpha;255\r\n");
    EXPECT_EQ(reasonOf(u"ALPHA"), u"");
}

TEST_F(Validation, RefusesEveryBookingWhereAProjectIsMandatoryAndNoneIsDefined)
{
    settings().ProjectMandatory = true;
    EXPECT_EQ(reasonOf(u"Alpha"), projectMissing);
}

TEST_F(Validation, RefusesARecurringBooking)
{
    settings().NoRecurring = true;
    EXPECT_EQ(reason(saved(u"Board", at(9), 60)), u"");
    EXPECT_EQ(reason(savedSeries(u"Weekly", at(9), 60)), recurring);
}

TEST_F(Validation, HoldsAnOccurrenceAgainstTheCalendarOfItsSeries)
{
    settings().NoDoubles = true;
    saved(u"First", at(14), 60);
    const auto series = savedSeries(u"Weekly", at(9), 60);
    EXPECT_EQ(reason(movedOccurrence(series, at(14, 30))), doubleBooking);
    EXPECT_EQ(reason(movedOccurrence(series, at(9, 30))), u"");
}

TEST_F(Validation, GivesTheReasonOfTheFirstRuleThatFails)
{
    forbidEverything();
    saved(u"First", at(9), 60);
    const auto item = savedSeries(u"Second", at(9), 60);
    EXPECT_EQ(reason(item), doubleBooking);
    item.setStart(at(12));
    EXPECT_EQ(reason(item), projectMissing);
    settings().Projects.FromString(u"Alpha;255\r\n");
    item.setCategories(u"Alpha");
    EXPECT_EQ(reason(item), recurring);
}

TEST_F(Validation, SurvivesAHostThatFailsAtAnyCall)
{
    forbidEverything();
    settings().Projects.FromString(u"Alpha;255\r\n");
    saved(u"First", at(9), 60);
    const auto item = newAppointment(u"Second", at(12), 60);
    item.setCategories(u"Alpha");
    const auto fault = std::make_shared<test::Fault>();
    const outlook::AppointmentItem faulty{test::FaultyDispatch::wrap(item.object(), fault)};
    EXPECT_EQ(reason(faulty), u"");
    const int uses = fault->uses;
    for (int use = 1; use <= uses; ++use) {
        *fault = {0, use};
        EXPECT_NO_THROW(static_cast<void>(reason(faulty))) << "at use " << use;
    }
}

TEST_F(Validation, ReadsNothingTwice)
{
    forbidEverything();
    settings().Projects.FromString(u"Alpha;255\r\n");
    const auto item = newAppointment(u"Board", at(12), 60);
    item.setCategories(u"Alpha");
    const auto fault = std::make_shared<test::Fault>();
    EXPECT_EQ(reason(outlook::AppointmentItem{test::FaultyDispatch::wrap(item.object(), fault)}), u"");
    // MeetingStatus, EntryID, Start, End, Parent, IsRecurring; Items, Sort, IncludeRecurrences, Find; Categories.
    EXPECT_EQ(fault->uses, 11);
}

} // namespace
} // namespace rf
