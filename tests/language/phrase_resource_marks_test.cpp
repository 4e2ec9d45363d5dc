#include "support/phrase_resource.h"

#include <algorithm>

namespace rf {
namespace {

class PhraseMarks : public test::PhraseResourceTest { };

constexpr char16_t noBreakSpace = u'\u00A0';

/// Blanks of every width, and what is not seen at all.
bool isBlank(char16_t unit)
{
    return unit <= u' ' || unit == noBreakSpace || (unit >= u'\u2000' && unit <= u'\u200F') || unit == u'\u202F'
        || unit == u'\u3000' || unit == u'\uFEFF';
}

constexpr TextView closingMarks = u".:?!;…,-";

/// The marks that close a phrase: "…" or "!" or nothing.
TextView closing(TextView phrase)
{
    const std::size_t last = phrase.find_last_not_of(closingMarks);
    return phrase.substr(last == TextView::npos ? 0 : last + 1);
}

std::size_t count(TextView text, TextView what)
{
    std::size_t found = 0;
    for (std::size_t at = text.find(what); at != TextView::npos; at = text.find(what, at + what.size()))
        ++found;
    return found;
}

TEST_F(PhraseMarks, AreTheSameAtTheEndInEveryLanguage)
{
    for (const test::TablePhrase& phrase : phrases()) {
        const Text english{closing(phrase.english)};
        const bool greek = phrase.language == LanguageColumn::Greek;
        EXPECT_EQ(closing(phrase.text), greek ? replaceAll(english, u"?", u";") : english) << phrase;
    }
}

// Whether an ellipsis stands apart is a custom of the language.
TEST_F(PhraseMarks, FollowNoBlankButAnEllipsis)
{
    for (const test::TablePhrase& phrase : phrases())
        for (std::size_t i = 1; i < phrase.text.size(); ++i)
            if (TextView{u".:?!;,"}.find(phrase.text[i]) != TextView::npos) {
                EXPECT_NE(phrase.text[i - 1], u' ') << phrase;
            }
}

TEST_F(PhraseMarks, LeaveNoColonAtTheEndWhereEnglishHasNone)
{
    for (const test::TablePhrase& phrase : phrases())
        EXPECT_EQ(phrase.text.ends_with(u':'), phrase.english.ends_with(u':')) << phrase;
}

TEST_F(PhraseMarks, HoldNoBlankAtEitherEnd)
{
    for (const test::TablePhrase& phrase : phrases()) {
        EXPECT_FALSE(isBlank(phrase.text.front())) << phrase;
        EXPECT_FALSE(isBlank(phrase.text.back())) << phrase;
    }
}

TEST_F(PhraseMarks, HoldNoTwoBlanksInARow)
{
    for (const test::TablePhrase& phrase : phrases())
        EXPECT_EQ(std::ranges::adjacent_find(
                      phrase.text, [](char16_t left, char16_t right) { return isBlank(left) && isBlank(right); }),
            phrase.text.end())
            << phrase;
}

// The loader removes the ASCII apostrophe, and users know the English sentence without it.
TEST_F(PhraseMarks, HoldNoAsciiApostropheButTheOneInEnglish)
{
    for (const test::TablePhrase& phrase : phrases()) {
        const bool kept = phrase.key == u"LNGO2KRUNNING" && phrase.language == LanguageColumn::English;
        EXPECT_EQ(count(phrase.text, u"'"), kept ? 1U : 0U) << phrase;
    }
}

TEST_F(PhraseMarks, KeepThePlaceOfANameInEveryLanguage)
{
    for (const test::TablePhrase& phrase : phrases())
        EXPECT_EQ(count(phrase.text, u"XXX"), count(phrase.english, u"XXX")) << phrase;
    const auto english = phrases(LanguageColumn::English);
    EXPECT_EQ(std::ranges::count_if(english, [](const auto& phrase) { return count(phrase.text, u"XXX") > 0; }), 1);
}

TEST_F(PhraseMarks, StandBehindANoBreakSpaceInFrench)
{
    for (const test::TablePhrase& phrase : phrases(LanguageColumn::French))
        for (std::size_t i = 0; i < phrase.text.size(); ++i) {
            const bool wants = TextView{u"!?:;"}.find(phrase.text[i]) != TextView::npos;
            if (wants) {
                EXPECT_TRUE(i > 0 && phrase.text[i - 1] == noBreakSpace) << phrase;
            } else {
                EXPECT_FALSE(i > 0 && phrase.text[i - 1] == noBreakSpace) << phrase;
            }
        }
}

TEST_F(PhraseMarks, OpenQuestionsAndExclamationsInSpanish)
{
    for (const test::TablePhrase& phrase : phrases(LanguageColumn::Spanish)) {
        EXPECT_EQ(count(phrase.text, u"¿"), count(phrase.text, u"?")) << phrase;
        EXPECT_EQ(count(phrase.text, u"¡"), count(phrase.text, u"!")) << phrase;
    }
}

} // namespace
} // namespace rf
