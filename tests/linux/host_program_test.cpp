#include "host/entry_id.h"
#include "host/installation.h"
#include "outlook/application.h"
#include "outlook/events.h"

#include "dbus_fixture.h"
#include "sqlite_fixture.h"

#include <charconv>
#include <gtest/gtest.h>

namespace rf::native {
namespace {

using dbus::Child;
using dbus::PrivateBus;
using namespace std::chrono_literals;

/// A variable of the environment that is as it was when this object goes.
class Variable {
public:
    Variable(const char* name, const std::string& value)
        : name_(name)
    {
        if (const char* before = std::getenv(name))
            before_ = before;
        setenv(name, value.c_str(), 1);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { before_ ? setenv(name_, before_->c_str(), 1) : unsetenv(name_); }

private:
    const char* name_;
    std::optional<std::string> before_;
};

/// The real host with a store of its own on a bus of its own; its temporary files lie beside the store. A script stands
/// between the host and the program that it starts, and notes how that ends.
struct HostProgram : testing::Test {
    host::test::TemporaryFolder folder;
    const Variable temporary{"TMPDIR", folder.path()};
    const Variable session{"XDG_RUNTIME_DIR", folder.path()};
    const Variable store{"RFHOST_STORE", folder.file("store.db")};
    const Variable screen{"QT_QPA_PLATFORM", "offscreen"};
    PrivateBus bus;
    std::unique_ptr<Child> host;

    void SetUp() override
    {
        if (!bus.isThere())
            GTEST_SKIP() << "no dbus-daemon; install it with: apt-get install dbus-daemon";
        ASSERT_EQ(run({"init", "Jane Doe"}), 0);
        const std::string calendar = RF_TEST_DATA "/fuzz/calendar_file/single.ics";
        ASSERT_EQ(
            run({"import", calendar, "--by-location", "--into", "Public Folders/All Public Folders/Roomfold"}), 0);
    }
    void TearDown() override
    {
        // The program goes with the host; without it nobody would end it.
        host.reset();
        const auto id = program();
        if (id && !within(3s, [&] { return statusOfProgram().has_value(); }))
            kill(*id, SIGKILL);
    }

    [[nodiscard]] static std::optional<int> run(std::vector<std::string> words)
    {
        words.insert(words.begin(), RF_HOST_PROGRAM);
        return Child{words}.waitForEnd(30s);
    }

    void serve(const std::string& shown = {})
    {
        const auto script = folder.file("start");
        host::test::writeBytes(script,
            "#!/bin/sh\ncd " + folder.path().string()
                + "\n" RF_PROGRAM " &\necho $! > starting\nmv starting id\nwait $!\n"
                  "echo $? > ending\nmv ending status\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        std::vector<std::string> words{RF_HOST_PROGRAM, "serve", "--user", "Jane Doe", "--program", script};
        if (!shown.empty())
            words.insert(words.end(), {"--show", shown});
        host = std::make_unique<Child>(words);
    }

    [[nodiscard]] std::optional<int> numberIn(const char* name) const
    {
        const std::string text = host::test::bytesOf(folder.file(name));
        int number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        return error == std::errc{} ? std::optional{number} : std::nullopt;
    }
    [[nodiscard]] std::optional<int> program() const { return numberIn("id"); }
    [[nodiscard]] std::optional<int> statusOfProgram() const { return numberIn("status"); }

    template <class Condition>
    [[nodiscard]] static bool within(std::chrono::milliseconds limit, Condition&& condition)
    {
        const auto end = std::chrono::steady_clock::now() + limit;
        while (!condition() && std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(10ms);
        return condition();
    }

    /// Waits until the program has had the time to attach itself and to listen.
    void waitForProgram() const
    {
        ASSERT_TRUE(within(30s, [&] { return program().has_value(); }));
        ASSERT_FALSE(within(3s, [&] { return statusOfProgram().has_value(); })) << "the program did not stay";
    }
};

TEST_F(HostProgram, WritesTheSelectionAndStartsTheProgramWhenTheRootFolderIsShown)
{
    serve();
    waitForProgram();
    EXPECT_EQ(host::test::bytesOf(folder.file("RFSel.txt")), "Room 1\r\n");
}

TEST_F(HostProgram, StartsNothingWhenAnotherFolderIsShown)
{
    serve("Mailbox - Jane Doe/Calendar");
    EXPECT_FALSE(within(2s, [&] { return program().has_value(); }));
    EXPECT_TRUE(host::test::bytesOf(folder.file("RFSel.txt")).empty());
}

TEST_F(HostProgram, EndsAndItsProgramWithIt)
{
    serve();
    waitForProgram();
    host->terminate();
    EXPECT_TRUE(within(2s, [&] { return statusOfProgram().has_value(); }));
    EXPECT_EQ(statusOfProgram(), 0);
    EXPECT_EQ(host->waitForEnd(2s), 0);
}

TEST_F(HostProgram, TakesItsProgramAlongWhenItIsKilled)
{
    serve();
    waitForProgram();
    host->end();
    EXPECT_TRUE(within(2s, [&] { return statusOfProgram().has_value(); }));
    EXPECT_EQ(statusOfProgram(), 0);
}

TEST_F(HostProgram, LosesItsProgramWithTheBus)
{
    serve();
    waitForProgram();
    bus.end();
    EXPECT_TRUE(within(4s, [&] { return statusOfProgram().has_value(); }));
    EXPECT_EQ(statusOfProgram(), 0);
    EXPECT_EQ(host->waitForEnd(4s), 1);
}

TEST_F(HostProgram, TellsWithinASecondOfWhatAnotherProcessSaves)
{
    const dbus::QtProcess process;
    host = std::make_unique<Child>(std::vector<std::string>{RF_HOST_PROGRAM, "serve", "--user", "Jane Doe"});
    LinuxClassRegistry classes;
    outlook::Application application;
    ASSERT_TRUE(dbus::runUntil([&] {
        return dbus::errorNumberOf([&] {
            return application = outlook::Application{classes.running(outlook::applicationClass)};
        }) == 0;
    }));
    rf::host::SqliteStore elsewhere{folder.file("store.db")};
    const auto room = rf::host::folderAt(elsewhere, u"Public Folders\\All Public Folders\\Roomfold\\Room 1");
    ASSERT_TRUE(room);
    const auto items = application.getNamespace().getFolderFromId(rf::host::entryIdOf(room->id), {}).items();
    std::vector<Text> added;
    outlook::ItemsEvents handlers;
    handlers.itemAdd = [&](const outlook::Item& item) { added.push_back(item.subject()); };
    const auto connection = outlook::connect(items, handlers);
    rf::host::ItemRecord item = rf::host::test::appointment(room->id, u"dropped", Date{45000}, Date{45001});
    elsewhere.save(item);
    EXPECT_TRUE(dbus::runUntil([&] { return !added.empty(); }, std::chrono::seconds{1}));
    EXPECT_EQ(added, std::vector<Text>{u"dropped"});
}

TEST_F(HostProgram, RefusesToServeABusThatIsServed)
{
    serve();
    ASSERT_TRUE(within(30s, [&] { return program().has_value(); }));
    EXPECT_EQ(run({"serve", "--user", "Jane Doe"}), 1);
}

} // namespace
} // namespace rf::native
