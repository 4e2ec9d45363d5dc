#include "linux/spreadsheet_reference.h"

#include <gtest/gtest.h>

namespace rf::native::spreadsheet {
namespace {

TEST(SpreadsheetReference, MovesWithItsFormula)
{
    EXPECT_EQ(movedBy(u"B2*C2", {3, 0}), u"B5*C5");
    EXPECT_EQ(movedBy(u"SUM(D2:D100)", {0, 1}), u"SUM(E2:E100)");
    EXPECT_EQ(movedBy(u"Z9+aa1", {1, 1}), u"AA10+AB2");
    EXPECT_EQ(movedBy(u"B2*C2", {}), u"B2*C2");
}

TEST(SpreadsheetReference, StaysWhereItIsFixed) { EXPECT_EQ(movedBy(u"$B$2+$B2+B$2", {1, 1}), u"$B$2+$B3+C$2"); }

TEST(SpreadsheetReference, IsNoNameNoFunctionAndNoTextInQuotes)
{
    EXPECT_EQ(movedBy(u"LOG10(A1)", {1, 0}), u"LOG10(A2)");
    EXPECT_EQ(movedBy(u"A1&\"A1\"&A1", {1, 0}), u"A2&\"A1\"&A2");
    EXPECT_EQ(movedBy(u"RATE2B+1E5+x_A1", {1, 0}), u"RATE2B+1E5+x_A1");
    EXPECT_EQ(movedBy(u"\"open A1", {1, 0}), u"\"open A1");
}

TEST(SpreadsheetReference, StaysWhereItWouldLeaveTheSheet)
{
    EXPECT_EQ(movedBy(u"A1+A9", {-3, 0}), u"A1+A6");
    EXPECT_EQ(movedBy(u"A65536+ZZ1", {1, 1}), u"A65536+ZZ1");
}

} // namespace
} // namespace rf::native::spreadsheet
