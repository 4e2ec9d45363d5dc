#include "curr_inspector_suite.h"

#include "booking/toolbar.h"
#include "outlook/recording_dispatch.h"

namespace rf::test {

INSTANTIATE_TEST_SUITE_P(
    Over, AppointmentWindow, ::testing::Values(inProcess()), [](const auto& kind) { return kind.param.name; });

namespace {

class SchedulingPage : public SessionTest {
protected:
    SchedulingPage() { window->setOuiCurrInspector(outlook::Inspector{automation::Object{host}}); }

    std::shared_ptr<RecordingDispatch> host = std::make_shared<RecordingDispatch>();
    Session session{services()};
    std::shared_ptr<cCurrInspector> window = std::make_shared<cCurrInspector>(session, OrdersForms{});
};

TEST_F(SchedulingPage, WithNoneOfTheNamesIsNotHiddenAndNoErrorRemains)
{
    host->failure = error_number::invalidCall;
    EXPECT_NO_THROW(window->subHideShedulingTab());
    ASSERT_EQ(host->uses.size(), schedulingPages.size());
    for (std::size_t index = 0; index < schedulingPages.size(); ++index) {
        EXPECT_EQ(host->uses[index].member, u"HideFormPage");
        EXPECT_EQ(host->uses[index].arguments.front().text(), schedulingPages.at(index));
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(SchedulingPage, IsHiddenByTheFirstNameThatTheHostKnows)
{
    window->subHideShedulingTab();
    ASSERT_EQ(host->uses.size(), 1U);
    EXPECT_EQ(host->uses[0].arguments.front().text(), u"Scheduling");
}

class Toolbar : public RulesTest { };

TEST_F(Toolbar, ThatCannotBeHadIsReported)
{
    const auto fault = std::make_shared<Fault>();
    fault->failingMember = u"CommandBars";
    const auto item = newAppointment(u"Board", at(9), 60);
    item.display();
    const outlook::Inspector window{FaultyDispatch::wrap(session->ouaApp.activeInspector().object(), fault)};
    EXPECT_THROW(static_cast<void>(fncGetToolbar(*session, window)), ProgramEnded);
    EXPECT_NE(toolkit.messages.at(0).text.find(u"Sub routine : genTools.fncGetToolbar \r\n"), Text::npos);
}

TEST_F(Toolbar, IsNotTakenForOneOfAnotherName)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    item.display();
    const auto window = session->ouaApp.activeInspector();
    EXPECT_FALSE(findToolbar(window));
    const auto bar = fncGetToolbar(*session, window);
    EXPECT_EQ(bar.name(), u"Roomfold for Outlook Booking Info");
    EXPECT_TRUE(fncGetToolbar(*session, window) == bar);
    EXPECT_TRUE(findToolbar(window) == bar);
}

class OrdersOfAWindow : public RulesTest { };

TEST_F(OrdersOfAWindow, ThatCannotBeShownAreReported)
{
    class Failing final : public OrdersForm {
    public:
        [[nodiscard]] TextView name() const override { return u"frmOrders2K"; }
        void load() override { throw RuntimeError{error_number::invalidCall}; }
        void subSetPosition() override { }
        void setParent(ui::WindowHandle) override { }
    };
    session->objInspectors
        = std::make_unique<cInspectors>(*session, [](const auto&) { return std::make_shared<Failing>(); });
    session->objInspectors->setOuisInspectors(session->ouaApp.inspectors());
    newAppointment(u"Board", at(9), 60).display();
    bool cancelDefault = false;
    auto window = session->objInspectors->windows().back();
    EXPECT_THROW(window->cmdButton_Click(window->cmdButton(), cancelDefault), ProgramEnded);
    EXPECT_NE(toolkit.messages.at(0).text.find(u"Sub routine : cCurrInspector.cmdButton_Click \r\n"), Text::npos);
}

class FailingHost : public RulesTest {
protected:
    /// A person opens a window, comes back to it, saves and closes, while the host fails at one call of the program.
    void workWithWindow(const std::shared_ptr<Fault>& fault) const
    {
        const auto item = newAppointment(u"Board", at(9), 60);
        const auto window = host->model().inspectors().windowOf(host::itemOf(item.object().dispatch()));
        session->objInspectors->ouisInspectors_NewInspector(
            outlook::Inspector{FaultyDispatch::wrap(automation::Object{window}, fault)});
        window->display();
        window->activate();
        window->item().save();
        window->close(host::CloseMode::Discard);
    }
};

/// Whichever call fails, the person sees a report of the command bar or nothing, and a window that is looked after
/// saves no refused booking.
TEST_F(FailingHost, LetsNoRefusedBookingThrough)
{
    bool struck = true;
    int guarded = 0;
    for (int use = 1; struck; ++use) {
        begin();
        toolkit.messages.clear();
        windows.answer = 1;
        settings().ProjectMandatory = true;
        session->objInspectors = std::make_unique<cInspectors>(*session, OrdersForms{});
        const auto fault = std::make_shared<Fault>(Fault{0, use});
        try {
            workWithWindow(fault);
        } catch (const ProgramEnded&) {
            ASSERT_EQ(toolkit.messages.size(), 1U) << "at use " << use;
            EXPECT_NE(toolkit.messages[0].text.find(u"genTools.fncGetToolbar"), Text::npos) << "at use " << use;
        }
        if (session->objInspectors && !session->objInspectors->windows().empty()) {
            EXPECT_TRUE(stored(room).empty()) << "at use " << use << ", " << toUtf8(fault->member);
            ++guarded;
        }
        struck = fault->uses >= use;
    }
    EXPECT_GT(guarded, 20);
}

/// The same of a booking that the rules accept: it is saved, whatever fails.
TEST_F(FailingHost, KeepsNoAcceptedBookingBack)
{
    bool struck = true;
    for (int use = 1; struck; ++use) {
        begin();
        toolkit.messages.clear();
        session->objInspectors = std::make_unique<cInspectors>(*session, OrdersForms{});
        const auto fault = std::make_shared<Fault>(Fault{0, use});
        try {
            workWithWindow(fault);
            EXPECT_EQ(stored(room).size(), 1U) << "at use " << use << ", " << toUtf8(fault->member);
        } catch (const ProgramEnded&) {
            ASSERT_EQ(toolkit.messages.size(), 1U) << "at use " << use;
        }
        struck = fault->uses >= use;
    }
}

} // namespace
} // namespace rf::test
