#include "orders/orders.h"

#include "basic/conversion.h"
#include "orders/text_table.h"
#include "storage/settings.h"
#include "support/session_fixture.h"

#include "basic/error_of.h"

namespace rf {
namespace {

using test::errorOf;

class Orders : public test::SessionTest {
protected:
    Orders()
    {
        session.objSettings = std::make_unique<cSettings>(session);
        supply(u"Coffee", 25000);
        supply(u"Sandwich", 33333);
    }

    void supply(const Text& name, std::int64_t tenThousandths) const
    {
        session.objSettings->Supply.add(name, {Currency::fromTenThousandths(tenThousandths), name});
    }

    Session session{services()};
};

TEST_F(Orders, WithoutRowsAreTheEmptyText)
{
    const cOrders orders{session};
    EXPECT_EQ(orders.OrdersString(), u"");
    EXPECT_EQ(orders.OrderRows().count(), 0);
    EXPECT_EQ(orders.OrderTotal(), Currency{});
}

TEST_F(Orders, AreWrittenWithALineForEachRow)
{
    cOrders orders{session};
    orders.Add({u"Coffee", 12});
    orders.Add({u"Sandwich", 3});
    EXPECT_EQ(orders.OrdersString(), u"Coffee\t12\r\nSandwich\t3\r\n");
}

TEST_F(Orders, KeepTwoRowsOfOneItemApart)
{
    cOrders orders{session};
    orders.Add({u"Coffee", 1});
    orders.Add({u"Coffee", 2});
    EXPECT_EQ(orders.OrderRows().keys(), (std::vector<Text>{u"1", u"2"}));
    EXPECT_EQ(orders.OrdersString(), u"Coffee\t1\r\nCoffee\t2\r\n");
}

TEST_F(Orders, SkipAnItemThatIsNoSupplyAndLeaveNoGap)
{
    cOrders orders{session};
    orders.Add({u"Coffee", 1});
    orders.Add({u"Projector", 5});
    orders.Add({u"Sandwich", 2});
    EXPECT_EQ(orders.OrderRows().keys(), (std::vector<Text>{u"1", u"2"}));
    EXPECT_EQ(orders.OrdersString(), u"Coffee\t1\r\nSandwich\t2\r\n");
    EXPECT_EQ(orders.OrderTotal(), Currency::fromTenThousandths(25000 + 66666));
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_FALSE(session.objSettings->Supply.exists(u"Projector"));
}

TEST_F(Orders, SkipEveryItemWhileThereAreNoSettings)
{
    session.objSettings.reset();
    cOrders orders{session};
    orders.Add({u"Coffee", 1});
    EXPECT_EQ(orders.OrdersString(), u"");
}

TEST_F(Orders, KnowSuppliesInAnyCaseAndKeepTheRowsSpelling)
{
    cOrders orders{session};
    orders.Add({u"COFFEE", 2});
    EXPECT_EQ(orders.OrdersString(), u"COFFEE\t2\r\n");
    EXPECT_EQ(orders.OrderTotal(), Currency::fromTenThousandths(50000));
}

TEST_F(Orders, WriteNothingOrderedAsZeroAndKeepTheSignOfLess)
{
    cOrders orders{session};
    orders.Add({u"Coffee", 0});
    orders.Add({u"Sandwich", -4});
    EXPECT_EQ(orders.OrdersString(), u"Coffee\t0\r\nSandwich\t-4\r\n");
    EXPECT_EQ(orders.OrderTotal(), Currency::fromTenThousandths(-133332));
}

TEST_F(Orders, SumUpWithoutALossInTheFourthDecimal)
{
    supply(u"Napkin", 1);
    cOrders orders{session};
    for (int count = 0; count < 10; ++count)
        orders.Add({u"Napkin", 1});
    orders.Add({u"Sandwich", 3});
    EXPECT_EQ(orders.OrderTotal(), Currency::fromTenThousandths(10 + 99999));
}

TEST_F(Orders, FailOnATotalBeyondAllMoneyAndKeepTheRow)
{
    supply(u"Hall", 9'000'000'000'000'000'000);
    cOrders orders{session};
    orders.Add({u"Coffee", 1});
    EXPECT_EQ(errorOf([&] { orders.Add({u"Hall", 2}); }), error_number::overflow);
    EXPECT_EQ(orders.OrderRows().count(), 2);
    EXPECT_EQ(orders.OrderTotal(), Currency::fromTenThousandths(25000));
}

TEST_F(Orders, TakeOtherRowsInPlaceOfTheirOwn)
{
    cOrders orders{session};
    orders.Add({u"Coffee", 1});
    RecordDictionary<cOrderRow> rows{session.scripting.fncCreateDic()};
    rows.add(u"1", cOrderRow{u"Sandwich", 7});
    orders.setOrderRows(rows);
    orders.Add({u"Coffee", 2});
    EXPECT_EQ(orders.OrdersString(), u"Sandwich\t7\r\nCoffee\t2\r\n");
    EXPECT_EQ(rows.count(), 2) << "the rows are the given dictionary itself";
}

TEST_F(Orders, ComeBackFromTheirTextAsTheyWere)
{
    cOrders orders{session};
    orders.Add({u"Coffee", 12});
    orders.Add({u"Sandwich", -3});
    const TextTable table = fncTextToArray(orders.OrdersString());
    cOrders read{session};
    for (std::size_t row = 0; row < table.rows(); ++row)
        read.Add({table.cell(row, 0), toLong(*regional, table.cell(row, 1))});
    EXPECT_EQ(read.OrdersString(), orders.OrdersString());
    EXPECT_EQ(read.OrderTotal(), orders.OrderTotal());
}

TEST_F(Orders, ThatCannotBeMadeEndTheProgram)
{
    classes.factories.erase(Text{outlook::dictionaryClass});
    EXPECT_THROW(cOrders{session}, test::ProgramEnded);
    EXPECT_NE(toolkit.messages.at(0).text.find(u"modScriptingDic.fncCreateDic"), Text::npos);
}

} // namespace
} // namespace rf
