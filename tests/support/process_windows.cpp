#include "support/process.h"

#include <stdexcept>
#include <windows.h>

namespace rf::test {

struct Process::State {
    PROCESS_INFORMATION information{};
};

Process::Process(const std::vector<std::string>& arguments)
    : state_(std::make_unique<State>())
{
    std::string line = "\"" RF_PROGRAM "\"";
    for (const auto& argument : arguments)
        line += " " + argument;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    if (CreateProcessA(
            nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &state_->information)
        == FALSE)
        throw std::runtime_error{"cannot start " + line};
}

Process::~Process()
{
    TerminateProcess(state_->information.hProcess, 1);
    CloseHandle(state_->information.hProcess);
    CloseHandle(state_->information.hThread);
}

bool Process::running() const { return WaitForSingleObject(state_->information.hProcess, 0) == WAIT_TIMEOUT; }

std::optional<int> Process::waitForEnd(std::chrono::milliseconds limit) const
{
    if (WaitForSingleObject(state_->information.hProcess, static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0)
        return std::nullopt;
    DWORD status = 0;
    GetExitCodeProcess(state_->information.hProcess, &status);
    return static_cast<int>(status);
}

} // namespace rf::test
