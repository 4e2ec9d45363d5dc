#include "linux/sqlite_fixture.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <random>
#include <thread>

namespace rf::host::test {
namespace {

constexpr int savesOfARound = 200;
constexpr std::size_t bulk = 7;

/// How often each situation is tried; the slow tests try it more often.
int rounds() { return std::getenv("RF_SLOW_TESTS") != nullptr ? 50 : 5; }

Text contentOf(std::int64_t revision)
{
    return Text(static_cast<std::size_t>(revision) * 700, u'x') + decimal(revision);
}

/// An item that shows whether all of it is of one revision.
ItemRecord ofRevision(ItemRecord item, std::int64_t revision)
{
    item.subject = u"Revision " + decimal(revision);
    item.body = contentOf(revision);
    item.start = at(1, static_cast<int>(revision));
    item.end = item.start;
    item.userProperties = {{u"Revision", 1, decimal(revision)}, {u"Content", 1, contentOf(revision)}};
    return item;
}

using Revisions = std::map<std::int64_t, std::int64_t>;
constexpr std::int64_t perItem = 1000;

/// Saves new items and new revisions of the last one, and tells of each when it is saved.
bool saveAndTell(const std::filesystem::path& path, FolderId room, const NumberPipe& pipe)
{
    SqliteStore store{path, Opening::Existing};
    ItemRecord item;
    for (int save = 0; save < savesOfARound; ++save) {
        if (save % 4 == 0)
            item = appointment(room, u"", at(1), at(1));
        item = ofRevision(item, item.revision + 1);
        store.save(item);
        if (!pipe.put(static_cast<std::int64_t>(item.id) * perItem + item.revision))
            return false;
    }
    return true;
}

class SqliteKill : public SqliteStoreTest {
protected:
    template <class Work>
    void killAtAnyMoment(const Work& work)
    {
        Child child{work};
        std::this_thread::sleep_for(std::chrono::microseconds{delay_(random_)});
        child.kill();
        (void)child.wait();
    }

    static void expectWhole(const SqliteStore& store, FolderId room, ItemId id)
    {
        const std::optional<ItemRecord> item = store.read(id);
        ASSERT_TRUE(item);
        EXPECT_EQ(item->userProperties, ofRevision(*item, item->revision).userProperties);
        EXPECT_EQ(item->body, contentOf(item->revision));
        const auto byKey = store.withProperty(room, u"REVISION", decimal(item->revision));
        EXPECT_NE(std::ranges::find(byKey, id), byKey.end());
        const auto byTime = store.overlapping(room, item->start, item->start);
        EXPECT_NE(std::ranges::find(byTime, id), byTime.end());
    }

    /// Every reported revision is there, and whatever else is there is whole and in the log.
    void expectNothingLost(FolderId room, const Revisions& reported) const
    {
        EXPECT_EQ(integrityOf(path()), "ok");
        const SqliteStore store = open();
        for (const auto& [id, revision] : reported) {
            const auto item = store.read(ItemId{id});
            ASSERT_TRUE(item) << id;
            EXPECT_GE(item->revision, revision);
        }
        std::int64_t saves = 0;
        for (const ItemId id : store.items(room)) {
            expectWhole(store, room, id);
            saves += store.read(id)->revision;
        }
        EXPECT_EQ(store.lastChange(), saves);
        EXPECT_EQ(static_cast<std::int64_t>(store.changesAfter(0).size()), saves);
    }

private:
    std::mt19937 random_{std::random_device{}()};
    std::uniform_int_distribution<int> delay_{1000, 250'000};
};

TEST_F(SqliteKill, LosesNothingThatWasReportedSaved)
{
    const FolderId room = makeRoom();
    Revisions reported;
    for (int round = 0; round < rounds(); ++round) {
        NumberPipe pipe;
        killAtAnyMoment([&] { return saveAndTell(path(), room, pipe); });
        while (const auto told = pipe.take())
            reported[*told / perItem] = *told % perItem;
        expectNothingLost(room, reported);
    }
    EXPECT_FALSE(reported.empty());
}

TEST_F(SqliteKill, LosesNothingWhileAnotherProcessHasTheStoreOpen)
{
    const FolderId room = makeRoom();
    const SqliteStore watcher = open();
    Revisions reported;
    for (int round = 0; round < rounds(); ++round) {
        NumberPipe pipe;
        killAtAnyMoment([&] { return saveAndTell(path(), room, pipe); });
        while (const auto told = pipe.take())
            reported[*told / perItem] = *told % perItem;
        EXPECT_GE(watcher.count(room), reported.size());
    }
    expectNothingLost(room, reported);
}

TEST_F(SqliteKill, LeavesAllOfManyItemsOrNone)
{
    const FolderId room = makeRoom();
    for (int round = 0; round < rounds(); ++round) {
        killAtAnyMoment([&] {
            SqliteStore store = open();
            for (int save = 0; save < savesOfARound; ++save) {
                std::vector<ItemRecord> items(bulk, ofRevision(appointment(room, u"", at(1), at(1)), 1));
                store.saveTogether(items);
            }
            return true;
        });
        const SqliteStore store = open();
        EXPECT_EQ(store.count(room) % bulk, 0U);
        EXPECT_EQ(store.withProperty(room, u"Revision", u"1").size(), store.count(room));
        EXPECT_EQ(store.overlapping(room, at(1), at(2)).size(), store.count(room));
        EXPECT_EQ(store.lastChange(), static_cast<std::int64_t>(store.count(room)));
    }
    EXPECT_EQ(integrityOf(path()), "ok");
}

TEST_F(SqliteKill, CanBeMadeAfterItsMakerWasKilled)
{
    std::mt19937 random{std::random_device{}()};
    for (int round = 0; round < rounds() * 4; ++round) {
        const std::filesystem::path file = folder() / std::to_string(round);
        {
            const Child child{[&] { return SqliteStore{file}.addFolder(calendar(u"Room")) != FolderId::None; }};
            std::this_thread::sleep_for(std::chrono::microseconds{random() % 20'000});
            child.kill();
        }
        SqliteStore store{file};
        EXPECT_LE(store.folders().size(), 1U);
        EXPECT_NE(store.addFolder(calendar(u"Room")), FolderId::None);
    }
}

} // namespace
} // namespace rf::host::test
