#include "support/phrase_resource.h"

#include <algorithm>
#include <map>
#include <set>

namespace rf {
namespace {

using enum LanguageColumn;

class PhraseLanguages : public test::PhraseResourceTest { };

TEST_F(PhraseLanguages, AreCompleteButForSlovenian)
{
    for (const test::PhraseLanguage& language : test::phraseLanguages)
        if (language.column != Slovenian) {
            for (const auto& cells : lines)
                EXPECT_FALSE(cells.at(static_cast<std::size_t>(language.column)).empty())
                    << toUtf8(cells[0]) << ", " << language.name;
        }
}

// The few are what is seen most; the German phrases that stand in for the rest keep the fallback in use.
TEST_F(PhraseLanguages, HoldFewPhrasesInSlovenian)
{
    std::set<Text> keys;
    for (const test::TablePhrase& phrase : phrases(Slovenian))
        keys.insert(phrase.key);
    EXPECT_LE(keys.size(), 30U);
    for (const TextView key : {u"LNGADD", u"LNGOK", u"LNGCANCEL"})
        EXPECT_TRUE(keys.contains(Text{key})) << toUtf8(key);
}

/// Phrases that are the same word in the other language as in English. Any other that equals the English one was left
/// over when it was translated.
std::map<Text, std::set<LanguageColumn>> sharedWithEnglish()
{
    return {
        {u"LNGBOOK", {Danish}},
        {u"LNGCOLOR", {Spanish}},
        {u"LNGDATABASE", {Danish, Dutch, Italian, Norwegian}},
        {u"LNGDATE", {French}},
        {u"LNGDESCRIPTION", {French}},
        {u"LNGHYPERLINK", {Danish, Dutch, German}},
        {u"LNGMINUTES", {French}},
        {u"LNGNAME", {German}},
        {u"LNGOK", {Czech, Danish, Dutch, Finnish, French, German, Italian, Norwegian, Portuguese, Swedish}},
        {u"LNGPASSWORD", {Italian}},
        {u"LNGPROJ", {Czech, Danish, Dutch, Finnish, French, German, Portuguese, Swedish, Turkish}},
        {u"LNGPROJECT", {Dutch}},
        {u"LNGSERVER", {Czech, Danish, Dutch, German, Italian, Norwegian, Swedish}},
        {u"LNGTEST", {Danish, Norwegian}},
        {u"LNGWEEK", {Dutch}},
    };
}

TEST_F(PhraseLanguages, EqualEnglishOnlyWhereTheWordIsTheSame)
{
    const auto sharedWords = sharedWithEnglish();
    for (const test::TablePhrase& phrase : phrases())
        if (phrase.language != English) {
            const auto shared = sharedWords.find(phrase.key);
            const bool same = shared != sharedWords.end() && shared->second.contains(phrase.language);
            EXPECT_EQ(phrase.text == phrase.english, same) << phrase;
        }
}

} // namespace
} // namespace rf
