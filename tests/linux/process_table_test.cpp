#include "linux/process_table.h"

#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace rf::native {
namespace {

std::vector<ProcessEntry> all(const LinuxProcessTable& table)
{
    std::vector<ProcessEntry> entries;
    table.walk([&](const ProcessEntry& entry) {
        entries.push_back(entry);
        return false;
    });
    return entries;
}

/// A process of another program, as long as this object lives.
class Sleeper {
public:
    Sleeper()
    {
        char program[] = "sleep";
        char duration[] = "60";
        char* const arguments[] = {program, duration, nullptr};
        posix_spawnp(&id_, program, nullptr, nullptr, arguments, environ);
    }
    ~Sleeper() { kill(id_, SIGKILL), waitpid(id_, nullptr, 0); }
    Sleeper(const Sleeper&) = delete;
    Sleeper& operator=(const Sleeper&) = delete;
    [[nodiscard]] std::uint32_t id() const { return static_cast<std::uint32_t>(id_); }

private:
    pid_t id_ = 0;
};

TEST(LinuxProcesses, LeaveOutTheOwnOne)
{
    const auto entries = all(LinuxProcessTable{});
    EXPECT_EQ(std::ranges::find(entries, static_cast<std::uint32_t>(getpid()), &ProcessEntry::id), entries.end());
}

TEST(LinuxProcesses, ShowThoseOfThisUserByTheFileNameOfTheirProgram)
{
    const Sleeper sleeper;
    const auto entries = all(LinuxProcessTable{});
    const auto found = std::ranges::find(entries, sleeper.id(), &ProcessEntry::id);
    ASSERT_NE(found, entries.end());
    EXPECT_EQ(found->executable, u"sleep");
}

TEST(LinuxProcesses, AreWalkedUntilTheVisitorHasEnough)
{
    const Sleeper one;
    const Sleeper two;
    int visits = 0;
    LinuxProcessTable{}.walk([&](const ProcessEntry&) { return ++visits == 1; });
    EXPECT_EQ(visits, 1);
}

TEST(LinuxProcesses, LeaveOtherUsersAlone)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can start a process of another user";
    const pid_t child = fork();
    if (child == 0) {
        constexpr uid_t nobody = 65534;
        if (setuid(nobody) == 0)
            execlp("sleep", "sleep", "60", nullptr);
        _exit(1);
    }
    // The child is still this user's until it has changed over.
    constexpr useconds_t changeOver = 200000;
    usleep(changeOver);
    const auto entries = all(LinuxProcessTable{});
    EXPECT_EQ(std::ranges::find(entries, static_cast<std::uint32_t>(child), &ProcessEntry::id), entries.end());
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
}

TEST(LinuxProcesses, AreTerminatedAtOnce)
{
    const Sleeper sleeper;
    LinuxProcessTable table;
    table.terminate(sleeper.id());
    int status = 0;
    waitpid(static_cast<pid_t>(sleeper.id()), &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
}

TEST(LinuxProcesses, HoldNoPreviousInstanceOfAProgramThatRunsAlone)
{
    EXPECT_FALSE(LinuxProcessTable{}.previousInstanceRuns());
}

} // namespace
} // namespace rf::native
