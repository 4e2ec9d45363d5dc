#include "support/platform_classes.h"

#include "outlook/scripting.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#endif

namespace rf {
namespace {

using automation::Object;
using automation::Variant;
using outlook::CompareMode;
using outlook::Dictionary;
using outlook::FileSystemObject;
using outlook::OpenMode;
using outlook::Shell;
using outlook::SpecialFolder;
using outlook::TextFormat;

#ifdef _WIN32
constexpr bool onWindows = true;
constexpr TextView commandWithStatus3 = u"cmd /c exit 3";
bool underWine() { return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr; }
#else
constexpr bool onWindows = false;
constexpr TextView commandWithStatus3 = u"sh -c \"exit 3\"";
bool underWine() { return false; }
#endif

constexpr std::int32_t fileAlreadyExists = 58;
constexpr std::int32_t inputPastEnd = 62;
constexpr std::int32_t permissionDenied = 70;
constexpr std::int32_t pathNotFound = 76;
constexpr std::int32_t elementNotFound = 32811;
constexpr std::int32_t commandNotFound = -2147024894;

template <class Face>
[[nodiscard]] Face component(TextView className)
{
    return Face{test::platformClasses().create(className)};
}

/// The number of the error that a step ends with; 0 when it succeeds.
template <class Step>
[[nodiscard]] std::int32_t errorOf(Step&& step)
{
    try {
        step();
        return 0;
    } catch (const automation::Error& error) {
        return error.number();
    }
}

class ScriptingDictionary : public testing::Test {
protected:
    Dictionary values = component<Dictionary>(outlook::dictionaryClass);
};

TEST_F(ScriptingDictionary, IsMadeWhateverTheCaseOfItsName)
{
    EXPECT_TRUE(component<Dictionary>(u"SCRIPTING.dictionary"));
}

TEST_F(ScriptingDictionary, GivesBackWhatWasAdded)
{
    values.add(u"Coffee", 2.5);
    values.add(u"Room", Variant{values});
    EXPECT_EQ(values.count(), 2);
    EXPECT_TRUE(values.item(u"Coffee") == Variant{2.5});
    EXPECT_TRUE(Object{values.item(u"Room").dispatch()} == values.object());
    values.removeAll();
}

TEST_F(ScriptingDictionary, ComparesKeysExactlyAtFirst)
{
    EXPECT_EQ(values.compareMode(), CompareMode::Binary);
    values.add(u"alpha", 1);
    EXPECT_FALSE(values.exists(u"Alpha"));
    values.add(u"Alpha", 2);
    EXPECT_EQ(values.count(), 2);
}

TEST_F(ScriptingDictionary, ComparesKeysWithoutRegardToCaseWhenTold)
{
    values.setCompareMode(CompareMode::Text);
    EXPECT_EQ(values.compareMode(), CompareMode::Text);
    values.add(u"Room", 1);
    EXPECT_TRUE(values.exists(u"rOOM"));
    EXPECT_EQ(values.item(u"ROOM").integer32(), 1);
    EXPECT_EQ(errorOf([&] { values.add(u"room", 2); }), error_number::keyAlreadyExists);
    EXPECT_EQ(values.keys(), std::vector<Text>{u"Room"});
}

TEST_F(ScriptingDictionary, KnowsTheCaseOfLettersBeyondTheAlphabet)
{
    if (underWine())
        GTEST_SKIP() << "Wine's dictionary knows the case of A to Z only";
    values.setCompareMode(CompareMode::Text);
    values.add(u"Räume", 1);
    EXPECT_TRUE(values.exists(u"rÄUME"));
    EXPECT_FALSE(values.exists(u"raume"));
}

TEST_F(ScriptingDictionary, RefusesAnotherComparisonOnceItHoldsSomething)
{
    values.add(u"a", 1);
    EXPECT_EQ(errorOf([&] { values.setCompareMode(CompareMode::Text); }), error_number::invalidCall);
    values.removeAll();
    EXPECT_EQ(errorOf([&] { values.setCompareMode(CompareMode::Text); }), 0);
}

TEST_F(ScriptingDictionary, RefusesAKeyThatItHas)
{
    values.add(u"a", 1);
    EXPECT_EQ(errorOf([&] { values.add(u"a", 2); }), error_number::keyAlreadyExists);
    EXPECT_EQ(values.item(u"a").integer32(), 1);
}

TEST_F(ScriptingDictionary, AddsAMissingKeyThatIsRead)
{
    EXPECT_TRUE(values.item(u"new").isEmpty());
    EXPECT_TRUE(values.exists(u"new"));
    EXPECT_EQ(values.count(), 1);
}

TEST_F(ScriptingDictionary, AddsAMissingKeyThatIsAssigned)
{
    values.setItem(u"a", 1);
    values.setItem(u"a", u"two");
    EXPECT_EQ(values.count(), 1);
    EXPECT_EQ(values.item(u"a").text(), u"two");
}

TEST_F(ScriptingDictionary, KeepsTheOrderInWhichKeysWereAdded)
{
    for (const auto* key : {u"c", u"a", u"d", u"b"})
        values.add(key, key);
    values.remove(u"a");
    values.add(u"a", u"last");
    values.setItem(u"c", u"first");
    EXPECT_EQ(values.keys(), (std::vector<Text>{u"c", u"d", u"b", u"a"}));
    EXPECT_TRUE(values.items() == (std::vector<Variant>{u"first", u"d", u"b", u"last"}));
}

TEST_F(ScriptingDictionary, RefusesToRemoveAKeyThatItDoesNotHave)
{
    EXPECT_EQ(errorOf([&] { values.remove(u"a"); }), elementNotFound);
}

TEST_F(ScriptingDictionary, IsEmptyAfterRemoveAll)
{
    values.add(u"a", 1);
    values.removeAll();
    EXPECT_EQ(values.count(), 0);
    EXPECT_TRUE(values.keys().empty());
    EXPECT_TRUE(values.items().empty());
}

TEST_F(ScriptingDictionary, RenamesAKey)
{
    values.add(u"a", 1);
    values.add(u"b", 2);
    values.setKey(u"a", u"z");
    EXPECT_EQ(values.item(u"z").integer32(), 1);
    EXPECT_FALSE(values.exists(u"a"));
    EXPECT_EQ(errorOf([&] { values.setKey(u"z", u"b"); }), error_number::keyAlreadyExists);
    EXPECT_EQ(values.count(), 2);
}

TEST_F(ScriptingDictionary, LeavesARenamedKeyInItsPlace)
{
    if (underWine())
        GTEST_SKIP() << "Wine's dictionary puts a renamed key behind the others";
    values.add(u"a", 1);
    values.add(u"b", 2);
    values.setKey(u"a", u"z");
    EXPECT_EQ(values.keys(), (std::vector<Text>{u"z", u"b"}));
}

TEST_F(ScriptingDictionary, AddsAKeyWhenTheOneToRenameIsMissing)
{
    values.setKey(u"none", u"new");
    EXPECT_EQ(values.keys(), std::vector<Text>{u"new"});
    EXPECT_TRUE(values.item(u"new").isEmpty());
}

TEST_F(ScriptingDictionary, TakesNumbersOfOneValueAsOneKey)
{
    values.object().call(u"Add", std::int32_t{7}, u"seven");
    EXPECT_TRUE(values.object().call(u"Exists", 7.0).boolean());
    EXPECT_TRUE(values.object().call(u"Exists", std::int16_t{7}).boolean());
    EXPECT_FALSE(values.exists(u"7"));
}

TEST_F(ScriptingDictionary, TellsObjectsApartByIdentity)
{
    const auto other = component<Dictionary>(outlook::dictionaryClass);
    values.object().call(u"Add", other, 1);
    EXPECT_TRUE(values.object().call(u"Exists", other).boolean());
    EXPECT_FALSE(values.object().call(u"Exists", component<Dictionary>(outlook::dictionaryClass)).boolean());
}

TEST_F(ScriptingDictionary, KeepsTextUnitByUnit)
{
    const Text torn{u'a', u'\0', 0xD83D};
    values.add(torn, torn);
    EXPECT_EQ(values.item(torn).text(), torn);
    EXPECT_EQ(values.keys(), std::vector<Text>{torn});
}

TEST_F(ScriptingDictionary, RefusesAMemberThatItDoesNotHave)
{
    EXPECT_EQ(errorOf([&] { values.object().call(u"Sort"); }), error_number::memberNotFound);
}

class ScriptingFiles : public testing::Test {
protected:
    ScriptingFiles() { std::filesystem::create_directories(std::filesystem::path{folder}); }
    ~ScriptingFiles() override { std::filesystem::remove_all(std::filesystem::path{folder}); }

    [[nodiscard]] Text pathOf(TextView name) const { return files.buildPath(folder, name); }
    [[nodiscard]] std::string bytesOf(const Text& path) const
    {
        std::ifstream file{std::filesystem::path{path}, std::ios::binary};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    void fill(const Text& path, std::string_view bytes) const
    {
        std::ofstream{std::filesystem::path{path}, std::ios::binary} << bytes;
    }

    FileSystemObject files = component<FileSystemObject>(outlook::fileSystemClass);
    Text folder
        = files.buildPath(files.getSpecialFolder(SpecialFolder::Temporary).path(), u"scripting " + files.getTempName());
};

TEST_F(ScriptingFiles, KnowTheSpecialFolders)
{
    for (const auto which : {SpecialFolder::Windows, SpecialFolder::System, SpecialFolder::Temporary})
        EXPECT_TRUE(files.folderExists(files.getSpecialFolder(which).path()));
    EXPECT_EQ(errorOf([&] { static_cast<void>(files.getSpecialFolder(SpecialFolder{3})); }), error_number::invalidCall);
}

TEST_F(ScriptingFiles, PutOneSeparatorBetweenThePartsOfAPath)
{
    const Text separator{std::filesystem::path::preferred_separator};
    EXPECT_EQ(files.buildPath(u"a", u"b"), u"a" + separator + u"b");
    EXPECT_EQ(files.buildPath(u"a" + separator, u"b"), u"a" + separator + u"b");
}

TEST_F(ScriptingFiles, InventNamesForTemporaryFiles)
{
    const Text name = files.getTempName();
    EXPECT_TRUE(name.starts_with(u"rad")) << toUtf8(name);
    EXPECT_TRUE(name.ends_with(u".tmp")) << toUtf8(name);
    EXPECT_NE(name, files.getTempName());
    EXPECT_FALSE(files.fileExists(pathOf(name)));
}

TEST_F(ScriptingFiles, TellFilesFromFolders)
{
    const Text path = pathOf(u"Liste ä.txt");
    EXPECT_FALSE(files.fileExists(path));
    fill(path, "");
    EXPECT_TRUE(files.fileExists(path));
    EXPECT_FALSE(files.folderExists(path));
    EXPECT_TRUE(files.folderExists(folder));
    EXPECT_FALSE(files.fileExists(folder));
}

TEST_F(ScriptingFiles, ReadBackWhatWasWritten)
{
    const Text path = pathOf(u"a.txt");
    const auto out = files.createTextFile(path, true);
    out.write(u"Room 1\r\n");
    out.writeLine(u"Room 2");
    out.close();
    EXPECT_EQ(bytesOf(path), "Room 1\r\nRoom 2\r\n");

    const auto in = files.openTextFile(path, OpenMode::Read);
    EXPECT_FALSE(in.atEndOfStream());
    EXPECT_EQ(in.readAll(), u"Room 1\r\nRoom 2\r\n");
    EXPECT_TRUE(in.atEndOfStream());
    in.close();
}

TEST_F(ScriptingFiles, HoldWhatWasWrittenWithoutAClose)
{
    const Text path = pathOf(u"a.txt");
    files.createTextFile(path, true).write(u"text");
    EXPECT_EQ(bytesOf(path), "text");
}

TEST_F(ScriptingFiles, ReadLineByLine)
{
    const Text path = pathOf(u"a.txt");
    fill(path, "one\r\n\r\nthree\nfour");
    const auto in = files.openTextFile(path, OpenMode::Read);
    EXPECT_EQ(in.readLine(), u"one");
    EXPECT_EQ(in.readLine(), u"");
    EXPECT_EQ(in.readLine(), u"three");
    EXPECT_FALSE(in.atEndOfStream());
    EXPECT_EQ(in.readLine(), u"four");
    EXPECT_TRUE(in.atEndOfStream());
    EXPECT_EQ(errorOf([&] { static_cast<void>(in.readLine()); }), inputPastEnd);
}

TEST_F(ScriptingFiles, ReadTheRestBehindALine)
{
    const Text path = pathOf(u"a.txt");
    fill(path, "one\r\ntwo\r\nthree");
    const auto in = files.openTextFile(path, OpenMode::Read);
    EXPECT_EQ(in.readLine(), u"one");
    EXPECT_EQ(in.readAll(), u"two\r\nthree");
}

TEST_F(ScriptingFiles, GiveNothingOfAnEmptyFile)
{
    const Text path = pathOf(u"empty.txt");
    fill(path, "");
    const auto in = files.openTextFile(path, OpenMode::Read);
    EXPECT_TRUE(in.atEndOfStream());
    EXPECT_EQ(errorOf([&] { static_cast<void>(in.readAll()); }), inputPastEnd);
}

TEST_F(ScriptingFiles, WriteUnicodeWithItsMark)
{
    const Text path = pathOf(u"u.txt");
    files.createTextFile(path, true, true).write(u"aä");
    EXPECT_EQ(bytesOf(path),
        std::string("\xFF\xFE"
                    "a\0\xE4\0",
            6));
    files.openTextFile(path, OpenMode::Append, false, TextFormat::Unicode).write(u"Ω");
    EXPECT_EQ(bytesOf(path),
        std::string("\xFF\xFE"
                    "a\0\xE4\0\xA9\x03",
            8));
    EXPECT_EQ(files.openTextFile(path, OpenMode::Read, false, TextFormat::Unicode).readAll(), u"aäΩ");
}

TEST_F(ScriptingFiles, KeepHalfASurrogatePairInUnicode)
{
    const Text path = pathOf(u"u.txt");
    const Text torn{u'a', 0xD83D};
    files.createTextFile(path, true, true).write(torn);
    EXPECT_EQ(files.openTextFile(path, OpenMode::Read, false, TextFormat::Unicode).readAll(), torn);
}

TEST_F(ScriptingFiles, WriteTheSystemCodePage)
{
    if (onWindows)
        GTEST_SKIP() << "the code page is UTF-8 on Linux only";
    const Text path = pathOf(u"a.txt");
    files.createTextFile(path, true).write(u"Räume");
    EXPECT_EQ(bytesOf(path), "R\xC3\xA4ume");
    EXPECT_EQ(files.openTextFile(path, OpenMode::Read).readAll(), u"Räume");
}

TEST_F(ScriptingFiles, AppendBehindWhatIsThere)
{
    const Text path = pathOf(u"a.txt");
    files.createTextFile(path, true).write(u"one");
    files.openTextFile(path, OpenMode::Append).write(u"two");
    EXPECT_EQ(bytesOf(path), "onetwo");
}

TEST_F(ScriptingFiles, ReplaceWhatIsThereWhenAFileIsWritten)
{
    const Text path = pathOf(u"a.txt");
    fill(path, "a long old text");
    files.openTextFile(path, OpenMode::Write).write(u"new");
    EXPECT_EQ(bytesOf(path), "new");
    files.createTextFile(path, true).write(u"x");
    EXPECT_EQ(bytesOf(path), "x");
}

TEST_F(ScriptingFiles, CreateAMissingFileOnlyWhenTold)
{
    const Text path = pathOf(u"a.txt");
    for (const auto mode : {OpenMode::Read, OpenMode::Write, OpenMode::Append}) {
        EXPECT_EQ(errorOf([&] { static_cast<void>(files.openTextFile(path, mode)); }), error_number::fileNotFound);
        EXPECT_FALSE(files.fileExists(path));
        files.openTextFile(path, mode, true).close();
        EXPECT_TRUE(files.fileExists(path));
        files.deleteFile(path);
    }
}

TEST_F(ScriptingFiles, RefuseToCreateAFileThatIsThere)
{
    const Text path = pathOf(u"a.txt");
    fill(path, "old");
    EXPECT_EQ(errorOf([&] { static_cast<void>(files.createTextFile(path, false)); }), fileAlreadyExists);
    EXPECT_EQ(bytesOf(path), "old");
}

TEST_F(ScriptingFiles, TellAMissingFolderFromAMissingFile)
{
    const Text path = files.buildPath(pathOf(u"nowhere"), u"a.txt");
    EXPECT_EQ(errorOf([&] { static_cast<void>(files.openTextFile(path, OpenMode::Read)); }), pathNotFound);
    EXPECT_EQ(errorOf([&] { static_cast<void>(files.createTextFile(path, true)); }), pathNotFound);
}

TEST_F(ScriptingFiles, RefuseToOpenAFolder)
{
    EXPECT_EQ(errorOf([&] { static_cast<void>(files.openTextFile(folder, OpenMode::Read)); }), permissionDenied);
    EXPECT_EQ(errorOf([&] { static_cast<void>(files.openTextFile(folder, OpenMode::Write)); }), permissionDenied);
}

TEST_F(ScriptingFiles, RefuseTheOtherDirection)
{
    constexpr std::int32_t badFileMode = 54;
    const Text path = pathOf(u"a.txt");
    const auto out = files.createTextFile(path, true);
    EXPECT_EQ(errorOf([&] { static_cast<void>(out.readAll()); }), badFileMode);
    EXPECT_EQ(errorOf([&] { static_cast<void>(out.atEndOfStream()); }), badFileMode);
    out.close();
    const auto in = files.openTextFile(path, OpenMode::Read);
    EXPECT_EQ(errorOf([&] { in.write(u"text"); }), badFileMode);
}

TEST_F(ScriptingFiles, RefuseAStreamThatIsClosed)
{
    const auto out = files.createTextFile(pathOf(u"a.txt"), true);
    out.close();
    EXPECT_NE(errorOf([&] { out.write(u"text"); }), 0);
    EXPECT_EQ(errorOf([&] { out.close(); }), 0);
}

TEST_F(ScriptingFiles, DeleteAFile)
{
    const Text path = pathOf(u"a.txt");
    fill(path, "");
    files.deleteFile(path);
    EXPECT_FALSE(files.fileExists(path));
    EXPECT_EQ(errorOf([&] { files.deleteFile(path); }), error_number::fileNotFound);
}

TEST_F(ScriptingFiles, ReportADiskThatIsFull)
{
    if (onWindows)
        GTEST_SKIP() << "Windows has no file that is always full";
    constexpr std::int32_t diskFull = 61;
    const auto out = files.openTextFile(u"/dev/full", OpenMode::Write);
    EXPECT_EQ(errorOf([&] { out.write(u"text"); }), diskFull);
    EXPECT_EQ(errorOf([&] {
        static_cast<void>(files.openTextFile(u"/dev/full", OpenMode::Write, false, TextFormat::Unicode));
    }),
        diskFull);
}

TEST_F(ScriptingFiles, RefuseANameThatTheSystemWouldCut)
{
    if (onWindows)
        GTEST_SKIP() << "Windows cuts the name itself";
    const Text path = pathOf(u"a.txt");
    fill(path, "");
    EXPECT_FALSE(files.fileExists(path + u'\0'));
    EXPECT_NE(errorOf([&] { files.deleteFile(path + u'\0'); }), 0);
    EXPECT_TRUE(files.fileExists(path));
}

class ScriptingShell : public testing::Test {
protected:
    void set(const char* name, const char* value)
    {
#ifdef _WIN32
        _putenv_s(name, value);
#else
        setenv(name, value, 1);
#endif
    }

    Shell shell = component<Shell>(outlook::shellClass);
};

TEST_F(ScriptingShell, ReplacesTheNamesOfTheEnvironment)
{
    if (underWine())
        GTEST_SKIP() << "Wine's shell answers with a zero behind the text";
    EXPECT_NE(shell.expandEnvironmentStrings(u"%PATH%"), u"%PATH%");
    EXPECT_EQ(shell.expandEnvironmentStrings(u"no names"), u"no names");
    EXPECT_EQ(shell.expandEnvironmentStrings(u""), u"");
    EXPECT_EQ(shell.expandEnvironmentStrings(u"<%PATH%>"), u"<" + shell.expandEnvironmentStrings(u"%PATH%") + u">");
}

TEST_F(ScriptingShell, LeavesUnknownNamesAsTheyAre)
{
    if (underWine())
        GTEST_SKIP() << "Wine's shell answers with a zero behind the text";
    EXPECT_EQ(shell.expandEnvironmentStrings(u"100% of %no such name%"), u"100% of %no such name%");
    EXPECT_EQ(shell.expandEnvironmentStrings(u"%"), u"%");
}

TEST_F(ScriptingShell, KnowsTheUserAndTheDomain)
{
    for (const auto* name : {u"%USERNAME%", u"%USERDOMAIN%"}) {
        const Text value = shell.expandEnvironmentStrings(name);
        EXPECT_FALSE(value.empty());
        EXPECT_NE(value, name);
    }
}

TEST_F(ScriptingShell, PrefersTheUserOfTheEnvironment)
{
    if (onWindows)
        GTEST_SKIP() << "Windows sets the variable for every process";
    set("USERNAME", "jane");
    EXPECT_EQ(shell.expandEnvironmentStrings(u"%USERNAME%"), u"jane");
#ifndef _WIN32
    unsetenv("USERNAME");
#endif
    EXPECT_NE(shell.expandEnvironmentStrings(u"%USERNAME%"), u"jane");
}

TEST_F(ScriptingShell, AnswersWithTheExitStatusOfAProgramItWaitsFor)
{
    EXPECT_EQ(shell.run(commandWithStatus3, WindowStyle::Minimized, true), 3);
}

TEST_F(ScriptingShell, DoesNotWaitUnlessTold)
{
    EXPECT_EQ(shell.run(commandWithStatus3), 0);
    EXPECT_EQ(shell.run(commandWithStatus3, WindowStyle::Minimized, false), 0);
}

TEST_F(ScriptingShell, ReportsAProgramThatIsNotThere)
{
    if (underWine())
        GTEST_SKIP() << "Wine's shell fails with another number";
    EXPECT_EQ(errorOf([&] { shell.run(u"no-such-program.exe"); }), commandNotFound);
    EXPECT_EQ(errorOf([&] { shell.run(u"no-such-program.exe", WindowStyle::Minimized, true); }), commandNotFound);
}

#ifndef _WIN32

TEST_F(ScriptingShell, HandsTheCommandToNoInterpreter)
{
    EXPECT_EQ(shell.run(u"test \"a b\" = \"a b\"", WindowStyle::Normal, true), 0);
    EXPECT_EQ(shell.run(u"test $HOME = \"$HOME\"", WindowStyle::Normal, true), 0);
    EXPECT_EQ(shell.run(u"test  -z   \"\"", WindowStyle::Normal, true), 0);
    EXPECT_EQ(shell.run(u"false ; true", WindowStyle::Normal, true), 1);
    EXPECT_EQ(errorOf([&] { shell.run(u"  "); }), commandNotFound);
}

class ScriptingShellPrograms : public ScriptingFiles {
protected:
    Shell shell = component<Shell>(outlook::shellClass);
};

TEST_F(ScriptingShellPrograms, LeaveNoZombieBehind)
{
    const Text file = pathOf(u"id");
    shell.run(u"sh -c \"echo $$ > '" + file + u"'\"");
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds{10};
    const auto goOn = [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds{1});
        return std::chrono::steady_clock::now() < deadline;
    };
    while (!bytesOf(file).ends_with('\n') && goOn()) { }
    const auto process = static_cast<pid_t>(std::stol(bytesOf(file)));
    // A zombie can still be reached by its number.
    while (kill(process, 0) == 0 && goOn()) { }
    EXPECT_EQ(kill(process, 0), -1);
}

class ScriptingShellAddresses : public ScriptingFiles {
protected:
    ScriptingShellAddresses()
    {
        const auto opener = std::filesystem::path{folder} / "xdg-open";
        std::ofstream{opener} << "#!/bin/sh\nprintf '%s' \"$#:$1\" > \"${0%/*}/opened\"\n";
        std::filesystem::permissions(opener, std::filesystem::perms::owner_all);
        setenv("PATH", (std::filesystem::path{folder}.string() + ':' + path_).c_str(), 1);
    }
    ~ScriptingShellAddresses() override { setenv("PATH", path_.c_str(), 1); }

    [[nodiscard]] std::string opened(TextView target)
    {
        EXPECT_EQ(component<Shell>(outlook::shellClass).run(target, WindowStyle::Normal, true), 0);
        return bytesOf(pathOf(u"opened"));
    }

private:
    std::string path_ = std::getenv("PATH");
};

TEST_F(ScriptingShellAddresses, GoToTheProgramThatOpensThem)
{
    EXPECT_EQ(opened(u"http://example.com/a?b=c"), "1:http://example.com/a?b=c");
    EXPECT_EQ(opened(u"HTTPS://example.com"), "1:HTTPS://example.com");
    EXPECT_EQ(opened(u"\"mailto:a@example.com?subject=Two words\""), "1:mailto:a@example.com?subject=Two words");
}

#endif

} // namespace
} // namespace rf
