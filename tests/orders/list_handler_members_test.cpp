#include "orders/list_handler_fixture.h"
#include "support/temporary_files.h"

namespace rf::orders {
namespace {

using Uses = std::vector<Text>;

/// What a member tells the control, and what stands in the trace then.
class ListHandlerMembers : public NotedList {
protected:
    template <class Step>
    Uses usesOf(Step step)
    {
        if (!made_) {
            list.AddToForm(*window);
            made_ = true;
        }
        notes->uses.clear();
        step(list);
        return notes->uses;
    }
    [[nodiscard]] Text trace() const { return session.trace.fncLastAction(); }

private:
    bool made_ = false;
};

TEST_F(ListHandlerMembers, SetTheLooksOfCells)
{
    EXPECT_EQ(usesOf([](auto& it) { it.SetBold(u"A1:B2"); }), (Uses{u"Range(A1:B2).Font.Bold = True"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SetBold(u"A1", false); }), (Uses{u"Range(A1).Font.Bold = False"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SetFont(u"A1", u"Arial"); }), (Uses{u"Range(A1).Font.Name = Arial"}));
    EXPECT_EQ(usesOf([](auto& it) { it.FixHorizontalAlign(u"A1", -4152); }),
        (Uses{u"Range(A1).HorizontalAlignment = -4152"}));
    EXPECT_EQ(usesOf([](auto& it) { it.CenterAlign(u"A1"); }), (Uses{u"Range(A1).HorizontalAlignment = -4108"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SetDateFormat(u"A1"); }), (Uses{u"Range(A1).NumberFormat = General Date"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SetTextFormat(u"A1"); }), (Uses{u"Range(A1).NumberFormat = Text"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SetNumberFormat(u"A1"); }), (Uses{u"Range(A1).NumberFormat = General"}));
    EXPECT_EQ(usesOf([](auto& it) { it.RightEdgeColDash(u"B3"); }),
        (Uses{u"Range(B3).EntireColumn.Borders(10).LineStyle = -4115"}));
    EXPECT_EQ(usesOf([](auto& it) { it.TopEdgeRowDash(u"B3"); }),
        (Uses{u"Range(B3).EntireRow.Borders(8).LineStyle = -4115"}));
}

TEST_F(ListHandlerMembers, LockAndUnlockCells)
{
    EXPECT_EQ(usesOf([](auto& it) { it.LockRange(u"A1:B100"); }), (Uses{u"Range(A1:B100).Locked = True"}));
    EXPECT_EQ(usesOf([](auto& it) { it.LockRange(u"A1", true); }), (Uses{u"Range(A1).Locked = False"}));
}

TEST_F(ListHandlerMembers, SetThePartsOfTheWindow)
{
    EXPECT_EQ(usesOf([](auto& it) { it.SetExcelVisible(false); }),
        (Uses{u"DisplayToolbar = False", u"ActiveWindow.DisplayHorizontalScrollBar = False"}));
    EXPECT_EQ(usesOf([](auto& it) { it.ColHeaders(false); }), (Uses{u"ActiveWindow.DisplayColumnHeadings = False"}));
    EXPECT_EQ(usesOf([](auto& it) { it.RowHeaders(true); }), (Uses{u"ActiveWindow.DisplayRowHeadings = True"}));
    EXPECT_EQ(usesOf([](auto& it) { it.DisplayVerticalScroll(false); }),
        (Uses{u"ActiveWindow.DisplayVerticalScrollBar = False"}));
    EXPECT_EQ(usesOf([](auto& it) { it.DisplayHorizontalScroll(true); }),
        (Uses{u"ActiveWindow.DisplayHorizontalScrollBar = True"}));
    EXPECT_EQ(usesOf([](auto& it) { it.setTitle(u"Supply"); }), (Uses{u"TitleBar.Caption = Supply"}));
    EXPECT_EQ(usesOf([](auto& it) { it.setMoveRight(true); }),
        (Uses{u"MoveAfterReturn = True", u"MoveAfterReturnDirection = -4161"}));
    EXPECT_EQ(usesOf([](auto& it) { it.setMoveRight(false); }), Uses{});
}

TEST_F(ListHandlerMembers, UseTheNamesAndNumbersOfTheOldestGeneration)
{
    goBackToTheOldest();
    EXPECT_EQ(usesOf([](auto& it) { it.ColHeaders(false); }), (Uses{u"DisplayColHeaders = False"}));
    EXPECT_EQ(usesOf([](auto& it) { it.RowHeaders(true); }), (Uses{u"DisplayRowHeaders = True"}));
    EXPECT_EQ(usesOf([](auto& it) { it.AutoFitCols(u"A1"); }), (Uses{u"Range(A1).EntireColumn.AutoFitColumns"}));
    EXPECT_EQ(usesOf([](auto& it) { it.CenterAlign(u"A1"); }), (Uses{u"Range(A1).HorizontalAlignment = 2"}));
    EXPECT_EQ(usesOf([](auto& it) { it.RightEdgeColDash(u"B3"); }),
        (Uses{u"Range(B3).EntireColumn.Borders(3).LineStyle = 2"}));
    EXPECT_EQ(
        usesOf([](auto& it) { it.TopEdgeRowDash(u"B3"); }), (Uses{u"Range(B3).EntireRow.Borders(2).LineStyle = 2"}));
    EXPECT_EQ(usesOf([](auto& it) { it.setMoveRight(true); }),
        (Uses{u"MoveAfterReturn = True", u"MoveAfterReturnDirection = 2"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SortRange(); }), (Uses{u"Range(A2:d1000).Sort(1, 0, 2)"}));
    notes->answers[u"ActiveSheet.Protection.Enabled"] = false;
    EXPECT_EQ(usesOf([](auto& it) { it.SetInteriorColor(u"A1"); }).back(), u"Range(A1).Borders.Weight = 1");
}

TEST_F(ListHandlerMembers, FitColumnsToTheirContents)
{
    EXPECT_EQ(usesOf([](auto& it) { it.AutoFitCols(u"A1:B9"); }), (Uses{u"Range(A1:B9).EntireColumn.AutoFit"}));
}

TEST_F(ListHandlerMembers, SetWidthsInCharactersOrInPixels)
{
    EXPECT_EQ(
        usesOf([](auto& it) { it.SetColumnWidth(u"A", 12); }), (Uses{u"Range(A:A).EntireColumn.ColumnWidth = 12"}));
    EXPECT_EQ(
        usesOf([](auto& it) { it.SetColumnWidth(u"B:D", 58); }), (Uses{u"Range(B:D).EntireColumn.ColumnWidth = 58"}));
    list.convertWidths = true;
    EXPECT_EQ(
        usesOf([](auto& it) { it.SetColumnWidth(u"A", 400); }), (Uses{u"Range(A:A).EntireColumn.ColumnWidth = 55.36"}));
}

TEST_F(ListHandlerMembers, ShadeCellsWhileTheProtectionIsLifted)
{
    notes->answers[u"ActiveSheet.Protection.Enabled"] = true;
    EXPECT_EQ(usesOf([](auto& it) {
        it.SetInteriorColor(u"A1:B100", colorNumber({236, 233, 216}));
    }),
        (Uses{u"ActiveSheet.Protection.Enabled", u"ActiveSheet.Protection.Enabled = False",
            u"Range(A1:B100).Interior.Color = 14215660", u"Range(A1:B100).Borders.Color = 12632256",
            u"Range(A1:B100).Borders.Weight = 2", u"ActiveSheet.Protection.Enabled = True"}));
    notes->answers[u"ActiveSheet.Protection.Enabled"] = false;
    EXPECT_EQ(usesOf([](auto& it) { it.SetInteriorColor(u"A1", 255, true); }),
        (Uses{u"ActiveSheet.Protection.Enabled", u"Range(A1).Interior.Color = 255"}))
        << "in edit mode the protection stays lifted, and borders are left when they are to be";
}

TEST_F(ListHandlerMembers, TellTheColourOfACell)
{
    notes->answers[u"Range(A1).Interior.Color"] = 255;
    EXPECT_EQ(
        usesOf([](auto& it) { EXPECT_EQ(it.GetInteriorColor(u"A1"), 255); }), (Uses{u"Range(A1).Interior.Color"}));
    EXPECT_EQ(trace(), u"Trying to determine interior color of cell A1");
}

TEST_F(ListHandlerMembers, SetWhatCanBeReachedWhileTheProtectionIsLifted)
{
    notes->answers[u"ActiveSheet.Protection.Enabled"] = true;
    EXPECT_EQ(usesOf([](auto& it) { it.SetVisibleRange(u"A1:C7"); }),
        (Uses{u"ActiveSheet.Protection.Enabled", u"ActiveSheet.Protection.Enabled = False", u"ViewableRange = A1:C7",
            u"ActiveSheet.Protection.Enabled = True"}));
}

TEST_F(ListHandlerMembers, FreezePanesAndGoBackToTheFirstCell)
{
    EXPECT_EQ(usesOf([](auto& it) { it.FreezePanes(u"B2"); }),
        (Uses{u"Range(B2).Select", u"ActiveWindow.FreezePanes = True", u"Range(A1).Select"}));
    EXPECT_EQ(usesOf([](auto& it) { it.SelectCell(u"C2"); }), (Uses{u"Range(C2).Select"}));
}

TEST_F(ListHandlerMembers, TellTheFirstCellOfTheSelection)
{
    notes->answers[u"Selection.Row"] = 7;
    notes->answers[u"Selection.Column"] = 3;
    EXPECT_EQ(
        usesOf([](auto& it) { EXPECT_EQ(it.fncGetSel(), u"C7"); }), (Uses{u"Selection.Row", u"Selection.Column"}));
}

TEST_F(ListHandlerMembers, ClearEverything)
{
    EXPECT_EQ(usesOf([](auto& it) { it.ClearAll(); }),
        (Uses{u"Range(1:65536).ClearContents", u"Range(1:65536).ClearFormats", u"ActiveWindow.FreezePanes = False",
            u"Range(1:65536).Font.Name = Tahoma", u"ActiveWindow.DisplayGridlines = False", u"Range(a1).Select"}));
}

TEST_F(ListHandlerMembers, ClearACellBeforeTheyWriteIt)
{
    EXPECT_EQ(
        usesOf([](auto& it) { it.SetValue(u"C2", 12); }), (Uses{u"Range(C2).ClearContents", u"Range(C2).Value = 12"}));
    EXPECT_EQ(trace(), u"Setting value of cells: C2 to a value of type Long");
    EXPECT_EQ(usesOf([](auto& it) { it.SetFormula(u"D2", u"=B2*C2"); }),
        (Uses{u"Range(D2).ClearContents", u"Range(D2).Formula = =B2*C2"}));
    EXPECT_EQ(trace(), u"Setting formula of cells: D2 to a formula: =B2*C2");
}

TEST_F(ListHandlerMembers, NameTheKindOfAValueInTheTrace)
{
    using automation::Variant;
    const std::pair<Variant, TextView> kinds[]{{Variant{}, u"Empty"}, {Variant{true}, u"Boolean"},
        {Variant{std::uint8_t{1}}, u"Byte"}, {Variant{std::int16_t{1}}, u"Integer"}, {Variant{1}, u"Long"},
        {Variant{1.5F}, u"Single"}, {Variant{1.5}, u"Double"}, {Variant{Currency::fromInteger(2)}, u"Currency"},
        {Variant{Date{1}}, u"Date"}, {Variant{u"x"}, u"String"},
        {Variant{automation::Array::list({1, 2})}, u"Variant()"}};
    for (const auto& [value, kind] : kinds) {
        usesOf([&written = value](auto& it) { it.SetValue(u"A1", written); });
        EXPECT_EQ(trace(), u"Setting value of cells: A1 to a value of type " + Text{kind});
    }
}

TEST_F(ListHandlerMembers, ReadAValueAsItIsOrAsAKind)
{
    notes->answers[u"Range(C2).Value"] = 12.5;
    usesOf([](auto& it) {
        EXPECT_EQ(it.GetValue(u"C2"), automation::Variant{12.5});
        EXPECT_EQ(it.GetValue(u"C2", ValueKind::String), automation::Variant{u"12.5"});
        EXPECT_EQ(it.GetValue(u"C2", ValueKind::Integer), automation::Variant{std::int16_t{12}});
        EXPECT_EQ(it.GetValue(u"C2", ValueKind::Boolean), automation::Variant{true});
        EXPECT_EQ(it.GetValue(u"C2", ValueKind::Date), automation::Variant{Date{12.5}});
    });
}

TEST_F(ListHandlerMembers, DrawBoxesWithTheTwoCharactersOfTheSymbolFont)
{
    EXPECT_EQ(usesOf([](auto& it) { it.SetChecked(u"C2", true); }), (Uses{u"Range(C2).Value = \u00FE"}));
    EXPECT_EQ(trace(), u"Setting checkbox value of cells: C2 to the value True");
    EXPECT_EQ(usesOf([](auto& it) { it.SetChecked(u"C2", false); }), (Uses{u"Range(C2).Value = \u00A8"}));
    EXPECT_EQ(trace(), u"Setting checkbox value of cells: C2 to the value False");
    EXPECT_EQ(usesOf([](auto& it) { it.SetCheckedColumn(u"C7:D9"); }), (Uses{u"Range(C:C).Font.Name = Wingdings"}));
    EXPECT_EQ(
        usesOf([](auto& it) { it.SetCheckedColumn(u"C7", 2); }), (Uses{u"Range(C2:C1999).Font.Name = Wingdings"}));
}

TEST_F(ListHandlerMembers, KnowATickedBoxFromAnythingElse)
{
    using automation::Variant;
    for (const auto& [value, ticked] : {std::pair{Variant{u"\u00FE"}, true}, std::pair{Variant{u"\u00A8"}, false},
             std::pair{Variant{}, false}, std::pair{Variant{254}, false}}) {
        notes->answers[u"Range(C2).Value"] = value;
        usesOf([expected = ticked](auto& it) { EXPECT_EQ(it.GetChecked(u"C2"), expected); });
    }
    EXPECT_EQ(trace(), u"Reading the value of cell C2");
}

TEST_F(ListHandlerMembers, CountTheRowsAfterACalculation)
{
    notes->answers[u"Range(f1).Value"] = 7.0;
    EXPECT_EQ(usesOf([](auto& it) { EXPECT_EQ(it.UsedRows(u"f1"), 7); }),
        (Uses{u"ActiveSheet.Calculate", u"Range(f1).Value"}));
    EXPECT_EQ(trace(), u"Trying to find number of used rows");
}

TEST_F(ListHandlerMembers, ReadTheSortedRowsAtOnce)
{
    notes->answers[u"Range(f1).Value"] = 3;
    notes->answers[u"Range(a2:b3).Value"] = automation::Array{{{1, 2}, {1, 2}}, {u"Coffee", 1, u"Tea", 2}};
    EXPECT_EQ(usesOf([](auto& it) { EXPECT_EQ(it.fncGetRangeArray(u"f1", u"b").values.size(), 4U); }),
        (Uses{u"ActiveSheet.Calculate", u"Range(f1).Value", u"Range(a2:b1000).Sort(1, 1, 2)", u"Range(a2:b3).Value"}));
    EXPECT_EQ(trace(), u"Entering fncGetRangeArray");
}

TEST_F(ListHandlerMembers, ReadAtMostAThousandRowsAndNoHeading)
{
    notes->answers[u"Range(f1).Value"] = 5000;
    EXPECT_EQ(
        usesOf([](auto& it) { static_cast<void>(it.fncGetRangeArray(u"f1", u"d")); }).back(), u"Range(a2:d1000).Value");
    notes->answers[u"Range(f1).Value"] = 1;
    usesOf([](auto& it) { EXPECT_TRUE(it.fncGetRangeArray(u"f1", u"d").values.empty()); });
    notes->answers[u"Range(f1).Value"] = 2;
    notes->answers[u"Range(a2:a2).Value"] = u"Coffee";
    usesOf([](auto& it) { EXPECT_EQ(it.fncGetRangeArray(u"f1", u"a").dimensions.size(), 2U); });
}

TEST_F(ListHandlerMembers, KeepTheSortedRowsUnderTheirFirstColumn)
{
    notes->answers[u"Range(f1).Value"] = 4;
    notes->answers[u"Range(a2:b4).Value"]
        = automation::Array{{{1, 3}, {1, 2}}, {u"Coffee", 1, u"COFFEE", 9, u"Tea", 2}};
    usesOf([](auto& it) {
        const auto rows = it.fncGetRangeDic(u"f1", u"b");
        EXPECT_EQ(rows.keys(), (std::vector<Text>{u"Coffee", u"Tea"}));
        EXPECT_EQ(rows.item(u"coffee").array()->values[1], automation::Variant{1});
    });
}

TEST_F(ListHandlerMembers, SortTheDataRows)
{
    EXPECT_EQ(usesOf([](auto& it) { it.SortRange(); }), (Uses{u"Range(A2:d1000).Sort(1, 1, 2)"}));
}

TEST_F(ListHandlerMembers, SwitchTheFilterOfTheUsedRange)
{
    EXPECT_EQ(usesOf([](auto& it) { it.AutoFilter(true); }),
        (Uses{u"ActiveSheet.EnableAutoFilter = True", u"ActiveSheet.UsedRange.AutoFilter"}));
    EXPECT_EQ(usesOf([](auto& it) { it.AutoFilter(false); }),
        (Uses{u"ActiveSheet.EnableAutoFilter = False", u"ActiveSheet.UsedRange.AutoFilter"}));
}

TEST_F(ListHandlerMembers, WriteADictionaryDownTheFirstColumn)
{
    const auto dictionary = session.scripting.fncCreateDic();
    EXPECT_EQ(usesOf([&](auto& it) { it.SetDicList(dictionary); }), (Uses{u"Range(A2:A200).ClearContents"}));
    dictionary.add(u"1", u"Coffee");
    dictionary.add(u"2", u"Tea");
    EXPECT_EQ(usesOf([&](auto& it) { it.SetDicList(dictionary); }),
        (Uses{u"Range(A2:A200).ClearContents", u"Range(A2:A3).Value = [Coffee|Tea]"}));
}

TEST_F(ListHandlerMembers, PrintTheUsedRangeByTheBrowser)
{
    const test::TemporaryFiles temporary;
    notes->answers[u"ActiveSheet.UsedRange.HTMLData"] = u"<html>Café \u05E7</html>";
    const auto browser = std::make_shared<test::RecordingDispatch>();
    const auto page = std::make_shared<test::RecordingDispatch>();
    page->answer = true;
    browser->answer = automation::Variant{page};
    usesOf([&](auto& it) { it.PrintSheet(outlook::WebBrowser{automation::Object{browser}}); });
    const Text path = session.files.fsoShared().buildPath(session.files.fncGetTempPath(), u"OWCPrint.htm");
    ASSERT_EQ(browser->uses.size(), 2U);
    EXPECT_EQ(browser->uses[0].member, u"Navigate2");
    EXPECT_EQ(browser->uses[0].arguments[0].text(), path);
    EXPECT_EQ(browser->uses[1].member, u"Document");
    ASSERT_EQ(page->uses.size(), 1U);
    EXPECT_EQ(page->uses[0].member, u"execCommand");
    EXPECT_EQ(page->uses[0].arguments[0].text(), u"print");
    const auto stream
        = session.files.fsoShared().openTextFile(path, outlook::OpenMode::Read, false, outlook::TextFormat::Unicode);
    EXPECT_EQ(stream.readAll(), u"<html>Café \u05E7</html>");
}

TEST_F(ListHandlerMembers, PrintTheUsedRangeByTheSystemWithoutABrowser)
{
    const test::TemporaryFiles temporary;
    notes->answers[u"ActiveSheet.UsedRange.HTMLData"] = u"<html></html>";
    usesOf([](auto& it) { it.PrintSheet(); });
    ASSERT_EQ(system.verbs.size(), 1U);
    EXPECT_EQ(system.verbs[0].first, u"Print");
    EXPECT_TRUE(system.verbs[0].second.ends_with(u"OWCPrint.htm"));
}

TEST_F(ListHandlerMembers, ReportAPageThatCannotBeWritten)
{
    const auto fso = std::make_shared<test::RecordingDispatch>();
    fso->failure = 70;
    classes.factories[Text{outlook::fileSystemClass}] = [&] { return automation::Object{fso}; };
    list.AddToForm(*window);
    EXPECT_NE(reportOf([&] { list.PrintSheet(); }).find(u"cListHandler.PrintSheet"), Text::npos);
}

} // namespace
} // namespace rf::orders
