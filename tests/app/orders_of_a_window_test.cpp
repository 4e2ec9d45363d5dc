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

/// A booking that is in the store, and a second object of it.
class OrdersFormOfAStoredBooking : public OrdersFormOfAWindow {
protected:
    OrdersFormOfAStoredBooking() { window->item().save(); }

    [[nodiscard]] host::ItemId id() const { return window->item().record().id; }
    [[nodiscard]] std::shared_ptr<host::Inspector> openAgain() const
    {
        const auto item = host::makeItem(host->model().shared_from_this(), *store->read(id()));
        auto again = host->model().inspectors().windowOf(host::itemOf(item));
        again->display();
        return again;
    }
    /// OK with another booker, whichever form is in front.
    void bookFor(TextView booker)
    {
        toolkit.lastWindow()->replace(u"txtBooker", booker);
        toolkit.lastWindow()->press(u"cmdOK");
    }
    [[nodiscard]] bool watches() const { return static_cast<bool>(session.ouaApp); }

    std::shared_ptr<host::Inspector> window = open();
};

TEST_F(OrdersFormOfAStoredBooking, InTwoWindowsOnOneItemIsTheOneThatIsSavedLast)
{
    const auto second = openAgain();
    pressBookingInfo(*window);
    pressBookingInfo(*second);
    ASSERT_EQ(toolkit.formWindows.size(), 2U);
    bookFor(u"Rita Roe");
    bookFor(u"John Roe");
    EXPECT_EQ(organizerOf(*second), u"Rita Roe");
    EXPECT_EQ(organizerOf(*window), u"John Roe");
    second->item().save();
    window->item().save();
    const auto third = openAgain();
    EXPECT_EQ(organizerOf(*third), u"John Roe");
    EXPECT_TRUE(watches());
}

TEST_F(OrdersFormOfAStoredBooking, GoesWithAnItemThatItsWindowDeletes)
{
    pressBookingInfo(*window);
    window->item().remove();
    EXPECT_FALSE(isShown());
    EXPECT_TRUE(toolkit.formWindows.empty());
    EXPECT_TRUE(watches());
}

TEST_F(OrdersFormOfAStoredBooking, OfAnItemThatSomebodyElseDeletesLeavesNothingBehind)
{
    pressBookingInfo(*window);
    ASSERT_TRUE(store->remove(id()));
    bookFor(u"Rita Roe");
    EXPECT_FALSE(isShown());
    EXPECT_THROW(window->item().save(), RuntimeError) << "the person is told in the window";
    EXPECT_TRUE(store->items(window->item().record().folder).empty());
    window->close(host::CloseMode::Discard);
    EXPECT_TRUE(watches());
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OrdersFormOfAStoredBooking, OfACalendarThatIsRemovedIsReportedAndEndsTheProgram)
{
    pressBookingInfo(*window);
    const auto calendar = window->item().record().folder;
    store->removeFolder(calendar);
    EXPECT_THROW(bookFor(u"Rita Roe"), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_TRUE(toolkit.messages.front().text.starts_with(u"There has been an error in this application"))
        << toUtf8(toolkit.messages.front().text);
    EXPECT_TRUE(toolkit.formWindows.empty());
    EXPECT_FALSE(store->folder(calendar));
}

TEST_F(OrdersFormOfAWindow, WhoseHostQuitsGoesWithTheProgram)
{
    const auto window = open();
    pressBookingInfo(*window);
    EXPECT_THROW(host->quit(), ProgramEnded);
    EXPECT_TRUE(toolkit.formWindows.empty());
    EXPECT_TRUE(toolkit.messages.empty());
}

} // namespace
} // namespace rf::test
