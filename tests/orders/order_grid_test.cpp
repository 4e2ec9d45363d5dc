#include "orders/order_grid.h"

#include "basic/error_of.h"
#include "basic/pattern_regional.h"

#include <gtest/gtest.h>

namespace rf::orders {
namespace {

using automation::Array;
using automation::Variant;
using test::errorOf;

class OrderGrid : public ::testing::Test {
protected:
    void supply(const Text& name, std::int64_t tenThousandths = 10000)
    {
        supplies.push_back(
            std::make_shared<cSupplyItem>(cSupplyItem{Currency::fromTenThousandths(tenThousandths), name}));
    }
    [[nodiscard]] std::vector<GridQuantity> quantities(TextView orders) const
    {
        return gridQuantities(regional, supplies, orders);
    }
    static Array rows(std::vector<Variant> values)
    {
        const auto count = static_cast<std::int32_t>(values.size() / 3);
        return {{{1, count}, {1, 3}}, std::move(values)};
    }

    PatternRegional regional{englishSettings()};
    Supplies supplies;
};

TEST_F(OrderGrid, HasARowForEachSupply)
{
    EXPECT_EQ(lastRow(supplies), 1);
    supply(u"Coffee", 25000);
    supply(u"Tea", 17500);
    EXPECT_EQ(lastRow(supplies), 3);
    const Array cells = supplyCells(supplies);
    EXPECT_EQ(cells.dimensions, (std::vector<Array::Dimension>{{1, 2}, {1, 2}}));
    EXPECT_EQ(cells.values,
        (std::vector<Variant>{
            u"Coffee", Currency::fromTenThousandths(25000), u"Tea", Currency::fromTenThousandths(17500)}));
}

TEST_F(OrderGrid, FindsTheCellOfEachQuantity)
{
    supply(u"Coffee");
    supply(u"Tea");
    EXPECT_EQ(quantities(u"Tea\t3\r\nCoffee\t-12\r\n"), (std::vector<GridQuantity>{{u"c3", 3}, {u"c2", -12}}));
    EXPECT_EQ(quantities(u""), std::vector<GridQuantity>{});
}

TEST_F(OrderGrid, DropsWhatIsNoSupplyToTheLetter)
{
    supply(u"Coffee");
    EXPECT_EQ(quantities(u"COFFEE\t1\r\nTea\t2\r\nCoffee \t3\r\n"), std::vector<GridQuantity>{});
}

TEST_F(OrderGrid, CountsWhatIsNoNumberAsZero)
{
    supply(u"Coffee");
    EXPECT_EQ(quantities(u"Coffee\tmany\r\n"), (std::vector<GridQuantity>{{u"c2", 0}}));
    EXPECT_EQ(quantities(u"Coffee\r\n"), (std::vector<GridQuantity>{{u"c2", 0}}));
    EXPECT_EQ(quantities(u"Coffee\t2.5\r\n"), (std::vector<GridQuantity>{{u"c2", 2}}));
}

TEST_F(OrderGrid, RefusesAQuantityBeyond32BitsAndAShortLine)
{
    supply(u"Coffee");
    EXPECT_EQ(errorOf([&] { static_cast<void>(quantities(u"Coffee\t3000000000\r\n")); }), error_number::overflow);
    EXPECT_EQ(
        errorOf([&] { static_cast<void>(quantities(u"Coffee\t1\r\nTea\r\n")); }), error_number::subscriptOutOfRange);
}

TEST_F(OrderGrid, WritesALineForEachQuantityThatIsNotEmpty)
{
    EXPECT_EQ(
        orderLines(regional,
            rows({u"Coffee", 2.5, 12.0, u"Tea", 1.75, Variant{}, u"Cake", 3, u"", u"Milk", 1, 0, u"Juice", 2, u"two"})),
        u"Coffee\t12\r\nMilk\t0\r\nJuice\ttwo\r\n");
    EXPECT_EQ(orderLines(regional, {}), u"");
}

TEST_F(OrderGrid, WritesQuantitiesInTheUsersForm)
{
    const PatternRegional german{germanSettings()};
    EXPECT_EQ(orderLines(german, rows({u"Coffee", 2.5, 1.5})), u"Coffee\t1,5\r\n");
    EXPECT_EQ(orderLines(regional, rows({u"Coffee", 2.5, 1e20})), u"Coffee\t1E+20\r\n");
    EXPECT_EQ(orderLines(regional, rows({u"Coffee", 2.5, -3.0})), u"Coffee\t-3\r\n");
}

} // namespace
} // namespace rf::orders
