#include "support/session_fixture.h"

namespace rf {
namespace {

using test::ProgramEnded;

class ScriptingComponents : public test::SessionTest {
protected:
    /// Makes a class fail the first times that it is asked for.
    void failFirst(TextView className, int failures)
    {
        auto& factory = classes.factories[Text{className}];
        factory = [factory, failures, this, className]() mutable {
            if (failures-- > 0)
                return unknown.create(className, automation::Where::current());
            return factory();
        };
    }

    test::TestClasses unknown;
    Session session{services()};
};

TEST_F(ScriptingComponents, MakeDictionariesWhoseKeysDifferInMoreThanCase)
{
    const auto dictionary = session.scripting.fncCreateDic();
    dictionary.add(u"Room One", u"first");
    EXPECT_TRUE(dictionary.exists(u"ROOM one"));
    EXPECT_THROW(dictionary.add(u"room ONE", u"second"), automation::Error);
    EXPECT_EQ(dictionary.count(), 1);
    EXPECT_EQ(dictionary.item(u"rOOM oNE").text(), u"first");
}

TEST_F(ScriptingComponents, AnnounceTheMakingOfADictionary)
{
    static_cast<void>(session.scripting.fncCreateDic());
    EXPECT_EQ(session.trace.fncLastAction(),
        u"Attempting to create a new Scripting.Dictionary object. This component is usually installed with Internet "
        u"Explorer 4.0 or later");
}

TEST_F(ScriptingComponents, RegisterAMissingDictionaryOnceAndTryAgain)
{
    failFirst(outlook::dictionaryClass, 1);
    EXPECT_TRUE(session.scripting.fncCreateDic());
    ASSERT_EQ(system.launched.size(), 1U);
    EXPECT_EQ(system.launched[0].first, u"regsvr32 scrrun.dll /s");
    EXPECT_EQ(system.launched[0].second, WindowStyle::Minimized);
}

TEST_F(ScriptingComponents, ReportADictionaryThatCannotBeMade)
{
    failFirst(outlook::dictionaryClass, 2);
    EXPECT_THROW(static_cast<void>(session.scripting.fncCreateDic()), ProgramEnded);
    const Text& report = toolkit.messages.at(0).text;
    EXPECT_NE(report.find(u"Sub routine : modScriptingDic.fncCreateDic \r\n"), Text::npos);
    EXPECT_NE(report.find(u"#429\r\n"), Text::npos);
    EXPECT_EQ(system.launched.size(), 1U);
}

TEST_F(ScriptingComponents, RegisterAMissingShellOnceAndTryAgain)
{
    failFirst(outlook::shellClass, 1);
    EXPECT_TRUE(session.scripting.fncGetShell());
    ASSERT_EQ(system.launched.size(), 1U);
    EXPECT_EQ(system.launched[0].first, u"regsvr32 wshom.ocx /s");
}

TEST_F(ScriptingComponents, EndTheProgramWithAMessageWithoutAShell)
{
    failFirst(outlook::shellClass, 2);
    EXPECT_THROW(static_cast<void>(session.scripting.fncGetShell()), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text,
        u"Attempting to create a new Scripting.Dictionary object.\r\n"
        u"This component is usually installed with Internet Explorer 4.0 or later\r\n"
        u"Please download the Windows Scripting Runtime from Microsoft Downloads to resolve this issue!");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
    EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
}

} // namespace
} // namespace rf
