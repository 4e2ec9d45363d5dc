#include "basic/random_numbers.h"

#include <gtest/gtest.h>

#include <array>

namespace rf {
namespace {

TEST(RandomNumbers, LieEvenlyFromZeroUpToBelowOne)
{
    const auto next = systemRandomNumbers();
    std::array<int, 10> counts{};
    constexpr int draws = 100'000;
    for (int draw = 0; draw < draws; ++draw) {
        const double number = next();
        ASSERT_GE(number, 0.0);
        ASSERT_LT(number, 1.0);
        ++counts[static_cast<std::size_t>(number * 10)];
    }
    constexpr int share = draws / 10;
    constexpr int deviation = draws / 100;
    for (const int count : counts)
        EXPECT_NEAR(count, share, deviation);
}

TEST(RandomNumbers, DifferFromOneSourceToTheNext) { EXPECT_NE(systemRandomNumbers()(), systemRandomNumbers()()); }

} // namespace
} // namespace rf
