#pragma once

#include "booking/booking_fixture.h"
#include "orders/frm_orders2k.h"
#include "storage/long_property.h"

namespace rf::orders {

/// The orders form of a booking in a room, without supplies until a test has some.
class OrdersFormTest : public test::BookingTest {
protected:
    ~OrdersFormTest() override
    {
        form.reset();
        session.reset();
    }

    [[nodiscard]] cSettings& settings() const { return *session->objSettings; }
    void supply(const Text& name, std::int64_t tenThousandths = 10000) const
    {
        settings().Supply.add(name, {Currency::fromTenThousandths(tenThousandths), name});
    }
    void requireCostCenter(const Text& format) const
    {
        settings().KCWithOrder = true;
        settings().KCFormat = format;
    }

    /// A booking with its properties, saved.
    [[nodiscard]] outlook::AppointmentItem booking() const { return booked(u"Board", test::at(9), 90); }
    void order(const outlook::AppointmentItem& item, TextView orders) const
    {
        subFixLongProperty(*session, item, orders, u"strOrders");
    }
    [[nodiscard]] Text ordersOf(const outlook::AppointmentItem& item) const
    {
        return fncGetLongProperty(*session, item, u"strOrders");
    }
    [[nodiscard]] Text textOf(const outlook::AppointmentItem& item, TextView property) const
    {
        return fncGetOutlookValue(*session, item, property, ValueKind::String, u"").text();
    }

    /// The form of an appointment, on the screen.
    frmOrders2K& open(const outlook::AppointmentItem& item)
    {
        form = std::make_shared<frmOrders2K>(*session, item);
        form->Closed = [this] { ++closed; };
        session->forms.load(form);
        form->show();
        return *form;
    }
    [[nodiscard]] test::RecordingWindow& window() const { return *toolkit.lastWindow(); }
    [[nodiscard]] bool isOpen() const { return session->forms.find(frmOrders2K::formName) != nullptr; }
    /// The report that a step ended the program with.
    template <class Step>
    [[nodiscard]] Text reportOf(Step&& step)
    {
        EXPECT_THROW(std::forward<Step>(step)(), test::ProgramEnded);
        return toolkit.messages.empty() ? Text{} : toolkit.messages.back().text;
    }

    std::shared_ptr<frmOrders2K> form;
    int closed = 0;
};

} // namespace rf::orders
