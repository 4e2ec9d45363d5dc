#include "automation/error.h"
#include "basic/clock.h"
#include "basic/pattern_regional.h"
#include "host/command_line.h"
#include "host/commands.h"
#include "host/memory_store.h"
#include "linux/ical_support.h"

#include "sqlite_fixture.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace rf::host::test {
namespace {

constexpr const char* rootPath = "Public Folders/All Public Folders/Roomfold";

/// What a command answered and said.
struct Said {
    int status = 0;
    std::string out;
    std::string problems;
};

class HostCommands : public ::testing::Test {
protected:
    HostCommands() { EXPECT_EQ(run(initCommand, {"Jane Doe"}).status, 0); }

    Said run(Command command, const std::vector<std::string>& arguments)
    {
        std::ostringstream out;
        std::ostringstream problems;
        const int status = command({store, regional, clock, out, problems, false}, arguments);
        return {status, out.str(), problems.str()};
    }
    Said import(const std::string& file, const std::string& into = rootPath)
    {
        return run(importCommand, {file, "--by-location", "--into", into});
    }
    [[nodiscard]] std::string written(const std::string& bytes, const char* name = "calendar.ics") const
    {
        writeBytes(folder.file(name), bytes);
        return folder.file(name);
    }
    [[nodiscard]] static std::size_t linesOf(const std::string& text)
    {
        return static_cast<std::size_t>(std::ranges::count(text, '\n'));
    }

    const InZone brussels{"Europe/Brussels"};
    const PatternRegional regional{englishSettings()};
    const FixedClock clock{Date{45000}};
    TemporaryFolder folder;
    MemoryStore store;
};

TEST_F(HostCommands, MakeAnInstallationOnce)
{
    const Said first = run(initCommand, {"Jane Doe", "Rita Roe"});
    EXPECT_NE(first.out.find("Mailbox - Rita Roe"), std::string::npos);
    const auto folders = store.folders();
    EXPECT_EQ(run(initCommand, {"Jane Doe", "Rita Roe"}).out, first.out);
    EXPECT_EQ(store.folders(), folders);
    EXPECT_EQ(requireFolder(store, rootPath).webViewUrl, u"file:///usr/share/roomfold/Roomfold.htm");
    EXPECT_TRUE(requireFolder(store, rootPath).webViewOn);
}

TEST_F(HostCommands, ImportListAndExportBothConferences)
{
    struct Conference {
        const char* file;
        std::size_t talks;
        std::size_t rooms;
    };
    for (const auto& [file, talks, rooms] :
        {Conference{"conference-2019.ics", 775, 33}, Conference{"conference-2024.ics", 674, 26}}) {
        run(initCommand, {"--root", file});
        const std::string root = std::string{"Public Folders/All Public Folders/"} + file;
        const Said said = import(std::string{RF_TEST_DATA "/"} + file, root);
        EXPECT_EQ(said.status, 0) << said.problems;
        EXPECT_NE(said.out.find(std::to_string(talks) + " events imported, 0 problems"), std::string::npos);
        EXPECT_NE(said.out.find("Calendars: " + std::to_string(rooms)), std::string::npos);
        std::size_t listed = 0;
        for (const FolderRecord& calendar : store.folders()) {
            if (calendar.parent != requireFolder(store, root).id)
                continue;
            const std::string path = root + "/" + toUtf8(calendar.name);
            const Said list = run(listCommand, {path});
            listed += linesOf(list.out);
            const Said exported = run(exportCommand, {path});
            EXPECT_EQ(exported.status, 0) << exported.problems;
            run(initCommand, {"--root", "Again"});
            EXPECT_EQ(import(written(exported.out), "Public Folders/All Public Folders/Again").status, 0);
            EXPECT_EQ(run(exportCommand, {"Public Folders/All Public Folders/Again/" + toUtf8(calendar.name)}).out,
                exported.out);
            store.removeFolder(requireFolder(store, "Public Folders/All Public Folders/Again").id);
        }
        EXPECT_EQ(listed, talks);
    }
}

TEST_F(HostCommands, NameABrokenEventWithItsLineAndTakeTheRest)
{
    const Said said = import(written("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:1\r\nDTSTART:soon\r\nEND:VEVENT\r\n"
                                     "BEGIN:VEVENT\r\nUID:2\r\nDTSTART:20240203T090000\r\nLOCATION:Room 1\r\n"
                                     "SUMMARY:Board\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n"));
    EXPECT_EQ(said.status, 1);
    EXPECT_NE(said.problems.find("calendar.ics:4: "), std::string::npos) << said.problems;
    EXPECT_NE(said.out.find("1 events imported"), std::string::npos) << said.out;
    EXPECT_EQ(linesOf(run(listCommand, {std::string{rootPath} + "/Room 1"}).out), 1U);
}

TEST_F(HostCommands, TakeTheOtherFilesWhenOneCannotBeRead)
{
    const std::string good = RF_TEST_DATA "/fuzz/calendar_file/single.ics";
    const Said said = run(importCommand, {"/nowhere.ics", good, "--into", rootPath});
    EXPECT_EQ(said.status, 1);
    EXPECT_NE(said.problems.find("/nowhere.ics"), std::string::npos);
    EXPECT_EQ(store.count(requireFolder(store, rootPath).id), 1U);
}

TEST_F(HostCommands, ShowAnItemWithItsProperties)
{
    import(RF_TEST_DATA "/fuzz/calendar_file/single.ics");
    const std::string list = run(listCommand, {std::string{rootPath} + "/Room 1"}).out;
    const Said shown = run(showCommand, {list.substr(0, list.find(' '))});
    EXPECT_EQ(shown.status, 0);
    EXPECT_NE(shown.out.find("Subject: Board, weekly"), std::string::npos) << shown.out;
    EXPECT_NE(shown.out.find("Location: Room 1\n"), std::string::npos) << shown.out;
    EXPECT_NE(shown.out.find("Time: 2/3/2024 10:00:00 AM - 2/3/2024 11:00:00 AM\n"), std::string::npos) << shown.out;
}

TEST_F(HostCommands, FailOnWhatIsNotThere)
{
    for (const Command command : {listCommand, exportCommand})
        EXPECT_THROW(run(command, {"Public Folders/Nowhere"}), automation::Error);
    EXPECT_THROW(run(showCommand, {"EF00"}), automation::Error);
    EXPECT_THROW(import(RF_TEST_DATA "/conference-2019.ics", "Nowhere"), automation::Error);
    EXPECT_TRUE(store.items(requireFolder(store, rootPath).id).empty());
}

TEST_F(HostCommands, RefuseAWrongCommandLine)
{
    EXPECT_THROW(run(importCommand, {"--into", rootPath}), UsageError);
    EXPECT_THROW(run(importCommand, {"a.ics"}), UsageError);
    EXPECT_THROW(run(importCommand, {"a.ics", "--into"}), UsageError);
    EXPECT_THROW(run(importCommand, {"a.ics", "--onto", rootPath}), UsageError);
    EXPECT_THROW(run(exportCommand, {}), UsageError);
    EXPECT_THROW(run(showCommand, {}), UsageError);
}

} // namespace
} // namespace rf::host::test
