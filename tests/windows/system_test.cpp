#include "windows/system.h"

#include "windows/win32.h"

#include <commctrl.h>

#include <gtest/gtest.h>

namespace rf::native {
namespace {

TEST(CommandLine, IsWhatStandsBehindTheProgramName)
{
    EXPECT_EQ(argumentsOf(u"program.exe /Embedding"), u"/Embedding");
    EXPECT_EQ(argumentsOf(u"C:\\Programs\\program.exe\t-a b"), u"-a b");
    EXPECT_EQ(argumentsOf(u"program.exe   \"two words\"  "), u"\"two words\"");
}

TEST(CommandLine, LeavesOutAQuotedProgramName)
{
    EXPECT_EQ(argumentsOf(u"\"C:\\Program Files\\program.exe\" -a \"b c\""), u"-a \"b c\"");
    EXPECT_EQ(argumentsOf(u"C:\\\"Program Files\"\\program.exe -a"), u"-a");
    EXPECT_EQ(argumentsOf(u"\"program.exe\""), u"");
}

TEST(CommandLine, IsEmptyWithoutArguments)
{
    EXPECT_EQ(argumentsOf(u"program.exe"), u"");
    EXPECT_EQ(argumentsOf(u"program.exe  "), u"");
    EXPECT_EQ(argumentsOf(u""), u"");
    EXPECT_EQ(argumentsOf(u"\"unfinished name -a"), u"");
}

TEST(System, NamesTheLineOfWindowsByItsNumbersOnly)
{
    const SystemVersion version = WindowsSystem{{}}.version();
    EXPECT_EQ(version.platformId, 2U);
    EXPECT_GE(version.major, 5U);
    EXPECT_TRUE(version.name.empty());
}

TEST(System, TellsTheVersionThatItWasBuiltWith)
{
    const ProgramVersion version = WindowsSystem{{4, 5, 6}}.programVersion();
    EXPECT_EQ(version.major, 4);
    EXPECT_EQ(version.minor, 5);
    EXPECT_EQ(version.revision, 6);
}

TEST(System, HasNoBytesForAResourceThatIsNotThere)
{
    EXPECT_TRUE(WindowsSystem{{}}.resource(u"CUSTOM", u"NOSUCHRESOURCE").empty());
}

TEST(System, RegistersCommonControls)
{
    WindowsSystem{{}}.initCommonControls(ICC_DATE_CLASSES);
    WNDCLASSW dateClass;
    EXPECT_TRUE(GetClassInfoW(nullptr, DATETIMEPICK_CLASSW, &dateClass));
}

TEST(System, FindsTheBrowserCommandInTheRegistry)
{
    HKEY key = nullptr;
    const auto stored = WindowsSystem{{}}.browserCommand();
    const bool present
        = RegOpenKeyExW(HKEY_CLASSES_ROOT, L"http\\shell\\open\\command", 0, KEY_READ, &key) == ERROR_SUCCESS;
    if (present)
        RegCloseKey(key);
    EXPECT_EQ(stored.empty(), !present);
    EXPECT_EQ(stored.find(u'\0'), Text::npos);
}

TEST(System, LaunchesAProgramWithItsArguments)
{
    const Text marker = u"C:\\rf launch test " + decimal(GetCurrentProcessId());
    WindowsSystem{{}}.launch(u"cmd.exe /c mkdir \"" + marker + u"\"", WindowStyle::Minimized);
    bool made = false;
    for (int waits = 0; !made && waits < 200; ++waits) {
        Sleep(50);
        made = RemoveDirectoryW(wide(marker)) != FALSE;
    }
    EXPECT_TRUE(made);
}

TEST(System, LaunchesNothingWhereThereIsNoSuchProgram)
{
    EXPECT_NO_THROW(WindowsSystem{{}}.launch(u"no_such_program.exe", WindowStyle::Normal));
    EXPECT_NO_THROW(WindowsSystem{{}}.launch(u"", WindowStyle::Normal));
}

TEST(System, InvokesAVerbOnAFileThatIsNotThereWithoutEffect)
{
    EXPECT_NO_THROW(WindowsSystem{{}}.invokeVerb(u"Print", u"C:\\no such file.txt"));
}

} // namespace
} // namespace rf::native
