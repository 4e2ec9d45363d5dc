#include "host/restriction.h"

#include "automation/error.h"
#include "basic/pattern_regional.h"
#include "host/restriction_plan.h"

#include <gtest/gtest.h>

#include <random>

namespace rf::host {
namespace {

const PatternRegional& english()
{
    static const PatternRegional regional{englishSettings()};
    return regional;
}

/// The description of the refusal in UTF-8; empty when the text is accepted.
std::string refusal(TextView text, std::span<const FieldDefinition> fields = {})
{
    try {
        static_cast<void>(Restriction::parse(text, fields, english()));
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), -2147352567);
        return toUtf8(error.description());
    }
    return {};
}

std::string invalidAt(std::size_t position, const std::string& reason)
{
    return "The condition is not valid at position " + std::to_string(position) + ": " + reason + ".";
}

Text repeated(std::size_t count, TextView text)
{
    Text result;
    while (count-- > 0) {
        result += text;
    }
    return result;
}

TEST(RestrictionError, NamesAFieldThatIsNotKnown)
{
    EXPECT_EQ(refusal(u"[Colour] = 'red'"), "The property \"Colour\" is unknown.");
    EXPECT_EQ(refusal(u"[OCID] = 'a'"), "The property \"OCID\" is unknown.");
    EXPECT_EQ(refusal(u"Colour = 'red'"), "The property \"Colour\" is unknown.");
    EXPECT_EQ(refusal(u"[] = 'red'"), "The property \"\" is unknown.");
    EXPECT_EQ(refusal(u"[ Start] = 'red'"), "The property \" Start\" is unknown.");
}

TEST(RestrictionError, WantsBracketsAroundAFieldOfTheFolder)
{
    const std::vector<FieldDefinition> fields{{u"OCID", 1}};
    EXPECT_EQ(refusal(u"[OCID] = 'a'", fields), "");
    EXPECT_EQ(refusal(u"OCID = 'a'", fields), "The property \"OCID\" is unknown.");
}

TEST(RestrictionError, RefusesFieldsThatOutlookRefuses)
{
    EXPECT_EQ(refusal(u"[Body] = 'a'"), "The property \"Body\" is unknown.");
    EXPECT_EQ(refusal(u"[EntryID] = 'a'"), "The property \"EntryID\" is unknown.");
}

TEST(RestrictionError, WantsACondition)
{
    const std::string wanted = "a field, \"not\" or an opening parenthesis was expected";
    EXPECT_EQ(refusal(u""), invalidAt(1, wanted));
    EXPECT_EQ(refusal(u"  "), invalidAt(3, wanted));
    EXPECT_EQ(refusal(u"()"), invalidAt(2, wanted));
    EXPECT_EQ(refusal(u"not"), invalidAt(4, wanted));
    EXPECT_EQ(refusal(u"[Size] = 1 and"), invalidAt(15, wanted));
    EXPECT_EQ(refusal(u"[Size] = 1 or or [Size] = 2"), invalidAt(15, wanted));
    EXPECT_EQ(refusal(u"'x' = [Subject]"), invalidAt(1, wanted));
    EXPECT_EQ(refusal(u"= 'x'"), invalidAt(1, wanted));
}

TEST(RestrictionError, WantsAnOperator)
{
    const std::string wanted = "a comparison operator was expected";
    EXPECT_EQ(refusal(u"[Subject]"), invalidAt(10, wanted));
    EXPECT_EQ(refusal(u"[Subject] 'x'"), invalidAt(11, wanted));
    EXPECT_EQ(refusal(u"[Subject] like 'x'"), invalidAt(11, wanted));
}

TEST(RestrictionError, WantsAValue)
{
    EXPECT_EQ(refusal(u"[Subject] ="), invalidAt(12, "a value was expected"));
    EXPECT_EQ(refusal(u"[Subject] =< 'x'"), invalidAt(12, "a value was expected"));
    EXPECT_EQ(refusal(u"[Subject] = (1)"), invalidAt(13, "a value was expected"));
    EXPECT_EQ(refusal(u"[Start] = [End]"), invalidAt(11, "a value was expected, not another field"));
}

TEST(RestrictionError, WantsAValueOfTheFieldsKind)
{
    EXPECT_EQ(refusal(u"[Subject] = 5"), invalidAt(13, "a text in quotes was expected"));
    EXPECT_EQ(refusal(u"[Subject] = x"), invalidAt(13, "a text in quotes was expected"));
    for (const TextView number :
        {u"x", u"'x'", u"''", u"True", u"1,5", u"1e999", u"inf", u"nan", u"1.2.3", u"--1", u"1\u0661"}) {
        EXPECT_EQ(refusal(Text{u"[Size] = "}.append(number)), invalidAt(10, "a number was expected")) << toUtf8(number);
    }
    for (const TextView truth : {u"maybe", u"2", u"0.0"}) {
        EXPECT_EQ(refusal(Text{u"[AllDayEvent] = "}.append(truth)), invalidAt(17, "True or False was expected"));
    }
}

TEST(RestrictionError, WantsADateThatCanBeRead)
{
    for (const TextView date : {u"''", u"'#'", u"'##'", u"'# #'", u"'soon'", u"'2001-13-13'", u"'#2001-1-2'",
             u"'25:00'", u"'36923'", u"36923", u"True", u"'##2001-1-2##'"}) {
        EXPECT_EQ(refusal(Text{u"[Start] = "}.append(date)), invalidAt(11, "a date in quotes was expected"))
            << toUtf8(date);
    }
    EXPECT_EQ(refusal(u"[Start] = #2001-1-2#"), invalidAt(11, "this character has no meaning outside quotes"));
}

TEST(RestrictionError, WantsEverythingClosed)
{
    EXPECT_EQ(refusal(u"[Subject = 'x'"), invalidAt(1, "the field has no closing bracket"));
    EXPECT_EQ(refusal(u"[Subject] = 'x"), invalidAt(13, "the text has no closing quote"));
    EXPECT_EQ(refusal(u"[Subject] = 'x''"), invalidAt(13, "the text has no closing quote"));
    EXPECT_EQ(refusal(u"[Subject] = '"), invalidAt(13, "the text has no closing quote"));
    EXPECT_EQ(refusal(u"([Size] = 1"), invalidAt(12, "\"and\", \"or\" or a closing parenthesis was expected"));
}

TEST(RestrictionError, WantsNothingBehindTheEnd)
{
    const std::string wanted = R"("and", "or" or the end was expected)";
    EXPECT_EQ(refusal(u"[Size] = 1)"), invalidAt(11, wanted));
    EXPECT_EQ(refusal(u"[Size] = 1 [Size] = 2"), invalidAt(12, wanted));
    EXPECT_EQ(refusal(u"[Size] = 1 xor [Size] = 2"), invalidAt(12, wanted));
    EXPECT_EQ(refusal(u"[Subject] = 'O'Brien'"), invalidAt(16, wanted));
}

TEST(RestrictionError, HasNothingToSayOfCharactersWithoutMeaning)
{
    EXPECT_EQ(refusal(u"] = 1"), invalidAt(1, "this character has no meaning outside quotes"));
    EXPECT_EQ(refusal(u"[Size] = 1 #"), invalidAt(12, "this character has no meaning outside quotes"));
}

TEST(RestrictionLimit, LetsParenthesesNestTwoHundredDeep)
{
    const auto nested = [](std::size_t depth, TextView open) {
        return refusal(repeated(depth, open) + u"[Size] = 1" + repeated(depth, u")"));
    };
    EXPECT_EQ(nested(200, u"("), "");
    EXPECT_EQ(nested(200, u"not("), "");
    EXPECT_EQ(nested(201, u"("), invalidAt(201, "the parentheses nest too deeply"));
    EXPECT_EQ(nested(201, u"not("), invalidAt(804, "the parentheses nest too deeply"));
    EXPECT_EQ(refusal(repeated(30000, u"(")), invalidAt(201, "the parentheses nest too deeply"));
}

TEST(RestrictionLimit, CountsOnlyTheDepthThatIsOpenAtOnce)
{
    EXPECT_EQ(refusal(repeated(500, u"([Size] = 1) and ") + u"[Size] = 1"), "");
}

TEST(RestrictionLimit, LetsNegationsFollowEachOtherWithoutEnd)
{
    EXPECT_EQ(refusal(repeated(8000, u"not ") + u"[Size] = 1"), "");
}

TEST(RestrictionLimit, EndsTheLengthOfAText)
{
    const Text longest = u"[Subject] = '" + Text(32768 - 14, u'x') + u"'";
    EXPECT_EQ(refusal(longest), "");
    EXPECT_EQ(refusal(longest + u" "), invalidAt(32769, "the condition is too long"));
}

TEST(RestrictionLimit, LetsTheDeepestRestrictionBePlannedAndTested)
{
    // The deepest tree with as many comparisons as the length allows.
    Text text = u"[Size]=1";
    for (int depth = 0; depth < 200; ++depth) {
        const TextView word = depth % 2 == 0 ? TextView{u" or "} : TextView{u" and "};
        text = u"(" + text + Text{word} + u"[Start]>'1:00' or [Size]=1 or [End]<'3:00' and [Size]=1 or [Size]=1)";
    }
    ASSERT_LE(text.size(), RestrictionLimits::length);
    const Restriction restriction = Restriction::parse(text, {}, english());
    ItemRecord item;
    EXPECT_FALSE(restriction.matches(item));
    item.size = 1;
    EXPECT_TRUE(restriction.matches(item));
    EXPECT_FALSE(plan(restriction));
}

// What people and programs could send: pieces of the language in any order, and any units at all.
TEST(RestrictionGarbage, IsRefusedOrAcceptedButNeverHarmful)
{
    constexpr TextView pieces[]
        = {u"[Start]", u"[Subject]", u"[OCID]", u"Size", u"=", u"<>", u"<=", u">", u"'x'", u"\"#2001-2-1 9:00 AM#\"",
            u"'''", u"(", u")", u"and", u"or", u"not", u"5", u"-1", u" ", u"#", u"[", u"]", u"True", u"AllDayEvent"};
    const std::vector<FieldDefinition> fields{{u"OCID", 1}};
    std::mt19937 random{7};
    for (int round = 0; round < 20000; ++round) {
        Text text;
        for (auto count = random() % 12; count > 0; --count) {
            text += pieces[random() % std::size(pieces)];
            if (random() % 20 == 0) {
                text += static_cast<char16_t>(random());
            }
        }
        if (refusal(text, fields).empty()) {
            const Restriction restriction = Restriction::parse(text, fields, english());
            static_cast<void>(restriction.matches(ItemRecord{}));
            static_cast<void>(plan(restriction));
        }
    }
}

} // namespace
} // namespace rf::host
