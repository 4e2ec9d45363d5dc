#include "basic/text.h"

#include <gtest/gtest.h>

#include <limits>

namespace rf {
namespace {

using Pieces = std::vector<Text>;

TEST(Trim, TakesBlanksAtBothEndsOnly) { EXPECT_EQ(trim(u"  a b  "), u"a b"); }

TEST(Trim, KeepsTabsLineEndsAndOtherBlanks)
{
    EXPECT_EQ(trim(u" \ta\r\n "), u"\ta\r\n");
    EXPECT_EQ(trim(u"\u00A0a\u00A0"), u"\u00A0a\u00A0");
}

TEST(Trim, LeavesNothingOfBlanks)
{
    EXPECT_EQ(trim(u"   "), u"");
    EXPECT_EQ(trim(u""), u"");
}

TEST(Split, KeepsEmptyPieces) { EXPECT_EQ(split(u";a;;b;", u";"), (Pieces{u"", u"a", u"", u"b", u""})); }

TEST(Split, GivesNoPieceOfAnEmptyText)
{
    EXPECT_TRUE(split(u"", u";").empty());
    EXPECT_TRUE(split(u"", u"").empty());
}

TEST(Split, GivesTheWholeTextForAnEmptyDelimiter) { EXPECT_EQ(split(u"a;b", u""), (Pieces{u"a;b"})); }

TEST(Split, GivesTheWholeTextWithoutADelimiterInIt) { EXPECT_EQ(split(u"a;b", u","), (Pieces{u"a;b"})); }

TEST(Split, TakesDelimitersOfSeveralUnits)
{
    EXPECT_EQ(split(u"a\r\n\rb\r\n", lineBreak), (Pieces{u"a", u"\rb", u""}));
    EXPECT_EQ(split(u"aaa", u"aa"), (Pieces{u"", u"a"}));
    EXPECT_EQ(split(u"a\r", lineBreak), (Pieces{u"a\r"}));
}

TEST(Split, ComparesExactly) { EXPECT_EQ(split(u"aXb", u"x"), (Pieces{u"aXb"})); }

TEST(SplitViews, PointsIntoTheText)
{
    const Text text = u"one;two";
    const auto views = splitViews(text, u";");
    ASSERT_EQ(views.size(), 2U);
    EXPECT_EQ(views[1].data(), text.data() + 4);
    EXPECT_EQ(views[1], u"two");
}

TEST(Join, PutsTheDelimiterBetweenEachTwoPieces)
{
    EXPECT_EQ(join(Pieces{u"a", u"", u"b"}, u", "), u"a, , b");
    EXPECT_EQ(join(Pieces{u"a"}, u", "), u"a");
    EXPECT_EQ(join(Pieces{}, u", "), u"");
}

TEST(Join, UndoesSplit)
{
    const Text text = u"\r\na\r\n\r\nb\r\n";
    EXPECT_EQ(join(split(text, lineBreak), lineBreak), text);
}

TEST(ReplaceAll, ReplacesFromLeftToRightWithoutOverlap)
{
    EXPECT_EQ(replaceAll(u"aaa", u"aa", u"b"), u"ba");
    EXPECT_EQ(replaceAll(u"a.b.", u".", u".."), u"a..b..");
    EXPECT_EQ(replaceAll(u"a.b", u".", u""), u"ab");
}

TEST(ReplaceAll, ComparesExactly) { EXPECT_EQ(replaceAll(u"aA", u"A", u"b"), u"ab"); }

TEST(ReplaceAll, LeavesTheTextWhereThereIsNothingToFind)
{
    EXPECT_EQ(replaceAll(u"abc", u"", u"x"), u"abc");
    EXPECT_EQ(replaceAll(u"", u"a", u"x"), u"");
}

TEST(Decimal, WritesDigitsWithoutPadding)
{
    EXPECT_EQ(decimal(0), u"0");
    EXPECT_EQ(decimal(-42), u"-42");
    EXPECT_EQ(decimal(std::numeric_limits<long long>::max()), u"9223372036854775807");
    EXPECT_EQ(decimal(std::numeric_limits<long long>::min()), u"-9223372036854775808");
}

} // namespace
} // namespace rf
