#include "linux/sqlite_fixture.h"

#include <thread>

namespace rf::host::test {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

using SqliteLease = SqliteStoreTest;

TEST_F(SqliteLease, BelongsToOneStoreObjectAtATime)
{
    const FolderId room = makeRoom();
    SqliteStore one = open();
    SqliteStore other = open();
    EXPECT_TRUE(one.takeLease(room, 10s, 0s));

    EXPECT_FALSE(other.takeLease(room, 10s, 30ms));
    EXPECT_FALSE(other.holdsLease(room));
    other.giveUpLease(room);
    EXPECT_TRUE(one.holdsLease(room));
    one.giveUpLease(room);
    EXPECT_TRUE(other.takeLease(room, 10s, 0s));
    EXPECT_FALSE(one.holdsLease(room));
}

TEST_F(SqliteLease, IsOneForEachFolder)
{
    const FolderId room = makeRoom();
    SqliteStore one = open();
    SqliteStore other = open();
    const FolderId second = one.addFolder(calendar(u"Second"));

    EXPECT_TRUE(one.takeLease(room, 10s, 0s));
    EXPECT_TRUE(other.takeLease(second, 10s, 0s));
}

TEST_F(SqliteLease, DoesNotKeepOthersFromSaving)
{
    const FolderId room = makeRoom();
    SqliteStore one = open();
    SqliteStore other = open();
    EXPECT_TRUE(one.takeLease(room, 10s, 0s));
    ItemRecord item = appointment(room, u"Copy", at(1), at(1));

    EXPECT_EQ(faultOf([&] { other.save(item); }), std::nullopt);
}

TEST_F(SqliteLease, IsWaitedForAcrossProcesses)
{
    const FolderId room = makeRoom();
    SqliteStore store = open();
    NumberPipe pipe;
    Child child{[&] {
        SqliteStore other = open();
        const bool isTaken = other.takeLease(room, 10s, 0s);
        pipe.put(1);
        std::this_thread::sleep_for(200ms);
        other.giveUpLease(room);
        std::this_thread::sleep_for(5s);
        return isTaken;
    }};
    EXPECT_TRUE(pipe.take());
    EXPECT_FALSE(store.takeLease(room, 10s, 20ms));
    const auto start = Clock::now();
    EXPECT_TRUE(store.takeLease(room, 10s, 5s));
    EXPECT_LT(Clock::now() - start, 3s);
    EXPECT_TRUE(store.holdsLease(room));
}

TEST_F(SqliteLease, GoesToTheNextWhenItsTimeIsOver)
{
    const FolderId room = makeRoom();
    SqliteStore one = open();
    SqliteStore other = open();
    EXPECT_TRUE(one.takeLease(room, 100ms, 0s));

    EXPECT_TRUE(other.takeLease(room, 10s, 5s));
    EXPECT_FALSE(one.holdsLease(room));
    one.giveUpLease(room);
    EXPECT_TRUE(other.holdsLease(room));
}

TEST_F(SqliteLease, EndsWithAKilledProcessThoughNobodyHasWaitedForIt)
{
    const FolderId room = makeRoom();
    SqliteStore store = open();
    NumberPipe pipe;
    const Child child{[&] {
        SqliteStore other = open();
        const bool isTaken = other.takeLease(room, 1h, 0s);
        pipe.put(1);
        std::this_thread::sleep_for(1h);
        return isTaken;
    }};
    EXPECT_TRUE(pipe.take());
    EXPECT_FALSE(store.takeLease(room, 10s, 20ms));
    child.kill();

    EXPECT_TRUE(store.takeLease(room, 10s, 5s));
}

TEST_F(SqliteLease, EndsWithItsStoreObject)
{
    const FolderId room = makeRoom();
    SqliteStore store = open();
    {
        SqliteStore other = open();
        EXPECT_TRUE(other.takeLease(room, 1h, 0s));
    }
    EXPECT_TRUE(store.takeLease(room, 10s, 0s));
}

TEST_F(SqliteLease, IsNotHeldByAProcessOfAnotherRunOfTheMachine)
{
    const FolderId room = makeRoom();
    SqliteStore store = open();
    Database{path(), Database::Access::Write, 1s}.execute(
        ("INSERT INTO lease(folder, owner, process, expires) VALUES(" + std::to_string(static_cast<std::int64_t>(room))
            + ", 7, 'another-boot " + std::to_string(getpid()) + " 1', 9223372036854775807)")
            .c_str());

    EXPECT_TRUE(store.takeLease(room, 10s, 0s));
}

TEST_F(SqliteLease, LetsTwentyProcessesCountWithoutLosingOne)
{
    constexpr int processes = 20;
    constexpr int increments = 5;
    const FolderId room = makeRoom();
    ItemRecord counter = appointment(room, u"Counter", at(1), at(1));
    counter.userProperties = {{u"Count", 3, std::int32_t{0}}};
    open().save(counter);

    std::vector<std::unique_ptr<Child>> children;
    for (int process = 0; process < processes; ++process) {
        children.push_back(std::make_unique<Child>([&] {
            SqliteStore store = open();
            for (int increment = 0; increment < increments; ++increment) {
                if (!store.takeLease(room, 10s, 60s))
                    return false;
                ItemRecord item = store.read(counter.id).value();
                item.userProperties.front().value = item.userProperties.front().value.integer32() + 1;
                store.save(item);
                store.giveUpLease(room);
            }
            return true;
        }));
    }
    for (const auto& child : children)
        EXPECT_TRUE(child->wait());

    const ItemRecord item = open().read(counter.id).value();
    EXPECT_EQ(item.userProperties.front().value.integer32(), processes * increments);
    EXPECT_EQ(item.revision, processes * increments + 1);
}

} // namespace
} // namespace rf::host::test
