#include "language/language.h"
#include "support/phrase_resource.h"
#include "support/session_fixture.h"

#include <algorithm>

namespace rf {
namespace {

/// The systems of a language, and its word for "Add".
struct LocaleSample {
    std::vector<std::uint32_t> localeIds;
    LanguageColumn language;
    TextView add;
};

std::vector<LocaleSample> samples()
{
    return {
        {{1029}, LanguageColumn::Czech, u"Přidat"},
        {{1030}, LanguageColumn::Danish, u"Tilføj"},
        {{1043, 2067}, LanguageColumn::Dutch, u"Toevoegen"},
        {{1035}, LanguageColumn::Finnish, u"Lisää"},
        {{1036, 2060, 3084, 5132, 4108}, LanguageColumn::French, u"Ajouter"},
        {{1031, 3079, 5127, 4103, 2055}, LanguageColumn::German, u"Hinzufügen"},
        {{1032}, LanguageColumn::Greek, u"Προσθήκη"},
        {{1040, 2064}, LanguageColumn::Italian, u"Aggiungi"},
        {{1044}, LanguageColumn::Norwegian, u"Legg til"},
        {{2070}, LanguageColumn::Portuguese, u"Adicionar"},
        {{1060}, LanguageColumn::Slovenian, u"Dodaj"},
        {{1034, 11274, 16394, 13322, 9226, 5130, 7178, 12298, 4106, 18442, 2058, 19466, 6154, 10250, 20490, 15370,
             17418, 14346, 8202},
            LanguageColumn::Spanish, u"Agregar"},
        {{1053}, LanguageColumn::Swedish, u"Lägg till"},
        {{1055}, LanguageColumn::Turkish, u"Ekle"},
        // Great Britain, Spain with the modern sort, Brazil, Nynorsk, Russia, Japan, none at all.
        {{1033, 2057, 3082, 1046, 2068, 1049, 1041, 0}, LanguageColumn::English, u"Add"},
    };
}

/// The built table beside a program that loads it.
class PhraseLocale : public test::PhraseResourceTest {
protected:
    /// The phrase variables of a program on a system with that locale.
    Phrases load(std::uint32_t localeId)
    {
        const PatternRegional regional{test::withLocale(englishSettings(), localeId)};
        test::TestSystem system;
        system.languageTable = test::builtInLanguageTable();
        Session session{Services{regional, clock, classes, system, processes, toolkit}};
        session.language.LoadLanguages(session.language.fncGetlocalLanguage());
        return session.language.phrases();
    }

    /// What the table holds for a key in a language: the German phrase where it holds none, without apostrophes.
    [[nodiscard]] Text shown(std::size_t line, LanguageColumn language) const
    {
        const Text& own = lines.at(line).at(static_cast<std::size_t>(language));
        const Text& german = lines.at(line).at(static_cast<std::size_t>(LanguageColumn::German));
        return replaceAll(own.empty() ? german : own, u"'", u"");
    }

    FixedClock clock{Date::fromFields({2007, 3, 5, 9, 4, 17})};
    test::TestClasses classes;
    test::TestProcesses processes;
    test::RecordingToolkit toolkit;
};

TEST_F(PhraseLocale, ShowsEveryPhraseInTheLanguageOfTheSystem)
{
    for (const LocaleSample& sample : samples())
        for (const std::uint32_t localeId : sample.localeIds) {
            const Phrases phrases = load(localeId);
            EXPECT_EQ(phrases.LNGADD, sample.add) << localeId;
            for (std::size_t i = 0; i < phraseKeys.size(); ++i)
                EXPECT_EQ(phrases.*phraseKeys.at(i).variable, shown(i, sample.language))
                    << "locale " << localeId << ", " << toUtf8(phraseKeys.at(i).key);
            EXPECT_TRUE(toolkit.messages.empty()) << localeId;
        }
}

TEST_F(PhraseLocale, CoversEveryListedLocale)
{
    const auto known = samples();
    for (const LocaleColumn& entry : localeColumns)
        EXPECT_TRUE(std::ranges::any_of(known, [&](const LocaleSample& sample) {
            return sample.language == entry.column
                && std::ranges::find(sample.localeIds, entry.localeId) != sample.localeIds.end();
        })) << entry.localeId;
}

TEST_F(PhraseLocale, ShowsGermanToASlovenianWhereNoPhraseIs)
{
    const Phrases slovenian = load(1060);
    const Phrases german = load(1031);
    std::size_t fallbacks = 0;
    for (std::size_t i = 0; i < phraseKeys.size(); ++i)
        if (lines.at(i).at(static_cast<std::size_t>(LanguageColumn::Slovenian)).empty()) {
            ++fallbacks;
            EXPECT_EQ(slovenian.*phraseKeys.at(i).variable, german.*phraseKeys.at(i).variable)
                << toUtf8(phraseKeys.at(i).key);
        }
    EXPECT_GE(fallbacks, phraseKeys.size() - 30);
}

} // namespace
} // namespace rf
