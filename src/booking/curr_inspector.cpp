#include "booking/curr_inspector.h"

#include "app/frm_dummy.h"
#include "app/session.h"
#include "app/user_name.h"
#include "booking/acceptance.h"
#include "booking/app_copy.h"
#include "booking/app_items.h"
#include "booking/toolbar.h"
#include "booking/validation.h"
#include "outlook/events.h"
#include "platform/command_bar_list.h"
#include "storage/outlook_value.h"
#include "storage/settings.h"

namespace rf {

namespace {

constexpr std::int32_t buttonWidth = 60;
constexpr std::int32_t buttonFace = 790;
constexpr std::int32_t comboWidth = 240;

/// An item without a person's entry is smaller than this many bytes.
constexpr std::int32_t sizeOfAFilledItem = 150;

constexpr double hoursADay = 24;
constexpr double minutesAnHour = 60;
/// In minutes. Whoever opens a booking this soon after its creation is the one who made it.
constexpr double newFor = 0.25;

template <class... Steps>
void attemptEach(PendingError& errors, const Steps&... steps)
{
    (errors.attempt(steps), ...);
}

bool hasProjects(const Session& session)
{
    return session.objSettings && !session.objSettings->isBeingRead()
        && !session.objSettings->Projects.projects().empty();
}

bool hideFirst(const outlook::CommandBarControls& controls, std::int32_t id)
{
    const std::int32_t count = controls.count();
    for (std::int32_t position = 1; position <= count; ++position)
        if (const auto control = controls.item(position); control.id() == id) {
            control.setVisible(false);
            return true;
        }
    return false;
}

} // namespace

cCurrInspector::cCurrInspector(Session& session, OrdersForms ordersForms)
    : session_(session)
    , ordersForms_(std::move(ordersForms))
{
}

cCurrInspector::~cCurrInspector()
{
    PendingError errors;
    errors.attempt([&] { releaseOrders(); });
}

/// Events may come while this object goes, and a handler may be what makes it go.
template <class... Arguments>
auto cCurrInspector::handler(void (cCurrInspector::*handle)(Arguments...))
{
    return [weak = weak_from_this(), handle](Arguments... arguments) {
        if (const auto self = weak.lock())
            (self.get()->*handle)(arguments...);
    };
}

void cCurrInspector::setOuiCurrInspector(const outlook::Inspector& inspector)
{
    windowEvents_ = outlook::connect(inspector,
        outlook::InspectorEvents{.activate = handler(&cCurrInspector::ouiCurrInspector_Activate),
            .close = handler(&cCurrInspector::ouiCurrInspector_Close)});
    ouiCurrInspector_ = inspector;
}

void cCurrInspector::ouiCurrInspector_Activate()
{
    PendingError errors;
    const auto item = errors.attempt([&] { return ouiCurrInspector_.currentItem().as<outlook::AppointmentItem>(); });
    const Text messageClass = errors.attempt([&] { return item.messageClass(); });
    const bool isAppointment = messageClass == outlook::message_class::appointment;
    if (!isAppointment && messageClass != outlook::message_class::meetingRequest)
        return;
    if (!ouaCurrApp_) {
        isRequest_ = !isAppointment;
        takeItem(item);
    }
    // A quick person has closed the window meanwhile; what was taken up since goes too.
    if (blnClosed_)
        return release();
    if (isAppointment && errors.attempt([&] { return item.meetingStatus(); }) != outlook::MeetingStatus::Meeting)
        subHideShedulingTab();
}

void cCurrInspector::takeItem(const outlook::AppointmentItem& item)
{
    PendingError errors;
    itemEvents_ = errors.attempt([&] {
        return outlook::connect(item,
            outlook::ItemEvents{.write = handler(&cCurrInspector::ouaCurrApp_Write),
                .close = handler(&cCurrInspector::ouaCurrApp_Close)});
    });
    // A window whose item cannot be guarded is left alone until it is activated again.
    if (errors.pending())
        return;
    ouaCurrApp_ = item;
    BookingItem booking{item};
    static_cast<void>(fncAddBookingProps(booking));
    nameOrganizer(booking);
    if (const auto window = ouiCurrInspector_)
        addControls(window);
}

void cCurrInspector::nameOrganizer(BookingItem& booking)
{
    const auto organizer
        = fncGetOutlookValue(session_, booking.item(), nameOf(BookingProperty::SafeOrganizer), ValueKind::String, u"");
    if (!organizer.text().empty() || !isNew(booking.item()))
        return;
    PendingError errors;
    errors.attempt([&] { booking.property(BookingProperty::SafeOrganizer).setValue(fncGetUserName(session_)); });
}

bool cCurrInspector::isNew(const outlook::AppointmentItem& item) const
{
    PendingError errors;
    // One that was never saved has its creation in a far future, and is new.
    const Date created = errors.attempt([&] { return item.creationTime(); });
    const double age = (session_.services.clock.now().days() - created.days()) * hoursADay * minutesAnHour;
    return age < newFor;
}

void cCurrInspector::addControls(const outlook::Inspector& window)
{
    const auto bar = fncGetToolbar(session_, window);
    PendingError errors;
    const auto controls = errors.attempt([&] { return bar.controls(); });
    addButton(controls);
    if (hasProjects(session_))
        addCombo(controls);
}

void cCurrInspector::subAddProjects()
{
    if (!cmdButton_ || cmbProjects_ || !hasProjects(session_))
        return;
    const auto bar = fncGetToolbar(session_, ouiCurrInspector_);
    PendingError errors;
    addCombo(errors.attempt([&] { return bar.controls(); }));
    if (blnClosed_)
        release();
}

void cCurrInspector::addButton(const outlook::CommandBarControls& controls)
{
    PendingError errors;
    const auto button = errors.attempt([&] { return controls.addButton(true); });
    attemptEach(
        errors, [&] { button.setWidth(buttonWidth); }, [&] { button.setStyle(outlook::ButtonStyle::IconAndCaption); },
        [&] { button.setCaption(session_.language.phrases().LNGBOOKINGINFO); }, [&] { button.setFaceId(buttonFace); },
        [&] { button.setBeginGroup(true); },
        [&] {
            buttonEvents_ = outlook::connect(
                button, outlook::CommandBarButtonEvents{.click = handler(&cCurrInspector::cmdButton_Click)});
        });
    cmdButton_ = button;
}

void cCurrInspector::addCombo(const outlook::CommandBarControls& controls)
{
    PendingError errors;
    const auto combo = errors.attempt([&] { return controls.addComboBox(true); });
    attemptEach(
        errors, [&] { combo.setWidth(comboWidth); }, [&] { combo.setStyle(outlook::ComboStyle::Label); },
        [&] { combo.setCaption(session_.objSettings->ProjectCaption); },
        [&] { combo.setText(ouaCurrApp_.categories()); }, [&] { combo.setBeginGroup(true); },
        [&] {
            CommandBarList list{combo};
            session_.objSettings->Projects.AddToComboOrList(list);
        },
        [&] {
            comboEvents_ = outlook::connect(
                combo, outlook::CommandBarComboBoxEvents{.change = handler(&cCurrInspector::cmbProjects_Change)});
        });
    cmbProjects_ = combo;
}

void cCurrInspector::subHideShedulingTab() const
{
    for (const TextView page : schedulingPages) {
        PendingError errors;
        errors.attempt([&] { ouiCurrInspector_.hideFormPage(page); });
        if (!errors.pending())
            return;
    }
}

void cCurrInspector::subHideInviteButton() const
{
    PendingError errors;
    const auto bars = errors.attempt([&] { return ouiCurrInspector_.commandBars(); });
    const std::int32_t count = errors.attempt([&] { return bars.count(); });
    bool isHidden = false;
    for (std::int32_t position = 1; position <= count && !isHidden; ++position)
        isHidden = errors.attempt(
            [&] { return hideFirst(bars.item(position).controls(), outlook::host_control::inviteAttendees); });
}

void cCurrInspector::cmbProjects_Change(const outlook::CommandBarComboBox& /*Ctrl*/)
{
    PendingError errors;
    errors.attempt([&] { ouaCurrApp_.setCategories(cmbProjects_.text()); });
}

void cCurrInspector::cmdButton_Click(const outlook::CommandBarButton& /*Ctrl*/, bool& /*CancelDefault*/)
{
    session_.trace.subTrace(u"Showing the booking info form!");
    if (!blnOrdersShown_ && !objCurrOrders_)
        session_.reporter.handled(u"cCurrInspector.cmdButton_Click", [&] { showOrders(); });
}

void cCurrInspector::showOrders()
{
    const auto form = ordersForms_(ouaCurrApp_);
    form->Closed = handler(&cCurrInspector::objCurrOrders_FormClose);
    objCurrOrders_ = form;
    const auto window = session_.services.toolkit.findWindow(ouiCurrInspector_.caption());
    session_.forms.load(form);
    // Loading asks the host for much, and the appointment's window may have been closed meanwhile.
    if (objCurrOrders_ != form)
        return session_.forms.unload(*form);
    form->show();
    form->subSetPosition();
    form->setParent(window);
    blnOrdersShown_ = objCurrOrders_ == form;
}

void cCurrInspector::objCurrOrders_FormClose()
{
    objCurrOrders_.reset();
    blnOrdersShown_ = false;
}

Text cCurrInspector::refusal(BookingItem& booking) const
{
    return isRequest_ ? Text{} : fncValidateBooking(session_, booking);
}

bool cCurrInspector::isThrownAway(const Text& reason)
{
    return session_.alert.fncDoAlert(reason, ui::Buttons::OkCancel, ui::Icon::Warning)
        == static_cast<std::int32_t>(ui::Answer::Cancel);
}

void cCurrInspector::ouaCurrApp_Write(bool& Cancel)
{
    BookingItem booking{ouaCurrApp_};
    if (const Text reason = refusal(booking); !reason.empty()) {
        if (isThrownAway(reason))
            throwAway();
        else
            blnRefused_ = true;
        Cancel = true;
        return;
    }
    CopyCalendars copies{session_};
    const Text ocid = acceptBooking(session_, booking, copies);
    // A copy of a booking that does not know its link would never be found again, and every save would add another.
    if (!isRequest_ && !ocid.empty() && wantsCopies(session_))
        copies.copyBooking(booking, ocid, sourceName(booking));
}

void cCurrInspector::throwAway()
{
    // Deleting the item may close the window, which lets go of both.
    const auto item = ouaCurrApp_;
    const auto window = ouiCurrInspector_;
    PendingError errors;
    blnDiscarding_ = true;
    errors.attempt([&] { item.remove(); });
    releaseItem();
    errors.attempt([&] { window.close(outlook::CloseMode::Discard); });
    releaseWindow();
    releaseOrders();
}

Text cCurrInspector::sourceName(BookingItem& booking) const
{
    PendingError errors;
    const auto watcher = errors.attempt([&] { return watcherOf(session_, booking.folderEntryId()); });
    return watcher ? watcher->FolderName() : Text{};
}

void cCurrInspector::ouaCurrApp_Close(bool& Cancel)
{
    if (std::exchange(blnDiscarding_, false)) {
        Cancel = true;
        return;
    }
    const auto item = ouaCurrApp_;
    PendingError errors;
    if (errors.attempt([&] { return item.size(); }) < sizeOfAFilledItem)
        blnSmallNewItem_ = true;
    if (blnSmallNewItem_)
        return;
    BookingItem booking{item};
    const Text reason = refusal(booking);
    if (reason.empty())
        return;
    if (!isThrownAway(reason)) {
        Cancel = true;
        return;
    }
    // The closing that follows raises this event again and must pass.
    blnSmallNewItem_ = true;
    errors.attempt([&] { item.close(outlook::CloseMode::Discard); });
    blnDiscarding_ = true;
}

void cCurrInspector::ouiCurrInspector_Close()
{
    blnClosed_ = true;
    const auto form = hiddenForm(session_);
    if (form && form->ouiPendingInspector() == ouiCurrInspector_)
        form->setOuiPendingInspector({});
    release();
}

void cCurrInspector::release()
{
    releaseItem();
    releaseWindow();
    releaseOrders();
    buttonEvents_ = {};
    comboEvents_ = {};
    cmdButton_ = {};
    cmbProjects_ = {};
}

void cCurrInspector::releaseItem()
{
    itemEvents_ = {};
    ouaCurrApp_ = {};
}

void cCurrInspector::releaseWindow()
{
    windowEvents_ = {};
    ouiCurrInspector_ = {};
}

void cCurrInspector::releaseOrders()
{
    blnOrdersShown_ = false;
    if (const auto form = std::exchange(objCurrOrders_, nullptr))
        session_.forms.unload(*form);
}

} // namespace rf
