#include "basic/currency.h"

#include "basic/amount.h"
#include "basic/error_of.h"

#include <gtest/gtest.h>

#include <limits>

namespace rf {
namespace {

using test::amount;
using test::errorOf;

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

TEST(Currency, HasFourDecimals)
{
    EXPECT_EQ(Currency{}.tenThousandths(), 0);
    EXPECT_EQ(Currency::fromInteger(-3).tenThousandths(), -30000);
    EXPECT_EQ(Currency::fromDouble(2.5).tenThousandths(), 25000);
    EXPECT_EQ(amount(25000).toDouble(), 2.5);
}

TEST(Currency, TakesIntegersOfItsRangeOnly)
{
    EXPECT_EQ(Currency::fromInteger(922337203685477).tenThousandths(), 9223372036854770000);
    EXPECT_EQ(errorOf([] { return Currency::fromInteger(922337203685478); }), 6);
    EXPECT_EQ(errorOf([] { return Currency::fromInteger(-922337203685478); }), 6);
}

TEST(Currency, RoundsDoublesHalfToEven)
{
    EXPECT_EQ(Currency::fromDouble(0.00005).tenThousandths(), 0);
    EXPECT_EQ(Currency::fromDouble(0.00015).tenThousandths(), 2);
    EXPECT_EQ(Currency::fromDouble(-0.00015).tenThousandths(), -2);
    EXPECT_EQ(Currency::fromDouble(-0.00025).tenThousandths(), -2);
    EXPECT_EQ(Currency::fromDouble(0.000051).tenThousandths(), 1);
    EXPECT_EQ(Currency::fromDouble(1.00015).tenThousandths(), 10002);
    EXPECT_EQ(Currency::fromDouble(1e-300).tenThousandths(), 0);
}

TEST(Currency, TakesDoublesOfItsRangeOnly)
{
    EXPECT_EQ(Currency::fromDouble(922337203685477.5).tenThousandths(), 9223372036854775000);
    EXPECT_EQ(Currency::fromDouble(-922337203685477.5).tenThousandths(), -9223372036854775000);
    EXPECT_EQ(errorOf([] { return Currency::fromDouble(922337203685478); }), 6);
    EXPECT_EQ(errorOf([] { return Currency::fromDouble(-922337203685478); }), 6);
    EXPECT_EQ(errorOf([] { return Currency::fromDouble(1e300); }), 6);
    EXPECT_EQ(errorOf([] { return Currency::fromDouble(std::numeric_limits<double>::quiet_NaN()); }), 6);
    EXPECT_EQ(errorOf([] { return Currency::fromDouble(std::numeric_limits<double>::infinity()); }), 6);
}

TEST(Currency, AddsAndSubtractsExactly)
{
    EXPECT_EQ(amount(1) + amount(2), amount(3));
    EXPECT_EQ(amount(1) - amount(2), amount(-1));
    Currency total;
    for (int count = 0; count < 10; ++count) {
        total += amount(1000);
    }
    EXPECT_EQ(total, Currency::fromInteger(1));
}

TEST(Currency, FailsWhereASumLeavesTheRange)
{
    EXPECT_EQ(amount(largest) + amount(smallest), amount(-1));
    EXPECT_EQ(errorOf([] { return amount(largest) + amount(1); }), 6);
    EXPECT_EQ(errorOf([] { return amount(smallest) + amount(-1); }), 6);
    EXPECT_EQ(errorOf([] { return amount(smallest) - amount(1); }), 6);
    EXPECT_EQ(errorOf([] { return amount(0) - amount(smallest); }), 6);
}

TEST(Currency, MultipliesExactly)
{
    EXPECT_EQ(Currency::fromInteger(3) * amount(25000), amount(75000));
    EXPECT_EQ(Currency::fromInteger(-3) * amount(25000), amount(-75000));
    EXPECT_EQ(amount(12345) * amount(67890), amount(83810));
    EXPECT_EQ(amount(largest) * Currency::fromInteger(1), amount(largest));
    EXPECT_EQ(amount(smallest) * Currency::fromInteger(1), amount(smallest));
    EXPECT_EQ(amount(largest) * Currency::fromInteger(-1), amount(-largest));
}

TEST(Currency, RoundsProductsHalfToEven)
{
    EXPECT_EQ(amount(1) * amount(5000), amount(0));
    EXPECT_EQ(amount(3) * amount(5000), amount(2));
    EXPECT_EQ(amount(-3) * amount(5000), amount(-2));
    EXPECT_EQ(amount(5) * amount(5000), amount(2));
    EXPECT_EQ(amount(-5) * amount(5000), amount(-2));
    EXPECT_EQ(amount(1) * amount(5001), amount(1));
    EXPECT_EQ(amount(-1) * amount(5001), amount(-1));
    EXPECT_EQ(amount(30001) * amount(15000), amount(45002));
    EXPECT_EQ(amount(30003) * amount(15000), amount(45004));
    EXPECT_EQ(amount(-30003) * amount(15000), amount(-45004));
}

TEST(Currency, FailsWhereAProductLeavesTheRange)
{
    EXPECT_EQ(errorOf([] { return amount(largest) * amount(10001); }), 6);
    EXPECT_EQ(errorOf([] { return amount(smallest) * Currency::fromInteger(-1); }), 6);
    EXPECT_EQ(errorOf([] { return amount(largest) * amount(largest); }), 6);
    EXPECT_EQ(errorOf([] { return amount(smallest) * amount(largest); }), 6);
}

TEST(Currency, ReachesTheEdgeOfTheRangeWithAProduct)
{
    EXPECT_EQ(amount(303700049997) * amount(303700049997), amount(9223372036818029970));
    EXPECT_EQ(errorOf([] { return amount(303700049998) * amount(303700049998); }), 6);
}

TEST(Currency, IsOrderedByItsAmount)
{
    EXPECT_LT(amount(-1), amount(0));
    EXPECT_GT(amount(2), amount(1));
    EXPECT_EQ(amount(2), amount(2));
}

} // namespace
} // namespace rf
