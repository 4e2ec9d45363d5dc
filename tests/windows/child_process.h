#pragma once

#include "windows/win32.h"

#include <gtest/gtest.h>

namespace rf::native {

[[nodiscard]] inline Text ownPath()
{
    wchar_t path[MAX_PATH];
    return textOf(path, GetModuleFileNameW(nullptr, path, MAX_PATH));
}

/// The arguments with which this program runs one of its disabled tests, which play the other process.
[[nodiscard]] inline Text argumentsFor(TextView test)
{
    return u"--gtest_also_run_disabled_tests --gtest_brief=1 --gtest_filter=" + Text{test};
}

/// Another process, which ends at the latest with this object.
class Child {
public:
    Child(const Text& program, const Text& arguments)
    {
        Text line = u"\"" + program + u"\" " + arguments;
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        EXPECT_TRUE(CreateProcessW(wide(program), reinterpret_cast<wchar_t*>(line.data()), nullptr, nullptr, FALSE, 0,
            nullptr, nullptr, &startup, &process_));
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child()
    {
        end();
        CloseHandle(process_.hThread);
        CloseHandle(process_.hProcess);
    }

    void end() const
    {
        TerminateProcess(process_.hProcess, 99);
        WaitForSingleObject(process_.hProcess, 10'000);
    }

    [[nodiscard]] std::uint32_t id() const { return process_.dwProcessId; }
    [[nodiscard]] DWORD exitCode() const
    {
        DWORD code = 0;
        WaitForSingleObject(process_.hProcess, 30'000);
        GetExitCodeProcess(process_.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION process_{};
};

} // namespace rf::native
