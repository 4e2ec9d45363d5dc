#include "language/language.h"
#include "language/locale_columns.h"
#include "support/session_fixture.h"
#include "support/texts.h"

#include <set>

namespace rf {
namespace {

using test::ProgramEnded;

constexpr std::size_t columns = 17;

Text line(TextView key, TextView english, TextView german)
{
    std::vector<Text> cells(columns);
    cells[0] = key;
    cells[static_cast<std::size_t>(LanguageColumn::English)] = english;
    cells[static_cast<std::size_t>(LanguageColumn::German)] = german;
    return join(cells, u"\t") + Text{lineBreak};
}

/// A table with a phrase for every key: the key itself in English, and behind "de:" in German.
Text wholeTable()
{
    Text table;
    for (const PhraseKey& entry : phraseKeys)
        table += line(entry.key, entry.key, u"de:" + Text{entry.key});
    return table;
}

class LanguageTest : public test::SessionTest {
protected:
    /// The text of the report that the failing step showed.
    template <class Step>
    Text reportOf(Step&& step)
    {
        EXPECT_THROW(step(), ProgramEnded);
        return toolkit.messages.empty() ? Text{} : toolkit.messages[0].text;
    }

    /// The language of a system with that locale.
    const Phrases& load(std::uint32_t localeId)
    {
        settings = std::make_unique<PatternRegional>(test::withLocale(englishSettings(), localeId));
        session = std::make_unique<Session>(Services{*settings, clock, classes, system, processes, toolkit});
        session->language.LoadLanguages(session->language.fncGetlocalLanguage());
        return session->language.phrases();
    }

    std::unique_ptr<Regional> settings;
    std::unique_ptr<Session> session = std::make_unique<Session>(services());
};

TEST_F(LanguageTest, OnASwedishSystemAddIsSwedish) { EXPECT_EQ(load(1053).LNGADD, u"Lägg till"); }

TEST_F(LanguageTest, OnAModernSortSpanishSystemAddIsEnglish) { EXPECT_EQ(load(3082).LNGADD, u"Add"); }

TEST_F(LanguageTest, ASlovenianSystemShowsGermanWhereThereIsNoSlovenianPhrase)
{
    const Phrases& phrases = load(1060);
    EXPECT_EQ(phrases.LNGADD, u"Dodaj");
    EXPECT_EQ(phrases.LNGPROJECTS, u"Projekte");
}

TEST_F(LanguageTest, APhraseIsStoredWithoutItsApostrophe)
{
    EXPECT_EQ(load(1033).LNGO2KRUNNING, u"If you dont have MS Outlook 2000/2002/2003 running, please start it now!");
}

TEST_F(LanguageTest, FillsAVariableForEveryKey)
{
    system.languageTable = test::utf16LittleEndian(u"\uFEFF" + wholeTable(), false);
    const Phrases& phrases = load(1031);
    for (const PhraseKey& entry : phraseKeys)
        EXPECT_EQ(phrases.*entry.variable, u"de:" + Text{entry.key});
}

TEST_F(LanguageTest, LoadsATableWithoutByteOrderMark)
{
    system.languageTable = test::utf16LittleEndian(wholeTable(), false);
    EXPECT_EQ(load(1033).LNGADD, u"LNGADD");
}

TEST_F(LanguageTest, DropsASecondByteOrderMarkFromTheFirstKey)
{
    system.languageTable = test::utf16LittleEndian(u"\uFEFF" + wholeTable(), true);
    EXPECT_EQ(load(1033).LNGADD, u"LNGADD");
}

TEST_F(LanguageTest, LosesALastLineWithoutItsLineEndAndReportsTheMissingKey)
{
    Text table = wholeTable();
    table.resize(table.size() - lineBreak.size());
    system.languageTable = test::utf16LittleEndian(table);
    const Text report = reportOf([&] { session->language.LoadLanguages(4); });
    EXPECT_NE(report.find(u"Reading phrases from collection into variables"), Text::npos);
    EXPECT_NE(report.find(u"#5\r\n"), Text::npos);
    EXPECT_NE(report.find(u" : LoadLanguages \r\n"), Text::npos);
}

TEST_F(LanguageTest, ReportsAMissingKey)
{
    system.languageTable = test::utf16LittleEndian(replaceAll(wholeTable(), u"LNGUNDO\t", u"LNGOTHER\t"));
    const Text report = reportOf([&] { session->language.LoadLanguages(4); });
    EXPECT_NE(report.find(u" : LoadLanguages \r\n"), Text::npos);
}

TEST_F(LanguageTest, ReportsALineWithFewerCellsThanTheColumn)
{
    system.languageTable = test::utf16LittleEndian(wholeTable() + u"LNGSHORT\tone\ttwo\r\n");
    const Text report = reportOf([&] { session->language.LoadLanguages(4); });
    EXPECT_NE(report.find(u"Reading language phrases from resource file"), Text::npos);
    EXPECT_NE(report.find(u"#9\r\n"), Text::npos);
    EXPECT_NE(report.find(u" : subReadPhrases \r\n"), Text::npos);
}

TEST_F(LanguageTest, ReportsALineThatEndsBeforeTheGermanCellItNeeds)
{
    system.languageTable = test::utf16LittleEndian(u"LNGSHORT\t\t\t\t\r\n");
    const Text report = reportOf([&] { session->language.subReadPhrases(4, false); });
    EXPECT_NE(report.find(u"#9\r\n"), Text::npos);
}

TEST_F(LanguageTest, ReportsAnEmptyLine)
{
    system.languageTable = test::utf16LittleEndian(wholeTable() + u"\r\n");
    const Text report = reportOf([&] { session->language.subReadPhrases(4, false); });
    EXPECT_NE(report.find(u"#9\r\n"), Text::npos);
}

TEST_F(LanguageTest, ReportsAKeyThatStandsTwice)
{
    system.languageTable = test::utf16LittleEndian(wholeTable() + line(u"lngadd", u"Again", u"Nochmals"));
    const Text report = reportOf([&] { session->language.subReadPhrases(4, false); });
    EXPECT_NE(report.find(u"#457\r\n"), Text::npos);
}

TEST_F(LanguageTest, ReportsAMissingResource)
{
    system.languageTable.clear();
    const Text report = reportOf([&] { session->language.subReadPhrases(4, false); });
    EXPECT_NE(report.find(u"#326\r\n"), Text::npos);
}

TEST_F(LanguageTest, ReadsTheResourceFromTheSystemCodePageWhenAsked)
{
    system.languageTable = "?" + toUtf8(line(u"LNGADD", u"Add", u"Hinzufügen"));
    session->language.subReadPhrases(7, true);
    EXPECT_EQ(session->language.colPhrases()(u"LNGADD").LangPhrase, u"Hinzufügen");
}

TEST_F(LanguageTest, APhraseThatIsEmptyInGermanTooStaysEmpty)
{
    system.languageTable = test::utf16LittleEndian(line(u"LNGADD", u"", u""));
    session->language.subReadPhrases(4, false);
    EXPECT_EQ(session->language.colPhrases()(u"LNGADD").LangPhrase, u"");
}

TEST_F(LanguageTest, ALaterLoadReplacesThePhrases)
{
    session->language.LoadLanguages(4);
    session->language.LoadLanguages(7);
    EXPECT_EQ(session->language.phrases().LNGADD, u"Hinzufügen");
    EXPECT_EQ(session->language.colPhrases().count(), phraseKeys.size());
}

TEST(LanguageOfLocale, IsEnglishForEveryLocaleThatIsNotListed)
{
    std::set<std::uint32_t> listed;
    for (const LocaleColumn& entry : localeColumns)
        listed.insert(entry.localeId);
    EXPECT_EQ(listed.size(), localeColumns.size());
    for (std::uint32_t localeId = 0; localeId <= 0xFFFF; ++localeId)
        if (!listed.contains(localeId)) {
            ASSERT_EQ(fncLanguageOfLocale(localeId), 4) << localeId;
        }
}

TEST(LanguageOfLocale, IsTheListedColumn)
{
    EXPECT_EQ(fncLanguageOfLocale(1029), 1);
    EXPECT_EQ(fncLanguageOfLocale(2067), 3);
    EXPECT_EQ(fncLanguageOfLocale(4108), 6);
    EXPECT_EQ(fncLanguageOfLocale(2055), 7);
    EXPECT_EQ(fncLanguageOfLocale(1032), 8);
    EXPECT_EQ(fncLanguageOfLocale(2070), 11);
    EXPECT_EQ(fncLanguageOfLocale(8202), 13);
    EXPECT_EQ(fncLanguageOfLocale(1055), 15);
}

TEST(LanguageOfLocale, LeavesBrazilNynorskAndRussiaToEnglish)
{
    for (const std::uint32_t localeId : {1046U, 2068U, 1049U, 3082U})
        EXPECT_EQ(fncLanguageOfLocale(localeId), 4);
}

} // namespace
} // namespace rf
