#include "orders/list_handler_fixture.h"

#include "outlook/spreadsheet.h"

namespace rf::orders {
namespace {

using test::ProgramEnded;

class ListHandler : public NotedList { };

TEST_F(ListHandler, TriesTheClassesInTheirOrder)
{
    onlyOffer(u"OWC.Spreadsheet");
    list.AddToForm(*window);
    EXPECT_EQ(form().asked, (std::vector<Text>{u"OWC10.Spreadsheet", u"OWC11.Spreadsheet", u"OWC.Spreadsheet"}));
    EXPECT_EQ(form().at(u"exsOrders").name(), u"exsOrders");
}

TEST_F(ListHandler, TakesTheFirstClassThatIsThere)
{
    offer(u"OWC11.Spreadsheet");
    list.AddToForm(*window);
    EXPECT_EQ(form().asked, (std::vector<Text>{u"OWC10.Spreadsheet"}));
}

TEST_F(ListHandler, SkipsTheFirstClassWhenTheNewestIsPreferred)
{
    offer(u"OWC11.Spreadsheet");
    list.preferNewest = true;
    list.AddToForm(*window);
    EXPECT_EQ(form().asked, (std::vector<Text>{u"OWC11.Spreadsheet"}));
}

TEST_F(ListHandler, EndsTheProgramWithoutAnySpreadsheet)
{
    toolkit.components.clear();
    EXPECT_THROW(list.AddToForm(*window), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 2U);
    EXPECT_EQ(toolkit.messages[0].text,
        u"Unable to start the MS Office Web Components!\r\n"
        u"Please download these FREE component from Microsoft Download\r\n"
        u"Do you want to go to that website now?");
    EXPECT_EQ(toolkit.messages[0].style.buttons, ui::Buttons::YesNo);
    EXPECT_EQ(toolkit.messages[1].text, u"Roomfold for Outlook Booking Info will now shut down!");
    EXPECT_EQ(toolkit.messages[1].style.buttons, ui::Buttons::Ok);
    EXPECT_EQ(session.trace.fncLastAction().find(u"Attempting to execute"), Text::npos);
}

TEST_F(ListHandler, OpensTheDownloadPageBeforeItEndsTheProgram)
{
    toolkit.components.clear();
    toolkit.answers = {ui::Answer::Yes};
    const auto shell = std::make_shared<test::RecordingDispatch>();
    classes.factories[Text{outlook::shellClass}] = [&] { return automation::Object{shell}; };
    EXPECT_THROW(list.AddToForm(*window), ProgramEnded);
    ASSERT_EQ(shell->uses.size(), 1U);
    EXPECT_TRUE(shell->uses[0].arguments[0].text().starts_with(u"http"));
}

TEST_F(ListHandler, GivesTheControlItsDefaultsInTheirOrder)
{
    list.Top = 840;
    list.Left = 120;
    list.Height = 2600;
    list.setWidth(8535);
    list.AddToForm(*window);
    EXPECT_EQ(notes->uses,
        (std::vector<Text>{u"AllowPropertyToolbox = False", u"DisplayTitleBar = True",
            u"Range(1:1).Interior.Color = 14215660", u"Range(1:1).Font.Bold = True",
            u"Range(1:1999).Font.Name = Tahoma", u"Range(1:1999).Font.Size = 8",
            u"Range(f1).Formula = =Counta(A1:A10000)", u"DisplayWorkbookTabs = False",
            u"ActiveWindow.EnableResize = False", u"Range(A1:F2000).Locked = False", u"Range(A1:F1).Locked = True",
            u"ActiveSheet.Protection.AllowDeletingColumns = False",
            u"ActiveSheet.Protection.AllowInsertingColumns = False",
            u"ActiveSheet.Protection.AllowInsertingRows = False", u"ActiveSheet.Protection.AllowFiltering = True",
            u"ActiveSheet.Protection.AllowFormattingColumns = True",
            u"ActiveSheet.Protection.AllowFormattingRows = True",
            u"ActiveSheet.Protection.AllowSizingAllColumns = True", u"ActiveSheet.Protection.AllowSizingAllRows = True",
            u"ActiveSheet.Protection.AllowSorting = True", u"ActiveSheet.Protection.Enabled = True"}));
    EXPECT_EQ(form().at(u"exsOrders").bounds(), (ui::Bounds{120, 840, 8535, 2600}));
    EXPECT_TRUE(form().sees(u"exsOrders"));
}

TEST_F(ListHandler, StaysHiddenWhenItIsToldToBefore)
{
    list.setVisible(false);
    ready();
    EXPECT_FALSE(form().sees(u"exsOrders"));
    list.setVisible(true);
    EXPECT_TRUE(form().sees(u"exsOrders"));
}

TEST_F(ListHandler, TakesAnotherWidthWhileItIsShown)
{
    list.setWidth(8535);
    ready().setWidth(4000);
    EXPECT_EQ(list.Width(), 4000);
    EXPECT_EQ(form().at(u"exsOrders").bounds().width, 4000);
}

TEST_F(ListHandler, LiftsTheProtectionInEditModeAndDrawsAtItsEnd)
{
    ready().setEditMode(true);
    EXPECT_EQ(notes->uses, (std::vector<Text>{u"ScreenUpdating = False", u"ActiveSheet.Protection.Enabled = False"}));
    notes->uses.clear();
    list.setEditMode(false);
    EXPECT_EQ(notes->uses, (std::vector<Text>{u"ActiveSheet.Protection.Enabled = True", u"ScreenUpdating = True"}));
}

TEST_F(ListHandler, ReportsAFailureUnderTheNameOfItsMember)
{
    ready();
    notes->failing = u"Range(A1).Value = Coffee";
    const Text report = reportOf([&] { list.SetValue(u"A1", u"Coffee"); });
    EXPECT_NE(report.find(u"cListHandler.SetValue"), Text::npos);
    EXPECT_NE(report.find(u"1004"), Text::npos);
    EXPECT_NE(report.find(u"Setting value of cells: A1 to a value of type String"), Text::npos);
}

TEST_F(ListHandler, ReportsAFailureOfItsDefaultsToo)
{
    notes->failing = u"Range(1:1).Font.Bold = True";
    EXPECT_NE(reportOf([&] { list.AddToForm(*window); }).find(u"cListHandler.subSetDefaults"), Text::npos);
}

TEST_F(ListHandler, IsOfNoUseBeforeItIsOnAForm)
{
    EXPECT_NE(reportOf([&] { list.SelectCell(u"A1"); }).find(u"91"), Text::npos);
}

TEST_F(ListHandler, RaisesNoEventUntilTheyAreSwitchedOn)
{
    std::vector<Text> selected;
    list.SelectionChange = [&](const Text& address) { selected.push_back(address); };
    ready();
    form().select(u"exsOrders", u"$C$2");
    EXPECT_TRUE(selected.empty());
    list.setRaiseEventsEnabled(true);
    form().select(u"exsOrders", u"$C$3");
    list.setRaiseEventsEnabled(false);
    form().select(u"exsOrders", u"$C$4");
    EXPECT_EQ(selected, (std::vector<Text>{u"$C$3"}));
}

TEST_F(ListHandler, IsNotHeardOnceItHasGone)
{
    int heard = 0;
    {
        cListHandler other{session};
        other.controlName = u"exsOther";
        other.SelectionChange = [&](const Text&) { ++heard; };
        other.AddToForm(*window);
        other.setRaiseEventsEnabled(true);
    }
    form().select(u"exsOther", u"$C$2");
    EXPECT_EQ(heard, 0);
}

TEST_F(ListHandler, TellsWhichRowsCanBeReachedWhenTheyAreOthers)
{
    std::vector<ViewedRows> seen;
    list.Scrolled = [&](ViewedRows rows) { seen.push_back(rows); };
    ready().setRaiseEventsEnabled(true);
    for (const TextView address : {u"$A$1:$C$7", u"$A$1:$C$7", u"$A$5:$C$12", u"$A:$C"}) {
        notes->answers[u"ViewableRange"] = address;
        list.objTimer_Timer();
    }
    list.setRaiseEventsEnabled(false);
    notes->answers[u"ViewableRange"] = u"$A$9:$C$9";
    list.objTimer_Timer();
    EXPECT_EQ(seen, (std::vector<ViewedRows>{{1, 7}, {5, 8}}));
}

TEST(ListAddress, GivesTheRowsThatCanBeReached)
{
    EXPECT_EQ(viewedRows(u"$A$1:$C$7"), (ViewedRows{1, 7}));
    EXPECT_EQ(viewedRows(u"C5"), (ViewedRows{5, 1}));
    EXPECT_EQ(viewedRows(u"$2:$9"), (ViewedRows{2, 8}));
    EXPECT_EQ(viewedRows(u"$A:$C"), std::nullopt);
    EXPECT_EQ(viewedRows(u""), std::nullopt);
    EXPECT_EQ(viewedRows(u"A1x"), std::nullopt);
    EXPECT_EQ(viewedRows(u"A99999999999999999999"), std::nullopt);
}

TEST(ListAddress, NamesCellsAndColumns)
{
    EXPECT_EQ(cellAddress(7, 3), u"C7");
    EXPECT_EQ(cellAddress(1, 26), u"Z1");
    EXPECT_EQ(cellAddress(65536, 27), u"AA65536");
    EXPECT_EQ(columnAddress(u"B"), u"B:B");
    EXPECT_EQ(columnAddress(u"B:D"), u"B:D");
    EXPECT_EQ(columnOf(u"C7:D9", std::nullopt), u"C:C");
    EXPECT_EQ(columnOf(u"C7", 2), u"C2:C1999");
}

} // namespace
} // namespace rf::orders
