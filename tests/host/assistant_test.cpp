#include "basic/error_of.h"
#include "host/host_fixture.h"

namespace rf::outlook {

namespace {

using test::errorOf;

class HostAssistant : public test::HostTest { };

TEST_F(HostAssistant, IsHiddenUntilItIsShown)
{
    const auto assistant = application().assistant();
    EXPECT_FALSE(assistant.visible());
    assistant.setVisible(true);
    EXPECT_TRUE(application().assistant().visible());
    assistant.setVisible(false);
    EXPECT_FALSE(assistant.visible());
}

TEST_F(HostAssistant, AsksThePersonInFrontOfTheHost)
{
    windows.answer = 7;
    EXPECT_EQ(application().assistant().doAlert(u"Room 1", u"Delete it?", AlertButtons::YesNo, AlertIcon::Query), 7);
    EXPECT_EQ(windows.alerts, (std::vector<Text>{u"Room 1|Delete it?|4|2"}));
}

TEST_F(HostAssistant, NeedsTheTitleTheTextTheButtonsAndTheIcon)
{
    const auto assistant = application().assistant().object();
    EXPECT_EQ(errorOf([&] { return assistant.call(u"DoAlert", u"Room 1", u"Delete it?", 4); }), 450);
    EXPECT_EQ(errorOf([&] { return assistant.call(u"DoAlert", u"Room 1", u"Delete it?", u"Yes", 2); }), 13);
    EXPECT_TRUE(windows.alerts.empty());
}

TEST(HeadlessHost, TakesAlertsAsDismissedWithTheButtonThatDeclines)
{
    host::HeadlessWindows windows;
    EXPECT_EQ(windows.alert(u"Room 1", u"Done", code(AlertButtons::Ok), code(AlertIcon::Information)), 1);
    EXPECT_EQ(windows.alert(u"Room 1", u"Go on?", code(AlertButtons::OkCancel), code(AlertIcon::Warning)), 2);
    EXPECT_EQ(windows.alert(u"Room 1", u"Delete it?", code(AlertButtons::YesNo), code(AlertIcon::Query)), 7);
}

TEST(HeadlessHost, ChoosesNoFolder)
{
    host::HeadlessWindows windows;
    EXPECT_FALSE(windows.pickFolder({}).has_value());
}

} // namespace

} // namespace rf::outlook
