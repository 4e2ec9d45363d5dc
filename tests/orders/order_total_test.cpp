#include "orders/order_total.h"

#include "basic/error_of.h"
#include "basic/locales.h"

#include <gtest/gtest.h>

namespace rf::orders {
namespace {

using automation::Variant;
using test::errorOf;

class OrderTotal : public ::testing::TestWithParam<test::Locale> {
protected:
    PatternRegional regional{GetParam().settings};
};

INSTANTIATE_TEST_SUITE_P(Locales, OrderTotal, ::testing::ValuesIn(test::locales()),
    [](const auto& locale) { return std::string{locale.param.name}; });

TEST_P(OrderTotal, IsShownAsMoney)
{
    EXPECT_EQ(totalText(regional, 12.5), regional.formatMoney(Currency::fromTenThousandths(125000)));
    EXPECT_EQ(totalText(regional, Variant{}), regional.formatMoney(Currency{}));
    EXPECT_EQ(totalText(regional, 0.1 + 0.2), regional.formatMoney(Currency::fromTenThousandths(3000)));
    EXPECT_EQ(totalText(regional, -3), regional.formatMoney(Currency::fromInteger(-3)));
}

TEST_P(OrderTotal, IsShownAsTheSheetHasItWhereItIsNoMoney)
{
    EXPECT_EQ(totalText(regional, u"#VALUE!"), u"#VALUE!");
    EXPECT_EQ(totalText(regional, 1e20), regional.formatNumber(1e20));
    EXPECT_EQ(totalText(regional, -1e20), regional.formatNumber(-1e20));
}

TEST(OrderTotalOfAHalf, IsRoundedToTheEvenNumber)
{
    const PatternRegional regional{englishSettings()};
    EXPECT_FALSE(costsSomething(regional, u"$0.50"));
    EXPECT_TRUE(costsSomething(regional, u"$0.51"));
    EXPECT_TRUE(costsSomething(regional, u"$1.50"));
}

TEST_P(OrderTotal, CostsSomethingAboveNothing)
{
    const auto costs = [&](std::int64_t tenThousandths) {
        return costsSomething(regional, regional.formatMoney(Currency::fromTenThousandths(tenThousandths)));
    };
    EXPECT_FALSE(costs(0));
    EXPECT_TRUE(costs(10000));
    EXPECT_TRUE(costs(12345000));
    EXPECT_FALSE(costs(-120000));
    EXPECT_TRUE(costs(327670000));
    EXPECT_FALSE(costsSomething(regional, u""));
    EXPECT_FALSE(costsSomething(regional, u"#VALUE!"));
}

TEST_P(OrderTotal, Of32768OrMoreOverflowsTheCheck)
{
    const auto failure = [&](std::int64_t whole) {
        const Text shown = regional.formatMoney(Currency::fromInteger(whole));
        return errorOf([&] { static_cast<void>(costsSomething(regional, shown)); });
    };
    EXPECT_EQ(failure(32767), 0);
    EXPECT_EQ(failure(32768), error_number::overflow);
    EXPECT_EQ(failure(900'000'000'000'000), error_number::overflow);
    EXPECT_EQ(failure(-40000), error_number::overflow);
}

} // namespace
} // namespace rf::orders
