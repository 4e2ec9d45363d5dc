#include "app/session.h"
#include "booking/booking_item.h"
#include "diagnostics/product.h"
#include "orders/cost_center.h"
#include "orders/frm_orders2k.h"
#include "orders/order_total.h"
#include "storage/long_property.h"
#include "storage/settings.h"

#include <algorithm>

namespace rf::orders {

namespace {

constexpr TextView ordersProperty = u"strOrders";
/// A booking that its host has no creation date for has the zero date, which lies before this year.
constexpr int lastYearWithoutCreation = 1900;

} // namespace

void frmOrders2K::subSetCaptions()
{
    session_.reporter.handled(u"subSetCaptions", [&] {
        const Phrases& phrases = session_.language.phrases();
        window_->setCaption(productCaption);
        controls_->lblBookedBy.setCaption(phrases.LNGBOOKEDBY);
        controls_->lblBookedAt.setCaption(phrases.LNGCREATEDAT);
        controls_->lblOrderSum.setCaption(phrases.LNGCOSTOFITEMSORDERED);
        controls_->lblPlaceSettings.setCaption(phrases.LNGPLACESETTINGS);
        controls_->lblCC.setCaption(phrases.LNGCOSTCENTER);
        controls_->lblOrderComment.setCaption(phrases.LNGORDERCOMMENT);
        controls_->cmdOK.setCaption(phrases.LNGOK);
        controls_->cmdCancel.setCaption(phrases.LNGCANCEL);
        if (list_ == nullptr)
            return;
        list_->setEditMode(true);
        list_->setTitle(phrases.LNGSUPPLY);
        list_->SetValue(u"A1", phrases.LNGITEM);
        list_->SetValue(u"B1", phrases.LNGRATE);
        list_->SetValue(u"C1", phrases.LNGNOITEMS);
        list_->setEditMode(false);
    });
}

void frmOrders2K::subSetValues()
{
    session_.reporter.handled(u"subSetValues", [&] {
        controls_->txtBooker.setText(booking_.organizer);
        controls_->txtOrderComment.setText(booking_.orderComment);
        selectPlaceSetting();
        // Without supplies the booking's own rows are none, but what it ordered before is to stay.
        strOrders_
            = hasSupplies() ? booking_.Orders().OrdersString() : fncGetLongProperty(session_, item_, ordersProperty);
        subFillOrders(strOrders_);
        const bool created = booking_.created.fields().year > lastYearWithoutCreation;
        controls_->txtCreatedAt.setText(created ? session_.services.regional.formatDate(booking_.created) : Text{});
        subSetCostCenter(booking_.costCenter);
    });
}

void frmOrders2K::selectPlaceSetting()
{
    const Text& wanted = booking_.placeSetting;
    const auto entries = settings().PlaceSettings.ToArray();
    if (std::ranges::none_of(entries, [&](const Text& entry) { return equalIgnoringCase(entry, wanted); }))
        return;
    for (ui::OptionButton* option : controls_->optPlaceSetting)
        if (option->visible() && option->caption() == wanted)
            option->setValue(true);
}

void frmOrders2K::subSetCostCenter(TextView strCostCenter)
{
    session_.reporter.handled(u"subSetCostCenter", [&] {
        if (!settings().KCWithOrder)
            return;
        const auto texts = shownCostCenter(settings().KCFormat, strCostCenter);
        if (texts.first)
            controls_->txtCC1.setText(*texts.first);
        if (texts.second)
            controls_->txtCC2.setText(*texts.second);
    });
}

bool frmOrders2K::fncCheckFilledOut()
{
    session_.trace.subTrace(u"Checking if all values are filled out!");
    return session_.reporter.handled(u"fncCheckFilledOut", [&] {
        if (!hasSupplies())
            return true;
        subCountOrders();
        if (!settings().KCWithOrder || !costsSomething(session_.services.regional, controls_->lblSum.caption()))
            return true;
        return isCostCenterComplete(
            session_.services.regional, settings().KCFormat, controls_->txtCC1.text(), controls_->txtCC2.text());
    });
}

void frmOrders2K::cmdOK_Click()
{
    session_.reporter.handled(u"cmdOK_Click", [&] {
        if (!fncCheckFilledOut()) {
            session_.alert.fncDoAlert(session_.language.phrases().LNGALLVALUESNOTFILLEDOUT);
            return;
        }
        session_.trace.subTrace(u"Saving values back to appointment");
        save();
        session_.forms.unload(*this);
    });
}

void frmOrders2K::save()
{
    if (hasSupplies())
        strOrders_ = fncBuildOrderList();
    subFixLongProperty(session_, item_, strOrders_, ordersProperty);
    fncAddBookingProps(item_);
    store(nameOf(BookingProperty::SafeOrganizer), controls_->txtBooker.text());
    if (!hasSupplies())
        return;
    savePlaceSetting();
    saveComment();
    saveCostCenter();
}

void frmOrders2K::savePlaceSetting()
{
    if (settings().PlaceSettings.count() < 1)
        return;
    const auto selected = std::ranges::find_if(
        controls_->optPlaceSetting, [](const ui::OptionButton* option) { return option->value(); });
    const Text placeSetting = selected == controls_->optPlaceSetting.end() ? Text{} : (*selected)->caption();
    if (stored(nameOf(BookingProperty::PlaceSetting)) != placeSetting)
        store(nameOf(BookingProperty::PlaceSetting), placeSetting);
}

void frmOrders2K::saveComment()
{
    const Text comment = controls_->txtOrderComment.text();
    if (stored(nameOf(BookingProperty::OrderComment)) != comment)
        store(nameOf(BookingProperty::OrderComment), comment);
}

void frmOrders2K::saveCostCenter()
{
    if (!settings().KCWithOrder)
        return;
    const auto costCenter = storedCostCenter(settings().KCFormat, controls_->txtCC1.text(), controls_->txtCC2.text());
    if (costCenter)
        store(nameOf(BookingProperty::CostCenter), *costCenter);
}

Text frmOrders2K::stored(TextView property)
{
    return fncGetOutlookValue(session_, item_, property, ValueKind::String, u"").text();
}

void frmOrders2K::store(TextView property, const Text& text)
{
    subSetOutlookValue(session_, item_, property, text, ValueKind::String, false);
}

} // namespace rf::orders
