#include "installation_fixture.h"

namespace rf::test {
namespace {

/// Instances without a host: a message says so and stays.
struct Instances : Installed {
    const EnvironmentVariable screen{"QT_QPA_PLATFORM", "offscreen"};
    static constexpr std::chrono::milliseconds settleTime{1500};
    static constexpr std::chrono::seconds startTime{20};
    static constexpr int killedStatus = 128 + SIGKILL;
};

/// The host starts the program whenever it shows the root folder. On a busy machine that one may still be on its way
/// when another comes with a page and replaces the one that ran.
TEST_F(Instances, ThatComeLateLeaveTheFieldToOneThatHasAPage)
{
    Child first{{RF_PROGRAM}};
    ASSERT_EQ(first.waitForEnd(settleTime), std::nullopt);
    Child late{{RF_PROGRAM}};
    late.signal(SIGSTOP);
    Child withPage{{RF_PROGRAM, "1", "room.html"}};
    EXPECT_EQ(first.waitForEnd(startTime), killedStatus);
    late.signal(SIGCONT);
    EXPECT_EQ(late.waitForEnd(startTime), 0);
    EXPECT_EQ(withPage.waitForEnd(settleTime), std::nullopt);
}

} // namespace
} // namespace rf::test
