#include "linux/process_table.h"

#include <algorithm>
#include <charconv>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace rf::native {

namespace {

namespace fs = std::filesystem;

std::optional<pid_t> processId(const std::string& name)
{
    pid_t id = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), id);
    const bool number = error == std::errc{} && end == name.data() + name.size();
    return number ? std::optional{id} : std::nullopt;
}

fs::path folderOf(pid_t id) { return fs::path{"/proc"} / std::to_string(id); }

bool isOfThisUser(const fs::path& folder)
{
    struct stat status { };
    return stat(folder.c_str(), &status) == 0 && status.st_uid == geteuid();
}

/// Empty for a process whose program cannot be read: it has ended, or it belongs to the kernel.
std::string executableOf(const fs::path& folder)
{
    std::error_code error;
    std::string name = fs::read_symlink(folder / "exe", error).filename();
    // An update puts a new file in the place of the one that is still running.
    constexpr std::string_view replaced = " (deleted)";
    if (name.ends_with(replaced))
        name.resize(name.size() - replaced.size());
    return name;
}

/// Clock ticks from the start of the system to that of the process.
std::optional<unsigned long long> startOf(pid_t id)
{
    std::ifstream file{folderOf(id) / "stat"};
    const std::string line{std::istreambuf_iterator<char>{file}, {}};
    // The program's name stands in parentheses and may hold blanks and parentheses of its own.
    const auto name = line.rfind(')');
    if (name == std::string::npos)
        return std::nullopt;
    std::istringstream fields{line.substr(name + 1)};
    constexpr int fieldsBeforeStart = 19;
    std::string skipped;
    for (int i = 0; i < fieldsBeforeStart; ++i)
        fields >> skipped;
    unsigned long long start = 0;
    return fields >> start ? std::optional{start} : std::nullopt;
}

/// Whether a process was started to replace another one, by the same rule as `fncHasArguments`.
bool hasArguments(pid_t id)
{
    std::ifstream file{folderOf(id) / "cmdline", std::ios::binary};
    // The system ends each word with a zero; the first one is the program.
    std::string line;
    std::getline(file, line, '\0');
    line.assign(std::istreambuf_iterator<char>{file}, {});
    std::ranges::replace(line, '\0', ' ');
    return trim(fromUtf8(line)).find(u' ') != Text::npos;
}

} // namespace

void LinuxProcessTable::walk(const std::function<bool(const ProcessEntry&)>& visit) const
{
    std::vector<pid_t> ids;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator{"/proc", error})
        if (const auto id = processId(entry.path().filename()); id && *id != getpid())
            ids.push_back(*id);
    for (const pid_t id : ids) {
        const fs::path folder = folderOf(id);
        const std::string name = isOfThisUser(folder) ? executableOf(folder) : std::string{};
        if (!name.empty() && visit({static_cast<std::uint32_t>(id), fromUtf8(name)}))
            return;
    }
}

bool LinuxProcessTable::previousInstanceRuns() const
{
    const auto ownStart = std::pair{startOf(getpid()), getpid()};
    const bool replaces = hasArguments(getpid());
    bool found = false;
    walk([&](const ProcessEntry& process) {
        const auto id = static_cast<pid_t>(process.id);
        // A later one that replaces may have overtaken this one, and does not look again for who comes behind it.
        found = upper(process.executable) == programFile()
            && (std::pair{startOf(id), id} < ownStart || (!replaces && hasArguments(id)));
        return found;
    });
    return found;
}

std::uint32_t LinuxProcessTable::ownId() const { return static_cast<std::uint32_t>(getpid()); }

void LinuxProcessTable::terminate(std::uint32_t id) { kill(static_cast<pid_t>(id), SIGKILL); }

} // namespace rf::native
