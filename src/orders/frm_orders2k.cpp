#include "orders/frm_orders2k.h"

#include "app/session.h"
#include "diagnostics/product.h"
#include "orders/cost_center.h"
#include "orders/frm_orders2k_position.h"
#include "storage/settings.h"

#include <algorithm>

namespace rf::orders {

frmOrders2K::frmOrders2K(Session& session, outlook::AppointmentItem item)
    : session_(session)
    , item_(std::move(item))
    , booking_(session)
{
}

frmOrders2K::~frmOrders2K() = default;

const cSettings& frmOrders2K::settings() const
{
    if (session_.objSettings == nullptr)
        throw RuntimeError{error_number::objectNotSet};
    return *session_.objSettings;
}

void frmOrders2K::load()
{
    window_ = session_.services.toolkit.makeFormWindow();
    controls_ = std::make_unique<OrdersControls>(*window_);
    listen();
    Form_Load();
}

void frmOrders2K::listen()
{
    controls_->txtBooker.GotFocus = handler(&frmOrders2K::txtBooker_GotFocus);
    controls_->txtCC1.GotFocus = handler(&frmOrders2K::txtCC1_GotFocus);
    controls_->txtCC2.GotFocus = handler(&frmOrders2K::txtCC2_GotFocus);
    controls_->txtOrderComment.GotFocus = handler(&frmOrders2K::txtOrderComment_GotFocus);
    constexpr std::array placeSettingFocused{&frmOrders2K::optPlaceSetting1_GotFocus,
        &frmOrders2K::optPlaceSetting2_GotFocus, &frmOrders2K::optPlaceSetting3_GotFocus,
        &frmOrders2K::optPlaceSetting4_GotFocus};
    for (std::size_t index = 0; index < placeSettingFocused.size(); ++index)
        controls_->optPlaceSetting.at(index)->GotFocus = handler(placeSettingFocused.at(index));
    controls_->txtCC1.KeyPressed = handler(&frmOrders2K::txtCC1_KeyPress);
    controls_->txtCC1.KeyUp = handler(&frmOrders2K::txtCC1_KeyUp);
    controls_->txtCC2.KeyPressed = &frmOrders2K::txtCC2_KeyPress;
    controls_->cmdOK.Click = handler(&frmOrders2K::cmdOK_Click);
    controls_->cmdCancel.Click = handler(&frmOrders2K::cmdCancel_Click);
    window_->QueryUnload = [form = weak_from_this()] {
        const auto held = form.lock();
        return held == nullptr || held->Form_QueryUnload();
    };
}

void frmOrders2K::Form_Load()
{
    session_.reporter.handled(u"Form_Load", [&] {
        booking_.subGetAppData(item_);
        supplies_ = settings().Supply.items();
        // Where nothing can be ordered there is nothing to list either.
        if (hasSupplies()) {
            subSetupList();
            fillGrid();
        } else {
            controls_->leaveOutOrder();
        }
        showPlaceSettings();
        showCostCenter();
        const ui::Bounds extent = controls_->extent();
        window_->setSize(extent.width, extent.height);
        subSetCaptions();
        if (list_ != nullptr)
            list_->setRaiseEventsEnabled(true);
        subSetValues();
        subSetPosition();
    });
}

void frmOrders2K::showPlaceSettings()
{
    const auto entries = settings().PlaceSettings.ToArray();
    if (entries.empty())
        controls_->widenComment();
    const Text& preselected = settings().DefaultPlaceSetting;
    const std::size_t shown = std::min(entries.size(), OrdersControls::placeSettings);
    for (std::size_t index = 0; index < shown; ++index) {
        ui::OptionButton& option = *controls_->optPlaceSetting.at(index);
        option.setCaption(entries[index]);
        if (!preselected.empty() && preselected == entries[index])
            option.setValue(true);
        option.setVisible(true);
    }
}

void frmOrders2K::showCostCenter()
{
    if (!settings().KCWithOrder)
        return;
    controls_->lblCC.setVisible(true);
    switch (costCenterFields(settings().KCFormat)) {
    case CostCenterFields::Whole:
        controls_->showWholeCostCenter();
        break;
    case CostCenterFields::Halves:
        controls_->showHalvesOfCostCenter();
        break;
    case CostCenterFields::None:
        break;
    }
}

void frmOrders2K::show() { window_->show(); }

void frmOrders2K::unload()
{
    window_->close();
    if (std::exchange(closed_, true))
        return;
    // A copy, since whoever hears it lets go of the form.
    if (const auto heard = Closed)
        heard();
}

Text frmOrders2K::caption() const { return window_ == nullptr ? Text{} : window_->caption(); }

void frmOrders2K::setFocus()
{
    if (window_ != nullptr)
        window_->setFocus();
}

ui::WindowHandle frmOrders2K::window() const { return window_ == nullptr ? 0 : window_->handle(); }

void frmOrders2K::setParent(ui::WindowHandle parent)
{
    if (window_ != nullptr)
        window_->setParent(parent);
}

void frmOrders2K::subSetPosition()
{
    session_.reporter.handled(u"subSetPosition", [&] {
        const auto appointment = item_.getInspector();
        window_->setPosition(
            overAppointment({appointment.left(), appointment.top()}, session_.services.toolkit.twipsPerPixel()));
    });
}

void frmOrders2K::txtCC1_KeyPress(char16_t& key)
{
    if (!firstFieldTakes(settings().KCFormat, key))
        key = 0;
}

void frmOrders2K::txtCC1_KeyUp()
{
    if (goesToSecondField(settings().KCFormat, controls_->txtCC1.text()))
        controls_->txtCC2.setFocus();
}

void frmOrders2K::txtCC2_KeyPress(char16_t& key)
{
    if (!secondFieldTakes(key))
        key = 0;
}

void frmOrders2K::cmdCancel_Click() { session_.forms.unload(*this); }

bool frmOrders2K::Form_QueryUnload()
{
    session_.forms.unload(*this);
    return true;
}

} // namespace rf::orders
