#include "windows/process_table.h"

#include "child_process.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace rf::native {
namespace {

/// The exit codes of a program that tells whether a previous instance runs.
constexpr DWORD alone = 70;
constexpr DWORD preceded = 71;

/// A copy of this program under a name that no other process has.
class ProgramCopy {
public:
    ProgramCopy() { CopyFileW(wide(ownPath()), wide(path_), FALSE); }
    ProgramCopy(const ProgramCopy&) = delete;
    ProgramCopy& operator=(const ProgramCopy&) = delete;
    ~ProgramCopy() { DeleteFileW(wide(path_)); }

    [[nodiscard]] const Text& path() const { return path_; }

private:
    Text path_ = ownPath() + u"." + decimal(GetCurrentProcessId()) + u".exe";
};

const Text askProbe = argumentsFor(u"InstanceProbe.DISABLED_Answers");
const Text waitProbe = argumentsFor(u"InstanceProbe.DISABLED_Waits");

TEST(InstanceProbe, DISABLED_Answers) { std::exit(ToolhelpProcessTable{}.previousInstanceRuns() ? preceded : alone); }

TEST(InstanceProbe, DISABLED_Waits) { Sleep(30'000); }

TEST(ProcessTable, ShowsTheOwnProcessByItsFileName)
{
    Text executable;
    ToolhelpProcessTable{}.walk([&](const ProcessEntry& entry) {
        if (entry.id == GetCurrentProcessId())
            executable = entry.executable;
        return false;
    });
    EXPECT_TRUE(equalIgnoringCase(executable, ownPath().substr(ownPath().find_last_of(u'\\') + 1)));
}

TEST(ProcessTable, StopsWhenTheVisitorHasSeenEnough)
{
    int visited = 0;
    ToolhelpProcessTable{}.walk([&](const ProcessEntry&) { return ++visited == 2; });
    EXPECT_EQ(visited, 2);
}

TEST(ProcessTable, LooksForTheProgramByItsUpperCasedFileName)
{
    EXPECT_EQ(ToolhelpProcessTable{}.programFile(), u"RFBOOKINGINFO.EXE");
}

TEST(ProcessTable, KnowsAnEarlierInstanceButNoLaterOne)
{
    const ProgramCopy copy;
    EXPECT_EQ((Child{copy.path(), askProbe}.exitCode()), alone);
    const Child earlier{copy.path(), waitProbe};
    EXPECT_EQ((Child{copy.path(), askProbe}.exitCode()), preceded);
}

TEST(ProcessTable, EndsAProcessWithStatusZero)
{
    const ProgramCopy copy;
    const Child child{copy.path(), waitProbe};
    ToolhelpProcessTable table;
    table.terminate(child.id());
    EXPECT_EQ(child.exitCode(), 0U);
    EXPECT_NO_THROW(table.terminate(child.id()));
}

TEST(ProcessStart, OrdersByTimeAndByIdAtOneInstant)
{
    EXPECT_LT((ProcessStart{1, 9}), (ProcessStart{2, 3}));
    EXPECT_LT((ProcessStart{2, 3}), (ProcessStart{2, 9}));
}

} // namespace
} // namespace rf::native
