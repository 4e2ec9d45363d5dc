#pragma once

#include "host/store/store_fixture.h"

#include <algorithm>

namespace rf::host::test {

TEST_P(StoreSuite, LogsNothingInANewStore)
{
    EXPECT_EQ(store().lastChange(), 0);
    EXPECT_TRUE(store().changesAfter(0).empty());
}

TEST_P(StoreSuite, KnowsItselfByANumber)
{
    EXPECT_GT(store().writer(), 0);
    EXPECT_NE(store().writer(), GetParam().make()->writer());
}

TEST_P(StoreSuite, LogsEveryChangeOfItemsInItsOrder)
{
    ItemRecord item = saved(u"Meeting");
    store().save(item);
    EXPECT_TRUE(store().remove(item.id));
    EXPECT_FALSE(store().remove(item.id));

    const std::vector<Change> changes = store().changesAfter(0);
    ASSERT_EQ(changes.size(), 3U);
    const ChangeKind kinds[] = {ChangeKind::Added, ChangeKind::Changed, ChangeKind::Removed};
    for (std::size_t index = 0; index < changes.size(); ++index) {
        EXPECT_EQ(changes[index].sequence, static_cast<std::int64_t>(index) + 1);
        EXPECT_EQ(changes[index].kind, kinds[index]);
        EXPECT_EQ(changes[index].folder, room());
        EXPECT_EQ(changes[index].item, item.id);
        EXPECT_EQ(changes[index].arrivedTogether, 1);
        EXPECT_EQ(changes[index].writer, store().writer());
    }
    EXPECT_EQ(store().lastChange(), 3);
}

TEST_P(StoreSuite, AnswersTheChangesBehindANumber)
{
    const ItemRecord first = saved(u"1");
    const std::int64_t seen = store().lastChange();
    const ItemRecord second = saved(u"2");

    const std::vector<Change> changes = store().changesAfter(seen);
    ASSERT_EQ(changes.size(), 1U);
    EXPECT_EQ(changes.front().item, second.id);
    EXPECT_TRUE(store().changesAfter(store().lastChange()).empty());
    EXPECT_EQ(store().changesAfter(0).front().item, first.id);
}

TEST_P(StoreSuite, SaysHowManyItemsArrivedTogetherInEachFolder)
{
    const FolderId other = store().addFolder(calendar(u"Other"));
    std::vector<ItemRecord> items(17, appointment(room(), u"Bulk", at(1), at(1)));
    items[3].folder = other;
    store().saveTogether(items);

    const std::vector<Change> changes = store().changesAfter(0);
    ASSERT_EQ(changes.size(), 17U);
    for (std::size_t index = 0; index < changes.size(); ++index) {
        EXPECT_EQ(changes[index].kind, ChangeKind::Added);
        EXPECT_EQ(changes[index].item, items[index].id);
        EXPECT_EQ(changes[index].folder, items[index].folder);
        EXPECT_EQ(changes[index].arrivedTogether, index == 3 ? 1 : 16);
    }
}

TEST_P(StoreSuite, LogsAMoveAsRemovedAndAdded)
{
    const FolderId other = store().addFolder(calendar(u"Other"));
    ItemRecord item = saved(u"Moving");
    const std::int64_t seen = store().lastChange();
    item.folder = other;
    store().save(item);

    const std::vector<Change> changes = store().changesAfter(seen);
    ASSERT_EQ(changes.size(), 2U);
    EXPECT_EQ(changes[0].kind, ChangeKind::Removed);
    EXPECT_EQ(changes[0].folder, room());
    EXPECT_EQ(changes[1].kind, ChangeKind::Added);
    EXPECT_EQ(changes[1].folder, other);
    EXPECT_EQ(changes[1].item, item.id);
}

TEST_P(StoreSuite, LogsEveryItemOfARemovedFolder)
{
    const ItemRecord first = saved(u"1");
    const FolderId below = store().addFolder(calendar(u"Below", room()));
    ItemRecord second = appointment(below, u"2", at(1), at(1));
    store().save(second);
    const std::int64_t seen = store().lastChange();
    store().removeFolder(room());

    std::vector<ItemId> removed;
    for (const Change& change : store().changesAfter(seen)) {
        EXPECT_EQ(change.kind, ChangeKind::Removed);
        EXPECT_EQ(change.folder, change.item == first.id ? room() : below);
        removed.push_back(change.item);
    }
    std::ranges::sort(removed);
    EXPECT_EQ(removed, (std::vector{first.id, second.id}));
}

TEST_P(StoreSuite, DoesNotLogWhatFailed)
{
    ItemRecord item = appointment(FolderId{99}, u"Lost", at(1), at(1));
    EXPECT_EQ(faultOf([&] { store().save(item); }), StoreFault::Missing);

    EXPECT_EQ(store().lastChange(), 0);
}

} // namespace rf::host::test
