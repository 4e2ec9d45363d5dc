#include "orders/noting_spreadsheet.h"
#include "orders/orders_form_fixture.h"

#include <algorithm>

namespace rf::orders {
namespace {

using automation::Array;
using Uses = std::vector<Text>;

/// The form of a booking with two supplies, whose spreadsheet notes what it is told.
class OrdersFormSteps : public OrdersFormTest {
protected:
    OrdersFormSteps()
    {
        notes->constants = test::laterConstants();
        toolkit.components[u"OWC10.Spreadsheet"]
            = [this] { return automation::Object{std::make_shared<test::NotingSpreadsheet>(notes)}; };
        supply(u"Coffee", 25000);
        supply(u"Tea", 17500);
        answer(Array{{{1, 2}, {1, 3}}, {u"Coffee", 2.5, automation::Variant{}, u"Tea", 1.75, 4.0}});
        notes->answers[u"ActiveSheet.Protection.Enabled"] = false;
    }
    void answer(Array rows) const { notes->answers[u"Range(A2:C3).Value"] = std::move(rows); }
    void total(const automation::Variant& value) const { notes->answers[u"Range(D101).Value"] = value; }
    /// What the control is told from a step on.
    template <class Step>
    [[nodiscard]] Uses usesOf(Step step) const
    {
        notes->uses.clear();
        step();
        return notes->uses;
    }

    std::shared_ptr<test::SpreadsheetNotes> notes = std::make_shared<test::SpreadsheetNotes>();
};

TEST_F(OrdersFormSteps, BuildTheGridInTheirOrder)
{
    const auto item = booking();
    order(item, u"Tea\t4\r\n");
    open(item);
    const auto defaults = std::ranges::find(notes->uses, u"ActiveSheet.Protection.Enabled = True");
    ASSERT_NE(defaults, notes->uses.end());
    EXPECT_EQ(Uses(std::next(defaults), notes->uses.end()),
        (Uses{u"Range(A:A).EntireColumn.ColumnWidth = 55.36", u"Range(B:B).EntireColumn.ColumnWidth = 8.0272",
            u"Range(C:C).EntireColumn.ColumnWidth = 10.38", u"ActiveSheet.Protection.Enabled",
            u"Range(A1:B100).Interior.Color = 14215660", u"Range(A1:B100).Borders.Color = 12632256",
            u"Range(A1:B100).Borders.Weight = 2", u"Range(A1:B100).Locked = True", u"Range(D101).ClearContents",
            u"Range(D101).Formula = =SUM(D2:D100)", u"ActiveWindow.DisplayVerticalScrollBar = False",
            // The supplies.
            u"ScreenUpdating = False", u"ActiveSheet.Protection.Enabled = False", u"Range(A2:A3).NumberFormat = Text",
            u"Range(A2:B3).ClearContents", u"Range(A2:B3).Value = [Coffee|2.5|Tea|1.75]", u"Range(D2:D3).ClearContents",
            u"Range(D2:D3).Formula = =B2*C2", u"ActiveSheet.Protection.Enabled", u"ViewableRange = A1:C3",
            u"ActiveSheet.Protection.Enabled = True", u"ScreenUpdating = True",
            // The captions.
            u"ScreenUpdating = False", u"ActiveSheet.Protection.Enabled = False", u"TitleBar.Caption = Supply",
            u"Range(A1).ClearContents", u"Range(A1).Value = Item", u"Range(B1).ClearContents",
            u"Range(B1).Value = Rate", u"Range(C1).ClearContents", u"Range(C1).Value = # of items",
            u"ActiveSheet.Protection.Enabled = True", u"ScreenUpdating = True",
            // The orders.
            u"ScreenUpdating = False", u"ActiveSheet.Protection.Enabled = False", u"Range(c3).ClearContents",
            u"Range(c3).Value = 4", u"ActiveSheet.Protection.Enabled = True", u"ScreenUpdating = True"}));
    EXPECT_EQ(window().at(u"exsOrders").bounds(), (ui::Bounds{120, 840, 8535, 2600}));
}

TEST_F(OrdersFormSteps, TellTheSpreadsheetAsMuchForAHundredSuppliesAsForOne)
{
    open(booking());
    const auto few = notes->uses.size();
    while (settings().Supply.count() < 99)
        supply(u"Supply " + decimal(settings().Supply.count()));
    notes->uses.clear();
    open(booking());
    EXPECT_EQ(notes->uses.size(), few);
}

TEST_F(OrdersFormSteps, ShowTheTotalWhereverTheUserGoes)
{
    settings().PlaceSettings.FromString(u"1\r\n2\r\n3\r\n4");
    requireCostCenter(u"XXX-XXX");
    open(booking());
    std::int64_t shown = 0;
    const auto expectFresh = [&](TextView what, const std::function<void()>& go) {
        total(static_cast<double>(++shown));
        EXPECT_EQ(usesOf(go), (Uses{u"ActiveSheet.Calculate", u"Range(D101).Value"})) << toUtf8(what);
        EXPECT_EQ(window().labelOf(u"lblSum"), regional->formatMoney(Currency::fromInteger(shown)));
    };
    for (const TextView name : {u"optPlaceSetting1", u"optPlaceSetting2", u"optPlaceSetting3", u"optPlaceSetting4",
             u"txtBooker", u"txtCC1", u"txtCC2", u"txtOrderComment"})
        expectFresh(name, [&] { window().focus(name); });
    expectFresh(u"exsOrders", [&] { window().select(u"exsOrders", u"$C$3"); });
}

TEST_F(OrdersFormSteps, WriteEverythingOnOK)
{
    settings().PlaceSettings.FromString(u"Theatre\r\nU-shape");
    requireCostCenter(u"1");
    total(7.0);
    const auto item = booking();
    open(item);
    window().replace(u"txtBooker", u"John");
    window().choose(u"optPlaceSetting2");
    window().type(u"txtOrderComment", u"No milk");
    window().type(u"txtCC1", u"4711");
    EXPECT_EQ(usesOf([&] { window().press(u"cmdOK"); }),
        (Uses{u"ActiveSheet.Calculate", u"Range(D101).Value", u"Range(A2:C3).Value"}));
    EXPECT_EQ(ordersOf(item), u"Tea\t4\r\n");
    EXPECT_EQ(textOf(item, u"SafeOrganizer"), u"John");
    EXPECT_EQ(textOf(item, u"PlaceSetting"), u"U-shape");
    EXPECT_EQ(textOf(item, u"OrderComment"), u"No milk");
    EXPECT_EQ(textOf(item, u"CostCenter"), u"4711");
    EXPECT_FALSE(item.saved()) << "whoever holds the item saves it";
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(closed, 1);
}

TEST_F(OrdersFormSteps, WriteACostCenterOfTwoHalvesWithoutADash)
{
    requireCostCenter(u"XXX-XXX");
    total(0.0);
    const auto item = booking();
    open(item);
    window().type(u"txtCC1", u"123");
    window().type(u"txtCC2", u"456");
    window().press(u"cmdOK");
    EXPECT_EQ(textOf(item, u"CostCenter"), u"123456");
    open(item);
    EXPECT_EQ(window().textOf(u"txtCC1"), u"123");
    EXPECT_EQ(window().textOf(u"txtCC2"), u"456");
}

TEST_F(OrdersFormSteps, KeepACostCenterThatIsNotAskedFor)
{
    const auto item = booking();
    setProperty(item, u"CostCenter", u"4711");
    open(item);
    window().press(u"cmdOK");
    EXPECT_EQ(textOf(item, u"CostCenter"), u"4711");
    requireCostCenter(u"0");
    total(0.0);
    open(item);
    window().press(u"cmdOK");
    EXPECT_EQ(textOf(item, u"CostCenter"), u"4711");
}

TEST_F(OrdersFormSteps, TakeAPlaceSettingAwayWhenNoneIsSelected)
{
    settings().PlaceSettings.FromString(u"Theatre");
    const auto item = booking();
    setProperty(item, u"PlaceSetting", u"Circle");
    open(item);
    window().press(u"cmdOK");
    EXPECT_EQ(textOf(item, u"PlaceSetting"), u"");
    setProperty(item, u"PlaceSetting", u"Circle");
    settings().PlaceSettings.FromString(u"");
    open(item);
    window().press(u"cmdOK");
    EXPECT_EQ(textOf(item, u"PlaceSetting"), u"Circle") << "without place settings nothing is chosen";
}

TEST_F(OrdersFormSteps, StayOpenWhileAMandatoryValueIsMissing)
{
    requireCostCenter(u"1");
    total(7.0);
    const auto item = booking();
    order(item, u"Coffee\t1\r\n");
    open(item);
    window().replace(u"txtBooker", u"John");
    window().press(u"cmdOK");
    ASSERT_EQ(windows.alerts.size(), 1U);
    EXPECT_NE(windows.alerts[0].find(u"All mandatory values are not filled out!"), Text::npos);
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(textOf(item, u"SafeOrganizer"), u"Jane Doe");
    EXPECT_EQ(ordersOf(item), u"Coffee\t1\r\n");
    window().type(u"txtCC1", u"x");
    window().press(u"cmdOK");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(textOf(item, u"SafeOrganizer"), u"John");
}

TEST_F(OrdersFormSteps, WantACostCenterOnlyForAnOrderThatCostsSomething)
{
    requireCostCenter(u"XXX-XXX");
    open(booking());
    total(7.0);
    EXPECT_FALSE(form->fncCheckFilledOut());
    window().type(u"txtCC1", u"123");
    window().type(u"txtCC2", u"456");
    EXPECT_FALSE(form->fncCheckFilledOut()) << "no value is enough in this format";
    for (const automation::Variant& free : {automation::Variant{0.0}, automation::Variant{-3.0},
             automation::Variant{0.5}, automation::Variant{u"#VALUE!"}}) {
        total(free);
        EXPECT_TRUE(form->fncCheckFilledOut());
    }
    total(7.0);
    settings().KCWithOrder = false;
    EXPECT_TRUE(form->fncCheckFilledOut());
    EXPECT_EQ(session->trace.fncLastAction(), u"Checking if all values are filled out!");
}

TEST_F(OrdersFormSteps, AnOrderTotalOf32768OrMoreOverflowsTheCheckAndTheErrorHandlerEndsIt)
{
    requireCostCenter(u"1");
    open(booking());
    total(32767.0);
    EXPECT_FALSE(form->fncCheckFilledOut());
    total(32768.0);
    const Text report = reportOf([&] { window().press(u"cmdOK"); });
    EXPECT_NE(report.find(u"fncCheckFilledOut"), Text::npos);
    EXPECT_NE(report.find(u"Overflow"), Text::npos);
}

TEST_F(OrdersFormSteps, ReportAFailureUnderTheirName)
{
    const auto expectReport = [this](TextView failing, TextView procedure, const std::function<void()>& step) {
        notes->failing = failing;
        toolkit.messages.clear();
        EXPECT_THROW(step(), test::ProgramEnded);
        ASSERT_EQ(toolkit.messages.size(), 1U) << toUtf8(procedure);
        EXPECT_NE(toolkit.messages[0].text.find(procedure), Text::npos) << toUtf8(procedure);
        notes->failing.clear();
        begin();
        supply(u"Coffee");
        supply(u"Tea");
    };
    expectReport(u"Range(D101).Formula = =SUM(D2:D100)", u"cListHandler.SetFormula", [&] { open(booking()); });
    open(booking());
    expectReport(u"ActiveSheet.Calculate", u"cListHandler.Calculate", [&] { form->subCountOrders(); });
    open(booking());
    expectReport(u"", u"subFillOrders", [&] { form->subFillOrders(u"Coffee\t3000000000\r\n"); });
    open(booking());
    answer(Array{{{1, 2}, {1, 3}}, {u"Coffee", 1, automation::Null{}, u"Tea", 1, 1}});
    expectReport(u"", u"fncBuildOrderList", [&] { static_cast<void>(form->fncBuildOrderList()); });
}

TEST_F(OrdersFormSteps, ReportMissingSettings)
{
    session->objSettings.reset();
    EXPECT_NE(reportOf([&] { open(booking()); }).find(u"Form_Load"), Text::npos);
}

TEST_F(OrdersFormSteps, WidenTheCommentWithoutPlaceSettings)
{
    open(booking());
    EXPECT_EQ(window().at(u"txtOrderComment").bounds().width, 8535);
    settings().PlaceSettings.FromString(u"Theatre");
    open(booking());
    EXPECT_LT(window().at(u"txtOrderComment").bounds().width, 8535);
}

} // namespace
} // namespace rf::orders
