#include "host/calendar_arrangement.h"
#include "host/calendar_entries.h"
#include "host/host_error.h"
#include "host/inspectors.h"
#include "support/session_fixture.h"

#include "basic/error_of.h"
#include "host/store/store_fixture.h"

namespace rf::host {

namespace {

using test::at;

class CalendarEntries : public rf::test::SessionTest {
protected:
    CalendarEntries()
    {
        runHost();
        calendar = folder(FolderRole::Calendar)->id();
    }
    ItemId book(const Text& subject, Date start, Date end)
    {
        auto record = test::appointment(calendar, subject, start, end);
        store->save(record);
        return record.id;
    }
    [[nodiscard]] std::shared_ptr<Model> model() const { return host->model().shared_from_this(); }
    [[nodiscard]] std::vector<Text> subjectsBetween(Date from, Date to) const
    {
        std::vector<Text> subjects;
        for (const CalendarEntry& entry : entriesBetween(host->model(), calendar, from, to))
            subjects.push_back(entry.subject);
        return subjects;
    }

    FolderId calendar{};
};

TEST_F(CalendarEntries, AreThoseThatTakePlaceBetweenTwoMoments)
{
    book(u"before", at(4, 600), at(5));
    book(u"over midnight", at(4, 600), at(5, 1));
    book(u"second", at(5, 600), at(5, 660));
    book(u"first", at(5, 540), at(5, 660));
    book(u"moment", at(5), at(5));
    book(u"after", at(6), at(6, 60));
    EXPECT_EQ(subjectsBetween(at(5), at(6)), (std::vector<Text>{u"over midnight", u"moment", u"first", u"second"}));
}

TEST_F(CalendarEntries, AreLongWhenTheyHaveWholeDays)
{
    CalendarEntry entry;
    entry.start = at(5, 600);
    entry.end = at(6, 599);
    EXPECT_FALSE(entry.isLong());
    entry.end = at(6, 600);
    EXPECT_TRUE(entry.isLong());
    entry.end = at(5, 660);
    entry.allDay = true;
    EXPECT_TRUE(entry.isLong());
}

TEST_F(CalendarEntries, MoveAndAreSaved)
{
    const auto id = book(u"Budget", at(5, 600), at(5, 660));
    const auto entries = entriesBetween(host->model(), calendar, at(5), at(6));
    ASSERT_EQ(entries.size(), 1U);
    moveEntry(model(), entries[0], at(6, 600), at(6, 660));
    EXPECT_EQ(store->read(id)->start, at(6, 600));
    EXPECT_EQ(store->read(id)->end, at(6, 660));
}

TEST_F(CalendarEntries, CannotMoveOnceTheyAreGone)
{
    const auto id = book(u"Budget", at(5, 600), at(5, 660));
    const auto entries = entriesBetween(host->model(), calendar, at(5), at(6));
    store->remove(id);
    EXPECT_EQ(rf::test::errorOf([&] { moveEntry(model(), entries.at(0), at(6), at(6)); }), host_error::deleted);
}

TEST_F(CalendarEntries, OpenOneWindowOfOneItem)
{
    book(u"Budget", at(5, 600), at(5, 660));
    const auto entries = entriesBetween(host->model(), calendar, at(5), at(6));
    openItem(*itemOfEntry(model(), entries.at(0)));
    openItem(*itemOfEntry(model(), entries.at(0)));
    EXPECT_EQ(host->inspectors().count(), 1U);
}

TEST_F(CalendarEntries, OpenNewAppointmentsAtTheirTimes)
{
    CalendarEntry times;
    times.start = at(5, 600);
    times.end = at(5, 690);
    openNewAppointment(model(), calendar, times);
    ASSERT_EQ(host->inspectors().count(), 1U);
    EXPECT_EQ(host->inspectors().active()->item().record().end, at(5, 690));
    EXPECT_TRUE(subjectsBetween(at(5), at(6)).empty());
    times.subject = u"Budget";
    saveNewAppointment(model(), calendar, times);
    EXPECT_EQ(subjectsBetween(at(5), at(6)), std::vector<Text>{u"Budget"});
}

CalendarEntry entry(Date start, Date end, bool allDay = false)
{
    CalendarEntry made;
    made.start = start;
    made.end = end;
    made.allDay = allDay;
    return made;
}

TEST(CalendarArrangement, PutsLongBookingsAboveTheHours)
{
    const std::vector entries{entry(at(4), at(7), true), entry(at(5, 600), at(5, 660))};
    const auto arrangement = arrangedByHours(entries, {at(5), 5});
    EXPECT_EQ(arrangement.bars, (std::vector<PlacedBar>{{0, 0, 2, 0}}));
    EXPECT_EQ(arrangement.entries, (std::vector<PlacedEntry>{{1, 0, 600, 660, {}}}));
    EXPECT_EQ(arrangement.rows, 1);
}

TEST(CalendarArrangement, DividesABookingOverMidnight)
{
    const std::vector entries{entry(at(5, 1380), at(6, 120))};
    EXPECT_EQ(arrangedByHours(entries, {at(5), 2}).entries,
        (std::vector<PlacedEntry>{{0, 0, 1380, 1440, {}}, {0, 1, 0, 120, {}}}));
}

TEST(CalendarArrangement, ShowsAShortBookingLongEnoughToBeRead)
{
    const std::vector entries{entry(at(5, 600), at(5, 600)), entry(at(5, 1435), at(5, 1440))};
    EXPECT_EQ(arrangedByHours(entries, {at(5), 1}).entries,
        (std::vector<PlacedEntry>{{0, 0, 600, 630, {}}, {1, 0, 1410, 1440, {}}}));
}

TEST(CalendarArrangement, GivesABookingThatEndsAtMidnightNothingOfTheNextDay)
{
    const std::vector entries{entry(at(5, 1380), at(6))};
    EXPECT_EQ(arrangedByHours(entries, {at(5), 2}).entries, (std::vector<PlacedEntry>{{0, 0, 1380, 1440, {}}}));
    EXPECT_EQ(arrangedByDays(entries, {at(5), 7}), (std::vector<PlacedBar>{{0, 0, 1, 0}}));
}

TEST(CalendarArrangement, StacksTheBookingsOfAMonthsWeek)
{
    const std::vector entries{entry(at(4), at(8), true), entry(at(5, 600), at(5, 660)), entry(at(8, 0), at(8, 60))};
    EXPECT_EQ(arrangedByDays(entries, {at(5), 7}), (std::vector<PlacedBar>{{0, 0, 3, 0}, {1, 0, 1, 1}, {2, 3, 4, 0}}));
}

} // namespace

} // namespace rf::host
