#include "diagnostics/error_reporter.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

using test::ProgramEnded;

class ErrorReport : public test::SessionTest {
protected:
    /// Makes the session report an error, as a procedure that gives up does, and answers with the message shown.
    const test::ShownMessage& report(Session& reporting)
    {
        EXPECT_THROW(reporting.reporter.subErrorHandler(u"Type mismatch", 13, 42, u"Main"), ProgramEnded);
        return toolkit.messages.at(0);
    }

    const test::ShownMessage& reportAfterLoading()
    {
        session.language.LoadLanguages(session.language.fncGetlocalLanguage());
        session.trace.subTrace(u"Checking which folders are selected!");
        return report(session);
    }

    Session session{services()};
};

class GermanErrorReport : public ErrorReport {
protected:
    const PatternRegional germanRegional{germanSettings()};
    Session germanSession{{germanRegional, clock, classes, system, processes, toolkit}};
};

constexpr TextView rule = u"----------------------------------------------------------------------";

TEST_F(ErrorReport, ReadsAsWrittenInEnglish)
{
    const auto& shown = reportAfterLoading();
    EXPECT_EQ(shown.text,
        u"There has been an error in this application. Roomfold for Outlook Booking Info (Windows NT 5.1)\r\n"
            + Text{rule}
            + u"\r\n\r\n"
              u"This error has occured: :\r\n"
              u"Checking which folders are selected!\r\n\r\n"
              u"The system error message was: :\r\n"
              u"Type mismatch\r\n#13\r\n\r\n"
              u"Sub routine : Main \r\n"
              u"Error on line: 42\r\n\r\n"
              u"Would you like to send an e-mail with an error report??");
    EXPECT_EQ(shown.caption, u"Roomfold for Outlook Booking Info");
    EXPECT_EQ(shown.style, (ui::MessageStyle{ui::Buttons::YesNo, ui::Icon::None}));
}

TEST_F(GermanErrorReport, ReadsAsWrittenInGerman)
{
    germanSession.language.LoadLanguages(germanSession.language.fncGetlocalLanguage());
    germanSession.trace.subTrace(u"Checking which folders are selected!");
    EXPECT_EQ(report(germanSession).text,
        u"In dieser Anwendung ist ein Fehler aufgetreten. Roomfold for Outlook Booking Info (Windows NT 5.1)\r\n"
            + Text{rule}
            + u"\r\n\r\n"
              u"Folgender Fehler ist aufgetreten: :\r\n"
              u"Checking which folders are selected!\r\n\r\n"
              u"Die Fehlermeldung des Systems lautete: :\r\n"
              u"Type mismatch\r\n#13\r\n\r\n"
              u"Unterroutine : Main \r\n"
              u"Fehler in Zeile: 42\r\n\r\n"
              u"Möchten Sie eine E-Mail mit einem Fehlerbericht senden??");
}

TEST_F(ErrorReport, BeforeAnyTraceHasAnEmptyLineBehindItsFirst)
{
    const Text& text = report(session).text;
    EXPECT_NE(text.find(u"This error has occured: :\r\n\r\n\r\nThe system error message was: :\r\n"), Text::npos);
}

TEST_F(ErrorReport, BeforeTheLanguageIsLoadedHasItsPhrasesAllTheSame)
{
    session.trace.subTrace(u"Attempting to start MS Outlook 2000 or later");
    const Text& text = report(session).text;
    EXPECT_TRUE(text.starts_with(u"There has been an error in this application. "));
    EXPECT_NE(text.find(u"This error has occured: :\r\nAttempting to start MS Outlook 2000 or later\r\n"), Text::npos);
}

TEST_F(ErrorReport, OnWindowsXpEndsItsHeadingInTheSystemsName)
{
    EXPECT_NE(report(session).text.find(u" (Windows NT 5.1)\r\n"), Text::npos);
}

TEST_F(ErrorReport, OnAnUnknownPlatformHasEmptyBrackets)
{
    system.osVersion = {7, 1, 0, {}};
    EXPECT_NE(report(session).text.find(u"Roomfold for Outlook Booking Info ()\r\n"), Text::npos);
}

TEST_F(ErrorReport, AnsweredWithNoEndsTheProgramWithoutTouchingTheHost)
{
    runVisibleHost();
    toolkit.answers = {ui::Answer::No};
    report(session);
    EXPECT_TRUE(classes.asked.empty());
    EXPECT_TRUE(drafts().empty());
}

TEST_F(ErrorReport, KeepsItsMarksWhereAPhraseIsMissing)
{
    system.languageTable.clear();
    EXPECT_EQ(report(session).text,
        u" Roomfold for Outlook Booking Info (Windows NT 5.1)\r\n" + Text{rule}
            + u"\r\n\r\n :\r\n\r\n\r\n :\r\nType mismatch\r\n#13\r\n\r\n : Main \r\n: 42\r\n\r\n?");
}

TEST_F(ErrorReport, AnsweredWithYesIsOpenedAsAMailAndNotSent)
{
    runVisibleHost();
    toolkit.answers = {ui::Answer::Yes};
    const Text shown = report(session).text;

    ASSERT_EQ(drafts().size(), 1U);
    const host::ItemRecord mail = drafts()[0];
    EXPECT_EQ(mail.to, u"support@roomfold.example");
    EXPECT_EQ(mail.subject, u"Error in Roomfold for Outlook Booking Info 5.0.2146 (Windows NT 5.1)");
    EXPECT_TRUE(mail.body.starts_with(u"This error has occured: :\r\n"));
    EXPECT_TRUE(mail.body.ends_with(u"Error on line: 42\r\nOutlook Version: 11.0.8169\r\n"));
    EXPECT_EQ(host->inspectors().count(), 1U);
    EXPECT_EQ(toolkit.messages.size(), 1U);
}

TEST_F(ErrorReport, AttachesToTheHostForTheMailWhenNoneIsHeld)
{
    runVisibleHost();
    toolkit.answers = {ui::Answer::Yes};
    report(session);
    EXPECT_EQ(classes.asked, (std::vector<Text>{u"running Outlook.Application"}));
}

TEST_F(ErrorReport, EndsTheProgramWhenThereIsNoHostToMailWith)
{
    toolkit.answers = {ui::Answer::Yes};
    report(session);
    ASSERT_EQ(toolkit.messages.size(), 2U);
    EXPECT_EQ(toolkit.messages[1].text, u"Please start Outlook manually before you execute this application!");
}

TEST_F(ErrorReport, EndsTheProgramWhenTheHostRefusesEveryStepOfTheMail)
{
    for (int use = 1; use <= 12; ++use) {
        runVisibleHost();
        const auto fault = std::make_shared<test::Fault>(test::Fault{0, use});
        Session faulty{services()};
        faulty.ouaApp = outlook::Application{test::FaultyDispatch::wrap(automation::Object{host}, fault)};
        toolkit.messages.clear();
        toolkit.answers = {ui::Answer::Yes};
        EXPECT_THROW(faulty.reporter.subErrorHandler(u"Overflow", 6, 1, u"Main"), ProgramEnded);
        EXPECT_EQ(toolkit.messages.size(), 1U) << "at use " << use;
    }
}

TEST_F(ErrorReport, IsShownOnlyOnce)
{
    int nested = 0;
    toolkit.whileShown = [&] {
        ++nested;
        EXPECT_THROW(session.reporter.subErrorHandler(u"Overflow", 6, 7, u"frmDummy"), ProgramEnded);
    };
    report(session);
    EXPECT_EQ(nested, 1);
    EXPECT_EQ(toolkit.messages.size(), 1U);
}

TEST_F(ErrorReport, NamesTheLineAtWhichTheErrorArose)
{
    std::uint_least32_t line = 0;
    const auto body = [&] {
        line = std::source_location::current().line() + 1;
        throw RuntimeError{error_number::overflow};
    };
    EXPECT_THROW(session.reporter.handled(u"subSetupFS", body), ProgramEnded);
    const Text& text = toolkit.messages.at(0).text;
    EXPECT_NE(
        text.find(u"Overflow\r\n#6\r\n\r\nSub routine : subSetupFS \r\nError on line: " + decimal(line) + u"\r\n"),
        Text::npos);
}

TEST_F(ErrorReport, NamesTheCallersLineOfAFailedAutomationCall)
{
    std::uint_least32_t line = 0;
    const auto body = [&] {
        const outlook::Application nothing;
        line = std::source_location::current().line() + 1;
        static_cast<void>(nothing.version());
    };
    EXPECT_THROW(session.reporter.handled(u"Main", body), ProgramEnded);
    const Text& text = toolkit.messages.at(0).text;
    EXPECT_NE(text.find(u"#91\r\n"), Text::npos);
    EXPECT_NE(text.find(u"Error on line: " + decimal(line) + u"\r\n"), Text::npos);
}

} // namespace
} // namespace rf
