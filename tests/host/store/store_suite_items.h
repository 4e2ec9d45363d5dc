#pragma once

#include "host/store/store_fixture.h"

namespace rf::host::test {

TEST_P(StoreSuite, KeepsEverythingOfAnItem)
{
    ItemRecord item = appointment(room(), u"Meeting", at(1, 600), at(1, 660));
    item.body = u"line\r\nline";
    item.categories = u"Coffee, Tea";
    item.location = u"Room 1";
    item.to = u"a@example.org";
    item.allDay = true;
    item.busyStatus = 3;
    item.meetingStatus = 1;
    item.creationTime = at(2, 5);
    item.lastModificationTime = at(3, 7);
    item.timeZone = u"Europe/Berlin";
    item.uid = u"4711@example.org";
    item.userProperties = {{u"Link", 1, Text{u"A"}}, {u"Amount", 3, 2.5}};
    store().save(item);

    EXPECT_EQ(store().read(item.id), item);
}

TEST_P(StoreSuite, KeepsASeriesWithItsChanges)
{
    ItemRecord item = appointment(room(), u"Series", at(1, 600), at(1, 660));
    item.recurrence = RecurrenceRecord{
        .rule = u"FREQ=DAILY;COUNT=9", .additions = {at(20), at(21, 30)}, .changes = {}, .lastEnd = at(21, 90)};
    OccurrenceChange change = moved(at(3, 600), at(4, 600), at(4, 630));
    change.subject = u"Moved";
    change.body = u"Body";
    change.location = u"Elsewhere";
    change.categories = u"Tea";
    change.userProperties = {{u"Link", 1, Text{u"B"}}};
    item.recurrence->changes = {deleted(at(2, 600), {}, {}), change};
    EXPECT_EQ(kept(item).recurrence, item.recurrence);

    item.recurrence = RecurrenceRecord{};
    EXPECT_EQ(kept(item).recurrence, item.recurrence);
}

TEST_P(StoreSuite, FillsInNumberRevisionAndSizeOfASavedItem)
{
    ItemRecord item = appointment(room(), u"Meeting", at(1), at(1));
    store().save(item);
    EXPECT_NE(item.id, ItemId::None);
    EXPECT_EQ(item.revision, 1);
    EXPECT_GT(item.size, 0);

    const ItemRecord first = item;
    item.body = Text(1000, u'x');
    store().save(item);
    EXPECT_EQ(item.id, first.id);
    EXPECT_EQ(item.revision, 2);
    EXPECT_EQ(item.size, first.size + 2000);
    EXPECT_EQ(store().read(item.id), item);
}

TEST_P(StoreSuite, CountsTheRevisionByWhatItHoldsNotByWhatItIsTold)
{
    ItemRecord item = saved(u"Meeting");
    ItemRecord stale = item;
    store().save(item);
    store().save(stale);

    EXPECT_EQ(stale.revision, 3);
}

TEST_P(StoreSuite, ChangesAnItemAsItIsByThen)
{
    ItemRecord item = saved(u"Meeting");
    const ItemRecord stale = item;
    item.location = u"Hall";
    store().save(item);

    store().change(stale.id, [](ItemRecord& stored) {
        stored.subject = u"Renamed";
        stored.id = ItemId{12345};
    });
    const ItemRecord changed = store().read(stale.id).value_or(ItemRecord{});
    EXPECT_EQ(changed.subject, u"Renamed");
    EXPECT_EQ(changed.location, u"Hall");
    EXPECT_EQ(changed.revision, 3);
    EXPECT_FALSE(store().read(ItemId{12345}));
    ASSERT_FALSE(store().changesAfter(2).empty());
    EXPECT_EQ(store().changesAfter(2).back().kind, ChangeKind::Changed);
    EXPECT_EQ(store().withSubject(room(), u"renamed"), std::vector{stale.id});
}

TEST_P(StoreSuite, ChangesNothingWhenTheChangeFails)
{
    const ItemRecord item = saved(u"Meeting");
    const std::int64_t before = store().lastChange();
    const auto failing = [](ItemRecord& stored) {
        stored.subject = u"Half done";
        throw StoreError{StoreFault::Failed, u"No."};
    };
    const auto away = [](ItemRecord& stored) { stored.folder = FolderId{99}; };

    EXPECT_EQ(faultOf([&] { store().change(item.id, failing); }), StoreFault::Failed);
    EXPECT_EQ(faultOf([&] { store().change(item.id, away); }), StoreFault::Missing);
    EXPECT_EQ(faultOf([&] { store().change(ItemId{12345}, failing); }), StoreFault::Missing);
    EXPECT_EQ(store().read(item.id), item);
    EXPECT_EQ(store().lastChange(), before);
}

TEST_P(StoreSuite, HasNothingOfAnItemThatIsNotThere) { EXPECT_FALSE(store().read(ItemId{12345})); }

TEST_P(StoreSuite, RefusesAnItemInAFolderThatIsNotThere)
{
    ItemRecord item = appointment(FolderId{99}, u"Lost", at(1), at(1));
    EXPECT_EQ(faultOf([&] { store().save(item); }), StoreFault::Missing);
    EXPECT_EQ(item.id, ItemId::None);
    EXPECT_EQ(item.revision, 0);

    ItemRecord moved = saved(u"Here");
    moved.folder = FolderId{99};
    EXPECT_EQ(faultOf([&] { store().save(moved); }), StoreFault::Missing);
    EXPECT_EQ(store().read(moved.id)->folder, room());
}

TEST_P(StoreSuite, RefusesToSaveAnItemThatWasRemoved)
{
    ItemRecord item = saved(u"Gone");
    EXPECT_TRUE(store().remove(item.id));
    const ItemRecord before = item;

    EXPECT_EQ(faultOf([&] { store().save(item); }), StoreFault::Missing);
    EXPECT_EQ(item, before);
    EXPECT_EQ(store().count(room()), 0U);
}

TEST_P(StoreSuite, AnswersOneOfTwoRemoversWithTrue)
{
    const ItemRecord item = saved(u"Twice");

    EXPECT_TRUE(store().remove(item.id));
    EXPECT_FALSE(store().remove(item.id));
    EXPECT_FALSE(store().remove(ItemId{12345}));
    EXPECT_FALSE(store().read(item.id));
}

TEST_P(StoreSuite, ListsTheItemsOfAFolderInTheOrderOfTheirFirstSaving)
{
    const FolderId other = store().addFolder(calendar(u"Other"));
    ItemRecord late = saved(u"b", at(9), at(9));
    ItemRecord elsewhere = appointment(other, u"c", at(1), at(1));
    store().save(elsewhere);
    const ItemRecord early = saved(u"a", at(2), at(2));
    store().save(late);

    EXPECT_EQ(store().items(room()), (std::vector{late.id, early.id}));
    EXPECT_EQ(store().count(room()), 2U);
    EXPECT_EQ(store().count(other), 1U);
    EXPECT_TRUE(store().remove(early.id));
    EXPECT_EQ(store().count(room()), 1U);
}

TEST_P(StoreSuite, SavesManyNewItemsTogether)
{
    std::vector<ItemRecord> items;
    for (int number = 0; number < 50; ++number)
        items.push_back(appointment(room(), u"Number " + decimal(number), at(1, number), at(1, number)));
    items[7].id = ItemId{12345};
    store().saveTogether(items);

    std::vector<ItemId> ids;
    for (const ItemRecord& item : items) {
        EXPECT_EQ(item.revision, 1);
        EXPECT_EQ(store().read(item.id), item);
        ids.push_back(item.id);
    }
    EXPECT_EQ(store().items(room()), ids);
}

TEST_P(StoreSuite, SavesAllOfManyItemsOrNone)
{
    std::vector<ItemRecord> items(3, appointment(room(), u"Together", at(1), at(1)));
    items[2].folder = FolderId{99};
    const std::vector<ItemRecord> before = items;
    const std::int64_t change = store().lastChange();

    EXPECT_EQ(faultOf([&] { store().saveTogether(items); }), StoreFault::Missing);

    EXPECT_EQ(items, before);
    EXPECT_EQ(store().count(room()), 0U);
    EXPECT_TRUE(store().withSubject(room(), u"Together").empty());
    EXPECT_EQ(store().lastChange(), change);
    store().saveTogether({});
    EXPECT_EQ(store().lastChange(), change);
}

TEST_P(StoreSuite, MovesAnItemToTheFolderItIsSavedIn)
{
    const FolderId other = store().addFolder(calendar(u"Other"));
    ItemRecord item = saved(u"Moving");
    item.userProperties = {{u"Link", 1, Text{u"A"}}};
    store().save(item);
    item.folder = other;
    store().save(item);

    EXPECT_TRUE(store().items(room()).empty());
    EXPECT_TRUE(store().withSubject(room(), u"moving").empty());
    EXPECT_TRUE(store().withProperty(room(), u"link", u"a").empty());
    EXPECT_TRUE(store().overlapping(room(), at(1), at(2)).empty());
    EXPECT_EQ(store().items(other), std::vector{item.id});
    EXPECT_EQ(store().withSubject(other, u"moving"), std::vector{item.id});
    EXPECT_EQ(store().withProperty(other, u"link", u"a"), std::vector{item.id});
    EXPECT_EQ(store().overlapping(other, at(1), at(2)), std::vector{item.id});
}

} // namespace rf::host::test
