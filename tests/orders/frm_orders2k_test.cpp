#include "orders/orders_form_fixture.h"

#include "app/shutdown.h"
#include "orders/cost_center.h"

namespace rf::orders {
namespace {

/// The form of a booking where there are no supplies: it has no grid then, and everything else.
class OrdersForm : public OrdersFormTest {
protected:
    [[nodiscard]] std::vector<Text> seen() const
    {
        std::vector<Text> names;
        for (const auto& control : window().controls())
            if (control->visible())
                names.push_back(control->name());
        return names;
    }
    [[nodiscard]] Text chosen() const
    {
        for (const TextView name : {u"optPlaceSetting1", u"optPlaceSetting2", u"optPlaceSetting3", u"optPlaceSetting4"})
            if (const auto& option = window().at<ui::OptionButton>(name); option.value())
                return option.caption();
        return {};
    }
};

TEST_F(OrdersForm, ShowsWhoBookedAndWhen)
{
    const auto item = booking();
    open(item);
    EXPECT_EQ(window().textOf(u"txtBooker"), u"Jane Doe");
    EXPECT_EQ(window().textOf(u"txtCreatedAt"), regional->formatDate(clock.now()));
    EXPECT_TRUE(window().at<ui::TextBox>(u"txtCreatedAt").readOnly());
    EXPECT_EQ(window().labelOf(u"lblBookedBy"), u"Booked by");
    EXPECT_EQ(window().labelOf(u"lblBookedAt"), u"Created");
    EXPECT_EQ(window().caption(), u"Roomfold for Outlook Booking Info");
    EXPECT_EQ(form->caption(), u"Roomfold for Outlook Booking Info");
    EXPECT_TRUE(window().isShown());
}

TEST_F(OrdersForm, ShowsNoCreationWhereTheHostTellsNone)
{
    open(newAppointment(u"New", test::at(9), 30));
    EXPECT_EQ(window().textOf(u"txtCreatedAt"), u"");
}

TEST_F(OrdersForm, TakesItsCaptionsFromThePhrases)
{
    open(booking());
    EXPECT_EQ(window().labelOf(u"lblOrderSum"), u"Cost of items ordered");
    EXPECT_EQ(window().labelOf(u"lblPlaceSettings"), u"Place settings");
    EXPECT_EQ(window().labelOf(u"lblCC"), u"Cost Center");
    EXPECT_EQ(window().labelOf(u"lblOrderComment"), u"Comment to order");
    EXPECT_EQ(window().at<ui::Button>(u"cmdOK").caption(), u"OK");
    EXPECT_EQ(window().at<ui::Button>(u"cmdCancel").caption(), u"Cancel");
}

TEST_F(OrdersForm, WithoutSuppliesShowsWhoBookedPlaceSettingsAndButtonsOnly)
{
    settings().PlaceSettings.FromString(u"Theatre\r\nU-shape");
    open(booking());
    EXPECT_EQ(seen(),
        (std::vector<Text>{u"lblBookedBy", u"txtBooker", u"lblBookedAt", u"txtCreatedAt", u"lblPlaceSettings",
            u"optPlaceSetting1", u"optPlaceSetting2", u"cmdOK", u"cmdCancel"}));
    EXPECT_TRUE(window().asked.empty()) << "no grid is made";
    EXPECT_EQ(window().at(u"cmdOK").bounds().top, 960);
    EXPECT_EQ(window().at(u"cmdCancel").bounds().top, 960);
}

TEST_F(OrdersForm, WithoutSuppliesWritesTheOrdersTextItHeldAndTheBookerOnly)
{
    settings().PlaceSettings.FromString(u"Theatre");
    settings().DefaultPlaceSetting = u"Theatre";
    requireCostCenter(u"1");
    const auto item = booking();
    order(item, u"Coffee\t12\r\nlast line without its end");
    open(item);
    window().replace(u"txtBooker", u"John");
    window().type(u"txtCC1", u"4711");
    window().press(u"cmdOK");
    EXPECT_EQ(ordersOf(item), u"Coffee\t12\r\nlast line without its end");
    EXPECT_EQ(textOf(item, u"SafeOrganizer"), u"John");
    EXPECT_EQ(textOf(item, u"PlaceSetting"), u"");
    EXPECT_EQ(textOf(item, u"OrderComment"), u"");
    EXPECT_EQ(textOf(item, u"CostCenter"), u"");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(closed, 1);
}

/// Which parts of the form are shown.
struct Parts {
    bool order = false;
    bool placeSettings = false;
    CostCenterFields costCenter = CostCenterFields::None;
};

std::vector<Parts> allParts()
{
    std::vector<Parts> all;
    for (const bool order : {false, true})
        for (const bool placeSettings : {false, true})
            for (const auto costCenter : {CostCenterFields::None, CostCenterFields::Whole, CostCenterFields::Halves})
                all.push_back({order, placeSettings, costCenter});
    return all;
}

void show(OrdersControls& controls, const Parts& parts)
{
    if (!parts.order)
        controls.leaveOutOrder();
    if (!parts.placeSettings)
        controls.widenComment();
    for (auto* option : controls.optPlaceSetting)
        option->setVisible(parts.placeSettings);
    controls.lblCC.setVisible(true);
    if (parts.costCenter == CostCenterFields::Whole)
        controls.showWholeCostCenter();
    if (parts.costCenter == CostCenterFields::Halves)
        controls.showHalvesOfCostCenter();
}

bool isApart(const ui::Bounds& one, const ui::Bounds& other)
{
    return one.left + one.width <= other.left || other.left + other.width <= one.left
        || one.top + one.height <= other.top || other.top + other.height <= one.top;
}

TEST_F(OrdersForm, ControlsDoNotOverlapWhicheverAreShown)
{
    for (const Parts& parts : allParts()) {
        const auto made = toolkit.makeFormWindow();
        OrdersControls controls{*made};
        show(controls, parts);
        std::vector<const ui::Control*> shown;
        for (const auto& control : window().controls())
            if (control->visible())
                shown.push_back(control.get());
        for (auto one = shown.begin(); one != shown.end(); ++one) {
            const auto bounds = (*one)->bounds();
            EXPECT_LE(bounds.left + bounds.width, controls.extent().width) << toUtf8((*one)->name());
            EXPECT_LE(bounds.top + bounds.height, controls.extent().height) << toUtf8((*one)->name());
            for (auto other = std::next(one); other != shown.end(); ++other)
                EXPECT_TRUE(isApart(bounds, (*other)->bounds()))
                    << toUtf8((*one)->name()) << " and " << toUtf8((*other)->name());
        }
    }
}

TEST_F(OrdersForm, ShowsOnlyTheFirstFourOfFivePlaceSettings)
{
    settings().PlaceSettings.FromString(u"Theatre\r\nU-shape\r\nBlock\r\nRows\r\nCircle");
    open(booking());
    EXPECT_EQ(window().at<ui::OptionButton>(u"optPlaceSetting1").caption(), u"Theatre");
    EXPECT_EQ(window().at<ui::OptionButton>(u"optPlaceSetting4").caption(), u"Rows");
    EXPECT_TRUE(window().sees(u"optPlaceSetting4"));
    EXPECT_EQ(window().find(u"optPlaceSetting5"), nullptr);
    EXPECT_EQ(chosen(), u"");
}

TEST_F(OrdersForm, SelectsTheDefaultPlaceSettingOrThatOfTheBooking)
{
    settings().PlaceSettings.FromString(u"Theatre\r\nU-shape\r\nBlock");
    settings().DefaultPlaceSetting = u"U-shape";
    const auto item = booking();
    open(item);
    EXPECT_EQ(chosen(), u"U-shape");
    setProperty(item, u"PlaceSetting", u"Block");
    open(item);
    EXPECT_EQ(chosen(), u"Block");
    setProperty(item, u"PlaceSetting", u"Circle");
    open(item);
    EXPECT_EQ(chosen(), u"U-shape") << "one that is offered no longer does not count";
    setProperty(item, u"PlaceSetting", u"BLOCK");
    open(item);
    EXPECT_EQ(chosen(), u"U-shape") << "the caption is compared to the letter";
    settings().DefaultPlaceSetting = u"u-shape";
    setProperty(item, u"PlaceSetting", u"");
    open(item);
    EXPECT_EQ(chosen(), u"");
}

TEST_F(OrdersForm, ShowsTheFieldsOfItsCostCenterFormat)
{
    const auto shown = [this](TextView format) {
        requireCostCenter(Text{format});
        open(booking());
        return std::array{
            window().sees(u"lblCC"), window().sees(u"txtCC1"), window().sees(u"linCC"), window().sees(u"txtCC2")};
    };
    EXPECT_EQ(shown(u"1"), (std::array{true, true, false, false}));
    EXPECT_EQ(window().at(u"txtCC1").bounds().width, 2535);
    EXPECT_EQ(window().at<ui::TextBox>(u"txtCC1").maxLength(), 0);
    EXPECT_EQ(shown(u"XXX-XXX"), (std::array{true, true, true, true}));
    EXPECT_EQ(window().at<ui::TextBox>(u"txtCC1").maxLength(), 3);
    EXPECT_EQ(window().at<ui::TextBox>(u"txtCC2").maxLength(), 3);
    EXPECT_EQ(shown(u"0"), (std::array{true, false, false, false})) << "this format is checked but never shown";
    settings().KCWithOrder = false;
    open(booking());
    EXPECT_FALSE(window().sees(u"lblCC"));
    EXPECT_FALSE(window().sees(u"txtCC1"));
}

TEST_F(OrdersForm, ShowsAStoredCostCenterWholeOrInHalves)
{
    const auto item = booking();
    setProperty(item, u"CostCenter", u"123456");
    requireCostCenter(u"1");
    open(item);
    EXPECT_EQ(window().textOf(u"txtCC1"), u"123456");
    requireCostCenter(u"XXX-XXX");
    open(item);
    EXPECT_EQ(window().textOf(u"txtCC1"), u"123");
    EXPECT_EQ(window().textOf(u"txtCC2"), u"456");
    settings().KCWithOrder = false;
    open(item);
    EXPECT_EQ(window().textOf(u"txtCC1"), u"");
}

TEST_F(OrdersForm, AStoredCostCenterOfFiveCharactersInFormatXXXXXXFillsOnlyTxtCC1)
{
    const auto item = booking();
    setProperty(item, u"CostCenter", u"12345");
    requireCostCenter(u"XXX-XXX");
    open(item);
    EXPECT_EQ(window().textOf(u"txtCC1"), u"123");
    EXPECT_EQ(window().textOf(u"txtCC2"), u"");
}

TEST_F(OrdersForm, TakesDigitsInTheHalvesOfACostCenterAndGoesOnToTheSecond)
{
    requireCostCenter(u"XXX-XXX");
    open(booking());
    bool reached = false;
    window().at<ui::TextBox>(u"txtCC2").GotFocus = [&] { reached = true; };
    window().type(u"txtCC1", u"1a2");
    EXPECT_EQ(window().textOf(u"txtCC1"), u"12");
    EXPECT_FALSE(reached);
    window().type(u"txtCC1", u"-3");
    EXPECT_EQ(window().textOf(u"txtCC1"), u"123");
    EXPECT_TRUE(reached);
    window().type(u"txtCC2", u"4x5\b67");
    EXPECT_EQ(window().textOf(u"txtCC2"), u"467");
}

TEST_F(OrdersForm, TakesEveryKeyInAWholeCostCenter)
{
    requireCostCenter(u"1");
    open(booking());
    window().type(u"txtCC1", u"4711 West-A");
    EXPECT_EQ(window().textOf(u"txtCC1"), u"4711 West-A");
}

TEST_F(OrdersForm, WritesNothingWhenItIsCancelled)
{
    const auto item = booking();
    item.save();
    open(item);
    window().replace(u"txtBooker", u"John");
    window().press(u"cmdCancel");
    EXPECT_EQ(textOf(item, u"SafeOrganizer"), u"Jane Doe");
    EXPECT_TRUE(item.saved());
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(closed, 1);
}

TEST_F(OrdersForm, WritesNothingWhenItsWindowIsClosed)
{
    const auto item = booking();
    open(item);
    window().replace(u"txtBooker", u"John");
    window().closeBySystemBox();
    EXPECT_EQ(textOf(item, u"SafeOrganizer"), u"Jane Doe");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(closed, 1);
}

TEST_F(OrdersForm, MayBeLetGoWhileItTellsThatItHasClosed)
{
    open(booking());
    form->Closed = [this] {
        ++closed;
        form.reset();
    };
    window().press(u"cmdOK");
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(form, nullptr);
    EXPECT_TRUE(toolkit.formWindows.empty());
}

TEST_F(OrdersForm, GoesWithTheProgramAndTellsOnce)
{
    open(booking());
    subCleanUp(*session);
    EXPECT_FALSE(isOpen());
    EXPECT_FALSE(window().isShown());
    EXPECT_EQ(closed, 1);
}

TEST_F(OrdersForm, StandsOverTheWindowOfItsAppointment)
{
    const auto item = booking();
    auto appointment = item.getInspector();
    appointment.setLeft(300);
    appointment.setTop(200);
    open(item);
    const auto first = window().position();
    EXPECT_GT(first.left, 300 * 15);
    EXPECT_GT(first.top, 200 * 15);
    appointment.setLeft(400);
    form->subSetPosition();
    EXPECT_EQ(window().position().left - first.left, 100 * 15);
    form->setParent(77);
    EXPECT_EQ(window().parent(), 77U);
}

TEST_F(OrdersForm, AddsThePropertiesThatABookingLacks)
{
    const auto item = newAppointment(u"New", test::at(9), 30);
    open(item);
    window().press(u"cmdOK");
    for (const auto& [name, type] : bookingProperties)
        EXPECT_EQ(item.userProperties().find(name).type(), type) << toUtf8(name);
    EXPECT_EQ(ordersOf(item), u"");
}

TEST_F(OrdersForm, ReportsWhatItCannotWriteAndEndsTheProgram)
{
    const auto item = booking();
    open(item);
    item.remove();
    EXPECT_FALSE(reportOf([&] { window().press(u"cmdOK"); }).empty());
}

} // namespace
} // namespace rf::orders
