#include "storage/settings.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

class SupplyList : public test::SessionTest {
protected:
    [[nodiscard]] Currency priceOf(TextView name) const
    {
        const auto supply = settings.Supply.find(name);
        return supply ? supply->Price : Currency::fromInteger(-1);
    }

    static Currency price(std::int64_t tenThousandths) { return Currency::fromTenThousandths(tenThousandths); }

    Session session{services()};
    cSettings settings{session};
};

TEST_F(SupplyList, IsReadWithANameAndAPriceOnEachLine)
{
    settings.subFillSupply(u"Coffee\t2.5\r\nSandwich\t3\r\n");
    EXPECT_EQ(settings.Supply.keys(), (std::vector<Text>{u"Coffee", u"Sandwich"}));
    EXPECT_EQ(priceOf(u"Coffee"), price(25000));
    EXPECT_EQ(priceOf(u"sandwich"), price(30000));
    EXPECT_EQ(settings.Supply.find(u"SANDWICH")->ItemName, u"Sandwich");
}

TEST_F(SupplyList, KeepsTheFirstPriceOfANameThatIsThereTwice)
{
    settings.subFillSupply(u"Coffee\t2.5\r\ncoffee\t9\r\n");
    EXPECT_EQ(settings.Supply.count(), 1);
    EXPECT_EQ(priceOf(u"Coffee"), price(25000));
    settings.subFillSupply(u"COFFEE\t7\r\nTea\t1\r\n");
    EXPECT_EQ(settings.Supply.count(), 2);
    EXPECT_EQ(priceOf(u"Coffee"), price(25000));
}

TEST_F(SupplyList, IsWrittenInItsOrderWithALineEndBehindEveryLine)
{
    EXPECT_EQ(settings.fncBuildSupplyList(), u"");
    settings.subFillSupply(u"Tea\t1.25\r\nCoffee\t2.5000\r\n");
    EXPECT_EQ(settings.fncBuildSupplyList(), u"Tea\t1.25\r\nCoffee\t2.5\r\n");
}

TEST_F(SupplyList, StaysAsItIsForAnEmptyText)
{
    settings.subFillSupply(u"Coffee\t2.5\r\n");
    settings.subFillSupply(u"");
    EXPECT_EQ(settings.Supply.count(), 1);
}

TEST_F(SupplyList, CountsAPriceThatIsNoNumberAsNothing)
{
    settings.subFillSupply(
        u"A\tfree\r\nB\t\r\nC\t1.2.3\r\nD\t922337203685478\r\nE\t1E+20\r\nF\t-1\r\nG\t0.00005\r\nH\t &H10 \r\n");
    EXPECT_EQ(settings.Supply.count(), 8);
    EXPECT_EQ(priceOf(u"A"), price(0));
    EXPECT_EQ(priceOf(u"B"), price(0));
    EXPECT_EQ(priceOf(u"C"), price(0));
    EXPECT_EQ(priceOf(u"D"), Currency::fromInteger(0)) << "more than there is money";
    EXPECT_EQ(priceOf(u"E"), price(0)) << "more than there is money";
    EXPECT_EQ(priceOf(u"F"), price(-10000));
    EXPECT_EQ(priceOf(u"G"), price(0)) << "half of the smallest amount goes to the even one";
    EXPECT_EQ(priceOf(u"H"), price(160000));
}

TEST_F(SupplyList, LosesNoSupplyToAMissingColumn)
{
    settings.subFillSupply(u"Coffee\t2.5\r\nTea\r\nWater\t1\tstill\r\n");
    EXPECT_EQ(settings.Supply.keys(), (std::vector<Text>{u"Coffee", u"Tea", u"Water"}));
    EXPECT_EQ(priceOf(u"Tea"), price(0));
    EXPECT_EQ(priceOf(u"Water"), price(10000));
}

TEST_F(SupplyList, TakesItsColumnsFromTheFirstLine)
{
    settings.subFillSupply(u"Coffee\r\nTea\t2\r\n");
    EXPECT_EQ(settings.Supply.count(), 2);
    EXPECT_EQ(priceOf(u"Tea"), price(0)) << "the first line has no prices";
}

TEST_F(SupplyList, LosesNoSupplyToStrayLineEnds)
{
    settings.subFillSupply(u"\r\n\r\nCoffee\t2.5\r\n\r\nTea\t2\r\nWater\t1");
    EXPECT_EQ(settings.Supply.keys(), (std::vector<Text>{u"Coffee", u"Tea", u"Water"}));
    EXPECT_EQ(priceOf(u"Water"), price(10000));
    settings.subFillSupply(u"\r\n\r\n");
    EXPECT_EQ(settings.Supply.count(), 3);
}

TEST_F(SupplyList, TakesHalfALineEndForAPartOfTheField)
{
    settings.subFillSupply(u"Coffee\nblack\t2.5\rs\r\n");
    EXPECT_EQ(priceOf(u"Coffee\nblack"), price(0));
}

TEST_F(SupplyList, KeepsEverySupplyWhenItIsReadInAnotherLocale)
{
    const PatternRegional german{germanSettings()};
    Session germanSession{{german, clock, classes, system, processes, toolkit}};
    cSettings germanSettings{germanSession};
    germanSettings.Supply.add(u"Coffee", {price(25000), u"Coffee"});
    germanSettings.Supply.add(u"Tea", {price(12345), u"Tea"});
    const Text text = germanSettings.fncBuildSupplyList();
    EXPECT_EQ(text, u"Coffee\t2,5\r\nTea\t1,2345\r\n");

    settings.subFillSupply(text);
    EXPECT_EQ(settings.Supply.keys(), (std::vector<Text>{u"Coffee", u"Tea"}));
    EXPECT_EQ(priceOf(u"Coffee"), price(250000)) << "the comma groups digits here";

    cSettings readAgain{germanSession};
    readAgain.subFillSupply(text);
    EXPECT_EQ(readAgain.Supply.find(u"Tea")->Price, price(12345));
}

TEST_F(SupplyList, ComesBackUnchangedInEveryAmountOfFourDecimals)
{
    for (const std::int64_t amount : {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{99999},
             std::int64_t{9'223'372'036'854'775'807}, std::int64_t{-9'223'372'036'854'775'807}}) {
        cSettings written{session};
        written.Supply.add(u"Coffee", {price(amount), u"Coffee"});
        cSettings read{session};
        read.subFillSupply(written.fncBuildSupplyList());
        EXPECT_EQ(read.Supply.find(u"Coffee")->Price, price(amount)) << amount;
    }
}

TEST_F(SupplyList, AnnouncesItsSteps)
{
    settings.subFillSupply(u"Coffee\t2.5\r\n");
    EXPECT_EQ(session.trace.fncLastAction(), u"Filling the supply list from Coffee\t2.5\r\n");
    static_cast<void>(settings.fncBuildSupplyList());
    EXPECT_EQ(session.trace.fncLastAction(), u"Building supply list");
}

TEST_F(SupplyList, ReadsAHundredThousandSupplies)
{
    constexpr int supplies = 100'000;
    Text text;
    for (int number = 0; number < supplies; ++number)
        text += u"Item " + decimal(number) + u"\t1\r\n";
    settings.subFillSupply(text);
    EXPECT_EQ(settings.Supply.count(), supplies);
    EXPECT_EQ(settings.fncBuildSupplyList(), text);
}

} // namespace
} // namespace rf
