#include "basic/text.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

constexpr char16_t replacement = 0xFFFD;

TEST(Utf8, WritesCharactersOfEveryLength)
{
    EXPECT_EQ(toUtf8(u"a"), "a");
    EXPECT_EQ(toUtf8(u"ä"), "\xC3\xA4");
    EXPECT_EQ(toUtf8(u"€"), "\xE2\x82\xAC");
    EXPECT_EQ(toUtf8(u"\U0001F600"), "\xF0\x9F\x98\x80");
    EXPECT_EQ(toUtf8(u""), "");
}

TEST(Utf8, ReadsCharactersOfEveryLength)
{
    EXPECT_EQ(fromUtf8("a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"), u"aä€\U0001F600");
    EXPECT_EQ(fromUtf8("\xF4\x8F\xBF\xBF"), u"\U0010FFFF");
    EXPECT_EQ(fromUtf8(""), u"");
}

TEST(Utf8, KeepsNulUnits)
{
    const Text text{u'a', u'\0', u'b'};
    EXPECT_EQ(toUtf8(text).size(), 3U);
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
}

TEST(Utf8, RoundTripsEveryUnitAlone)
{
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const Text text(1, static_cast<char16_t>(value));
        ASSERT_EQ(fromUtf8(toUtf8(text)), text) << value;
    }
}

TEST(Utf8, KeepsHalvesOfPairsAsTheyAre)
{
    const Text swapped{0xDE00, 0xD83D, u'a', 0xD83D};
    EXPECT_EQ(toUtf8(swapped),
        "\xED\xB8\x80\xED\xA0\xBD"
        "a"
        "\xED\xA0\xBD");
    EXPECT_EQ(fromUtf8(toUtf8(swapped)), swapped);
}

TEST(Utf8, JoinsHalvesThatWereWrittenApart)
{
    const std::string bytes = toUtf8(Text{0xD83D}) + toUtf8(Text{0xDE00});
    EXPECT_EQ(fromUtf8(bytes), u"\U0001F600");
}

TEST(Utf8, ReplacesEachByteThatBelongsToNoCharacter)
{
    EXPECT_EQ(fromUtf8("a\x80z"), (Text{u'a', replacement, u'z'}));
    EXPECT_EQ(fromUtf8("\xFF\xFE"), Text(2, replacement));
    EXPECT_EQ(fromUtf8("\xE2\x82"), Text(2, replacement));
    EXPECT_EQ(fromUtf8("\xE2\x82z"), (Text{replacement, replacement, u'z'}));
    EXPECT_EQ(fromUtf8("\xC3"), Text(1, replacement));
}

TEST(Utf8, RefusesLongerFormsThanNeeded)
{
    EXPECT_EQ(fromUtf8("\xC0\x80"), Text(2, replacement));
    EXPECT_EQ(fromUtf8("\xE0\x80\x80"), Text(3, replacement));
    EXPECT_EQ(fromUtf8("\xF0\x80\x80\x80"), Text(4, replacement));
}

TEST(Utf8, RefusesNumbersBeyondUnicode)
{
    EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), Text(4, replacement));
    EXPECT_EQ(fromUtf8("\xF8\x88\x80\x80\x80"), Text(5, replacement));
}

} // namespace
} // namespace rf
