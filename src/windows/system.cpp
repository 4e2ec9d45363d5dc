#include "windows/system.h"

#include "windows/win32.h"

#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace rf::native {

namespace {

constexpr TextView blanks = u" \t";

class RegistryKey {
public:
    RegistryKey(HKEY root, const wchar_t* path)
    {
        if (RegOpenKeyExW(root, path, 0, KEY_QUERY_VALUE, &key_) != ERROR_SUCCESS)
            key_ = nullptr;
    }
    RegistryKey(const RegistryKey&) = delete;
    RegistryKey& operator=(const RegistryKey&) = delete;
    ~RegistryKey()
    {
        if (key_ != nullptr)
            RegCloseKey(key_);
    }

    /// The key's unnamed text; empty when there is none.
    [[nodiscard]] Text defaultText() const
    {
        DWORD type = 0;
        DWORD bytes = 0;
        if (key_ == nullptr || RegQueryValueExW(key_, nullptr, nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS
            || (type != REG_SZ && type != REG_EXPAND_SZ))
            return {};
        Text text(bytes / sizeof(char16_t), u'\0');
        if (RegQueryValueExW(key_, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &bytes)
            != ERROR_SUCCESS)
            return {};
        // The stored text may have its NUL or lack it.
        text.resize(std::min(text.find(u'\0'), text.size()));
        return text;
    }

private:
    HKEY key_ = nullptr;
};

} // namespace

Text argumentsOf(TextView commandLine)
{
    bool quoted = false;
    std::size_t end = 0;
    while (end < commandLine.size() && (quoted || blanks.find(commandLine[end]) == TextView::npos)) {
        if (commandLine[end] == u'"')
            quoted = !quoted;
        ++end;
    }
    const TextView rest = commandLine.substr(end);
    const std::size_t first = rest.find_first_not_of(blanks);
    return first == TextView::npos ? Text{} : Text{rest.substr(first, rest.find_last_not_of(blanks) - first + 1)};
}

SystemVersion WindowsSystem::version() const
{
    OSVERSIONINFOA information{};
    static_assert(sizeof information == 148);
    information.dwOSVersionInfoSize = sizeof information;
    if (!GetVersionExA(&information))
        return {};
    return {information.dwPlatformId, information.dwMajorVersion, information.dwMinorVersion, {}};
}

Text WindowsSystem::commandLine() const { return argumentsOf(textOf(GetCommandLineW())); }

std::string_view WindowsSystem::resource(TextView type, TextView name) const
{
    HMODULE module = GetModuleHandleW(nullptr);
    HRSRC found = FindResourceW(module, wide(Text{name}), wide(Text{type}));
    if (found == nullptr)
        return {};
    HGLOBAL loaded = LoadResource(module, found);
    const void* bytes = loaded == nullptr ? nullptr : LockResource(loaded);
    if (bytes == nullptr)
        return {};
    return {static_cast<const char*>(bytes), SizeofResource(module, found)};
}

void WindowsSystem::initCommonControls(std::uint32_t classFlags)
{
    const INITCOMMONCONTROLSEX classes{sizeof classes, classFlags};
    static_assert(sizeof classes == 8);
    InitCommonControlsEx(&classes);
}

void WindowsSystem::launch(TextView command, WindowStyle style)
{
    // CreateProcess writes into the command line.
    Text line{command};
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(style);
    PROCESS_INFORMATION process;
    if (!CreateProcessW(nullptr, reinterpret_cast<wchar_t*>(line.data()), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
            &startup, &process))
        return;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
}

void WindowsSystem::invokeVerb(TextView verb, TextView path)
{
    ShellExecuteW(nullptr, wide(Text{verb}), wide(Text{path}), nullptr, nullptr, SW_SHOWNORMAL);
}

Text WindowsSystem::browserCommand() const
{
    return RegistryKey{HKEY_CLASSES_ROOT, L"http\\shell\\open\\command"}.defaultText();
}

void WindowsSystem::endProcess()
{
    TerminateProcess(GetCurrentProcess(), 0);
    // Not reached: the process has ended. It tells the compiler so.
    std::_Exit(0);
}

} // namespace rf::native
