#pragma once

#include "booking/rules_fixture.h"
#include "host/inspectors.h"

namespace rf::test {

/// The rules of a watched calendar, heard through the host's own events.
class AppItems : public RulesOverTransport {
protected:
    [[nodiscard]] std::size_t windowCount() const { return host->model().inspectors().count(); }
    [[nodiscard]] outlook::AppointmentItem shown() const
    {
        return session->ouaApp.activeInspector().currentItem().as<outlook::AppointmentItem>();
    }
    void copyBoth() const
    {
        settings().PersonalCopy = true;
        copyToMaster(all);
    }
    /// Moves the booking of that subject as a person does in the calendar's view.
    void moved(const Text& subject, Date start, int minutes) const
    {
        const auto item = folder(room).items().item(subject).as<outlook::AppointmentItem>();
        item.setStart(start);
        item.setDuration(minutes);
        item.save();
        deliver();
    }
};

TEST_P(AppItems, MakeABookingOfADroppedItem)
{
    watch();
    const auto item = newAppointment(u"Dropped", at(9), 90);
    item.setCategories(u"Alpha");
    item.save();
    const Text dropped = item.entryId();
    clock.set(Date::fromFields({2024, 2, 3, 8, 4, 7}));
    deliver();
    const auto booking = only(room);
    EXPECT_NE(host::entryIdOf(booking.id), dropped);
    EXPECT_EQ(booking.subject, u"Dropped");
    EXPECT_EQ(booking.start, at(9));
    EXPECT_EQ(booking.end, at(10, 30));
    EXPECT_EQ(booking.categories, u"Alpha");
    EXPECT_EQ(property(booking, u"SafeOrganizer"), automation::Variant{u"Jane Doe"});
    EXPECT_EQ(property(booking, u"OriginalStartDate"), automation::Variant{at(9)});
    EXPECT_EQ(property(booking, u"OriginalDuration"), automation::Variant{90.0});
    EXPECT_EQ(property(booking, u"OCID"), automation::Variant{u"2024-2-3:8.4.7_Jane Doe"});
    EXPECT_EQ(windowCount(), 0U);
}

TEST_P(AppItems, GiveABookingEveryPropertyAndMakeNoneAFieldOfTheCalendar)
{
    watch();
    saved(u"Dropped", at(9), 90);
    deliver();
    const auto booking = only(room);
    ASSERT_EQ(booking.userProperties.size(), bookingProperties.size());
    for (std::size_t index = 0; index < bookingProperties.size(); ++index) {
        EXPECT_EQ(booking.userProperties[index].name, bookingProperties[index].name);
        EXPECT_EQ(booking.userProperties[index].type, outlook::code(bookingProperties[index].type));
    }
    for (const auto& folder : store->folders())
        EXPECT_TRUE(folder.fields.empty()) << toUtf8(folder.name);
}

TEST_P(AppItems, LeaveABookingOfTheProgramsWindowAsItIs)
{
    watch();
    const auto item = newAppointment(u"Board", at(9), 60);
    EXPECT_TRUE(fncAddBookingProps(item));
    item.save();
    deliver();
    EXPECT_EQ(host::entryIdOf(only(room).id), item.entryId());
}

TEST_P(AppItems, LeaveAnItemThatIsNotSavedAsItIs)
{
    auto& watcher = watch();
    const auto item = saved(u"Board", at(9), 60);
    item.setSubject(u"Board, changed since");
    watcher.ouisItems_ItemAdd(item);
    EXPECT_EQ(host::entryIdOf(only(room).id), item.entryId());
}

TEST_P(AppItems, CopyADroppedBookingIntoBothCalendars)
{
    watch();
    copyBoth();
    saved(u"Dropped", at(9), 60);
    deliver();
    EXPECT_EQ(only(own).subject, u"Dropped");
    EXPECT_EQ(only(own).location, u"Room 1");
    EXPECT_EQ(only(all).subject, u"FR: Dropped");
    EXPECT_EQ(property(only(own), u"OCID"), property(only(room), u"OCID"));
    EXPECT_EQ(property(only(all), u"OCID"), property(only(room), u"OCID"));
}

TEST_P(AppItems, ShowARefusedDroppedItemUnsaved)
{
    settings().NoDoubles = true;
    watch();
    copyBoth();
    booked(u"First", at(9), 60);
    deliver();
    saved(u"Dropped", at(9, 30), 60);
    deliver();
    EXPECT_EQ(only(room).subject, u"First");
    ASSERT_EQ(windowCount(), 1U);
    EXPECT_EQ(shown().subject(), u"Dropped");
    EXPECT_EQ(shown().start(), at(9, 30));
    EXPECT_FALSE(shown().saved());
    EXPECT_TRUE(stored(own).empty());
    EXPECT_TRUE(stored(all).empty());
}

TEST_P(AppItems, TakeADroppedItemThatIsGoneForNobodys)
{
    auto& watcher = watch();
    const auto item = saved(u"Dropped", at(9), 60);
    store->remove(*host::itemIdOf(item.entryId()));
    watcher.ouisItems_ItemAdd(item);
    EXPECT_TRUE(stored(room).empty());
    EXPECT_EQ(windowCount(), 0U);
}

TEST_P(AppItems, RememberAnAcceptedMove)
{
    watch();
    booked(u"Board", at(9), 60);
    deliver();
    moved(u"Board", at(14), 90);
    const auto booking = only(room);
    EXPECT_EQ(booking.start, at(14));
    EXPECT_EQ(property(booking, u"OriginalStartDate"), automation::Variant{at(14)});
    EXPECT_EQ(property(booking, u"OriginalDuration"), automation::Variant{90.0});
}

TEST_P(AppItems, PutARefusedMoveBackWithoutAWord)
{
    settings().NoDoubles = true;
    watch();
    booked(u"First", at(9), 60);
    booked(u"Second", at(10), 30);
    deliver();
    moved(u"Second", at(9, 30), 90);
    const auto second = stored(room).back();
    EXPECT_EQ(second.start, at(10));
    EXPECT_EQ(second.end, at(10, 30));
    EXPECT_TRUE(windows.alerts.empty());
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_EQ(windowCount(), 0U);
}

TEST_P(AppItems, LetARefusedBookingStayWhereItWasNotMoved)
{
    settings().ProjectMandatory = true;
    watch();
    booked(u"Board", at(9), 60);
    deliver();
    const auto item = folder(room).items().item(u"Board");
    item.setBody(u"Minutes");
    item.save();
    const auto revision = only(room).revision;
    deliver();
    EXPECT_EQ(only(room).revision, revision);
    EXPECT_EQ(only(room).start, at(9));
}

TEST_P(AppItems, DoNotMoveABookingBackToAnUnsetDate)
{
    settings().ProjectMandatory = true;
    watch();
    for (const Date unset : {Date::fromFields({1900, 1, 1}), Date{}, noDate}) {
        const auto item = booked(u"Board", at(9), 60);
        setProperty(item, u"OriginalStartDate", unset);
        setProperty(item, u"OriginalDuration", 45);
        item.save();
        deliver();
        EXPECT_EQ(only(room).start, at(9));
        EXPECT_EQ(only(room).end, at(9, 45));
        store->remove(only(room).id);
    }
}

TEST_P(AppItems, LeaveTheDurationWhereTheRememberedOneIsNotPositive)
{
    settings().ProjectMandatory = true;
    watch();
    const auto item = booked(u"Board", at(9), 60);
    setProperty(item, u"OriginalStartDate", noDate);
    setProperty(item, u"OriginalDuration", 0);
    item.save();
    deliver();
    EXPECT_EQ(only(room).end, at(10));
}

TEST_P(AppItems, GiveAChangedItemTheBookingPropertiesThatItLacks)
{
    watch();
    const auto item = saved(u"Old", at(9), 60);
    deliver();
    store->remove(only(room).id);
    const auto bare = newAppointment(u"Bare", at(11), 30);
    setProperty((static_cast<void>(bare.userProperties().add(u"SafeOrganizer", outlook::UserPropertyType::Text)), bare),
        u"SafeOrganizer", u"Rita Roe");
    bare.save();
    deliver();
    moved(u"Bare", at(12), 30);
    const auto booking = only(room);
    EXPECT_EQ(booking.userProperties.size(), bookingProperties.size());
    EXPECT_EQ(property(booking, u"OriginalStartDate"), automation::Variant{at(12)});
    EXPECT_EQ(property(booking, u"SafeOrganizer"), automation::Variant{u"Rita Roe"});
}

TEST_P(AppItems, RefreshTheCopiesOfAMovedBooking)
{
    watch();
    copyBoth();
    saved(u"Board", at(9), 60);
    deliver();
    moved(u"Board", at(15), 30);
    EXPECT_EQ(only(own).start, at(15));
    EXPECT_EQ(only(own).end, at(15, 30));
    EXPECT_EQ(only(all).start, at(15));
}

TEST_P(AppItems, CopyNoBookingWithoutALink)
{
    watch();
    copyBoth();
    const auto item = booked(u"Board", at(9), 60);
    setProperty(item, u"OCID", u"");
    item.save();
    moved(u"Board", at(15), 30);
    EXPECT_TRUE(stored(own).empty());
    EXPECT_TRUE(stored(all).empty());
}

TEST_P(AppItems, LeaveTheCopiesOfARefusedMoveAsTheyAre)
{
    settings().NoDoubles = true;
    watch();
    copyBoth();
    saved(u"First", at(9), 60);
    deliver();
    clock.set(Date::fromFields({2024, 2, 3, 8, 4, 8}));
    saved(u"Second", at(11), 60);
    deliver();
    moved(u"Second", at(9), 60);
    EXPECT_EQ(stored(own).back().start, at(11));
    EXPECT_EQ(stored(all).back().start, at(11));
}

TEST_P(AppItems, LeaveTheCopiesOfADeletedBooking)
{
    watch();
    copyBoth();
    saved(u"Board", at(9), 60);
    deliver();
    folder(room).items().item(u"Board").remove();
    deliver();
    EXPECT_TRUE(stored(room).empty());
    EXPECT_EQ(stored(own).size(), 1U);
    EXPECT_EQ(stored(all).size(), 1U);
}

TEST_P(AppItems, EndTheRecursionOfTheirOwnSaves)
{
    settings().NoDoubles = true;
    watch();
    booked(u"First", at(9), 60);
    booked(u"Second", at(11), 60);
    deliver();
    const auto revision = stored(room).back().revision;
    moved(u"Second", at(13), 60);
    // The person's save and the one that remembers the move; its own event finds nothing to change.
    EXPECT_EQ(stored(room).back().revision, revision + 2);
    moved(u"Second", at(9), 30);
    EXPECT_EQ(stored(room).back().revision, revision + 4);
    const auto changes = store->lastChange();
    deliver();
    EXPECT_EQ(store->lastChange(), changes);
}

TEST_P(AppItems, EndTheRecursionForABookingLongerThanAShortNumberOfMinutes)
{
    watch();
    constexpr int fortyDays = 40 * 24 * 60;
    booked(u"Exhibition", at(9), 60);
    deliver();
    const auto revision = only(room).revision;
    moved(u"Exhibition", at(9), fortyDays);
    EXPECT_EQ(only(room).revision, revision + 2);
    EXPECT_EQ(property(only(room), u"OriginalDuration"), automation::Variant{57600.0});
}

TEST_P(AppItems, EndTheRecursionForABookingThatCannotRememberItsTime)
{
    watch();
    const auto item = newAppointment(u"Damaged", at(9), 60);
    const auto properties = item.userProperties();
    properties.add(u"SafeOrganizer", outlook::UserPropertyType::Text, false);
    properties.add(u"OriginalStartDate", outlook::UserPropertyType::DateTime, false).setValue(at(9));
    item.save();
    deliver();
    const auto revision = only(room).revision;
    moved(u"Damaged", at(9), 30);
    EXPECT_EQ(only(room).revision, revision + 1);
}

TEST_P(AppItems, IgnoreAnEventWithoutAnItem)
{
    auto& watcher = watch();
    const auto changes = store->lastChange();
    watcher.ouisItems_ItemChange({});
    watcher.ouisItems_ItemAdd({});
    EXPECT_EQ(store->lastChange(), changes);
}

TEST_P(AppItems, AreFoundByTheCalendarThatTheyWatch)
{
    const auto& watcher = watch();
    EXPECT_EQ(watcher.FolderName(), u"Room 1");
    EXPECT_EQ(watcherOf(*session, folder(room).entryId()).get(), &watcher);
    EXPECT_EQ(watcherOf(*session, folder(otherRoom).entryId()), nullptr);
    EXPECT_EQ(watcherOf(*session, {}), nullptr);
}

} // namespace rf::test
