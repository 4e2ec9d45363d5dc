#pragma once

#include "app/frm_dummy.h"
#include "booking/inspectors.h"
#include "booking/rules_fixture.h"
#include "diagnostics/product.h"
#include "host/inspectors.h"
#include "host/item_factory.h"

namespace rf::test {

/// Notes what an appointment window does with its orders form.
class RecordingOrdersForm final : public OrdersForm {
public:
    explicit RecordingOrdersForm(outlook::AppointmentItem appointment)
        : item(std::move(appointment))
    {
    }

    outlook::AppointmentItem item;
    std::vector<std::string> steps;
    ui::WindowHandle parent = 0;

    [[nodiscard]] TextView name() const override { return u"frmOrders2K"; }
    void load() override { steps.emplace_back("load"); }
    void show() override { steps.emplace_back("show"); }
    void unload() override
    {
        steps.emplace_back("unload");
        // A copy, since whoever hears it lets go of the form.
        if (const auto heard = Closed)
            heard();
    }
    void subSetPosition() override { steps.emplace_back("position"); }
    void setParent(ui::WindowHandle window) override
    {
        parent = window;
        steps.emplace_back("parent");
    }
};

/// The program beside a host in which a person works with appointment windows.
class AppointmentWindow : public RulesOverTransport {
protected:
    AppointmentWindow()
    {
        session->objInspectors = std::make_unique<cInspectors>(*session, [this](const auto& item) {
            orders.push_back(std::make_shared<RecordingOrdersForm>(item));
            return orders.back();
        });
        session->objInspectors->setOuisInspectors(session->ouaApp.inspectors());
    }

    /// The person opens a new item of a calendar or of another folder.
    std::shared_ptr<host::Inspector> openNew(
        const Text& messageClass = u"IPM.Appointment", host::FolderId where = host::FolderId::None) const
    {
        return open(host::makeItem(host->model().shared_from_this(),
            host::newRecord(host->model(), where == host::FolderId::None ? room : where, messageClass)));
    }
    std::shared_ptr<host::Inspector> open(const std::shared_ptr<automation::Dispatch>& item) const
    {
        auto window = host->model().inspectors().windowOf(host::itemOf(item));
        window->display();
        return window;
    }
    /// The person opens the only booking of the room.
    std::shared_ptr<host::Inspector> openBooking() const
    {
        return open(host::makeItem(host->model().shared_from_this(), only(room)));
    }
    /// The person opens a new appointment and fills it in.
    std::shared_ptr<host::Inspector> openFilled(const Text& subject, Date start, int minutes) const
    {
        auto window = openNew();
        fill(*window, subject, start, minutes);
        return window;
    }
    static void fill(host::Inspector& window, const Text& subject, Date start, int minutes)
    {
        auto& item = window.item();
        item.record().subject = subject;
        item.record().start = start;
        item.record().end = start.plusMinutes(minutes);
        item.touch();
    }
    [[nodiscard]] static host::CommandBar* bar(const host::Inspector& window)
    {
        return window.commandBars().find(productCaption).get();
    }
    [[nodiscard]] static const std::vector<std::shared_ptr<host::CommandBarControl>>& controls(
        const host::Inspector& window)
    {
        return bar(window)->controls().all();
    }
    [[nodiscard]] cCurrInspector& watched() const { return *session->objInspectors->windows().back(); }
    [[nodiscard]] std::size_t watchedCount() const { return session->objInspectors->windows().size(); }
    [[nodiscard]] static automation::Variant propertyOf(const host::Inspector& window, TextView name)
    {
        return property(window.item().record(), name);
    }
    void defineProjects() const
    {
        settings().Projects.FromString(u"Alpha;255\r\nBeta;128\r\n");
        settings().ProjectCaption = u"Project";
    }
    void copyBoth() const
    {
        settings().PersonalCopy = true;
        copyToMaster(all);
    }
    /// A booking of 9 to 10 that nothing may overlap.
    void forbidDoubles() const
    {
        settings().NoDoubles = true;
        booked(u"First", at(9), 60);
    }

    static constexpr std::int32_t ok = 1;
    static constexpr std::int32_t cancel = 2;
    std::vector<std::shared_ptr<RecordingOrdersForm>> orders;
};

TEST_P(AppointmentWindow, GetsTheBookingBarAtItsTop)
{
    const auto window = openNew();
    ASSERT_NE(bar(*window), nullptr);
    EXPECT_EQ(bar(*window)->position(), outlook::code(outlook::BarPosition::Top));
    EXPECT_TRUE(bar(*window)->visible());
}

TEST_P(AppointmentWindow, HasTheButtonOfTheOrdersForm)
{
    const auto window = openNew();
    const auto& button = *controls(*window).front();
    EXPECT_EQ(button.type(), outlook::code(outlook::ControlType::Button));
    EXPECT_EQ(button.width(), 60);
    EXPECT_EQ(button.style(), outlook::code(outlook::ButtonStyle::IconAndCaption));
    EXPECT_EQ(button.caption(), u"Booking info");
    EXPECT_EQ(button.faceId(), 790);
    EXPECT_TRUE(button.beginGroup());
}

TEST_P(AppointmentWindow, HasAComboOfTheProjects)
{
    defineProjects();
    const auto item = newAppointment(u"Board", at(9), 60);
    item.setCategories(u"Beta");
    item.save();
    const auto window = openBooking();
    ASSERT_EQ(controls(*window).size(), 2U);
    const auto& combo = *controls(*window).back();
    EXPECT_TRUE(combo.isCombo());
    EXPECT_EQ(combo.width(), 240);
    EXPECT_EQ(combo.style(), outlook::code(outlook::ComboStyle::Label));
    EXPECT_EQ(combo.caption(), u"Project");
    EXPECT_EQ(combo.text(), u"Beta");
    EXPECT_TRUE(combo.beginGroup());
    EXPECT_EQ(combo.list(), (std::vector<Text>{u"Alpha", u"Beta"}));
}

TEST_P(AppointmentWindow, WithNoProjectDefinedHasABarWithTheButtonOnly)
{
    const auto window = openNew();
    ASSERT_EQ(controls(*window).size(), 1U);
    EXPECT_FALSE(controls(*window).front()->isCombo());
    EXPECT_FALSE(watched().cmbProjects());
}

TEST_P(AppointmentWindow, OfAMailOrATaskGetsNoCommandBar)
{
    for (const TextView messageClass : {u"IPM.Note", u"IPM.Task", u"IPM.Post"}) {
        const auto window = openNew(Text{messageClass});
        EXPECT_EQ(bar(*window), nullptr) << toUtf8(messageClass);
    }
    EXPECT_EQ(watchedCount(), 0U);
}

TEST_P(AppointmentWindow, OfAMeetingRequestGetsTheBar)
{
    const auto window = openNew(u"IPM.Schedule.Meeting.Request");
    ASSERT_NE(bar(*window), nullptr);
    EXPECT_TRUE(window->hiddenPages().empty());
}

/// As they are opened any case of the letters counts; as they are activated only the one that the host writes.
TEST_P(AppointmentWindow, OfAClassInOtherLettersIsWatchedButLeftAsItIs)
{
    const auto window = openNew(u"IPM.appointment");
    EXPECT_EQ(watchedCount(), 1U);
    EXPECT_EQ(bar(*window), nullptr);
}

TEST_P(AppointmentWindow, IsTheOneThatTheHiddenFormFinishes)
{
    const auto form = std::make_shared<frmDummy>(*session);
    session->forms.load(form);
    openNew();
    const auto window = openNew();
    EXPECT_EQ(form->ouiPendingInspector().caption(), window->caption());
    EXPECT_TRUE(form->ouiPendingInspector() == watched().ouiCurrInspector());
    openNew(u"IPM.Note");
    EXPECT_TRUE(form->ouiPendingInspector() == watched().ouiCurrInspector());
}

TEST_P(AppointmentWindow, GivesItsItemTheBookingPropertiesAndItsOrganizer)
{
    const auto window = openNew();
    EXPECT_EQ(window->item().record().userProperties.size(), bookingProperties.size());
    EXPECT_EQ(propertyOf(*window, u"SafeOrganizer"), automation::Variant{u"Jane Doe"});
    EXPECT_EQ(propertyOf(*window, u"OCID"), automation::Variant{Text{}});
}

TEST_P(AppointmentWindow, NamesTheOrganizerOfAnItemThatIsYoungerThanAQuarterOfAMinute)
{
    for (const auto& [age, organizer] : {std::pair{14, u"Jane Doe"}, std::pair{16, u""}}) {
        saved(u"Board", at(9), 60);
        clock.set(Date::fromSeconds(clock.now().seconds() + age));
        const auto window = openBooking();
        EXPECT_EQ(propertyOf(*window, u"SafeOrganizer"), automation::Variant{Text{organizer}}) << age;
        window->close(host::CloseMode::Discard);
        store->remove(only(room).id);
    }
}

TEST_P(AppointmentWindow, AddsNoSecondOrganizerWhenItIsActivatedAgain)
{
    const auto window = openNew();
    watched().ouaCurrApp().userProperties().find(u"SafeOrganizer").setValue(Text{});
    window->activate();
    EXPECT_EQ(propertyOf(*window, u"SafeOrganizer"), automation::Variant{Text{}});
    watched().ouaCurrApp().userProperties().find(u"SafeOrganizer").setValue(u"Rita Roe");
    window->display();
    EXPECT_EQ(propertyOf(*window, u"SafeOrganizer"), automation::Variant{u"Rita Roe"});
    EXPECT_EQ(window->item().record().userProperties.size(), bookingProperties.size());
    EXPECT_EQ(controls(*window).size(), 1U);
    EXPECT_EQ(watchedCount(), 1U);
}

TEST_P(AppointmentWindow, KeepsABarThatItHasAlready)
{
    const auto item = host::makeItem(
        host->model().shared_from_this(), host::newRecord(host->model(), room, outlook::message_class::appointment));
    const auto before = host->model()
                            .inspectors()
                            .windowOf(host::itemOf(item))
                            ->commandBars()
                            .add(Text{productCaption}, outlook::code(outlook::BarPosition::Floating));
    const auto window = open(item);
    EXPECT_EQ(bar(*window), before.get());
    EXPECT_EQ(before->position(), outlook::code(outlook::BarPosition::Top));
    EXPECT_TRUE(before->visible());
}

TEST_P(AppointmentWindow, HidesTheSchedulingPage)
{
    EXPECT_EQ(openNew()->pages(), (std::vector<Text>{u"Appointment"}));
}

TEST_P(AppointmentWindow, OfAnOrganisedMeetingKeepsTheSchedulingPage)
{
    const auto item = host::itemOf(host::makeItem(
        host->model().shared_from_this(), host::newRecord(host->model(), room, outlook::message_class::appointment)));
    item->record().meetingStatus = outlook::code(outlook::MeetingStatus::Meeting);
    const auto window = open(item->dispatch());
    EXPECT_TRUE(window->hiddenPages().empty());
    item->record().meetingStatus = outlook::code(outlook::MeetingStatus::NonMeeting);
    window->activate();
    EXPECT_FALSE(window->hiddenPages().empty()) << "each activation looks anew";
}

TEST_P(AppointmentWindow, HidesTheInviteButtonOnlyWhenItIsTold)
{
    const auto window = openNew();
    const auto invite = [&] {
        for (const auto& control : window->commandBars().find(u"Standard")->controls().all())
            if (control->id() == outlook::host_control::inviteAttendees)
                return control->visible();
        return false;
    };
    EXPECT_TRUE(invite());
    watched().subHideInviteButton();
    EXPECT_FALSE(invite());
    EXPECT_TRUE(controls(*window).front()->visible());
}

TEST_P(AppointmentWindow, MakesTheChosenProjectTheCategory)
{
    defineProjects();
    const auto window = openNew();
    controls(*window).back()->choose(u"Alpha");
    EXPECT_EQ(window->item().record().categories, u"Alpha");
    controls(*window).back()->choose(u"");
    EXPECT_EQ(window->item().record().categories, u"");
}

TEST_P(AppointmentWindow, OpensTheOrdersFormForItsItem)
{
    const auto window = openNew();
    constexpr ui::WindowHandle onScreen = 77;
    toolkit.windows[window->caption()] = onScreen;
    controls(*window).front()->click();
    ASSERT_EQ(orders.size(), 1U);
    EXPECT_EQ(orders[0]->steps, (std::vector<std::string>{"load", "show", "position", "parent"}));
    EXPECT_TRUE(orders[0]->item == watched().ouaCurrApp());
    EXPECT_EQ(orders[0]->parent, onScreen);
    EXPECT_TRUE(watched().blnOrdersShown());
    EXPECT_EQ(session->forms.count(), 1U);
    EXPECT_EQ(session->trace.fncLastAction(), u"Showing the booking info form!");
}

TEST_P(AppointmentWindow, OpensOneOrdersFormUntilThatIsClosed)
{
    const auto window = openNew();
    controls(*window).front()->click();
    controls(*window).front()->click();
    EXPECT_EQ(orders.size(), 1U);
    session->forms.unload(*orders[0]);
    EXPECT_FALSE(watched().blnOrdersShown());
    EXPECT_FALSE(watched().objCurrOrders());
    controls(*window).front()->click();
    EXPECT_EQ(orders.size(), 2U);
}

TEST_P(AppointmentWindow, TakesItsOrdersFormAlongWhenItIsClosed)
{
    const auto window = openNew();
    controls(*window).front()->click();
    window->close(host::CloseMode::Discard);
    EXPECT_EQ(orders.at(0)->steps.back(), "unload");
    EXPECT_EQ(session->forms.count(), 0U);
}

TEST_P(AppointmentWindow, TakesItsOrdersFormAlongWhenItsItemIsThrownAway)
{
    forbidDoubles();
    windows.answer = cancel;
    const auto window = openFilled(u"Second", at(9, 30), 60);
    controls(*window).front()->click();
    window->item().save();
    EXPECT_EQ(session->forms.count(), 0U);
}

TEST_P(AppointmentWindow, TakesItsOrdersFormAlongWhenTheProgramLetsGoOfIt)
{
    controls(*openNew()).front()->click();
    session->objInspectors.reset();
    EXPECT_EQ(session->forms.count(), 0U);
}

TEST_P(AppointmentWindow, GivesAnAcceptedBookingWhatItCarries)
{
    clock.set(Date::fromFields({2024, 2, 3, 8, 4, 7}));
    openFilled(u"Board", at(9), 90)->item().save();
    const auto booking = only(room);
    EXPECT_EQ(property(booking, u"SafeOrganizer"), automation::Variant{u"Jane Doe"});
    EXPECT_EQ(property(booking, u"OriginalStartDate"), automation::Variant{at(9)});
    EXPECT_EQ(property(booking, u"OriginalDuration"), automation::Variant{90.0});
    EXPECT_EQ(property(booking, u"OCID"), automation::Variant{u"2024-2-3:8.4.7_Jane Doe"});
    EXPECT_TRUE(windows.alerts.empty());
}

TEST_P(AppointmentWindow, CopiesABookingOnceHoweverOftenItIsSaved)
{
    watch();
    copyBoth();
    const auto window = openFilled(u"Board", at(9), 60);
    window->item().save();
    fill(*window, u"Board, moved", at(14), 60);
    window->item().save();
    EXPECT_EQ(only(own).subject, u"Board, moved");
    EXPECT_EQ(only(own).location, u"Room 1");
    EXPECT_EQ(only(own).start, at(14));
    EXPECT_EQ(only(all).subject, u"FR: Board, moved");
    EXPECT_EQ(only(all).location, u"Room 1");
    EXPECT_EQ(property(only(own), u"OCID"), property(only(room), u"OCID"));
}

TEST_P(AppointmentWindow, OfACalendarThatNobodyWatchesCopiesWithoutTheNameOfASource)
{
    settings().PersonalCopy = true;
    openFilled(u"Board", at(9), 60)->item().save();
    EXPECT_EQ(only(own).location, u"");
}

TEST_P(AppointmentWindow, OfAMeetingRequestIsSavedWithoutRuleOrCopy)
{
    settings().ProjectMandatory = true;
    copyBoth();
    openNew(u"IPM.Schedule.Meeting.Request")->item().save();
    EXPECT_EQ(stored(room).size(), 1U);
    EXPECT_TRUE(stored(own).empty());
    EXPECT_TRUE(windows.alerts.empty());
}

TEST_P(AppointmentWindow, SavingADoubleBookingWithCancelChosenDeletesTheItemAndCloses)
{
    forbidDoubles();
    copyBoth();
    windows.answer = cancel;
    const auto window = openFilled(u"Second", at(9, 30), 60);
    window->item().save();
    EXPECT_EQ(windows.alerts,
        (std::vector<Text>{u"Roomfold for Outlook Booking Info|No double-bookings are allowed in this calendar. Please "
                           u"select another time!|1|3"}));
    EXPECT_TRUE(window->item().isDeleted());
    EXPECT_TRUE(window->isClosed());
    EXPECT_EQ(only(room).subject, u"First");
    EXPECT_TRUE(stored(own).empty());
    EXPECT_TRUE(watched().isDone());
}

TEST_P(AppointmentWindow, SavingADoubleBookingWithOkChosenStaysOpenAndNothingIsSaved)
{
    forbidDoubles();
    copyBoth();
    windows.answer = ok;
    const auto window = openFilled(u"Second", at(9, 30), 60);
    window->item().save();
    EXPECT_EQ(windows.alerts.size(), 1U);
    EXPECT_FALSE(window->isClosed());
    EXPECT_FALSE(window->item().isDeleted());
    EXPECT_FALSE(window->item().saved());
    EXPECT_TRUE(watched().blnRefused());
    EXPECT_EQ(only(room).subject, u"First");
    EXPECT_TRUE(stored(own).empty());
    fill(*window, u"Second", at(10), 60);
    window->item().save();
    EXPECT_EQ(stored(room).size(), 2U);
}

TEST_P(AppointmentWindow, ThatIsClosedWithSavingADoubleBookingAsksOnce)
{
    forbidDoubles();
    windows.answer = ok;
    const auto window = openFilled(u"Second", at(9, 30), 60);
    window->close(host::CloseMode::Save);
    EXPECT_EQ(windows.alerts.size(), 1U);
    EXPECT_FALSE(window->isClosed());
    windows.answer = cancel;
    window->close(host::CloseMode::Save);
    EXPECT_EQ(windows.alerts.size(), 2U);
    EXPECT_TRUE(window->isClosed());
    EXPECT_TRUE(window->item().isDeleted());
    EXPECT_EQ(only(room).subject, u"First");
}

TEST_P(AppointmentWindow, OfARefusedBookingThatWasThrownAwayIsDroppedByTheNextTick)
{
    forbidDoubles();
    windows.answer = cancel;
    openFilled(u"Second", at(9, 30), 60)->item().save();
    session->objInspectors->subDropClosed();
    EXPECT_EQ(watchedCount(), 0U);
}

TEST_P(AppointmentWindow, SavingABookingThatWasMovedOntoAnotherWithCancelChosenDeletesIt)
{
    settings().NoDoubles = true;
    booked(u"Second", at(14), 60);
    const auto window = openBooking();
    booked(u"First", at(9), 60);
    windows.answer = cancel;
    fill(*window, u"Second", at(9, 30), 60);
    window->item().save();
    EXPECT_TRUE(window->isClosed());
    EXPECT_EQ(only(room).subject, u"First");
}

TEST_P(AppointmentWindow, OfAnUntouchedNewItemClosesWithoutAWord)
{
    settings().ProjectMandatory = true;
    const auto window = openNew();
    window->close(host::CloseMode::PromptForSave);
    EXPECT_TRUE(window->isClosed());
    EXPECT_TRUE(windows.alerts.empty());
    EXPECT_TRUE(stored(room).empty());
    EXPECT_TRUE(watched().blnClosed());
    EXPECT_FALSE(watched().ouaCurrApp());
    EXPECT_FALSE(watched().ouiCurrInspector());
    EXPECT_FALSE(watched().cmdButton());
}

TEST_P(AppointmentWindow, OfAnAcceptedBookingClosesWithoutAWord)
{
    settings().NoDoubles = true;
    booked(u"Board", at(9), 60);
    const auto window = openBooking();
    window->close(host::CloseMode::PromptForSave);
    EXPECT_TRUE(window->isClosed());
    EXPECT_TRUE(windows.alerts.empty());
}

TEST_P(AppointmentWindow, OfARefusedBookingStaysOpenUnlessThePersonCancels)
{
    booked(u"Board", at(9), 60);
    settings().ProjectMandatory = true;
    const auto window = openBooking();
    windows.answer = ok;
    window->close(host::CloseMode::PromptForSave);
    EXPECT_FALSE(window->isClosed());
    EXPECT_EQ(windows.alerts, (std::vector<Text>{u"Roomfold for Outlook Booking Info|Project mandatory|1|3"}));
    EXPECT_TRUE(watched().ouaCurrApp());
}

TEST_P(AppointmentWindow, OfARefusedBookingClosesWithoutItsChangesWhenThePersonCancels)
{
    booked(u"Board", at(9), 60);
    settings().ProjectMandatory = true;
    for (const auto mode : {host::CloseMode::Save, host::CloseMode::PromptForSave, host::CloseMode::Discard}) {
        windows.alerts.clear();
        const auto window = openBooking();
        fill(*window, u"Board, changed", at(11), 60);
        windows.answer = cancel;
        window->close(mode);
        EXPECT_TRUE(window->isClosed());
        EXPECT_EQ(windows.alerts.size(), 1U);
        EXPECT_EQ(only(room).subject, u"Board");
        EXPECT_TRUE(watched().isDone());
    }
}

TEST_P(AppointmentWindow, OfAnItemThatIsDeletedElsewhereLetsGoOfIt)
{
    booked(u"Board", at(9), 60);
    const auto window = openBooking();
    window->item().remove();
    EXPECT_TRUE(watched().blnClosed());
    EXPECT_FALSE(watched().ouaCurrApp());
}

TEST_P(AppointmentWindow, MayBeClosedAtEveryMomentOfItsBeingTakenUp)
{
    defineProjects();
    openNew();
    const auto shown = watched().ouiCurrInspector();
    const auto fault = std::make_shared<Fault>();
    const auto takeUp = [&](std::optional<int> closedAt) {
        const auto window = std::make_shared<cCurrInspector>(*session, OrdersForms{});
        window->setOuiCurrInspector(outlook::Inspector{FaultyDispatch::wrap(shown.object(), fault)});
        *fault = {.failingUse = closedAt, .instead = [&] { window->ouiCurrInspector_Close(); }};
        window->ouiCurrInspector_Activate();
        EXPECT_EQ(window->blnClosed(), closedAt.has_value());
        EXPECT_EQ(!window->ouaCurrApp() && !window->cmdButton() && !window->cmbProjects(), closedAt.has_value());
        return fault->uses;
    };
    const int uses = takeUp(std::nullopt);
    ASSERT_GT(uses, 0);
    for (int use = 1; use <= uses; ++use) {
        SCOPED_TRACE("closed at the use " + std::to_string(use) + " of " + std::to_string(uses));
        EXPECT_NO_THROW(takeUp(use));
    }
}

TEST_P(AppointmentWindow, IsGuardedForAsLongAsItIsOpenBesideOthers)
{
    forbidDoubles();
    windows.answer = ok;
    const auto first = openFilled(u"Second", at(9, 15), 30);
    const auto second = openFilled(u"Third", at(9, 30), 30);
    second->close(host::CloseMode::Discard);
    first->item().save();
    EXPECT_EQ(windows.alerts.size(), 1U);
    EXPECT_EQ(stored(room).size(), 1U);
}

} // namespace rf::test
