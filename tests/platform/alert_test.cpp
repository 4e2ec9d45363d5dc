#include "support/session_fixture.h"

namespace rf {
namespace {

class Alert : public test::SessionTest {
protected:
    void attach() { session.ouaApp = outlook::Application{automation::Object{host}}; }

    Session session{services()};
};

TEST_F(Alert, GoesThroughTheHostsAssistant)
{
    runVisibleHost();
    attach();
    EXPECT_EQ(session.alert.fncDoAlert(u"Project mandatory", ui::Buttons::OkCancel, ui::Icon::Warning), 1);
    EXPECT_EQ(windows.alerts, (std::vector<Text>{u"Roomfold for Outlook Booking Info|Project mandatory|1|3"}));
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(Alert, HasOneButtonAndNoIconUnlessToldOtherwise)
{
    runVisibleHost();
    attach();
    session.alert.fncDoAlert(u"Done");
    session.alert.fncDoAlert(u"Really?", ui::Buttons::YesNo);
    EXPECT_EQ(windows.alerts,
        (std::vector<Text>{
            u"Roomfold for Outlook Booking Info|Done|0|0", u"Roomfold for Outlook Booking Info|Really?|4|0"}));
}

TEST_F(Alert, DismissedWithCancelReturnsTwo)
{
    runVisibleHost();
    attach();
    windows.answer = 2;
    EXPECT_EQ(session.alert.fncDoAlert(u"Project mandatory", ui::Buttons::OkCancel), 2);
}

TEST_F(Alert, BringsTheHostToTheFront)
{
    runVisibleHost();
    attach();
    session.alert.fncDoAlert(u"Done");
    EXPECT_EQ(toolkit.activated, (std::vector<Text>{u"Calendar - Outlook"}));
}

TEST_F(Alert, AnnouncesItsMessage)
{
    runVisibleHost();
    attach();
    session.alert.fncDoAlert(u"Done");
    EXPECT_EQ(session.trace.fncLastAction(), u"Creating Assistant to display message Done");
}

TEST_F(Alert, OfAHostWithoutAssistantIsAMessageBox)
{
    toolkit.answers = {ui::Answer::Cancel};
    EXPECT_EQ(session.alert.fncDoAlert(u"Project mandatory", ui::Buttons::OkCancel, ui::Icon::Critical), 2);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, u"Project mandatory");
    EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::OkCancel, ui::Icon::Critical}));
}

TEST_F(Alert, ThatFailsReturnsZero)
{
    runVisibleHost();
    const auto fault = std::make_shared<test::Fault>();
    session.ouaApp = outlook::Application{test::FaultyDispatch::wrap(automation::Object{host}, fault)};
    session.alert.fncDoAlert(u"Done");
    fault->failingUse = fault->uses;
    fault->uses = 0;
    EXPECT_EQ(session.alert.fncDoAlert(u"Done"), 0);
    EXPECT_EQ(windows.alerts.size(), 1U);
}

} // namespace
} // namespace rf
