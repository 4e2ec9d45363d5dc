#include "installation_fixture.h"

#include "host/store/store_fixture.h"

#include <algorithm>

namespace rf::test {
namespace {

using namespace std::chrono_literals;
using host::FolderId;
using host::ItemRecord;

/// The selection file is read every two seconds.
constexpr auto pastATick = 2300ms;
constexpr auto answerTime = 15s;

/// The real program at work on two rooms, each with one booking, and this test as one more process on the store.
class Watching : public Installed {
protected:
    static constexpr TextView room1 = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 1";
    static constexpr TextView room2 = u"\\\\Public Folders\\All Public Folders\\Roomfold\\Room 2";

    static Date at(int hour) { return Date::fromFields({2024, 2, 5, hour, 0, 0}); }

    static std::string event(const std::string& room, const std::string& subject)
    {
        return "BEGIN:VEVENT\r\nUID:" + subject + "\r\nDTSTART:20240205T090000\r\nDTEND:20240205T100000\r\nSUMMARY:"
            + subject + "\r\nLOCATION:" + room + "\r\nCATEGORIES:Alpha\r\nEND:VEVENT\r\n";
    }

    void SetUp() override
    {
        Installed::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        serveDemonstration();
        const auto calendar = writeCalendar(event("Room 1", "One") + event("Room 2", "Two"));
        const auto [status, output]
            = outputOf({RF_DEMO_PROGRAM, "--deliver-only", "--pictures", folder.path(), calendar});
        ASSERT_EQ(status, 0) << output;
        ASSERT_EQ(programs().size(), 1U);
    }

    static FolderId idOf(const host::Store& store, TextView path) { return host::folderAt(store, path)->id; }

    static void add(host::Store& store, TextView room, const Text& subject, Date start)
    {
        ItemRecord item = host::test::appointment(idOf(store, room), subject, start, start.plusMinutes(60));
        item.categories = u"Alpha";
        store.save(item);
    }
    static std::optional<ItemRecord> find(const host::Store& store, TextView path, TextView subject)
    {
        const auto items = itemsIn(store, path);
        const auto found = std::ranges::find(items, subject, &ItemRecord::subject);
        return found == items.end() ? std::nullopt : std::optional{*found};
    }
    static bool isBooking(const std::optional<ItemRecord>& item)
    {
        return item
            && std::ranges::find(item->userProperties, Text{u"SafeOrganizer"}, &host::UserPropertyRecord::name)
            != item->userProperties.end();
    }
    /// Whether an item with that start is in a folder before long.
    static bool comesTo(const host::Store& store, TextView path, TextView subject, Date start)
    {
        return within(answerTime, [&] {
            const auto item = find(store, path, subject);
            return item && item->start.seconds() == start.seconds();
        });
    }
    /// Whether the program still does its work in a room.
    static void expectWatched(host::Store& store, TextView room, const Text& subject, int hour)
    {
        add(store, room, subject, at(hour));
        EXPECT_TRUE(within(answerTime, [&] { return isBooking(find(store, room, subject)); })) << toUtf8(subject);
        EXPECT_TRUE(comesTo(store, masterPath, u"FR: " + subject, at(hour)));
        EXPECT_TRUE(comesTo(store, personalPath, subject, at(hour)));
    }
    static void move(host::Store& store, TextView room, TextView subject, Date start)
    {
        auto item = find(store, room, subject);
        ASSERT_TRUE(item);
        item->end = start.plusMinutes((item->end.seconds() - item->start.seconds()) / 60);
        item->start = start;
        store.save(*item);
    }

    [[nodiscard]] std::filesystem::path selection() const { return folder.file("RFSel.txt"); }
};

TEST_F(Watching, MakesBookingsOfWhatOthersAdd)
{
    auto others = store();
    expectWatched(others, room1, u"Added", 11);
    expectWatched(others, room2, u"Added too", 11);
}

TEST_F(Watching, LetsTheCopiesFollowAMove)
{
    auto others = store();
    move(others, room1, u"One", at(13));
    EXPECT_TRUE(comesTo(others, masterPath, u"FR: One", at(13)));
    EXPECT_TRUE(comesTo(others, personalPath, u"One", at(13)));
    EXPECT_TRUE(comesTo(others, room1, u"One", at(13)));
}

TEST_F(Watching, PutsARefusedMoveBack)
{
    auto others = store();
    expectWatched(others, room1, u"Added", 11);
    move(others, room1, u"Added", at(9));
    EXPECT_TRUE(comesTo(others, room1, u"Added", at(11)));
    EXPECT_TRUE(comesTo(others, masterPath, u"FR: Added", at(11)));
}

TEST_F(Watching, TakesWhatCollidesOutOfTheCalendar)
{
    auto others = store();
    add(others, room1, u"Collides", at(9));
    EXPECT_TRUE(within(answerTime, [&] { return !find(others, room1, u"Collides"); }));
    EXPECT_FALSE(find(others, masterPath, u"FR: Collides"));
}

TEST_F(Watching, EndsWithTheHost)
{
    host->terminate();
    EXPECT_TRUE(within(2s, [&] { return programs().empty(); }));
    EXPECT_EQ(host->waitForEnd(2s), 0);
}

TEST_F(Watching, EndsWithAHostThatIsKilled)
{
    host->end();
    EXPECT_TRUE(within(2s, [&] { return programs().empty(); }));
}

TEST_F(Watching, GoesOnWhenASecondInstanceIsStarted)
{
    const auto before = programs();
    EXPECT_EQ(run({RF_PROGRAM}), 0);
    EXPECT_EQ(programs(), before);
    auto others = store();
    expectWatched(others, room1, u"Added", 11);
}

TEST_F(Watching, IsTakenOverByAnInstanceThatReplacesIt)
{
    const auto before = programs();
    // Away from the root folder and back the program would be started again; this one takes its place by itself.
    Child second{{RF_PROGRAM, "1", folder.file("room.html")}};
    EXPECT_TRUE(within(answerTime, [&] { return programs().size() == 1 && programs() != before; }));
    auto others = store();
    std::this_thread::sleep_for(pastATick);
    expectWatched(others, room1, u"Added", 11);
    host->terminate();
    EXPECT_EQ(second.waitForEnd(5s), 0);
}

TEST_F(Watching, GoesOnWhenAWatchedCalendarIsDeleted)
{
    auto others = store();
    others.removeFolder(idOf(others, room1));
    std::this_thread::sleep_for(pastATick);
    EXPECT_EQ(programs().size(), 1U);
    expectWatched(others, room2, u"Added", 11);
}

TEST_F(Watching, TakesUpACalendarThatIsSelectedLater)
{
    // Deselected and selected again: it stays watched, and it is watched once.
    host::test::writeBytes(selection(), "Room 2\r\n");
    std::this_thread::sleep_for(pastATick);
    host::test::writeBytes(selection(), "Room 1\r\nRoom 1\r\nRoom 2\r\n");
    std::this_thread::sleep_for(pastATick);
    auto others = store();
    expectWatched(others, room1, u"Added", 11);
    EXPECT_EQ(itemsIn(others, room1).size(), 2U);
}

struct Selection : Watching {
    void expectHarmless()
    {
        std::this_thread::sleep_for(pastATick);
        EXPECT_EQ(programs().size(), 1U);
        auto others = store();
        expectWatched(others, room1, u"Added", 11);
    }
};

TEST_F(Selection, MayBeHuge)
{
    std::string names;
    // The sanitizers make a program slow; the larger one keeps it busy for much of the time between two readings.
    const std::size_t size = slowTests() ? 5'000'000 : 1'000'000;
    while (names.size() < size)
        names += "No such room " + std::to_string(names.size()) + "\r\n";
    host::test::writeBytes(selection(), names);
    expectHarmless();
}

TEST_F(Selection, MayBeBinary)
{
    std::string bytes;
    constexpr int size = 100'000;
    for (int index = 0; index < size; ++index)
        bytes += static_cast<char>(index * 7919 / 31);
    host::test::writeBytes(selection(), bytes);
    expectHarmless();
}

TEST_F(Selection, MayBeUnreadable)
{
    std::filesystem::permissions(selection(), std::filesystem::perms::none);
    expectHarmless();
}

TEST_F(Selection, MayBeAFolder)
{
    std::filesystem::remove(selection());
    std::filesystem::create_directory(selection());
    expectHarmless();
}

TEST_F(Selection, MayBeMissing)
{
    std::filesystem::remove(selection());
    expectHarmless();
}

/// A bus that finds in a folder of its own how the host is started.
class BusActivation : public Installed {
protected:
    BusActivation() { std::filesystem::create_directories(services()); }
    [[nodiscard]] std::filesystem::path services() const { return folder.path() / "dbus-1" / "services"; }
};

/// The standard folders of a session's services include one in the folder of its temporary files.
TEST_F(BusActivation, StartsTheHostForAProgramThatFindsNone)
{
    {
        auto own = store();
        host::ensureCalendar(own, host::folderAt(own, rootPath)->id, u"Room 1");
    }
    ASSERT_EQ(run({RF_HOST_PROGRAM, "activation", "--user", person, "--into", services()}), 0);
    Child program{{RF_PROGRAM}};
    EXPECT_EQ(program.waitForEnd(3s), std::nullopt) << "it found no host";
    EXPECT_EQ(programs().size(), 1U);
    bus.end();
    EXPECT_EQ(program.waitForEnd(5s), 0);
}

} // namespace
} // namespace rf::test
