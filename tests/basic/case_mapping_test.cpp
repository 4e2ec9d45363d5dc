#include "basic/text.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <unordered_map>

namespace rf {
namespace {

TEST(Upper, MapsLettersOfManyScripts)
{
    EXPECT_EQ(upper(u"abcäöüéñçåøž"), u"ABCÄÖÜÉÑÇÅØŽ");
    EXPECT_EQ(upper(u"αβγς"), u"ΑΒΓΣ");
    EXPECT_EQ(upper(u"жџы"), u"ЖЏЫ");
    EXPECT_EQ(upper(u'ÿ'), u'Ÿ');
}

TEST(Upper, KeepsUnitsWithoutOneUpperUnit)
{
    EXPECT_EQ(upper(u'ß'), u'ß');
    EXPECT_EQ(upper(u"Maß 1+1"), u"MAß 1+1");
    EXPECT_EQ(upper(char16_t{0xD83D}), char16_t{0xD83D});
}

TEST(Upper, MapsTheDotlessI) { EXPECT_EQ(upper(u'ı'), u'I'); }

TEST(Lower, MapsLettersOfManyScripts)
{
    EXPECT_EQ(lower(u"ABCÄÖÜÉÑÇÅØŽ"), u"abcäöüéñçåøž");
    EXPECT_EQ(lower(u"ΑΒΓΣ"), u"αβγσ");
    EXPECT_EQ(lower(u"ЖЏЫ"), u"жџы");
    EXPECT_EQ(lower(u'Ÿ'), u'ÿ');
}

TEST(Lower, LeavesWhatHasNoCase) { EXPECT_EQ(lower(u"12;×÷@[`{"), u"12;×÷@[`{"); }

TEST(Upper, LeavesTheNeighboursOfLatinLetters) { EXPECT_EQ(upper(u"@`{×÷"), u"@`{×÷"); }

TEST(Compare, OrdersWithoutRegardToCase)
{
    EXPECT_EQ(compareIgnoringCase(u"Straße", u"STRAßE"), 0);
    EXPECT_LT(compareIgnoringCase(u"abc", u"ABD"), 0);
    EXPECT_GT(compareIgnoringCase(u"b", u"A"), 0);
    EXPECT_LT(compareIgnoringCase(u"B", u"c"), 0);
}

TEST(Compare, PutsTheShorterTextFirst)
{
    EXPECT_LT(compareIgnoringCase(u"ab", u"ABC"), 0);
    EXPECT_GT(compareIgnoringCase(u"ABC", u"ab"), 0);
    EXPECT_LT(compareIgnoringCase(u"", u"a"), 0);
    EXPECT_EQ(compareIgnoringCase(u"", u""), 0);
}

// The underscore lies between the upper and the lower letters.
TEST(Compare, ComparesUpperCaseUnits) { EXPECT_GT(compareIgnoringCase(u"_", u"a"), 0); }

TEST(Equal, IgnoresCaseAndNothingElse)
{
    EXPECT_TRUE(equalIgnoringCase(u"ÄPFEL", u"äpfel"));
    EXPECT_FALSE(equalIgnoringCase(u"Apfel", u"Äpfel"));
    EXPECT_FALSE(equalIgnoringCase(u"a", u"ab"));
    EXPECT_FALSE(equalIgnoringCase(u"ss", u"ß"));
}

TEST(FindIgnoringCase, FindsTheFirstFromAPositionOn)
{
    EXPECT_EQ(findIgnoringCase(u"xAbab", u"AB"), 1U);
    EXPECT_EQ(findIgnoringCase(u"xAbab", u"aB", 2), 3U);
    EXPECT_EQ(findIgnoringCase(u"xAbab", u"ab", 4), Text::npos);
    EXPECT_EQ(findIgnoringCase(u"GRÜN", u"ün"), 2U);
}

TEST(FindIgnoringCase, TreatsEmptyTextsAsTheExactSearchDoes)
{
    EXPECT_EQ(findIgnoringCase(u"abc", u"", 3), 3U);
    EXPECT_EQ(findIgnoringCase(u"abc", u"", 4), Text::npos);
    EXPECT_EQ(findIgnoringCase(u"", u""), 0U);
    EXPECT_EQ(findIgnoringCase(u"", u"a"), Text::npos);
}

TEST(Hash, AgreesWithEqualityForEveryUnit)
{
    const HashIgnoringCase hash;
    for (unsigned value = 0; value <= 0xFFFF; ++value) {
        const Text text(1, static_cast<char16_t>(value));
        for (const Text& other : {upper(text), lower(text)}) {
            if (equalIgnoringCase(text, other)) {
                ASSERT_EQ(hash(text), hash(other)) << value;
            }
        }
    }
}

TEST(Hash, FindsAHundredThousandKeysQuickly)
{
    constexpr int count = 100'000;
    std::vector<Text> keys;
    keys.reserve(count);
    for (int index = 0; index < count; ++index) {
        keys.push_back(u"Resource calendar " + decimal(index));
    }
    const auto start = std::chrono::steady_clock::now();
    std::unordered_map<Text, int, HashIgnoringCase, EqualIgnoringCase> map;
    for (const Text& key : keys) {
        map.emplace(key, 1);
    }
    const auto time = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(map.size(), keys.size());
    EXPECT_EQ(map.count(u"RESOURCE CALENDAR 99999"), 1U);
    // An even spread takes a small part of this; a poor one takes minutes.
    EXPECT_LT(time, std::chrono::seconds{2});
}

} // namespace
} // namespace rf
