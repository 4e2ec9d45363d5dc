#pragma once

#include "given_settings.h"
#include "host/installation.h"
#include "host/sqlite_store.h"
#include "support/environment_variable.h"
#include "support/within.h"

#include "linux/dbus_processes.h"
#include "linux/sqlite_fixture.h"

#include <charconv>
#include <fcntl.h>
#include <gtest/gtest.h>

namespace rf::test {

using native::dbus::Child;
using native::dbus::PrivateBus;

/// More and longer rounds of what happens at random.
[[nodiscard]] inline bool slowTests() { return std::getenv("RF_SLOW_TESTS") != nullptr; }

/// The processes of an executable that this process has started, by their ids: those of other test runs do not count.
[[nodiscard]] inline std::vector<pid_t> processesWith(const std::string& variable)
{
    std::vector<pid_t> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator{"/proc", error}) {
        const std::string name = entry.path().filename();
        pid_t id = 0;
        const auto [end, failure] = std::from_chars(name.data(), name.data() + name.size(), id);
        if (failure != std::errc{} || end != name.data() + name.size())
            continue;
        const auto program = std::filesystem::read_symlink(entry.path() / "exe", error);
        std::ifstream file{entry.path() / "environ", std::ios::binary};
        const std::string environment{std::istreambuf_iterator<char>{file}, {}};
        if (program.filename() == "RFBookingInfo" && environment.find(variable) != std::string::npos)
            found.push_back(id);
    }
    return found;
}

/// An installation with a store, a bus and temporary files of its own, and the real host on it, which starts the real
/// program when the root folder is shown.
class Installed : public testing::Test {
protected:
    host::test::TemporaryFolder folder;
    const EnvironmentVariable temporary{"TMPDIR", folder.path()};
    const EnvironmentVariable runtime{"XDG_RUNTIME_DIR", folder.path()};
    const EnvironmentVariable storeVariable{"RFHOST_STORE", folder.file("store.db")};
    // Nobody is there to dismiss a message in a window.
    const EnvironmentVariable noPlatform{"QT_QPA_PLATFORM", ""};
    const EnvironmentVariable noDisplay{"DISPLAY", ""};
    const EnvironmentVariable noWayland{"WAYLAND_DISPLAY", ""};
    PrivateBus bus;
    std::unique_ptr<Child> host;

    void SetUp() override
    {
        if (!bus.isThere())
            GTEST_SKIP() << "no dbus-daemon; install it with: apt-get install dbus-daemon";
        ASSERT_EQ(run({RF_HOST_PROGRAM, "init", person}), 0);
    }
    void TearDown() override
    {
        host.reset();
        // They end with the host; those that do not are what a test has found.
        EXPECT_TRUE(within(std::chrono::seconds{5}, [&] { return programs().empty(); }))
            << "a program has outlived its host";
        for (const pid_t id : programs())
            kill(id, SIGKILL);
    }

    [[nodiscard]] static std::optional<int> run(
        const std::vector<std::string>& words, int output = -1, std::chrono::seconds limit = std::chrono::seconds{120})
    {
        return Child{words, output}.waitForEnd(limit);
    }
    /// The exit status of a command, and what it writes.
    [[nodiscard]] std::pair<std::optional<int>, std::string> outputOf(
        const std::vector<std::string>& words, std::chrono::seconds limit = std::chrono::seconds{120}) const
    {
        const auto file = folder.file("output");
        const int output = open(file.c_str(), O_CREAT | O_TRUNC | O_WRONLY | O_CLOEXEC, 0600);
        const auto status = run(words, output, limit);
        close(output);
        return {status, host::test::bytesOf(file)};
    }

    void serve(std::vector<std::string> more = {})
    {
        std::vector<std::string> words{RF_HOST_PROGRAM, "serve", "--user", person, "--accept-alerts"};
        words.insert(words.end(), more.begin(), more.end());
        host = std::make_unique<Child>(words);
    }
    /// The host shows the mailbox first, so that the demonstration decides when the program starts.
    void serveDemonstration() { serve({"--show", "Mailbox - Jane Doe/Calendar", "--program", RF_PROGRAM}); }

    /// The programs of this installation that run.
    [[nodiscard]] std::vector<pid_t> programs() const
    {
        return processesWith("RFHOST_STORE=" + folder.file("store.db").string());
    }

    [[nodiscard]] std::filesystem::path writeCalendar(const std::string& events) const
    {
        auto file = folder.file("calendar.ics");
        host::test::writeBytes(
            file, "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//test//EN\r\n" + events + "END:VCALENDAR\r\n");
        return file;
    }

    [[nodiscard]] host::SqliteStore store() const
    {
        return host::SqliteStore{folder.file("store.db"), host::Opening::Existing};
    }
    [[nodiscard]] static std::vector<host::ItemRecord> itemsIn(const host::Store& store, TextView path)
    {
        std::vector<host::ItemRecord> items;
        if (const auto place = host::folderAt(store, path))
            for (const host::ItemId id : store.items(place->id))
                if (auto item = store.read(id))
                    items.push_back(*std::move(item));
        return items;
    }
    /// The appointments of all rooms.
    [[nodiscard]] static std::vector<host::ItemRecord> itemsOfRooms(const host::Store& store)
    {
        std::vector<host::ItemRecord> items;
        const auto root = host::folderAt(store, rootPath);
        for (const host::FolderRecord& room : store.folders())
            if (root && room.parent == root->id)
                for (auto& item : itemsIn(store, host::pathOf(store, room.id)))
                    items.push_back(std::move(item));
        return items;
    }
};

} // namespace rf::test
