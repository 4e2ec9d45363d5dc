#include "linux/class_registry.h"
#include "linux/management.h"
#include "outlook/wmi.h"

#include <csignal>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace rf::native {
namespace {

outlook::WmiObjectSet processes()
{
    return outlook::WmiService{makeManagementService(outlook::wmiDisplayName)}.instancesOf(outlook::wmiProcessClass);
}

outlook::WmiObject processOf(pid_t id)
{
    const auto all = processes();
    for (std::int32_t position = 0; position < all.count(); ++position)
        if (all.itemIndex(position).processId() == id)
            return all.itemIndex(position);
    return {};
}

TEST(Management, StandsBehindItsDisplayName)
{
    LinuxClassRegistry classes;
    EXPECT_TRUE(classes.bind(u"WinMgmts:"));
    EXPECT_FALSE(makeManagementService(u"winmgmts"));
    EXPECT_THROW(static_cast<void>(classes.bind(u"ldap:")), automation::Error);
}

TEST(Management, ListsTheOwnProcessLast)
{
    const auto all = processes();
    const auto last = all.itemIndex(all.count() - 1);
    EXPECT_EQ(last.processId(), getpid());
    EXPECT_EQ(last.name(), u"native_tests");
}

TEST(Management, EndsAProcessByDeletingIt)
{
    char program[] = "sleep";
    char duration[] = "60";
    char* const arguments[] = {program, duration, nullptr};
    pid_t id = 0;
    ASSERT_EQ(posix_spawnp(&id, program, nullptr, nullptr, arguments, environ), 0);
    const auto sleeper = processOf(id);
    EXPECT_TRUE(sleeper);
    if (sleeper) {
        EXPECT_EQ(sleeper.name(), u"sleep");
        sleeper.remove();
    } else {
        kill(id, SIGKILL);
    }
    int status = 0;
    waitpid(id, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status));
}

TEST(Management, KnowsNoOtherClassAndNoPositionOutside)
{
    const outlook::WmiService service{makeManagementService(outlook::wmiDisplayName)};
    EXPECT_THROW(static_cast<void>(service.instancesOf(u"win32_service")), automation::Error);
    const auto all = processes();
    EXPECT_THROW(static_cast<void>(all.itemIndex(-1)), automation::Error);
    EXPECT_THROW(static_cast<void>(all.itemIndex(all.count())), automation::Error);
}

} // namespace
} // namespace rf::native
