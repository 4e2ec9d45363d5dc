#include "support/phrase_resource.h"

#include <set>

namespace rf {
namespace {

constexpr TextView commonMarks = u" 0123456789!(),-./:…";

/// Names that stay as they are in every language, longest first. Their letters belong to no language.
constexpr auto fixedNames = std::to_array<TextView>({
    u"Roomfold for Outlook",
    u"MS Outlook",
    u"SQL Server",
    u"Outlook",
    u"Windows",
    u"WYSIWYG",
    u"Access",
    u"HTML",
    u"SQL",
    u"XXX",
});

enum class Script { None, Latin, Greek, Cyrillic, Other };

Script scriptOf(char16_t unit)
{
    const auto within = [unit](char16_t first, char16_t last) { return unit >= first && unit <= last; };
    if (within(u'A', u'Z') || within(u'a', u'z') || (within(u'\u00C0', u'\u024F') && unit != u'×' && unit != u'÷'))
        return Script::Latin;
    if (within(u'\u0370', u'\u03FF'))
        return Script::Greek;
    if (within(u'\u0400', u'\u052F'))
        return Script::Cyrillic;
    return unit < u'\u0080' || within(u'\u00A0', u'\u00BF') || within(u'\u2010', u'\u2026') ? Script::None
                                                                                            : Script::Other;
}

/// The scripts that meet in a word, for each word; blanks and marks part words.
std::vector<std::set<Script>> scriptsOfWords(TextView phrase)
{
    std::vector<std::set<Script>> words(1);
    for (const char16_t unit : phrase)
        if (const Script script = scriptOf(unit); script != Script::None)
            words.back().insert(script);
        else
            words.emplace_back();
    return words;
}

class PhraseLetters : public test::PhraseResourceTest { };

// A letter of another language, an accent written as an apostrophe, and a look-alike of another script all fail here.
TEST_F(PhraseLetters, BelongToTheAlphabetOfTheLanguage)
{
    for (const test::PhraseLanguage& language : test::phraseLanguages)
        for (const test::TablePhrase& phrase : phrases(language.column)) {
            Text own = phrase.text;
            for (const TextView name : fixedNames)
                own = replaceAll(own, name, u"");
            for (const char16_t unit : own)
                EXPECT_TRUE(language.letters.find(unit) != TextView::npos || language.marks.find(unit) != TextView::npos
                    || commonMarks.find(unit) != TextView::npos)
                    << phrase << " holds \"" << toUtf8(Text{unit}) << '"';
        }
}

TEST_F(PhraseLetters, AreOfOneScriptInEveryWord)
{
    for (const test::TablePhrase& phrase : phrases())
        for (const auto& scripts : scriptsOfWords(phrase.text))
            EXPECT_LE(scripts.size(), 1U) << phrase;
}

TEST_F(PhraseLetters, OfAMixedWordAreTold)
{
    EXPECT_EQ(scriptsOfWords(u"Add Добавить")[0], std::set{Script::Latin});
    EXPECT_EQ(scriptsOfWords(u"Add Добавить")[1], std::set{Script::Cyrillic});
    EXPECT_EQ(scriptsOfWords(u"Д\u006Fбавить")[0], (std::set{Script::Latin, Script::Cyrillic}));
    EXPECT_EQ(scriptsOfWords(u"\u039Futlook")[0], (std::set{Script::Latin, Script::Greek}));
}

TEST_F(PhraseLetters, StandOnceInAnAlphabet)
{
    for (std::size_t i = 0; i < test::phraseLanguages.size(); ++i) {
        const test::PhraseLanguage& language = test::phraseLanguages.at(i);
        EXPECT_EQ(static_cast<std::size_t>(language.column), i + 1) << language.name;
        EXPECT_EQ(std::set(language.letters.begin(), language.letters.end()).size(), language.letters.size())
            << language.name;
    }
}

} // namespace
} // namespace rf
