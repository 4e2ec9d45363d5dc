#include "support/process.h"

#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace rf::test {

struct Process::State {
    pid_t id = 0;
    std::optional<int> status;
};

Process::Process(const std::vector<std::string>& arguments)
    : state_(std::make_unique<State>())
{
    std::string program = RF_PROGRAM;
    std::vector<std::string> owned{arguments};
    std::vector<char*> list{program.data()};
    for (auto& argument : owned)
        list.push_back(argument.data());
    list.push_back(nullptr);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    if (posix_spawn(&state_->id, program.c_str(), nullptr, nullptr, list.data(), environ) != 0)
        throw std::runtime_error{"cannot start " + program};
}

Process::~Process()
{
    if (!running())
        return;
    kill(state_->id, SIGKILL);
    waitpid(state_->id, nullptr, 0);
}

bool Process::running() const
{
    int status = 0;
    if (!state_->status && waitpid(state_->id, &status, WNOHANG) == state_->id)
        state_->status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return !state_->status;
}

std::optional<int> Process::waitForEnd(std::chrono::milliseconds limit) const
{
    constexpr std::chrono::milliseconds step{5};
    for (auto waited = std::chrono::milliseconds::zero(); running() && waited < limit; waited += step)
        std::this_thread::sleep_for(step);
    return state_->status;
}

} // namespace rf::test
