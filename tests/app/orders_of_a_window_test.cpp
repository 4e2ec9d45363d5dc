#include "app/main.h"
#include "app/shutdown.h"
#include "booking/inspectors.h"
#include "diagnostics/product.h"
#include "host/inspectors.h"
#include "host/item_factory.h"
#include "orders/frm_orders2k.h"
#include "storage/settings.h"
#include "support/session_fixture.h"

namespace rf::test {
namespace {

/// A started program, an appointment window, and the orders form that its button opens.
class OrdersFormOfAWindow : public SessionTest {
protected:
    OrdersFormOfAWindow()
    {
        runVisibleInstallation();
        Main(session);
    }

    /// The person opens a new appointment.
    [[nodiscard]] std::shared_ptr<host::Inspector> open() const
    {
        const auto item = session.objRootFolder.folders().item(u"Room 1").items().add();
        auto window = host->model().inspectors().windowOf(host::itemOf(item.object().dispatch()));
        window->display();
        return window;
    }
    static void pressBookingInfo(const host::Inspector& window)
    {
        window.commandBars().find(productCaption)->controls().all().front()->click();
    }
    [[nodiscard]] bool isShown() const { return session.forms.find(orders::frmOrders2K::formName) != nullptr; }
    [[nodiscard]] const cCurrInspector& watched() const { return *session.objInspectors->windows().back(); }
    [[nodiscard]] static Text organizerOf(host::Inspector& window)
    {
        for (const auto& property : window.item().record().userProperties)
            if (property.name == u"SafeOrganizer")
                return property.value.text();
        return {};
    }

    Session session{services()};
};

TEST_F(OrdersFormOfAWindow, IsOpenedByItsButton)
{
    const auto window = open();
    pressBookingInfo(*window);
    ASSERT_TRUE(isShown());
    EXPECT_TRUE(toolkit.lastWindow()->isShown());
    EXPECT_EQ(toolkit.lastWindow()->caption(), productCaption);
    EXPECT_EQ(toolkit.lastWindow()->textOf(u"txtBooker"), u"Jane Doe");
    pressBookingInfo(*window);
    EXPECT_EQ(toolkit.formWindows.size(), 1U);
}

TEST_F(OrdersFormOfAWindow, StaysAboveTheWindow)
{
    const auto window = open();
    constexpr ui::WindowHandle onScreen = 77;
    toolkit.windows[window->caption()] = onScreen;
    pressBookingInfo(*window);
    EXPECT_EQ(toolkit.lastWindow()->parent(), onScreen);
}

TEST_F(OrdersFormOfAWindow, WritesIntoTheItemThatTheWindowSaves)
{
    const auto window = open();
    pressBookingInfo(*window);
    toolkit.lastWindow()->replace(u"txtBooker", u"Rita Roe");
    toolkit.lastWindow()->press(u"cmdOK");
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(toolkit.formWindows.empty());
    EXPECT_FALSE(watched().blnOrdersShown());
    EXPECT_EQ(organizerOf(*window), u"Rita Roe");
    window->item().save();
    EXPECT_TRUE(window->item().saved());
    EXPECT_EQ(organizerOf(*window), u"Rita Roe");
}

TEST_F(OrdersFormOfAWindow, IsOpenedAgainAfterItWasClosed)
{
    const auto window = open();
    for (int times = 0; times < 2; ++times) {
        pressBookingInfo(*window);
        ASSERT_TRUE(isShown());
        toolkit.lastWindow()->closeBySystemBox();
        EXPECT_FALSE(isShown());
        pressBookingInfo(*window);
        toolkit.lastWindow()->press(u"cmdCancel");
        EXPECT_FALSE(isShown());
        EXPECT_TRUE(toolkit.formWindows.empty());
    }
}

TEST_F(OrdersFormOfAWindow, GoesWithTheWindow)
{
    const auto window = open();
    pressBookingInfo(*window);
    window->close(host::CloseMode::Discard);
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(toolkit.formWindows.empty());
}

TEST_F(OrdersFormOfAWindow, GoesWithTheProgram)
{
    const auto window = open();
    pressBookingInfo(*window);
    EXPECT_THROW(subEndProgram(session), ProgramEnded);
    EXPECT_TRUE(toolkit.formWindows.empty());
    EXPECT_NO_THROW(window->close(host::CloseMode::Discard));
}

TEST_F(OrdersFormOfAWindow, IsOneForEachWindow)
{
    const auto first = open();
    const auto second = open();
    pressBookingInfo(*first);
    pressBookingInfo(*second);
    EXPECT_EQ(toolkit.formWindows.size(), 2U);
    second->close(host::CloseMode::Discard);
    EXPECT_EQ(toolkit.formWindows.size(), 1U);
    EXPECT_TRUE(isShown());
}

} // namespace
} // namespace rf::test
