#pragma once

#include "automation/events.h"
#include "booking/booking_item.h"
#include "booking/orders_form.h"
#include "outlook/inspector.h"

#include <array>

namespace rf {

class Session;

/// The names of the host's Scheduling page in the languages it comes in, the likeliest first.
inline constexpr std::array<TextView, 14> schedulingPages{u"Scheduling", u"Terminplanung", u"Aikataulu",
    u"Schemaläggning", u"Beschikbaarheid van genodigden", u"Disponibilité des participants",
    u"Disponibilidad del asistente", u"Plánování", u"Aftale", u"Pianificazione", u"Planlegging", u"Planowanie",
    u"Agendar", u"Zamanlama"};

/// One appointment window: its booking command bar, its orders form, and the guard over the saving and closing of its
/// item. It is shared, made by `std::make_shared`, and stays alive while one of its handlers runs. The handlers run
/// with errors suppressed and leave none pending; only the command bar and the orders form report theirs.
class cCurrInspector final : public std::enable_shared_from_this<cCurrInspector> {
public:
    cCurrInspector(Session& session, OrdersForms ordersForms);
    cCurrInspector(const cCurrInspector&) = delete;
    cCurrInspector& operator=(const cCurrInspector&) = delete;
    /// Closes the orders form.
    ~cCurrInspector();

    /// Listens to the window. Fails as the host does.
    void setOuiCurrInspector(const outlook::Inspector& inspector);

    /// The window; empty once it is closed or given up.
    [[nodiscard]] const outlook::Inspector& ouiCurrInspector() const { return ouiCurrInspector_; }
    /// The item that the window shows; empty before its first activation and once it is given up.
    [[nodiscard]] const outlook::AppointmentItem& ouaCurrApp() const { return ouaCurrApp_; }
    [[nodiscard]] const outlook::CommandBarButton& cmdButton() const { return cmdButton_; }
    /// Empty where no project is defined.
    [[nodiscard]] const outlook::CommandBarComboBox& cmbProjects() const { return cmbProjects_; }
    [[nodiscard]] const std::shared_ptr<OrdersForm>& objCurrOrders() const { return objCurrOrders_; }
    [[nodiscard]] bool blnOrdersShown() const { return blnOrdersShown_; }
    /// A save was refused and the person goes on editing.
    [[nodiscard]] bool blnRefused() const { return blnRefused_; }
    [[nodiscard]] bool blnClosed() const { return blnClosed_; }
    /// Nothing is left to do for it: the window is closed, or its item was thrown away.
    [[nodiscard]] bool isDone() const { return blnClosed_ || (!ouaCurrApp_ && cmdButton_); }

    /// The first time takes the item and gives the window its command bar; each time hides the Scheduling page of what
    /// is no organised meeting.
    void ouiCurrInspector_Activate();
    /// Lets go of everything.
    void ouiCurrInspector_Close();
    /// Gives a window that has its button the box of the projects, once; none where no project is defined, and none as
    /// long as the settings are not read.
    void subAddProjects();
    /// Refuses to save what the rules refuse, which the person may throw away then; gives what they accept its
    /// properties and copies.
    void ouaCurrApp_Write(bool& Cancel);
    /// Lets nothing close that the rules refuse, unless the person throws it away. What was never filled is let go.
    void ouaCurrApp_Close(bool& Cancel);
    /// The project becomes the booking's category.
    void cmbProjects_Change(const outlook::CommandBarComboBox& Ctrl);
    /// Opens the orders form, once.
    void cmdButton_Click(const outlook::CommandBarButton& Ctrl, bool& CancelDefault);
    void objCurrOrders_FormClose();

    /// Hides the Scheduling page by the first of its names that the host knows. No error leaves it.
    void subHideShedulingTab() const;
    /// Hides the first Invite button on the window's bars. No error leaves it.
    void subHideInviteButton() const;

private:
    template <class... Arguments>
    auto handler(void (cCurrInspector::*handle)(Arguments...));
    void takeItem(const outlook::AppointmentItem& item);
    void nameOrganizer(BookingItem& booking);
    [[nodiscard]] bool isNew(const outlook::AppointmentItem& item) const;
    void addControls(const outlook::Inspector& window);
    void addButton(const outlook::CommandBarControls& controls);
    void addCombo(const outlook::CommandBarControls& controls);
    void showOrders();
    [[nodiscard]] Text refusal(BookingItem& booking) const;
    [[nodiscard]] bool isThrownAway(const Text& reason);
    void throwAway();
    [[nodiscard]] Text sourceName(BookingItem& booking) const;
    void release();
    void releaseItem();
    void releaseWindow();
    void releaseOrders();

    Session& session_;
    OrdersForms ordersForms_;
    outlook::Inspector ouiCurrInspector_;
    outlook::AppointmentItem ouaCurrApp_;
    outlook::CommandBarButton cmdButton_;
    outlook::CommandBarComboBox cmbProjects_;
    std::shared_ptr<OrdersForm> objCurrOrders_;
    /// A meeting request has no time of its own: no rule applies to it and it has no copies.
    bool isRequest_ = false;
    bool blnOrdersShown_ = false;
    /// The item is being thrown away after a refusal, so its closing asks nothing more.
    bool blnDiscarding_ = false;
    bool blnRefused_ = false;
    /// The item was still empty when it was closed.
    bool blnSmallNewItem_ = false;
    bool blnClosed_ = false;
    automation::Connection windowEvents_;
    automation::Connection itemEvents_;
    automation::Connection buttonEvents_;
    automation::Connection comboEvents_;
};

} // namespace rf
