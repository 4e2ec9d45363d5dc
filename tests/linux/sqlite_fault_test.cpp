#include "linux/sqlite_fixture.h"

#include <grp.h>
#include <sys/mount.h>
#include <sys/resource.h>

#include <algorithm>
#include <functional>

namespace rf::host::test {
namespace {

namespace fs = std::filesystem;

class SqliteFault : public SqliteStoreTest {
protected:
    /// Expects that the file is refused, by a description that names it, and that nothing in its folder changes.
    void expectRefused(StoreFault fault, Opening opening = Opening::CreateIfMissing) const
    {
        const std::string before = bytesOf(path());
        try {
            const SqliteStore store{path(), opening};
            ADD_FAILURE() << "was opened";
        } catch (const StoreError& error) {
            EXPECT_EQ(error.fault(), fault) << error.what();
            EXPECT_NE(error.description().find(path().u16string()), Text::npos) << error.what();
        }
        EXPECT_EQ(bytesOf(path()), before);
        EXPECT_EQ(std::distance(fs::directory_iterator{folder()}, {}), fs::exists(path()) ? 1 : 0);
    }

    /// A store with so many items, closed again.
    [[nodiscard]] FolderId makeItems(std::size_t count) const
    {
        const FolderId room = makeRoom();
        ItemRecord item = appointment(room, u"Meeting", at(1), at(2));
        item.body = Text(1000, u'x');
        std::vector<ItemRecord> items(count, item);
        open().saveTogether(items);
        return room;
    }

    /// Runs in a process that permissions apply to, even when the tests are run as root.
    static bool succeedsAsSomebody(const std::function<bool()>& work)
    {
        Child child{[&] {
            constexpr uid_t nobody = 65534;
            const bool isPlain
                = geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0);
            return isPlain && work();
        }};
        return child.wait();
    }

    void permit(fs::perms file, fs::perms folderOfIt) const
    {
        fs::permissions(path(), file);
        fs::permissions(folder(), folderOfIt);
    }

    /// Whether all can be read and nothing written.
    [[nodiscard]] bool readsButRefusesToWrite(FolderId room) const
    {
        SqliteStore store{path()};
        ItemRecord item = appointment(room, u"New", at(1), at(1));
        const std::vector<ItemId> found = store.overlapping(room, at(1), at(1));
        return found.size() == 5 && store.read(found.front())->subject == u"Meeting" && store.lastChange() == 5
            && faultOf([&] { store.save(item); }) == StoreFault::ReadOnly
            && faultOf([&] { store.remove(found.front()); }) == StoreFault::ReadOnly
            && faultOf([&] { store.addFolder(calendar(u"New")); }) == StoreFault::ReadOnly
            && faultOf([&] { (void)store.takeLease(room, std::chrono::seconds{1}, std::chrono::seconds{1}); })
            == StoreFault::ReadOnly;
    }
};

constexpr auto mayRead = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
constexpr auto mayWrite = mayRead | fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
constexpr auto maySearch = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;

TEST_F(SqliteFault, RefusesAFolderInPlaceOfTheFile)
{
    fs::create_directory(path());
    expectRefused(StoreFault::Damaged);
}

TEST_F(SqliteFault, RefusesAFileThatIsNotThereUnlessItIsToBeMade)
{
    expectRefused(StoreFault::Failed, Opening::Existing);
}

TEST_F(SqliteFault, RefusesAFileInAFolderThatIsNotThere)
{
    EXPECT_EQ(faultOf([&] { SqliteStore{folder() / "none" / "file"}; }), StoreFault::Failed);
}

TEST_F(SqliteFault, LeavesAnEmptyFileAsItIs)
{
    writeBytes(path(), "");
    expectRefused(StoreFault::Damaged);
}

TEST_F(SqliteFault, LeavesGarbageAsItIs)
{
    writeBytes(path(), "x");
    expectRefused(StoreFault::Damaged);
    writeBytes(path(), std::string(100'000, 'x'));
    expectRefused(StoreFault::Damaged);
    writeBytes(path(), std::string("SQLite format 3\0", 16) + std::string(8176, '\xFF'));
    expectRefused(StoreFault::Damaged);
}

TEST_F(SqliteFault, LeavesAnotherProgramsDatabaseAsItIs)
{
    Database{path(), Database::Access::Create, std::chrono::seconds{1}}.execute("CREATE TABLE other(id)");
    expectRefused(StoreFault::Damaged);
}

TEST_F(SqliteFault, LeavesATruncatedFileAsItIs)
{
    (void)makeItems(200);
    const auto size = fs::file_size(path());
    for (const auto left : {size - 1, size / 2, std::uintmax_t{4096}, std::uintmax_t{99}}) {
        fs::resize_file(path(), left);
        expectRefused(StoreFault::Damaged);
    }
}

TEST_F(SqliteFault, ReportsDamageInsideTheFileWhereItIsMet)
{
    const FolderId room = makeItems(200);
    std::string bytes = bytesOf(path());
    std::fill(bytes.begin() + 4096, bytes.end(), '\x5A');
    writeBytes(path(), bytes);

    EXPECT_EQ(faultOf([&] {
        const SqliteStore store{path()};
        (void)store.folders();
        (void)store.items(room);
    }),
        StoreFault::Damaged);
    EXPECT_EQ(bytesOf(path()), bytes);
}

TEST_F(SqliteFault, LeavesTheStoreOfANewerVersionAsItIs)
{
    (void)makeItems(5);
    Database{path(), Database::Access::Write, std::chrono::seconds{1}}.execute("PRAGMA user_version = 2");
    expectRefused(StoreFault::NewerVersion);
}

TEST_F(SqliteFault, SeesANewerVersionThatOnlyTheJournalKnows)
{
    (void)makeItems(5);
    Database newer{path(), Database::Access::Write, std::chrono::seconds{1}};
    newer.execute("PRAGMA user_version = 2");

    EXPECT_EQ(faultOf([&] { SqliteStore{path()}; }), StoreFault::NewerVersion);
}

TEST_F(SqliteFault, ReadsAFileThatCannotBeWritten)
{
    const FolderId room = makeItems(5);
    permit(mayRead, mayWrite | maySearch);
    const std::string before = bytesOf(path());

    EXPECT_TRUE(succeedsAsSomebody([&] { return readsButRefusesToWrite(room); }));
    EXPECT_EQ(bytesOf(path()), before);
    EXPECT_EQ(std::distance(fs::directory_iterator{folder()}, {}), 1);
}

TEST_F(SqliteFault, ReadsAFileInAFolderThatCannotBeWritten)
{
    const FolderId room = makeItems(5);
    permit(mayWrite, mayRead | maySearch);

    EXPECT_TRUE(succeedsAsSomebody([&] { return readsButRefusesToWrite(room); }));
    permit(mayWrite, mayWrite | maySearch);
}

TEST_F(SqliteFault, ReadsWhatAWriterIsStillWritingThoughItCannotWriteItself)
{
    const FolderId room = makeItems(4);
    SqliteStore writer = open();
    ItemRecord item = appointment(room, u"Meeting", at(1), at(2));
    writer.save(item);
    for (const char* tail : {"", "-wal", "-shm"})
        fs::permissions(path().string() + tail, mayRead);
    fs::permissions(folder(), mayRead | maySearch);

    EXPECT_TRUE(succeedsAsSomebody([&] { return readsButRefusesToWrite(room); }));
    fs::permissions(folder(), mayWrite | maySearch);
}

TEST_F(SqliteFault, CannotMakeAFileInAFolderThatCannotBeWritten)
{
    fs::permissions(folder(), mayRead | maySearch);

    EXPECT_TRUE(succeedsAsSomebody([&] { return faultOf([&] { SqliteStore{path()}; }) == StoreFault::ReadOnly; }));
    fs::permissions(folder(), mayWrite | maySearch);
}

/// Saves until the medium is full. What was saved is there, the rest is not, and smaller things go on.
bool standsAFullMedium(SqliteStore& store, FolderId room, const std::function<void()>& makeRoomOnMedium)
{
    std::vector<ItemRecord> saved;
    std::optional<StoreFault> fault;
    while (!fault && saved.size() < 1000) {
        ItemRecord item = appointment(room, u"Large", at(1), at(2));
        item.body = Text(10'000, u'x');
        item.userProperties = {{u"Link", 1, Text{u"A"}}};
        fault = faultOf([&] { store.save(item); });
        if (!fault)
            saved.push_back(item);
    }
    const auto isComplete = [&] {
        return store.count(room) == saved.size() && store.withProperty(room, u"Link", u"A").size() == saved.size()
            && store.lastChange() == static_cast<std::int64_t>(saved.size())
            && std::ranges::all_of(saved, [&](const ItemRecord& item) { return store.read(item.id) == item; });
    };
    if (fault != StoreFault::Full || saved.empty() || !isComplete())
        return false;
    makeRoomOnMedium();
    ItemRecord next = appointment(room, u"Next", at(1), at(2));
    next.userProperties = {{u"Link", 1, Text{u"A"}}};
    store.save(next);
    saved.push_back(next);
    return isComplete();
}

TEST_F(SqliteFault, WritesNothingWhenFilesMayGrowNoFurther)
{
    const FolderId room = makeRoom();
    Child child{[&] {
        SqliteStore store = open();
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        limit.rlim_cur = 300'000;
        setrlimit(RLIMIT_FSIZE, &limit);
        return standsAFullMedium(store, room, [&] {
            limit.rlim_cur = limit.rlim_max;
            setrlimit(RLIMIT_FSIZE, &limit);
        });
    }};
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(integrityOf(path()), "ok");
}

TEST_F(SqliteFault, WritesNothingOnAFullMedium)
{
    const fs::path medium = folder() / "medium";
    fs::create_directory(medium);
    if (mount("tmpfs", medium.c_str(), "tmpfs", 0, "size=400k") != 0)
        GTEST_SKIP() << "a small file system can be mounted by root only: sudo ./test.sh";
    {
        SqliteStore store{medium / "calendar.rfstore"};
        const FolderId room = store.addFolder(calendar(u"Room"));
        EXPECT_TRUE(standsAFullMedium(
            store, room, [&] { EXPECT_EQ(mount("tmpfs", medium.c_str(), "tmpfs", MS_REMOUNT, "size=4m"), 0); }));
    }
    EXPECT_EQ(integrityOf(medium / "calendar.rfstore"), "ok");
    EXPECT_EQ(umount(medium.c_str()), 0);
}

TEST_F(SqliteFault, CannotBeMadeOnAFullMedium)
{
    Child child{[&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{8000, 8000};
        setrlimit(RLIMIT_FSIZE, &limit);
        return faultOf([&] { SqliteStore{path()}; }) == StoreFault::Full;
    }};
    EXPECT_TRUE(child.wait());
    EXPECT_EQ(faultOf([&] { SqliteStore{path()}; }), std::nullopt);
}

} // namespace
} // namespace rf::host::test
