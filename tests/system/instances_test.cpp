#include "support/process.h"

#include <gtest/gtest.h>
#include <thread>

namespace rf::test {
namespace {

using namespace std::chrono_literals;

constexpr auto startTime = 20s;
/// Long enough for a program that leaves to have left.
constexpr auto settleTime = 1500ms;
/// How a replaced instance ends: by the signal that cannot be refused, or with the status that its successor gives.
#ifdef _WIN32
constexpr int replacedStatus = 0;
#else
constexpr int replacedStatus = 128 + 9;
#endif

/// Without a host the program stays for as long as nobody dismisses the message that says so; that is a running
/// instance like any other.
TEST(Instance, RunsUntilItsMessageIsDismissed)
{
    const Process first{{}};
    EXPECT_EQ(first.waitForEnd(settleTime), std::nullopt);
}

TEST(Instance, StartedSecondWithoutArgumentsLeavesAndTheFirstGoesOn)
{
    const Process first{{}};
    ASSERT_EQ(first.waitForEnd(settleTime), std::nullopt);
    const Process second{{}};
    EXPECT_EQ(second.waitForEnd(startTime), 0);
    EXPECT_TRUE(first.running());
}

TEST(Instance, StartedSecondWithANumberAloneLeavesAndTheFirstGoesOn)
{
    const Process first{{}};
    ASSERT_EQ(first.waitForEnd(settleTime), std::nullopt);
    const Process second{{"1"}};
    EXPECT_EQ(second.waitForEnd(startTime), 0);
    EXPECT_TRUE(first.running());
}

TEST(Instance, StartedWithArgumentsReplacesTheRunningOne)
{
    const Process first{{}};
    ASSERT_EQ(first.waitForEnd(settleTime), std::nullopt);
    const Process second{{"1", "room.html"}};
    EXPECT_EQ(first.waitForEnd(startTime), replacedStatus);
    EXPECT_EQ(second.waitForEnd(settleTime), std::nullopt);
}

TEST(Instance, MayBeReplacedTimeAndAgain)
{
    auto running = std::make_unique<Process>(std::vector<std::string>{});
    ASSERT_EQ(running->waitForEnd(settleTime), std::nullopt);
    for (int i = 0; i < 3; ++i) {
        auto next = std::make_unique<Process>(std::vector<std::string>{"1", "room.html"});
        EXPECT_EQ(running->waitForEnd(startTime), replacedStatus);
        EXPECT_EQ(next->waitForEnd(settleTime), std::nullopt);
        running = std::move(next);
    }
}

} // namespace
} // namespace rf::test
