#pragma once

#include "booking/orders_form.h"
#include "booking/outlook_booking.h"
#include "orders/frm_orders2k_controls.h"
#include "orders/list_handler.h"
#include "orders/order_grid.h"

namespace rf {

class cSettings;

} // namespace rf

namespace rf::orders {

/// The dialog of one booking: who made it, what it orders of the supplies, how the places are set, and which cost
/// center pays. OK writes all of it into the appointment's user properties; the caller of the appointment saves it.
/// An error in any procedure is reported under its name and ends the program.
class frmOrders2K final : public OrdersForm, public std::enable_shared_from_this<frmOrders2K> {
public:
    static constexpr TextView formName = u"frmOrders2K";

    frmOrders2K(Session& session, outlook::AppointmentItem item);
    frmOrders2K(const frmOrders2K&) = delete;
    frmOrders2K& operator=(const frmOrders2K&) = delete;
    ~frmOrders2K() override;

    [[nodiscard]] TextView name() const override { return formName; }
    void load() override;
    void show() override;
    [[nodiscard]] bool queryUnload() override { return true; }
    void unload() override;
    [[nodiscard]] Text caption() const override;
    void setFocus() override;
    [[nodiscard]] ui::WindowHandle window() const override;
    void setParent(ui::WindowHandle parent) override;
    void subSetPosition() override;

    /// Makes the list and its grid.
    void subSetupList();
    /// Takes every caption from the phrase table.
    void subSetCaptions();
    /// Shows what is known of the booking.
    void subSetValues();
    /// Puts the quantities of an orders text into the grid. Those of an item that is no supply any more are dropped.
    void subFillOrders(TextView strOrdersList);
    /// Shows the total anew.
    void subCountOrders();
    void subSetCostCenter(TextView strCostCenter);
    /// The orders text of the grid; empty when nothing is ordered.
    [[nodiscard]] Text fncBuildOrderList();
    /// Whether what has to be filled in is.
    [[nodiscard]] bool fncCheckFilledOut();

    void cmdOK_Click();
    void cmdCancel_Click();
    /// A person closes the window; true lets it go.
    bool Form_QueryUnload();

    // The total is fresh whenever the user leaves the grid or moves in it.
    void exsOrders_SelectionChange(const Text& /*SelectedAddress*/) { subCountOrders(); }
    void optPlaceSetting1_GotFocus() { subCountOrders(); }
    void optPlaceSetting2_GotFocus() { subCountOrders(); }
    void optPlaceSetting3_GotFocus() { subCountOrders(); }
    void optPlaceSetting4_GotFocus() { subCountOrders(); }
    void txtBooker_GotFocus() { subCountOrders(); }
    void txtCC1_GotFocus() { subCountOrders(); }
    void txtCC2_GotFocus() { subCountOrders(); }
    void txtOrderComment_GotFocus() { subCountOrders(); }

    void txtCC1_KeyPress(char16_t& key);
    void txtCC1_KeyUp();
    static void txtCC2_KeyPress(char16_t& key);

private:
    /// A handler of a control. The form may be let go while it runs, so it holds the form.
    template <class... Arguments>
    [[nodiscard]] std::function<void(Arguments...)> handler(void (frmOrders2K::*procedure)(Arguments...))
    {
        return [form = weak_from_this(), procedure](Arguments... arguments) {
            if (const auto held = form.lock())
                (held.get()->*procedure)(arguments...);
        };
    }
    void listen();
    void Form_Load();
    void fillGrid();
    void showPlaceSettings();
    void showCostCenter();
    void selectPlaceSetting();
    void save();
    void savePlaceSetting();
    void saveComment();
    void saveCostCenter();
    [[nodiscard]] Text stored(TextView property);
    void store(TextView property, const Text& text);
    [[nodiscard]] const cSettings& settings() const;
    [[nodiscard]] bool hasSupplies() const { return !supplies_.empty(); }

    Session& session_;
    outlook::AppointmentItem item_;
    OutlookBooking booking_;
    /// The settings' supplies when the form was loaded: the rows of its grid.
    Supplies supplies_;
    /// The orders text that OK writes.
    Text strOrders_;
    std::unique_ptr<ui::FormWindow> window_;
    std::unique_ptr<OrdersControls> controls_;
    std::unique_ptr<cListHandler> list_;
    bool closed_ = false;
};

} // namespace rf::orders
