#include "orders/cost_center.h"

#include "basic/pattern_regional.h"
#include "ui/controls.h"

#include <gtest/gtest.h>

namespace rf::orders {
namespace {

class CostCenter : public ::testing::Test {
protected:
    [[nodiscard]] bool complete(TextView format, TextView first, TextView second = {}) const
    {
        return isCostCenterComplete(regional, format, first, second);
    }
    PatternRegional regional{englishSettings()};
};

TEST_F(CostCenter, HasOneFieldTwoHalvesOrNone)
{
    EXPECT_EQ(costCenterFields(u"1"), CostCenterFields::Whole);
    EXPECT_EQ(costCenterFields(u"XXX-XXX"), CostCenterFields::Halves);
    for (const TextView format : {u"0", u"2", u"", u"xxx-xxx", u"1 "})
        EXPECT_EQ(costCenterFields(format), CostCenterFields::None);
}

TEST_F(CostCenter, IsShownWholeOrInHalves)
{
    EXPECT_EQ(shownCostCenter(u"1", u"4711 West").first, u"4711 West");
    EXPECT_EQ(shownCostCenter(u"1", u"4711 West").second, std::nullopt);
    EXPECT_EQ(shownCostCenter(u"XXX-XXX", u"123456").first, u"123");
    EXPECT_EQ(shownCostCenter(u"XXX-XXX", u"123456").second, u"456");
    EXPECT_EQ(shownCostCenter(u"0", u"123456").first, std::nullopt);
    EXPECT_EQ(shownCostCenter(u"0", u"123456").second, std::nullopt);
}

TEST_F(CostCenter, StoredOfFiveCharactersInFormatXXXXXXFillsOnlyTheFirstHalf)
{
    for (const TextView stored : {u"12345", u"1234567"}) {
        EXPECT_EQ(shownCostCenter(u"XXX-XXX", stored).first, u"123");
        EXPECT_EQ(shownCostCenter(u"XXX-XXX", stored).second, std::nullopt);
    }
    EXPECT_EQ(shownCostCenter(u"XXX-XXX", u"12").first, u"12");
    EXPECT_EQ(shownCostCenter(u"XXX-XXX", u"").first, u"");
}

TEST_F(CostCenter, IsStoredWithoutADash)
{
    EXPECT_EQ(storedCostCenter(u"1", u"4711", u"999"), u"4711");
    EXPECT_EQ(storedCostCenter(u"XXX-XXX", u"123", u"456"), u"123456");
    EXPECT_EQ(storedCostCenter(u"XXX-XXX", u"123", u""), u"123");
    EXPECT_EQ(storedCostCenter(u"0", u"123", u"456"), std::nullopt);
    EXPECT_EQ(storedCostCenter(u"", u"123", u"456"), std::nullopt);
}

TEST_F(CostCenter, OfFormat1IsCompleteWhenItIsNotEmpty)
{
    EXPECT_TRUE(complete(u"1", u"x"));
    EXPECT_TRUE(complete(u"1", u" "));
    EXPECT_FALSE(complete(u"1", u"", u"456"));
}

TEST_F(CostCenter, OfFormat0IsCompleteWithThreeCharactersAndBothNumericOrTheSecondEmpty)
{
    EXPECT_TRUE(complete(u"0", u"123", u"456"));
    EXPECT_TRUE(complete(u"0", u"123", u"4"));
    EXPECT_TRUE(complete(u"0", u"abc"));
    EXPECT_FALSE(complete(u"0", u"abc", u"456"));
    EXPECT_FALSE(complete(u"0", u"123", u"x"));
    EXPECT_FALSE(complete(u"0", u"12"));
    EXPECT_FALSE(complete(u"0", u"1234"));
    EXPECT_FALSE(complete(u"0", u""));
}

TEST_F(CostCenter, OfAnyOtherFormatIsNeverComplete)
{
    EXPECT_FALSE(complete(u"XXX-XXX", u"123", u"456"));
    EXPECT_FALSE(complete(u"2", u"123", u"456"));
    EXPECT_FALSE(complete(u"", u"123"));
}

TEST_F(CostCenter, TakesDigitsAndBackspaceInItsHalves)
{
    for (const char16_t key : {u'0', u'9', u'5', ui::backspaceKey}) {
        EXPECT_TRUE(firstFieldTakes(u"XXX-XXX", key));
        EXPECT_TRUE(secondFieldTakes(key));
    }
    for (const char16_t key : {u'a', u'-', u' ', u'/', u':', u'\u0663', u'\r'}) {
        EXPECT_FALSE(firstFieldTakes(u"XXX-XXX", key));
        EXPECT_TRUE(firstFieldTakes(u"1", key));
        EXPECT_FALSE(secondFieldTakes(key));
    }
}

TEST_F(CostCenter, GoesToTheSecondHalfAfterThreeCharacters)
{
    EXPECT_TRUE(goesToSecondField(u"XXX-XXX", u"123"));
    EXPECT_TRUE(goesToSecondField(u"XXX-XXX", u" 123 "));
    EXPECT_FALSE(goesToSecondField(u"XXX-XXX", u"12"));
    EXPECT_FALSE(goesToSecondField(u"XXX-XXX", u"12 "));
    EXPECT_FALSE(goesToSecondField(u"XXX-XXX", u"1234"));
    EXPECT_FALSE(goesToSecondField(u"1", u"123"));
}

} // namespace
} // namespace rf::orders
