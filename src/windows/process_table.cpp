#include "windows/process_table.h"

#include "windows/win32.h"

#include <array>
#include <memory>
#include <optional>

#include <tlhelp32.h>

namespace rf::native {

namespace {

struct CloseObject {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using ObjectHandle = std::unique_ptr<void, CloseObject>;

/// Processes with their heaps, threads and modules.
constexpr DWORD wholeSnapshot = 15;
constexpr DWORD everyProcessRight = 0x1F0FFF;

ObjectHandle takeSnapshot()
{
    HANDLE snapshot = CreateToolhelp32Snapshot(wholeSnapshot, 0);
    return ObjectHandle{snapshot == INVALID_HANDLE_VALUE ? nullptr : snapshot};
}

/// The file name of this program, as `walk` shows it.
Text ownExecutable()
{
    std::array<wchar_t, 32768> path;
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const Text file = textOf(path.data(), length);
    return file.substr(file.find_last_of(u"\\/") + 1);
}

std::optional<DWORD> sessionOf(std::uint32_t id)
{
    DWORD session = 0;
    if (!ProcessIdToSessionId(id, &session))
        return std::nullopt;
    return session;
}

std::optional<ProcessStart> startOf(HANDLE process, std::uint32_t id)
{
    FILETIME created;
    FILETIME exited;
    FILETIME kernel;
    FILETIME user;
    if (!GetProcessTimes(process, &created, &exited, &kernel, &user))
        return std::nullopt;
    return ProcessStart{std::uint64_t{created.dwHighDateTime} << 32 | created.dwLowDateTime, id};
}

ObjectHandle openForQuery(std::uint32_t id)
{
    // Systems before Vista know only the stronger right.
    for (const DWORD right : {DWORD{PROCESS_QUERY_LIMITED_INFORMATION}, DWORD{PROCESS_QUERY_INFORMATION}})
        if (HANDLE process = OpenProcess(right, FALSE, id))
            return ObjectHandle{process};
    return nullptr;
}

bool startedBefore(std::uint32_t id, const ProcessStart& own)
{
    const ObjectHandle process = openForQuery(id);
    const auto start = process ? startOf(process.get(), id) : std::nullopt;
    return start && *start < own;
}

} // namespace

void ToolhelpProcessTable::walk(const std::function<bool(const ProcessEntry&)>& visit) const
{
    const ObjectHandle snapshot = takeSnapshot();
    PROCESSENTRY32W entry{};
    entry.dwSize = sizeof entry;
    bool more = snapshot && Process32FirstW(snapshot.get(), &entry);
    while (more && !visit({entry.th32ProcessID, textOf(entry.szExeFile)}))
        more = Process32NextW(snapshot.get(), &entry);
}

bool ToolhelpProcessTable::previousInstanceRuns() const
{
    const DWORD ownId = GetCurrentProcessId();
    const auto own = startOf(GetCurrentProcess(), ownId);
    if (!own)
        return false;
    const auto session = sessionOf(ownId);
    const Text executable = ownExecutable();
    bool found = false;
    walk([&](const ProcessEntry& entry) {
        found = entry.id != ownId && equalIgnoringCase(entry.executable, executable) && sessionOf(entry.id) == session
            && startedBefore(entry.id, *own);
        return found;
    });
    return found;
}

std::uint32_t ToolhelpProcessTable::ownId() const { return GetCurrentProcessId(); }

void ToolhelpProcessTable::terminate(std::uint32_t id)
{
    if (const ObjectHandle process{OpenProcess(everyProcessRight, TRUE, id)})
        TerminateProcess(process.get(), 0);
}

} // namespace rf::native
