#include "app/main.h"
#include "booking/booking_properties.h"
#include "booking/inspectors.h"
#include "diagnostics/product.h"
#include "host/entry_id.h"
#include "host/inspectors.h"
#include "host/item_factory.h"
#include "orders/frm_orders2k.h"
#include "storage/outlook_value.h"
#include "support/session_fixture.h"

#include <algorithm>

namespace rf {
namespace {

/// The whole program beside a host whose person opens an appointment and presses "Booking info".
class BookingInfo : public test::SessionTest {
protected:
    BookingInfo()
    {
        runVisibleInstallation();
        Main(session);
        const auto calendar = session.ouaApp.getNamespace().getFolderFromId(host::entryIdOf(roomId()), {});
        item = calendar.items().add().as<outlook::AppointmentItem>();
        item.setSubject(u"Board");
        item.display();
        window = session.ouaApp.activeInspector();
    }

    [[nodiscard]] host::FolderId roomId() const
    {
        const auto folders = store->folders();
        return std::ranges::find(folders, u"Room 1", &host::FolderRecord::name)->id;
    }
    void pressBookingInfo() const
    {
        const auto shown = host->model().inspectors().windowOf(host::itemOf(item.object().dispatch()));
        shown->commandBars().find(productCaption)->controls().all().front()->click();
    }
    [[nodiscard]] Text organizer()
    {
        return fncGetOutlookValue(session, item, nameOf(BookingProperty::SafeOrganizer), ValueKind::String, u"").text();
    }

    Session session{services()};
    outlook::AppointmentItem item;
    outlook::Inspector window;
};

TEST_F(BookingInfo, OpensTheOrdersFormAndWritesItsValues)
{
    pressBookingInfo();
    ASSERT_NE(session.forms.find(orders::frmOrders2K::formName), nullptr);
    test::RecordingWindow& form = *toolkit.lastWindow();
    EXPECT_TRUE(form.isShown());
    form.replace(u"txtBooker", u"John");
    form.press(u"cmdOK");
    EXPECT_EQ(session.forms.find(orders::frmOrders2K::formName), nullptr);
    EXPECT_EQ(organizer(), u"John");
}

TEST_F(BookingInfo, OpensTheFormAgainOnceItHasClosed)
{
    pressBookingInfo();
    const auto* first = toolkit.lastWindow();
    pressBookingInfo();
    EXPECT_EQ(toolkit.lastWindow(), first);
    toolkit.lastWindow()->press(u"cmdCancel");
    EXPECT_EQ(session.forms.find(orders::frmOrders2K::formName), nullptr);
    pressBookingInfo();
    EXPECT_NE(session.forms.find(orders::frmOrders2K::formName), nullptr);
}

TEST_F(BookingInfo, TakesTheFormAlongWithItsAppointmentWindow)
{
    pressBookingInfo();
    window.close(outlook::CloseMode::Discard);
    EXPECT_EQ(session.forms.find(orders::frmOrders2K::formName), nullptr);
}

} // namespace
} // namespace rf
