#include "booking/conflicts.h"

#include "booking/booking_fixture.h"

namespace rf {
namespace {

using test::at;

class Conflicts : public test::BookingTest {
protected:
    [[nodiscard]] Text conflicts(Date from, Date to, TextView entryId = {}) const
    {
        return fncFindConflicts(*session, entryId, from, to, folder(room));
    }
    [[nodiscard]] bool conflict(Date from, Date to) const
    {
        const bool found = hasConflicts(*session, {}, from, to, folder(room));
        EXPECT_EQ(found, !conflicts(from, to).empty());
        return found;
    }
    [[nodiscard]] Text record(TextView beginning, const outlook::Item& item) const
    {
        return Text{beginning} + item.entryId() + u";" + folder(room).storeId();
    }
};

TEST_F(Conflicts, AreNoneBetweenNeighboursThatTouch)
{
    saved(u"First", at(9), 60);
    EXPECT_FALSE(conflict(at(10), at(11)));
    EXPECT_FALSE(conflict(at(8), at(9)));
}

TEST_F(Conflicts, ArisesWithEachOfTwoNeighboursBetweenWhichABookingLies)
{
    saved(u"First", at(9), 60);
    saved(u"Second", at(10), 60);
    const auto found = split(conflicts(at(9, 30), at(10, 30)), lineBreak);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_TRUE(found[0].starts_with(u"First;"));
    EXPECT_TRUE(found[1].starts_with(u"Second;"));
}

TEST_F(Conflicts, ArisesWithABookingThatIsEnclosed)
{
    saved(u"Inner", at(9), 60);
    EXPECT_TRUE(conflict(at(8), at(12)));
}

TEST_F(Conflicts, ArisesWithABookingThatEncloses)
{
    saved(u"Outer", at(8), 240);
    EXPECT_TRUE(conflict(at(9), at(10)));
}

TEST_F(Conflicts, AreNotThoseOfAnotherCalendar)
{
    saved(u"Elsewhere", at(9), 60, otherRoom);
    EXPECT_FALSE(conflict(at(9), at(10)));
}

TEST_F(Conflicts, LeaveOutTheBookingItself)
{
    const auto item = saved(u"Itself", at(9), 60);
    EXPECT_EQ(conflicts(at(9), at(10), item.entryId()), u"");
    EXPECT_FALSE(hasConflicts(*session, item.entryId(), at(9), at(10), folder(room)));
}

TEST_F(Conflicts, OfABookingThatWasNeverSavedAreAllItems)
{
    saved(u"Stored", at(9), 60);
    EXPECT_TRUE(conflict(at(9), at(10)));
}

TEST_F(Conflicts, HaveARecordOfEachItem)
{
    const auto item = saved(u"Board meeting", at(9), 90);
    fncAddBookingProps(item);
    setProperty(item, u"SafeOrganizer", u"J. Smith");
    item.save();
    EXPECT_EQ(conflicts(at(9), at(10)), record(u"Board meeting;09:00 - 10:30;1.50;J. Smith;", item));
}

TEST_F(Conflicts, HaveNoOrganizerOfAnItemOfAnotherClient)
{
    const auto item = saved(u"Dropped", at(13, 5), 20);
    EXPECT_EQ(conflicts(at(13), at(14)), record(u"Dropped;13:05 - 13:25;0.33;;", item));
}

TEST_F(Conflicts, TellTheHoursInTheUsersForm)
{
    regional = std::make_unique<PatternRegional>(germanSettings());
    begin();
    const auto item = saved(u"Sitzung", at(9), 90);
    EXPECT_EQ(conflicts(at(9), at(10)), record(u"Sitzung;09:00 - 10:30;1,50;;", item));
}

TEST_F(Conflicts, StandInTheOrderOfTheirStartWithLineBreaksBetween)
{
    const auto second = saved(u"B", at(10), 30);
    const auto first = saved(u"A", at(9), 30);
    EXPECT_EQ(conflicts(at(8), at(12)),
        record(u"A;09:00 - 09:30;0.50;;", first) + u"\r\n" + record(u"B;10:00 - 10:30;0.50;;", second));
}

TEST_F(Conflicts, RunTogetherAroundTheBookingItself)
{
    const auto first = saved(u"A", at(9), 30);
    const auto itself = saved(u"Itself", at(10), 30);
    const auto last = saved(u"B", at(11), 30);
    EXPECT_EQ(conflicts(at(8), at(12), itself.entryId()),
        record(u"A;09:00 - 09:30;0.50;;", first) + record(u"B;11:00 - 11:30;0.50;;", last));
}

TEST_F(Conflicts, EndWithoutALineBreakWhenTheBookingItselfIsLast)
{
    const auto first = saved(u"A", at(9), 30);
    const auto itself = saved(u"Itself", at(10), 30);
    EXPECT_EQ(conflicts(at(8), at(12), itself.entryId()), record(u"A;09:00 - 09:30;0.50;;", first));
}

TEST_F(Conflicts, AreNoneInACalendarThatIsNotThere)
{
    EXPECT_EQ(fncFindConflicts(*session, {}, at(9), at(10), outlook::Folder{}), u"");
    EXPECT_FALSE(hasConflicts(*session, {}, at(9), at(10), outlook::Folder{}));
}

/// A system whose date order is none of the known ones.
class UnknownOrder final : public PatternRegional {
public:
    UnknownOrder()
        : PatternRegional(englishSettings())
    {
    }
    [[nodiscard]] std::optional<Date> parseDate(TextView text) const override
    {
        return text == u"01/02/2001" ? std::nullopt : PatternRegional::parseDate(text);
    }
};

TEST_F(Conflicts, AreNotFoundWhereTheDateOrderIsUnknown)
{
    regional = std::make_unique<UnknownOrder>();
    begin();
    saved(u"Board", at(9), 60);
    EXPECT_FALSE(conflict(at(9), at(10)));
}

TEST_F(Conflicts, AreSoughtWithOneSearchAndNothingReadTwice)
{
    saved(u"A", at(9), 30);
    const auto fault = std::make_shared<test::Fault>();
    const outlook::Folder counted{test::FaultyDispatch::wrap(folder(room).object(), fault)};
    static_cast<void>(hasConflicts(*session, {}, at(9), at(10), counted));
    // Items, Sort, IncludeRecurrences, Find, and the identifier of what was found.
    EXPECT_EQ(fault->uses, 5);
}

TEST_F(Conflicts, CountAnItemWhoseValuesCannotBeRead)
{
    saved(u"A", at(9), 30);
    for (int use = 5; use <= 12; ++use) {
        const auto fault = std::make_shared<test::Fault>();
        fault->failingUse = use;
        const outlook::Folder faulty{test::FaultyDispatch::wrap(folder(room).object(), fault)};
        EXPECT_NE(fncFindConflicts(*session, u"another booking", at(9), at(10), faulty), u"") << "at use " << use;
    }
}

} // namespace
} // namespace rf
