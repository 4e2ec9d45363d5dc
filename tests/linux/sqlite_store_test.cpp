#include "host/sqlite_store.h"

#include "host/store/store_suite.h"
#include "linux/sqlite_fixture.h"

#include <algorithm>
#include <set>

namespace rf::host::test {
namespace {

/// The folder stays as long as the store in it.
struct StoreInFolder {
    TemporaryFolder folder;
    SqliteStore store{folder.file()};
};

std::shared_ptr<Store> makeStore()
{
    const auto both = std::make_shared<StoreInFolder>();
    return {both, &both->store};
}

INSTANTIATE_TEST_SUITE_P(Sqlite, StoreSuite, testing::Values(StoreKind{"SqliteStore", makeStore}));

using SqliteStoreFile = SqliteStoreTest;

TEST_F(SqliteStoreFile, HasEverythingWhenItIsOpenedAgain)
{
    const FolderId room = makeRoom();
    ItemRecord item = appointment(room, u"Meeting", at(1, 600), at(1, 660));
    item.userProperties = {{u"Link", 1, Text{u"A"}}};
    {
        SqliteStore store = open();
        store.save(item);
        ItemRecord gone = appointment(room, u"Gone", at(1), at(1));
        store.save(gone);
        EXPECT_TRUE(store.remove(gone.id));
    }
    SqliteStore store = open();
    EXPECT_EQ(store.folders().size(), 1U);
    EXPECT_EQ(store.read(item.id), item);
    EXPECT_EQ(store.withProperty(room, u"link", u"a"), std::vector{item.id});
    EXPECT_EQ(store.lastChange(), 3);
    ItemRecord next = appointment(room, u"Next", at(1), at(1));
    store.save(next);
    EXPECT_GT(static_cast<std::int64_t>(next.id), static_cast<std::int64_t>(item.id) + 1);
}

TEST_F(SqliteStoreFile, TakesAPathWithAnyLetters)
{
    const std::filesystem::path odd = folder() / "50% of #1? \u00E4\u20AC";
    const FolderId room = SqliteStore{odd}.addFolder(calendar(u"Room"));

    EXPECT_EQ((SqliteStore{odd, Opening::Existing}.folders().front().id), room);
    EXPECT_TRUE(std::filesystem::exists(odd));
}

TEST_F(SqliteStoreFile, ShowsEachObjectWhatTheOtherChanged)
{
    const FolderId room = makeRoom();
    SqliteStore one = open();
    SqliteStore other = open();
    EXPECT_NE(one.writer(), other.writer());
    ItemRecord item = appointment(room, u"Meeting", at(1), at(1));
    EXPECT_EQ(other.count(room), 0U);
    one.save(item);

    EXPECT_EQ(other.count(room), 1U);
    EXPECT_EQ(other.read(item.id), item);
    ASSERT_EQ(other.changesAfter(0).size(), 1U);
    EXPECT_EQ(other.changesAfter(0).front().writer, one.writer());
    EXPECT_TRUE(other.remove(item.id));
    EXPECT_FALSE(one.read(item.id));
    EXPECT_EQ(faultOf([&] { one.save(item); }), StoreFault::Missing);
}

TEST_F(SqliteStoreFile, ShowsOneProcessWhatTheOtherChanged)
{
    const FolderId room = makeRoom();
    SqliteStore store = open();
    NumberPipe pipe;
    Child child{[&] {
        SqliteStore other = open();
        std::vector<ItemRecord> items(20, appointment(room, u"Bulk", at(1), at(2)));
        other.saveTogether(items);
        return pipe.put(other.writer()) && other.remove(items.front().id);
    }};
    const std::int64_t writer = pipe.take().value_or(0);
    EXPECT_TRUE(child.wait());

    const std::vector<Change> changes = store.changesAfter(0);
    ASSERT_EQ(changes.size(), 21U);
    EXPECT_EQ(changes.front().arrivedTogether, 20);
    EXPECT_EQ(changes.front().writer, writer);
    EXPECT_EQ(changes.back().kind, ChangeKind::Removed);
    EXPECT_EQ(store.overlapping(room, at(1), at(1)).size(), 19U);
}

TEST_F(SqliteStoreFile, IsMadeOnceByManyProcesses)
{
    std::vector<std::unique_ptr<Child>> children;
    for (int number = 0; number < 8; ++number) {
        children.push_back(std::make_unique<Child>([&] {
            SqliteStore{path()}.addFolder(calendar(u"Room"));
            return true;
        }));
    }
    for (const auto& child : children)
        EXPECT_TRUE(child->wait());

    EXPECT_EQ(open().folders().size(), 8U);
}

TEST_F(SqliteStoreFile, LosesNoneOfTheChangesThatManyProcessesMakeToOneItem)
{
    constexpr int processes = 6;
    constexpr int changes = 40;
    const FolderId room = makeRoom();
    ItemRecord item = appointment(room, u"Series", at(1), at(1, 60));
    item.recurrence.emplace().rule = u"FREQ=DAILY";
    open().save(item);
    std::vector<std::unique_ptr<Child>> children;
    for (int number = 0; number < processes; ++number) {
        children.push_back(std::make_unique<Child>([&, number] {
            SqliteStore store = open();
            for (int change = 0; change < changes; ++change) {
                store.change(item.id, [&](ItemRecord& series) {
                    series.recurrence->changes.push_back(deleted(at(1, number * changes + change), at(1), at(1)));
                });
            }
            return true;
        }));
    }
    for (const auto& child : children)
        EXPECT_TRUE(child->wait());

    const ItemRecord series = open().read(item.id).value_or(ItemRecord{});
    ASSERT_TRUE(series.recurrence);
    std::set<std::int64_t> originals;
    for (const OccurrenceChange& change : series.recurrence->changes)
        originals.insert(change.original.seconds());
    EXPECT_EQ(originals.size(), std::size_t{processes * changes});
    EXPECT_EQ(series.revision, 1 + processes * changes);
}

TEST_F(SqliteStoreFile, LosesNoneOfTheFieldsThatManyProcessesDefine)
{
    constexpr int processes = 6;
    constexpr int fields = 20;
    const FolderId room = makeRoom();
    std::vector<std::unique_ptr<Child>> children;
    for (int number = 0; number < processes; ++number) {
        children.push_back(std::make_unique<Child>([&, number] {
            SqliteStore store = open();
            for (int field = 0; field < fields; ++field) {
                store.change(room, [&](FolderRecord& folder) {
                    folder.fields.push_back({u"Field " + decimal(number * fields + field), 1});
                });
            }
            return true;
        }));
    }
    for (const auto& child : children)
        EXPECT_TRUE(child->wait());

    std::set<Text> names;
    for (const FieldDefinition& field : open().folder(room).value_or(FolderRecord{}).fields)
        names.insert(field.name);
    EXPECT_EQ(names.size(), std::size_t{processes * fields});
}

TEST_F(SqliteStoreFile, AnswersOneOfManyRemovingProcessesWithTrue)
{
    const FolderId room = makeRoom();
    std::vector<ItemRecord> items(40, appointment(room, u"Contested", at(1), at(1)));
    open().saveTogether(items);
    NumberPipe removed;
    std::vector<std::unique_ptr<Child>> children;
    for (int number = 0; number < 6; ++number) {
        children.push_back(std::make_unique<Child>([&] {
            SqliteStore store = open();
            return std::ranges::all_of(items, [&](const ItemRecord& item) {
                return !store.remove(item.id) || removed.put(static_cast<std::int64_t>(item.id));
            });
        }));
    }
    for (const auto& child : children)
        EXPECT_TRUE(child->wait());

    std::vector<std::int64_t> ids;
    while (const auto id = removed.take())
        ids.push_back(*id);
    std::ranges::sort(ids);
    EXPECT_EQ(ids.size(), items.size());
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end());
    EXPECT_EQ(open().count(room), 0U);
}

TEST_F(SqliteStoreFile, KeepsTheLatestChangesAndForgetsOldOnes)
{
    constexpr std::int64_t behind = 3000;
    const FolderId room = makeRoom();
    SqliteStore store = open();
    std::vector<ItemRecord> items(static_cast<std::size_t>(keptChanges + behind), appointment(room, u"", at(1), at(1)));
    store.saveTogether(items);

    EXPECT_EQ(store.lastChange(), keptChanges + behind);
    const std::vector<Change> kept = store.changesAfter(0);
    EXPECT_GE(static_cast<std::int64_t>(kept.size()), keptChanges);
    EXPECT_LT(static_cast<std::int64_t>(kept.size()), keptChanges + behind);
    EXPECT_EQ(kept.back().sequence, store.lastChange());
    EXPECT_EQ(store.changesAfter(behind).front().sequence, behind + 1);
}

TEST_F(SqliteStoreFile, WaitsNoLongerThanItsLimitForALockedFile)
{
    const FolderId room = makeRoom();
    Database other{path(), Database::Access::Write, std::chrono::seconds{1}};
    const Transaction lock{other};
    SqliteStore store{path(), Opening::Existing, std::chrono::milliseconds{50}};
    ItemRecord item = appointment(room, u"Late", at(1), at(1));

    EXPECT_EQ(faultOf([&] { store.save(item); }), StoreFault::Busy);
    EXPECT_EQ(store.folders().size(), 1U);
}

} // namespace
} // namespace rf::host::test
