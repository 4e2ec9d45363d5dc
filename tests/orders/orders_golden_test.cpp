#include "orders/orders.h"

#include "storage/settings.h"
#include "support/golden.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

class OrdersGolden : public test::SessionTest { };

/// Quantities are written the same way whatever the user's regional settings: the text is shared by all of them.
TEST_F(OrdersGolden, IsOneTextInEveryLocale)
{
    for (const auto& settings : {englishSettings(), germanSettings()}) {
        const PatternRegional locale{settings};
        Session session{{locale, clock, classes, system, processes, toolkit}};
        session.objSettings = std::make_unique<cSettings>(session);
        session.objSettings->subFillSupply(u"Coffee\t2\r\nCr\u00E8me br\u00FBl\u00E9e\t4\r\n");
        cOrders orders{session};
        orders.Add({u"Coffee", 12345});
        orders.Add({u"Cr\u00E8me br\u00FBl\u00E9e", -1000});
        orders.Add({u"Coffee", 0});
        test::expectGolden("orders/orders.txt", orders.OrdersString());
    }
}

} // namespace
} // namespace rf
