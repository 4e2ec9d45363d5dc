#pragma once

#include "support/environment_variable.h"
#include "support/within.h"

#include "dbus_processes.h"
#include "sqlite_fixture.h"

#include <charconv>
#include <gtest/gtest.h>

namespace rf::native {

/// The real host with a store of its own on a bus of its own; its temporary files lie beside the store. A script stands
/// between the host and the program that it starts, and notes how that ends.
struct HostProgram : testing::Test {
    static constexpr std::chrono::seconds startTime{30};
    /// Long enough for a program that leaves to have left.
    static constexpr std::chrono::seconds settleTime{3};

    host::test::TemporaryFolder folder;
    const rf::test::EnvironmentVariable temporary{"TMPDIR", folder.path()};
    const rf::test::EnvironmentVariable session{"XDG_RUNTIME_DIR", folder.path()};
    const rf::test::EnvironmentVariable store{"RFHOST_STORE", folder.file("store.db")};
    const rf::test::EnvironmentVariable screen{"QT_QPA_PLATFORM", "offscreen"};
    dbus::PrivateBus bus;
    std::unique_ptr<dbus::Child> host;

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
        // The program goes with the host; one that was not attached yet shows a message, and nobody would end it.
        host.reset();
        const auto id = program();
        const auto hasEnded = [&] { return statusOfProgram().has_value(); };
        if (!id || test::within(settleTime, hasEnded))
            return;
        kill(*id, SIGKILL);
        // The script still notes it in the folder, which goes with this object.
        EXPECT_TRUE(test::within(startTime, hasEnded));
    }

    [[nodiscard]] static std::optional<int> run(std::vector<std::string> words)
    {
        words.insert(words.begin(), RF_HOST_PROGRAM);
        return dbus::Child{words}.waitForEnd(startTime);
    }

    /// Starts the host, with these options besides.
    void serve(const std::vector<std::string>& options = {})
    {
        const auto script = folder.file("start");
        host::test::writeBytes(script,
            "#!/bin/sh\ncd " + folder.path().string()
                + "\n" RF_PROGRAM " &\necho $! > starting\nmv starting id\nwait $!\n"
                  "echo $? > ending\nmv ending status\n");
        std::filesystem::permissions(script, std::filesystem::perms::owner_all);
        std::vector<std::string> words{RF_HOST_PROGRAM, "serve", "--user", "Jane Doe", "--program", script};
        words.insert(words.end(), options.begin(), options.end());
        host = std::make_unique<dbus::Child>(words);
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

    /// Waits until the program has had the time to attach itself and to listen.
    void waitForProgram() const
    {
        ASSERT_TRUE(test::within(startTime, [&] { return program().has_value(); }));
        ASSERT_FALSE(test::within(settleTime, [&] { return statusOfProgram().has_value(); }))
            << "the program did not stay";
    }
};

} // namespace rf::native
