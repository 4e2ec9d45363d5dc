#include "host/day_layout.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

std::vector<Lane> lanesOf(const std::vector<Span>& spans) { return sideBySide(spans); }

TEST(DayLayout, GivesABookingThatStandsAloneTheWholeWidth)
{
    EXPECT_EQ(lanesOf({{0, 60}, {60, 120}}), (std::vector<Lane>{{0, 1}, {0, 1}}));
}

TEST(DayLayout, PutsOverlappingBookingsSideBySide)
{
    EXPECT_EQ(lanesOf({{0, 60}, {30, 90}}), (std::vector<Lane>{{0, 2}, {1, 2}}));
    EXPECT_EQ(lanesOf({{0, 60}, {0, 60}, {0, 60}}), (std::vector<Lane>{{0, 3}, {1, 3}, {2, 3}}));
}

TEST(DayLayout, UsesALaneAgainThatIsFree)
{
    EXPECT_EQ(lanesOf({{0, 30}, {0, 90}, {30, 60}}), (std::vector<Lane>{{0, 2}, {1, 2}, {0, 2}}));
}

TEST(DayLayout, SharesTheWidthAlikeAmongAllThatHangTogether)
{
    EXPECT_EQ(
        lanesOf({{0, 60}, {30, 120}, {90, 150}, {150, 180}}), (std::vector<Lane>{{0, 2}, {1, 2}, {0, 2}, {0, 1}}));
}

TEST(DayLayout, StacksBarsThatWouldCoverEachOther)
{
    EXPECT_EQ(stackedRows(std::vector<Span>{{0, 2}, {1, 3}, {2, 4}, {0, 7}}), (std::vector<int>{0, 1, 0, 2}));
}

TEST(DayLayout, OfNothingIsNothing)
{
    EXPECT_TRUE(lanesOf({}).empty());
    EXPECT_TRUE(stackedRows({}).empty());
}

} // namespace

} // namespace rf::host
