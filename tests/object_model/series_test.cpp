#include "object_model/object_model.h"

#include "host/host_error.h"

namespace rf::test {
namespace {

constexpr TextView exceptionClass = outlook::message_class::recurrenceException;

/// A booking from 9 to 10 on each Saturday from 3 February 2024 on.
class SeriesObjects : public ObjectModel {
protected:
    void SetUp() override
    {
        if (recurrence == nullptr)
            GTEST_SKIP() << "this platform's host does not expand series";
    }

    host::ItemRecord bookedWeekly(TextView subject, TextView rule = u"FREQ=WEEKLY")
    {
        host::ItemRecord series;
        series.folder = room;
        series.messageClass = u"IPM.Appointment";
        series.subject = subject;
        series.start = at(9);
        series.end = at(10);
        series.recurrence.emplace().rule = rule;
        series.recurrence->lastEnd = recurrence->lastEnd(series);
        store.save(series);
        return series;
    }

    /// The series' items of the calendar, sorted and expanded.
    [[nodiscard]] outlook::Items expanded() const
    {
        auto items = calendar().items();
        items.sort(u"[Start]", false);
        items.setIncludeRecurrences(true);
        return items;
    }

    /// What overlaps an hour of that day of the year 2024.
    [[nodiscard]] static Text overlapping(int month, int day, int hour)
    {
        const Text date = u"2024-" + decimal(month) + u"-" + decimal(day) + u" ";
        return u"[Start] < \"#" + date + decimal(hour + 1) + u":00#\" and [End] > \"#" + date + decimal(hour)
            + u":00#\"";
    }

    [[nodiscard]] outlook::AppointmentItem found(const Text& restriction) const
    {
        return expanded().find(restriction).as<outlook::AppointmentItem>();
    }

    [[nodiscard]] std::vector<Date> startsOf(const Text& restriction) const
    {
        const auto items = expanded();
        std::vector<Date> starts;
        for (auto item = items.find(restriction); item; item = items.findNext())
            starts.push_back(item.as<outlook::AppointmentItem>().start());
        return starts;
    }

    [[nodiscard]] static Date on(int month, int day, int hour)
    {
        return Date::fromFields({.year = 2024, .month = month, .day = day, .hour = hour});
    }
};

TEST_P(SeriesObjects, AreFoundByTheirOccurrenceInTheAskedWindow)
{
    bookedWeekly(u"Course");
    const auto occurrence = found(overlapping(3, 2, 9));
    ASSERT_TRUE(occurrence);
    EXPECT_EQ(occurrence.start(), on(3, 2, 9));
    EXPECT_EQ(occurrence.end(), on(3, 2, 10));
    EXPECT_EQ(occurrence.messageClass(), u"IPM.Appointment");
    EXPECT_TRUE(occurrence.isRecurring());
    EXPECT_FALSE(found(overlapping(3, 3, 9)));
    EXPECT_FALSE(found(overlapping(3, 2, 10)));
}

TEST_P(SeriesObjects, AreNotExpandedUnlessTheItemsAreSortedByStart)
{
    bookedWeekly(u"Course");
    const auto items = calendar().items();
    items.setIncludeRecurrences(true);
    EXPECT_FALSE(items.find(overlapping(3, 2, 9)));
    items.sort(u"[Start]", true);
    EXPECT_FALSE(items.find(overlapping(3, 2, 9)));
    items.sort(u"[Start]", false);
    EXPECT_TRUE(items.find(overlapping(3, 2, 9)));
    items.setIncludeRecurrences(false);
    EXPECT_FALSE(items.find(overlapping(3, 2, 9)));
}

TEST_P(SeriesObjects, StandBetweenSingleItemsInTheOrderOfTheirStart)
{
    bookedWeekly(u"Course", u"FREQ=WEEKLY;COUNT=3");
    booked(u"Board", on(2, 12, 9), 60);
    EXPECT_EQ(startsOf(u"[Start] >= \"#2024-2-4 0:00#\" and [Start] < \"#2024-3-1 0:00#\""),
        (std::vector{on(2, 10, 9), on(2, 12, 9), on(2, 17, 9)}));
}

TEST_P(SeriesObjects, WithoutEndDoNotLoopWithoutAWindow)
{
    bookedWeekly(u"Course");
    EXPECT_EQ(startsOf(u"[Subject] = 'course'"), std::vector{at(9)});
}

TEST_P(SeriesObjects, WithAnEndAreAllTheirOccurrencesWithoutAWindow)
{
    bookedWeekly(u"Course", u"FREQ=WEEKLY;COUNT=3");
    EXPECT_EQ(startsOf(u"[Subject] = 'course'"), (std::vector{on(2, 3, 9), on(2, 10, 9), on(2, 17, 9)}));
}

TEST_P(SeriesObjects, MoveASingleOccurrence)
{
    bookedWeekly(u"Course");
    const auto occurrence = found(overlapping(2, 10, 9));
    occurrence.setStart(on(2, 11, 14));
    occurrence.setSubject(u"Course, moved");
    occurrence.save();
    EXPECT_FALSE(found(overlapping(2, 10, 9)));
    const auto moved = found(overlapping(2, 11, 14));
    ASSERT_TRUE(moved);
    EXPECT_EQ(moved.messageClass(), exceptionClass);
    EXPECT_EQ(moved.subject(), u"Course, moved");
    EXPECT_EQ(found(overlapping(2, 17, 9)).subject(), u"Course");
}

TEST_P(SeriesObjects, AreFoundByWhatOnlyAnExceptionSays)
{
    for (const TextView rule : {u"FREQ=WEEKLY", u"FREQ=WEEKLY;COUNT=4"}) {
        const Text subject = u"Special of " + Text{rule};
        bookedWeekly(u"Course", rule);
        const auto occurrence = found(overlapping(2, 10, 9) + u" and [Subject] = 'Course'");
        occurrence.setSubject(subject);
        occurrence.userProperties().add(u"OCID", outlook::UserPropertyType::Text, true).setValue(subject);
        occurrence.save();
        EXPECT_EQ(found(u"[Subject] = '" + subject + u"'").start(), on(2, 10, 9));
        EXPECT_EQ(found(u"[OCID] = '" + subject + u"'").start(), on(2, 10, 9));
    }
}

TEST_P(SeriesObjects, AreFoundByAnOccurrenceThatWasMovedBehindTheirEnd)
{
    bookedWeekly(u"Course", u"FREQ=WEEKLY;COUNT=2");
    const auto last = found(overlapping(2, 10, 9));
    last.setStart(on(5, 1, 9));
    last.save();
    EXPECT_EQ(startsOf(u"[Subject] = 'Course'"), (std::vector{on(2, 3, 9), on(5, 1, 9)}));
    EXPECT_TRUE(found(overlapping(5, 1, 9)));
}

TEST_P(SeriesObjects, LoseADeletedOccurrenceOnce)
{
    bookedWeekly(u"Course");
    const auto one = found(overlapping(2, 10, 9));
    const auto other = found(overlapping(2, 10, 9));
    const auto third = found(overlapping(2, 10, 9));
    one.remove();
    EXPECT_FALSE(found(overlapping(2, 10, 9)));
    EXPECT_EQ(errorOf([&] { other.remove(); }), host::host_error::deleted);
    third.setSubject(u"Back again");
    EXPECT_EQ(errorOf([&] { third.save(); }), host::host_error::deleted);
    EXPECT_TRUE(found(overlapping(2, 17, 9)));
}

TEST_P(SeriesObjects, ThatAreGoneTakeTheirOccurrencesAlong)
{
    bookedWeekly(u"Course");
    const auto one = found(overlapping(2, 10, 9));
    const auto other = found(overlapping(2, 17, 9));
    calendar().items().item(u"Course").remove();
    one.setSubject(u"Back again");
    EXPECT_EQ(errorOf([&] { one.save(); }), host::host_error::deleted);
    EXPECT_EQ(errorOf([&] { other.remove(); }), host::host_error::deleted);
}

TEST_P(SeriesObjects, KeepNothingOfADeletedExceptionButItsStart)
{
    const auto series = bookedWeekly(u"Course");
    const auto exception = found(overlapping(2, 10, 9));
    exception.setSubject(u"Special");
    exception.save();
    found(overlapping(2, 10, 9)).remove();
    host::OccurrenceChange deletion;
    deletion.original = on(2, 10, 9);
    deletion.deleted = true;
    EXPECT_EQ(store.read(series.id)->recurrence->changes, std::vector{deletion});
}

TEST_P(SeriesObjects, AreTheParentsOfTheirOccurrences)
{
    bookedWeekly(u"Course");
    const auto occurrence = found(overlapping(2, 10, 9));
    EXPECT_FALSE(occurrence.parent().isFolder());
    EXPECT_TRUE(calendar().items().item(u"Course").parent().isFolder());
}

TEST_P(SeriesObjects, TellTheTimesOfDayOfTheirPattern)
{
    bookedWeekly(u"Course");
    const auto master = calendar().items().item(u"Course").as<outlook::AppointmentItem>();
    EXPECT_TRUE(master.isRecurring());
    EXPECT_EQ(master.getRecurrencePattern().startTime(), Date{9.0 / 24});
    EXPECT_EQ(master.getRecurrencePattern().endTime(), Date{10.0 / 24});
}

TEST_P(SeriesObjects, AreMadeByAskingASingleItemForItsPattern)
{
    const auto item = booked(u"Board", at(9), 60);
    EXPECT_FALSE(item.isRecurring());
    EXPECT_EQ(item.getRecurrencePattern().startTime(), Date{9.0 / 24});
    EXPECT_TRUE(item.isRecurring());
    EXPECT_FALSE(item.saved());
    EXPECT_FALSE(found(overlapping(2, 10, 9)));
    item.save();
    EXPECT_TRUE(found(overlapping(2, 10, 9)));
}

RF_EVERY_TRANSPORT(SeriesObjects);

} // namespace
} // namespace rf::test
