#include "spreadsheet_fixture.h"

namespace rf::native::spreadsheet {
namespace {

struct SpreadsheetModel : testing::Test {
    Control control;
};

TEST_F(SpreadsheetModel, CalculatesTheTotalOfAnOrder)
{
    fillOrder(control);
    EXPECT_EQ(control.value(u"D101"), Variant{0.0});
    control.put(u"C2", 4);
    control.put(u"C3", 2.0);
    control.object.calculate();
    EXPECT_EQ(control.value(u"D2"), Variant{10.0});
    EXPECT_EQ(control.value(u"D101"), Variant{13.5});
}

TEST_F(SpreadsheetModel, CountsTheRowsThatAreUsed)
{
    control.at(u"f1").setFormula(u"=Counta(A1:A10000)");
    EXPECT_EQ(control.value(u"F1"), Variant{0.0});
    control.put(u"A1", u"Item");
    control.put(u"A7", u"Tea");
    EXPECT_EQ(control.value(u"F1"), Variant{2.0});
    control.at(u"A7").clearContents();
    EXPECT_EQ(control.value(u"F1"), Variant{1.0});
}

TEST_F(SpreadsheetModel, TakesQuantitiesOfEveryKind)
{
    fillOrder(control);
    const std::pair<Variant, Variant> totals[]{
        {Variant{-3}, Variant{-7.5}},
        {Variant{0.5}, Variant{1.25}},
        {Variant{1e15}, Variant{2.5e15}},
        {Variant{Currency::fromInteger(2)}, Variant{5.0}},
        {Variant{u"4"}, Variant{10.0}},
        {Variant{u"many"}, Variant{0.0}},
        {Variant{}, Variant{0.0}},
    };
    for (const auto& [quantity, total] : totals) {
        control.put(u"C2", quantity);
        EXPECT_EQ(control.value(u"D101"), total);
    }
}

TEST_F(SpreadsheetModel, SaysThatANumberIsTooLarge)
{
    fillOrder(control);
    control.put(u"C2", 1e308);
    EXPECT_EQ(control.value(u"D101"), Variant{u"#NUM!"});
    control.put(u"C2", 1);
    EXPECT_EQ(control.value(u"D101"), Variant{2.5});
}

TEST_F(SpreadsheetModel, RefusesToWriteIntoALockedCellOfAProtectedSheet)
{
    fillOrder(control);
    EXPECT_EQ(failureNumber([&] { control.put(u"A2", u"Wine"); }), 1004);
    EXPECT_EQ(failureNumber([&] { control.at(u"B2").setFormula(u"=1"); }), 1004);
    EXPECT_EQ(failureNumber([&] { control.at(u"A2:C2").clearContents(); }), 1004);
    EXPECT_EQ(control.value(u"A2"), Variant{u"Coffee"});
    control.object.activeSheet().protection().setEnabled(false);
    control.put(u"A2", u"Wine");
    EXPECT_EQ(control.value(u"A2"), Variant{u"Wine"});
}

TEST_F(SpreadsheetModel, KeepsRowsBeyondTheUnlockedOnesLocked)
{
    fillOrder(control);
    control.put(u"C2000", 1);
    EXPECT_EQ(failureNumber([&] { control.put(u"C2001", 1); }), 1004);
    EXPECT_EQ(failureNumber([&] { control.at(u"C1999:C2001").clearContents(); }), 1004);
    EXPECT_TRUE(control.at(u"C2001").locked());
}

TEST_F(SpreadsheetModel, KeepsTheStandardFontBeyondTheRowsThatWereGivenOne)
{
    control.at(u"1:1999").font().setName(u"Tahoma");
    control.at(u"1:1999").font().setSize(8);
    EXPECT_EQ(control.at(u"B1999").font().name(), u"Tahoma");
    EXPECT_EQ(control.at(u"B1999").font().size(), 8);
    EXPECT_EQ(control.at(u"B2000").font().name(), u"Arial");
}

TEST_F(SpreadsheetModel, ReadsFormulasThatCannotBeReadAsAFailure)
{
    control.put(u"A1", 3);
    for (const TextView formula : {u"=1+", u"=SUM(", u"=ROUND(1.5,0)"})
        EXPECT_EQ(failureNumber([&] { control.at(u"A1").setFormula(formula); }), 1004) << toUtf8(formula);
    EXPECT_EQ(control.value(u"A1"), Variant{3});
    control.at(u"B1").setFormula(u"=A1*2");
    EXPECT_EQ(control.value(u"B1"), Variant{6.0});
}

TEST_F(SpreadsheetModel, SurvivesFormulasOfWholeColumnsAndOfThemselves)
{
    control.put(u"A1", 3);
    control.put(u"A2", 4);
    control.at(u"C1").setFormula(u"=SUM(A:A)");
    EXPECT_EQ(control.value(u"C1"), Variant{7.0});
    control.put(u"C1", 1);
    control.at(u"C1").setFormula(u"=SUM(1:2)");
    EXPECT_TRUE(control.value(u"C1").is<Text>());
    control.put(u"C1", 1);
    control.at(u"D1").setFormula(u"=1/0");
    EXPECT_EQ(control.value(u"D1"), Variant{u"#DIV/0!"});
}

TEST_F(SpreadsheetModel, NeverTakesANameForAFormula)
{
    control.put(u"A2", u"=1+1");
    EXPECT_EQ(control.value(u"A2"), Variant{u"=1+1"});
}

TEST_F(SpreadsheetModel, KeepsOddNamesAsTheyAre)
{
    const Text names[]{u"<b>\"Tea\" & 'more'</b>", u"\u05E7\u05E4\u05D4", Text(200, u'x'), u"a\u00A0b  c", u"\xD83D"};
    for (const Text& text : names) {
        control.put(u"A2", text);
        EXPECT_EQ(control.value(u"A2"), Variant{text});
    }
}

TEST_F(SpreadsheetModel, AnswersSeveralCellsAsAnArray)
{
    control.put(u"A1", u"x");
    control.put(u"B2", 5);
    const auto values = control.value(u"A1:B2").array();
    ASSERT_EQ(values->dimensions.size(), 2U);
    EXPECT_EQ(values->dimensions[0].lowerBound, 1);
    EXPECT_EQ(values->values, (std::vector<Variant>{u"x", {}, {}, 5}));
    control.put(u"C1:D2", control.value(u"A1:B2"));
    EXPECT_EQ(control.value(u"D2"), Variant{5});
    control.put(u"E1:E3", 7);
    EXPECT_EQ(control.value(u"E3"), Variant{7});
}

TEST_F(SpreadsheetModel, KnowsRangesByTheirAddress)
{
    const auto range = control.at(u"b3:A2");
    EXPECT_EQ(range.address(), u"$A$2:$B$3");
    EXPECT_EQ(range.row(), 2);
    EXPECT_EQ(range.column(), 1);
    EXPECT_EQ(range.count(), 4);
    EXPECT_EQ(range.rows().count(), 2);
    EXPECT_EQ(range.columns().count(), 2);
    EXPECT_EQ(range.entireColumn().address(), u"$A:$B");
    EXPECT_EQ(control.at(u"2:9").address(), u"$2:$9");
    EXPECT_EQ(control.at(u"B:B").address(), u"$B:$B");
    EXPECT_EQ(control.at(u"$C$7").address(), u"$C$7");
    for (const TextView bad : {u"", u"A0", u"1A", u"A1:", u"A1:B", u"ZZZ1", u"A65537", u"A1 B2"})
        EXPECT_EQ(failureNumber([&] { static_cast<void>(control.at(bad)); }), 1004) << toUtf8(bad);
}

TEST_F(SpreadsheetModel, FillsARangeWithAFormulaThatSpeaksOfItsFirstCell)
{
    control.put(u"B2:C4", automation::Array{{{1, 3}, {1, 2}}, {1, 2, 3, 4, 5, 6}});
    control.at(u"D2:D4").setFormula(u"=B2*C2");
    EXPECT_EQ(control.value(u"D2:D4").array()->values, (std::vector<Variant>{2.0, 12.0, 30.0}));
    EXPECT_EQ(control.at(u"D4").formula(), Variant{u"=B4*C4"});
}

TEST_F(SpreadsheetModel, GivesTheRowsOfARangeAsAWhole)
{
    EXPECT_EQ(control.at(u"B3:C5").entireRow().address(), u"$3:$5");
    EXPECT_EQ(control.at(u"B3:C5").entireRow().count(), 3);
}

TEST_F(SpreadsheetModel, SortsARangeByItsFirstColumn)
{
    const auto& constants = control.object.constants();
    control.put(u"A2", u"tea");
    control.put(u"B2", 2);
    control.at(u"D2").setFormula(u"=B2*10");
    control.put(u"A3", u"Cake");
    control.put(u"B3", 3);
    control.at(u"D3").setFormula(u"=B3*10");
    control.put(u"A5", 12);
    control.at(u"A2:d1000").sort(1, constants.xlAscending(), constants.xlNo());
    EXPECT_EQ(control.value(u"A2:A5").array()->values, (std::vector<Variant>{12, u"Cake", u"tea", {}}));
    EXPECT_EQ(control.value(u"D3"), Variant{30.0});
    EXPECT_EQ(control.value(u"D4"), Variant{20.0});
    control.put(u"B4", 9);
    EXPECT_EQ(control.value(u"D4"), Variant{90.0});
}

TEST_F(SpreadsheetModel, SortsAProtectedSheetOnlyWhereThatIsAllowed)
{
    fillOrder(control);
    const auto sort = [&] { control.at(u"A2:D3").sort(1, control.object.constants().xlAscending(), 2); };
    EXPECT_EQ(failureNumber(sort), 1004);
    control.object.activeSheet().protection().setAllowSorting(true);
    sort();
    EXPECT_EQ(control.value(u"A2"), Variant{u"Coffee"});
}

TEST_F(SpreadsheetModel, ShowsNumbersInTheUsersLocale)
{
    const Control german{Generation::Later, germanSettings()};
    german.put(u"A1", 2.5);
    german.put(u"A2", Currency::fromInteger(3));
    german.put(u"A3", u"1,75");
    EXPECT_EQ(german.shown(u"A1"), u"2,5");
    EXPECT_EQ(german.shown(u"A2"), PatternRegional{germanSettings()}.formatMoney(Currency::fromInteger(3)));
    EXPECT_EQ(german.value(u"A3"), Variant{1.75});
    EXPECT_EQ(german.at(u"A1").formula(), Variant{u"2,5"});
}

TEST_F(SpreadsheetModel, ShowsValuesInTheirFormat)
{
    control.put(u"A1", 1.005);
    control.at(u"A1").setNumberFormat(u"0.0");
    EXPECT_EQ(control.shown(u"A1"), u"1.0");
    control.at(u"A1").setNumberFormat(u"0%");
    EXPECT_EQ(control.shown(u"A1"), u"101%");
    control.put(u"A2", Date{36526.5});
    control.at(u"A2").setNumberFormat(u"General Date");
    EXPECT_EQ(control.shown(u"A2"), PatternRegional{englishSettings()}.formatDate(Date{36526.5}));
    control.at(u"A3").setNumberFormat(u"Text");
    control.put(u"A3", u"007");
    EXPECT_EQ(control.value(u"A3"), Variant{u"007"});
    control.put(u"A4", 1e300);
    control.at(u"A4").setNumberFormat(u"Currency");
    EXPECT_EQ(control.shown(u"A4"), u"#####");
}

TEST_F(SpreadsheetModel, DrawsLinesAroundCellsAndOnOneEdge)
{
    const auto constants = control.object.constants();
    control.at(u"A1:B2").borders().setColor(0xC0C0C0);
    control.at(u"A1:B2").borders().setWeight(constants.owcLineWeightThin());
    EXPECT_EQ(control.at(u"B2").borders().color(), 0xC0C0C0);
    control.at(u"D1:E9").borders(constants.xlEdgeRight()).setLineStyle(constants.owcLineStyleDash());
    EXPECT_EQ(control.at(u"E5").borders(constants.xlEdgeRight()).lineStyle(), constants.owcLineStyleDash());
    EXPECT_NE(control.at(u"D5").borders(constants.xlEdgeRight()).lineStyle(), constants.owcLineStyleDash());
    EXPECT_EQ(failureNumber([&] { static_cast<void>(control.at(u"A1").borders(99)); }), 1004);
}

TEST_F(SpreadsheetModel, ClearsContentsAndLooksApart)
{
    control.put(u"A1", 5);
    control.at(u"A1").interior().setColor(255);
    control.at(u"A1").font().setBold(true);
    control.at(u"A1").clearContents();
    EXPECT_TRUE(control.value(u"A1").isEmpty());
    EXPECT_EQ(control.at(u"A1").interior().color(), 255);
    control.at(u"A:F").clearFormats();
    EXPECT_EQ(control.at(u"A1").interior().color(), 0xFFFFFF);
    EXPECT_FALSE(control.at(u"A1").font().bold());
}

TEST_F(SpreadsheetModel, TellsEachNewSelectionOnce)
{
    std::vector<Text> heard;
    control.content->hearSelection([&](const Text& address) { heard.push_back(address); });
    control.at(u"B2").select();
    control.at(u"B2").select();
    control.at(u"A1:C3").select();
    EXPECT_EQ(heard, (std::vector<Text>{u"$B$2", u"$A$1:$C$3"}));
    EXPECT_EQ(control.object.selection().address(), u"$A$1:$C$3");
}

TEST_F(SpreadsheetModel, KeepsHowItIsShown)
{
    const auto window = control.object.activeWindow();
    control.object.titleBar().setCaption(u"Supply");
    control.object.setViewableRange(u"A1:C4");
    control.at(u"B2").select();
    window.setFreezePanes(true);
    window.setDisplayVerticalScrollBar(false);
    window.setEnableResize(false);
    control.object.setDisplayWorkbookTabs(false);
    control.object.setAllowPropertyToolbox(false);
    control.at(u"A:A").setColumnWidth(55.4);
    EXPECT_EQ(control.object.titleBar().caption(), u"Supply");
    EXPECT_EQ(control.object.viewableRange(), u"$A$1:$C$4");
    EXPECT_EQ(window.viewableRange(), u"$A$1:$C$4");
    EXPECT_TRUE(window.freezePanes());
    EXPECT_FALSE(window.displayVerticalScrollBar());
    EXPECT_FALSE(window.enableResize());
    EXPECT_FALSE(control.object.displayWorkbookTabs());
    EXPECT_FALSE(control.object.allowPropertyToolbox());
    EXPECT_DOUBLE_EQ(control.at(u"A7").columnWidth(), 55.4);
    EXPECT_DOUBLE_EQ(control.at(u"B7").columnWidth(), 8.43);
}

TEST_F(SpreadsheetModel, FitsColumnsToTheirTexts)
{
    control.put(u"A3", Text(40, u'x'));
    control.at(u"A3").entireColumn().autoFit();
    EXPECT_GE(control.at(u"A1").columnWidth(), 40);
    EXPECT_DOUBLE_EQ(control.at(u"B1").columnWidth(), 8.43);
}

TEST_F(SpreadsheetModel, HasTheMembersAndNumbersOfItsGeneration)
{
    const Control old{Generation::Oldest};
    EXPECT_EQ(old.object.constants().ssToRight(), 2);
    EXPECT_EQ(old.object.constants().owcLineWeightThin(), 1);
    EXPECT_EQ(control.object.constants().xlToRight(), -4161);
    EXPECT_EQ(control.object.constants().owcLineWeightThin(), 2);
    EXPECT_EQ(failureNumber([&] { static_cast<void>(old.object.constants().xlToRight()); }), 438);
    EXPECT_EQ(failureNumber([&] { static_cast<void>(control.object.constants().ssToRight()); }), 438);
    old.object.setDisplayColHeaders(false);
    EXPECT_FALSE(old.object.displayColHeaders());
    EXPECT_EQ(failureNumber([&] { control.object.setDisplayColHeaders(false); }), 438);
    control.object.activeWindow().setDisplayColumnHeadings(false);
    EXPECT_EQ(failureNumber([&] { old.object.activeWindow().setDisplayColumnHeadings(false); }), 438);
    old.at(u"A:A").autoFitColumns();
    EXPECT_EQ(failureNumber([&] { old.at(u"A:A").autoFit(); }), 438);
    EXPECT_EQ(failureNumber([&] { control.at(u"A:A").autoFitColumns(); }), 438);
    old.object.setMoveAfterReturnDirection(old.object.constants().ssToRight());
    EXPECT_EQ(old.object.moveAfterReturnDirection(), 2);
}

TEST_F(SpreadsheetModel, WritesAPageOfWhatIsSeen)
{
    fillOrder(control);
    control.put(u"C2", 4);
    control.object.activeSheet().protection().setEnabled(false);
    control.put(u"A3", u"<script>alert(\"x\")</script> & 'tea'");
    control.at(u"C3").font().setName(u"Wingdings");
    control.put(u"C3", u"\u00FE");
    const Text page = control.object.activeSheet().usedRange().htmlData();
    EXPECT_NE(page.find(u"&lt;script&gt;alert(&quot;x&quot;)&lt;/script&gt; &amp; &#39;tea&#39;"), Text::npos);
    EXPECT_EQ(page.find(u"<script"), Text::npos);
    EXPECT_NE(page.find(u"&#9745;"), Text::npos);
    // The line costs and the total are out of view.
    EXPECT_EQ(page.find(u">10<"), Text::npos);
}

TEST_F(SpreadsheetModel, LivesOnWithoutItsControl)
{
    const auto object = control.object;
    control.content.reset();
    object.range(u"A1").setValue(4);
    object.range(u"A1").select();
    EXPECT_EQ(object.range(u"A1").value(), Variant{4});
}

} // namespace
} // namespace rf::native::spreadsheet
