#include "linux/spawn.h"

#include <cerrno>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace rf::native {

namespace {

std::optional<pid_t> start(std::vector<std::string>& words)
{
    std::vector<char*> arguments;
    arguments.reserve(words.size() + 1);
    for (auto& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t process = 0;
    const bool started = posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) == 0;
    return started ? std::optional{process} : std::nullopt;
}

} // namespace

std::vector<std::string> commandWords(TextView command)
{
    std::vector<std::string> words;
    Text word;
    bool quoted = false;
    bool begun = false;
    for (const char16_t unit : command) {
        if (unit == u'"') {
            quoted = !quoted;
            begun = true;
        } else if (unit != u' ' || quoted) {
            word += unit;
            begun = true;
        } else if (begun) {
            words.push_back(toUtf8(std::exchange(word, {})));
            begun = false;
        }
    }
    if (begun)
        words.push_back(toUtf8(word));
    return words;
}

std::optional<pid_t> startProgram(std::vector<std::string> words)
{
    constexpr std::string_view windowsEnding = ".exe";
    if (words.empty())
        return std::nullopt;
    auto process = start(words);
    if (!process && words.front().ends_with(windowsEnding)) {
        words.front().resize(words.front().size() - windowsEnding.size());
        process = start(words);
    }
    return process;
}

std::int32_t waitForProgram(pid_t process)
{
    int status = 0;
    while (waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return 0;
    return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

void leaveProgram(pid_t process)
{
    std::thread{[process] { waitForProgram(process); }}.detach();
}

} // namespace rf::native
