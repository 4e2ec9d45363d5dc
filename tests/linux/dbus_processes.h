#pragma once

#include "support/environment_variable.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace rf::native::dbus {

/// Another process, which ends at the latest with this object, or with this process.
class Child {
public:
    /// `output` becomes its standard output when it is a file.
    explicit Child(std::vector<std::string> words, int output = -1)
        : id_(start(words, output))
    {
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child() { end(); }

    void end()
    {
        if (id_ <= 0)
            return;
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
        id_ = 0;
    }

    /// Asks it to end.
    void terminate() const { signal(SIGTERM); }
    void signal(int number) const
    {
        if (id_ > 0)
            kill(id_, number);
    }

    /// Its exit status when it ends in time; 128 and the signal's number when it was killed.
    [[nodiscard]] std::optional<int> waitForEnd(std::chrono::milliseconds limit)
    {
        constexpr std::chrono::milliseconds step{5};
        for (auto waited = std::chrono::milliseconds::zero(); id_ > 0 && waited < limit; waited += step) {
            int status = 0;
            if (waitpid(id_, &status, WNOHANG) == id_) {
                id_ = 0;
                return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
            }
            std::this_thread::sleep_for(step);
        }
        return std::nullopt;
    }

private:
    static pid_t start(std::vector<std::string>& words, int output)
    {
        std::vector<char*> list;
        list.reserve(words.size() + 1);
        for (auto& word : words)
            list.push_back(word.data());
        list.push_back(nullptr);
        // A copy of this process, whose memory the sanitizers fill, would take longer than most of what is started.
        // NOLINTNEXTLINE(clang-analyzer-security.insecureAPI.vfork): the child calls the system only.
        const pid_t id = vfork();
        if (id != 0)
            return id;
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (output >= 0)
            dup2(output, STDOUT_FILENO);
        execvp(list[0], list.data());
        _exit(127);
    }

    pid_t id_ = 0;
};

/// The command by which this program runs one of its disabled tests, which play the other process: also where it runs
/// a part of its tests itself, which that test need not be one of.
[[nodiscard]] inline std::vector<std::string> commandFor(const std::string& test)
{
    return {"/usr/bin/env", "-u", "GTEST_TOTAL_SHARDS", "-u", "GTEST_SHARD_INDEX",
        std::filesystem::read_symlink("/proc/self/exe"), "--gtest_also_run_disabled_tests", "--gtest_brief=1",
        "--gtest_filter=" + test};
}

/// A session bus for one test, which its processes inherit. It listens under an abstract name: a daemon that is killed
/// cannot remove a socket file, and this one needs none.
class PrivateBus {
public:
    PrivateBus()
    {
        std::array<int, 2> ends{};
        if (pipe(ends.data()) != 0)
            return;
        daemon_ = std::make_unique<Child>(std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--nosyslog",
                                              "--print-address=1", "--address=unix:abstract=" + uniqueName()},
            ends[1]);
        close(ends[1]);
        std::array<char, 512> line{};
        const auto length = read(ends[0], line.data(), line.size());
        close(ends[0]);
        if (length > 1)
            address_.assign(line.data(), static_cast<std::size_t>(length) - 1);
        variable_.emplace("DBUS_SESSION_BUS_ADDRESS", address_);
    }

    [[nodiscard]] bool isThere() const { return !address_.empty(); }
    [[nodiscard]] const std::string& address() const { return address_; }
    /// The bus goes down with all its connections.
    void end() { daemon_->end(); }
    void signal(int number) const { daemon_->signal(number); }

private:
    static std::string uniqueName()
    {
        std::random_device source;
        return "rf-test-bus-" + std::to_string(getpid()) + "-" + std::to_string(source());
    }

    std::unique_ptr<Child> daemon_;
    std::string address_;
    std::optional<rf::test::EnvironmentVariable> variable_;
};

} // namespace rf::native::dbus
