#include "orders/orders_form_fixture.h"
#include "orders_fixture.h"

namespace rf::orders {
namespace {

using automation::Variant;

/// The orders form over a spreadsheet of this platform.
class OrdersFormOverSpreadsheet : public OrdersFormTest {
protected:
    OrdersFormOverSpreadsheet() { speak(englishSettings()); }
    ~OrdersFormOverSpreadsheet() override { form.reset(); }

    /// The user's regional settings from here on.
    void speak(const RegionalSettings& settings)
    {
        session.reset();
        regional = std::make_unique<PatternRegional>(settings);
        begin();
        test::offerSpreadsheets(toolkit, contents, settings);
    }
    void supplies(std::size_t count) const
    {
        for (const Text& name : test::supplyNames(count))
            supply(name, 10000);
    }
    [[nodiscard]] outlook::Spreadsheet sheet() const { return outlook::Spreadsheet{contents.back()->object()}; }
    [[nodiscard]] Variant value(TextView address) const { return sheet().range(address).value(); }
    /// What a person types into a quantity; then they move on.
    void type(TextView address, const Variant& quantity) const
    {
        sheet().range(address).setValue(quantity);
        window().select(u"exsOrders", u"$C$3");
    }
    [[nodiscard]] Text sum() const { return window().labelOf(u"lblSum"); }
    [[nodiscard]] Text money(std::int64_t tenThousandths) const
    {
        return regional->formatMoney(Currency::fromTenThousandths(tenThousandths));
    }

    std::vector<std::unique_ptr<native::ControlContent>> contents;
};

TEST_F(OrdersFormOverSpreadsheet, HasNameRateQuantityAndCostInARow)
{
    supply(u"Coffee", 25000);
    supply(u"Tea", 17500);
    const auto item = booking();
    order(item, u"Tea\t4\r\nCoffee\t2\r\n");
    open(item);
    EXPECT_EQ(value(u"A1:C1").array()->values, (std::vector<Variant>{u"Item", u"Rate", u"# of items"}));
    EXPECT_EQ(value(u"A2:D3").array()->values,
        (std::vector<Variant>{u"Coffee", Currency::fromTenThousandths(25000), 2, 5.0, u"Tea",
            Currency::fromTenThousandths(17500), 4, 7.0}));
    EXPECT_EQ(value(u"D101"), Variant{12.0});
    EXPECT_EQ(sheet().viewableRange(), u"$A$1:$C$3");
    EXPECT_EQ(sheet().titleBar().caption(), u"Supply");
    EXPECT_TRUE(sheet().range(u"A2:B3").locked());
    EXPECT_FALSE(sheet().range(u"C2").locked());
    EXPECT_TRUE(sheet().range(u"C1").locked());
    EXPECT_EQ(sheet().range(u"B100").interior().color(), shade);
    EXPECT_TRUE(sheet().activeSheet().protection().enabled());
    EXPECT_TRUE(sheet().screenUpdating());
    window().focus(u"txtBooker");
    EXPECT_EQ(sum(), u"$12.00");
}

TEST_F(OrdersFormOverSpreadsheet, ShowsTheTotalAfterEachQuantity)
{
    supply(u"Coffee", 25000);
    open(booking());
    type(u"C2", 4.0);
    EXPECT_EQ(sum(), u"$10.00");
    type(u"C2", -2.0);
    EXPECT_EQ(sum(), money(-50000));
    type(u"C2", 1.5);
    EXPECT_EQ(sum(), u"$3.75");
    type(u"C2", u"3");
    EXPECT_EQ(sum(), u"$7.50");
    type(u"C2", Variant{});
    EXPECT_EQ(sum(), u"$0.00");
}

TEST_F(OrdersFormOverSpreadsheet, KeepsAQuantityThatIsNoNumberUntilItIsReadAgain)
{
    supply(u"Coffee", 25000);
    supply(u"Tea", 10000);
    const auto item = booking();
    open(item);
    type(u"C3", 2.0);
    type(u"C2", u"many");
    EXPECT_EQ(sum(), u"$2.00");
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Coffee\tmany\r\nTea\t2\r\n");
    open(item);
    EXPECT_EQ(value(u"C2"), Variant{0}) << "what is no number counts as none when it is read again";
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OrdersFormOverSpreadsheet, ShowsATotalBeyondAllMoneyAsTheSheetHasIt)
{
    supply(u"Hall", 9'000'000'000'000'000'000);
    const auto item = booking();
    open(item);
    type(u"C2", 1e12);
    EXPECT_EQ(sum(), regional->formatNumber(9e26));
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Hall\t1000000000000\r\n");
}

TEST_F(OrdersFormOverSpreadsheet, CountsAQuantityBeyondAllNumbersAsNoneWhenItIsReadAgain)
{
    supply(u"Cup", 10000);
    const auto item = booking();
    open(item);
    type(u"C2", 3e9);
    EXPECT_EQ(sum(), money(30'000'000'000'000));
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Cup\t3000000000\r\n");
    open(item);
    EXPECT_EQ(value(u"C2"), Variant{0});
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OrdersFormOverSpreadsheet, EndsTheCheckOfATotalFrom32768On)
{
    supply(u"Hall", 327670000);
    supply(u"Cup", 10000);
    requireCostCenter(u"1");
    open(booking());
    type(u"C2", 1.0);
    EXPECT_EQ(sum(), u"$32,767.00");
    EXPECT_FALSE(form->fncCheckFilledOut());
    type(u"C3", 1.0);
    EXPECT_EQ(sum(), u"$32,768.00");
    EXPECT_NE(reportOf([&] { window().press(u"cmdOK"); }).find(u"fncCheckFilledOut"), Text::npos);
}

TEST_F(OrdersFormOverSpreadsheet, ReadsAndWritesInTheUsersForm)
{
    speak(germanSettings());
    supply(u"Kaffee", 25000);
    const auto item = booking();
    open(item);
    type(u"C2", u"1,5");
    EXPECT_EQ(sum(), money(37500));
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Kaffee\t1,5\r\n");
    open(item);
    EXPECT_EQ(value(u"C2"), Variant{2}) << "an order counts whole things";
}

TEST_F(OrdersFormOverSpreadsheet, KeepsEveryNameWhateverItReadsAs)
{
    supplies(test::oddNames().size());
    const auto item = booking();
    open(item);
    Text expected;
    for (std::int32_t row = 2; const Text& name : test::oddNames()) {
        EXPECT_EQ(value(u"A" + decimal(row)), Variant{name});
        type(u"C" + decimal(row), static_cast<double>(row));
        expected += name + u"\t" + decimal(row) + Text{lineBreak};
        ++row;
    }
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), expected);
    open(item);
    EXPECT_EQ(form->fncBuildOrderList(), expected);
}

class OrdersFormOfMany : public OrdersFormOverSpreadsheet, public ::testing::WithParamInterface<std::size_t> { };

INSTANTIATE_TEST_SUITE_P(Supplies, OrdersFormOfMany, ::testing::Values(1, 99, 100, 500));

TEST_P(OrdersFormOfMany, AddsUpAtMostTheFirst99)
{
    supplies(GetParam());
    const auto item = booking();
    open(item);
    const auto last = static_cast<std::int32_t>(GetParam()) + 1;
    EXPECT_EQ(sheet().viewableRange(), u"$A$1:$C$" + decimal(last));
    EXPECT_EQ(sheet().range(u"D101").formula(), Variant{u"=SUM(D2:D100)"});
    for (std::int32_t row = 2; row <= last; ++row)
        sheet().range(u"C" + decimal(row)).setValue(2.0);
    window().focus(u"txtBooker");
    EXPECT_EQ(sum(), money(std::min<std::int64_t>(static_cast<std::int64_t>(GetParam()), 99) * 20000));
    window().press(u"cmdOK");
    EXPECT_EQ(fncTextToArray(ordersOf(item)).rows(), GetParam());
    open(item);
    EXPECT_EQ(value(u"C" + decimal(last)), Variant{2});
    EXPECT_EQ(value(u"A" + decimal(last)), Variant{test::supplyNames(GetParam()).back()});
}

TEST_F(OrdersFormOverSpreadsheet, QuantitiesForItemsNoLongerInTheSupplyListAreLostWhenTheFormIsSaved)
{
    supply(u"Coffee");
    const auto item = booking();
    order(item, u"Projector\t1\r\nCoffee\t2\r\n");
    open(item);
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Coffee\t2\r\n");
}

TEST_F(OrdersFormOverSpreadsheet, DropsAnOrderWhoseNameDiffersInCase)
{
    supply(u"Coffee");
    const auto item = booking();
    order(item, u"COFFEE\t2\r\n");
    open(item);
    EXPECT_TRUE(value(u"C2").isEmpty());
}

TEST_F(OrdersFormOverSpreadsheet, TakesTheLastOfTwoLinesForOneItem)
{
    supply(u"Coffee");
    const auto item = booking();
    order(item, u"Coffee\t2\r\nCoffee\t5\r\n");
    open(item);
    EXPECT_EQ(value(u"C2"), Variant{5});
}

TEST_F(OrdersFormOverSpreadsheet, FollowsRowsThatAPersonHasSorted)
{
    supply(u"Tea", 10000);
    supply(u"Coffee", 20000);
    const auto item = booking();
    open(item);
    type(u"C2", 1.0);
    type(u"C3", 2.0);
    sheet().range(u"A2:D3").sort(1, sheet().constants().xlAscending(), sheet().constants().xlNo());
    window().focus(u"txtBooker");
    EXPECT_EQ(sum(), u"$5.00");
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Coffee\t2\r\nTea\t1\r\n");
}

TEST_F(OrdersFormOverSpreadsheet, WritesALongOrderInPieces)
{
    supplies(500);
    const auto item = booking();
    open(item);
    for (std::int32_t row = 2; row <= 501; ++row)
        sheet().range(u"C" + decimal(row)).setValue(1.0);
    const Text expected = form->fncBuildOrderList();
    EXPECT_GT(expected.size(), 5000U);
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), expected);
}

TEST_F(OrdersFormOverSpreadsheet, OnASystemWithTheOldestSpreadsheetOnlyWorksTheSame)
{
    toolkit.components.clear();
    test::offerSpreadsheets(toolkit, contents, englishSettings(), native::spreadsheet::Generation::Oldest);
    supply(u"Coffee", 25000);
    open(booking());
    type(u"C2", 4.0);
    EXPECT_EQ(sum(), u"$10.00");
}

TEST_F(OrdersFormOverSpreadsheet, EndsTheProgramWhereThereIsNoSpreadsheet)
{
    toolkit.components.clear();
    supply(u"Coffee");
    EXPECT_THROW(open(booking()), test::ProgramEnded);
    EXPECT_EQ(toolkit.messages.back().text, u"Roomfold for Outlook Booking Info will now shut down!");
}

} // namespace
} // namespace rf::orders
