#include "basic/decimal_number.h"

#include <gtest/gtest.h>

#include <limits>

namespace rf {
namespace {

TEST(DecimalNumber, HoldsTheDigitsOfADouble)
{
    EXPECT_EQ(fifteenDigits(-2.5), (DecimalNumber{true, "25", -1}));
    EXPECT_EQ(fifteenDigits(1200), (DecimalNumber{false, "12", 2}));
    EXPECT_EQ(fifteenDigits(0.1), (DecimalNumber{false, "1", -1}));
    EXPECT_EQ(fifteenDigits(0).digits, "");
    EXPECT_EQ(shortestDigits(922337203685477.5), (DecimalNumber{false, "9223372036854775", -1}));
    EXPECT_EQ(shortestDigits(5e-324), (DecimalNumber{false, "5", -324}));
}

TEST(DecimalNumber, RoundsHalfAwayFromZero)
{
    EXPECT_EQ(rounded({false, "125", -3}, 2), (DecimalNumber{false, "13", -2}));
    EXPECT_EQ(rounded({true, "995", -3}, 2), (DecimalNumber{true, "100", -2}));
    EXPECT_EQ(rounded({false, "5", -1}, 0), (DecimalNumber{false, "1", 0}));
    EXPECT_EQ(rounded({false, "49", -2}, 0).digits, "");
    EXPECT_EQ(rounded({false, "9", -5}, 0).digits, "");
    EXPECT_EQ(rounded({false, "7", 3}, 2), (DecimalNumber{false, "7", 3}));
}

TEST(DecimalNumber, SurvivesTheWayThroughADouble)
{
    for (const double number : {1.0, -2.5, 0.1, 1e300, 4.9e-324, std::numeric_limits<double>::max()}) {
        EXPECT_EQ(toDouble(shortestDigits(number)), number);
    }
}

TEST(DecimalNumber, WritesAtLeastOneDigitBeforeTheSeparator)
{
    EXPECT_EQ(writeFixed({false, "5", -2}, 2, u","), u"0,05");
    EXPECT_EQ(writeFixed({false, "5", 2}, 1, u"."), u"500.0");
    EXPECT_EQ(writePlain({true, "5", -3}, u"."), u"-0.005");
    EXPECT_EQ(writeScientific({false, "15", 19}, u","), u"1,5E+20");
}

} // namespace
} // namespace rf
