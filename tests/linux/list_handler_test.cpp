#include "orders_fixture.h"
#include "support/temporary_files.h"

#include <algorithm>

namespace rf::orders {
namespace {

using automation::Array;
using automation::Variant;
using native::spreadsheet::Generation;

/// A list over a spreadsheet of this platform, of each generation.
class ListOverSpreadsheet : public test::SessionTest, public ::testing::WithParamInterface<Generation> {
protected:
    ListOverSpreadsheet()
    {
        test::offerSpreadsheets(toolkit, contents, englishSettings(), GetParam());
        list.controlName = u"exsOrders";
        list.setWidth(8535);
        list.AddToForm(*window);
        sheet = outlook::Spreadsheet{contents.back()->object()};
    }
    [[nodiscard]] Variant value(TextView address) const { return sheet.range(address).value(); }
    void write(TextView address, const Variant& written)
    {
        list.setEditMode(true);
        list.SetValue(address, written);
        list.setEditMode(false);
    }
    static Array column(const std::vector<Text>& names)
    {
        return {{{1, static_cast<std::int32_t>(names.size())}, {1, 1}}, {names.begin(), names.end()}};
    }

    std::vector<std::unique_ptr<native::ControlContent>> contents;
    Session session{services()};
    std::unique_ptr<ui::FormWindow> window = toolkit.makeFormWindow();
    cListHandler list{session};
    outlook::Spreadsheet sheet;
};

INSTANTIATE_TEST_SUITE_P(Generations, ListOverSpreadsheet, ::testing::Values(Generation::Later, Generation::Oldest),
    [](const auto& info) { return info.param == Generation::Oldest ? "Oldest" : "Later"; });

TEST_P(ListOverSpreadsheet, WritingIntoALockedCellWorksOnlyBetweenEditModeTrueAndFalse)
{
    list.setEditMode(true);
    list.SetValue(u"A1", u"Item");
    list.setEditMode(false);
    EXPECT_EQ(value(u"A1"), Variant{u"Item"});
    EXPECT_THROW(list.SetValue(u"A1", u"Other"), test::ProgramEnded);
    EXPECT_NE(toolkit.messages.back().text.find(u"cListHandler.SetValue"), Text::npos);
    EXPECT_EQ(value(u"A1"), Variant{u"Item"});
}

TEST_P(ListOverSpreadsheet, SetCheckedWithFalseWritesCharacter168NotAnEmptyCell)
{
    list.SetCheckedColumn(u"C2");
    list.SetChecked(u"C2", false);
    EXPECT_EQ(value(u"C2"), Variant{u"\u00A8"});
    EXPECT_FALSE(list.GetChecked(u"C2"));
    list.SetChecked(u"C2", true);
    EXPECT_EQ(value(u"C2"), Variant{u"\u00FE"});
    EXPECT_TRUE(list.GetChecked(u"C2"));
    EXPECT_FALSE(list.GetChecked(u"C3"));
    EXPECT_EQ(sheet.range(u"C9").font().name(), u"Wingdings");
    EXPECT_EQ(sheet.range(u"B2").font().name(), u"Tahoma");
}

TEST_P(ListOverSpreadsheet, RowsBeyond1999KeepTheControlsDefaultFontAndRowsBeyond2000StayLocked)
{
    EXPECT_EQ(sheet.range(u"A1999").font().name(), u"Tahoma");
    EXPECT_EQ(sheet.range(u"A1999").font().size(), 8);
    EXPECT_EQ(sheet.range(u"A2000").font().name(), u"Arial");
    EXPECT_FALSE(sheet.range(u"F2000").locked());
    EXPECT_TRUE(sheet.range(u"A2001").locked());
    EXPECT_TRUE(sheet.range(u"G2").locked());
    list.SetValue(u"F2000", 1);
    EXPECT_THROW(list.SetValue(u"A2001", 1), test::ProgramEnded);
}

TEST_P(ListOverSpreadsheet, CountsItsRows)
{
    EXPECT_EQ(list.UsedRows(u"f1"), 0);
    write(u"A1", u"Item");
    write(u"A2:A4", column({u"b", u"a", u"c"}));
    EXPECT_EQ(list.UsedRows(u"f1"), 4);
    EXPECT_TRUE(sheet.range(u"f1").locked());
}

TEST_P(ListOverSpreadsheet, ReadsWhatItWasGivenWhateverTheNames)
{
    for (const std::size_t count : {std::size_t{1}, std::size_t{99}, std::size_t{100}, std::size_t{500}}) {
        auto names = test::supplyNames(count);
        write(u"A1", u"Item");
        list.SetTextFormat(u"A2:A600");
        list.SetValue(u"A2:A600", Variant{});
        list.SetValue(u"A2:A" + decimal(static_cast<long long>(count) + 1), column(names));
        const Array rows = list.fncGetRangeArray(u"f1", u"a");
        ASSERT_EQ(rows.values.size(), count);
        std::vector<Text> read;
        for (const Variant& name : rows.values)
            read.push_back(name.text());
        std::ranges::sort(read);
        std::ranges::sort(names);
        EXPECT_EQ(read, names) << count;
    }
}

TEST_P(ListOverSpreadsheet, KeepsRowsUnderTheirNames)
{
    write(u"A1", u"Item");
    write(u"A2:C4", Array{{{1, 3}, {1, 3}}, {u"Tea", 1.5, 7, u"Cake", 3, 2, u"Coffee", 2.5, Variant{}}});
    const auto rows = list.fncGetRangeDic(u"f1", u"c");
    EXPECT_EQ(rows.keys(), (std::vector<Text>{u"Cake", u"Coffee", u"Tea"}));
    EXPECT_EQ(rows.item(u"TEA").array()->values, (std::vector<Variant>{u"Tea", 1.5, 7}));
}

TEST_P(ListOverSpreadsheet, ReadsRowsThatStandApart)
{
    write(u"A1", u"Item");
    write(u"A2", u"b");
    write(u"A9", u"a");
    EXPECT_EQ(list.fncGetRangeArray(u"f1", u"a").values, (std::vector<Variant>{u"a", u"b"}));
}

TEST_P(ListOverSpreadsheet, WritesADictionaryOverAnOlderOne)
{
    const auto dictionary = session.scripting.fncCreateDic();
    for (const Text& name : test::supplyNames(150))
        dictionary.add(name, name + u".");
    list.SetTextFormat(u"A2:A200");
    list.SetDicList(dictionary);
    EXPECT_EQ(value(u"A8").text(), test::supplyNames(7).back() + u".");
    EXPECT_FALSE(value(u"A151").isEmpty());
    dictionary.removeAll();
    dictionary.add(u"only", u"one");
    list.SetDicList(dictionary);
    EXPECT_EQ(value(u"A2"), Variant{u"one"});
    EXPECT_TRUE(value(u"A3").isEmpty());
    EXPECT_TRUE(value(u"A151").isEmpty());
}

TEST_P(ListOverSpreadsheet, SortsWithTheCostOfEachRow)
{
    write(u"A2:C3", Array{{{1, 2}, {1, 3}}, {u"Tea", 1.5, 2, u"Cake", 3, 4}});
    list.setEditMode(true);
    list.SetFormula(u"D2:D3", u"=B2*C2");
    list.setEditMode(false);
    list.SortRange();
    EXPECT_EQ(value(u"A2:D3").array()->values, (std::vector<Variant>{u"Cake", 3, 4, 12.0, u"Tea", 1.5, 2, 3.0}));
}

TEST_P(ListOverSpreadsheet, FiltersWhatIsUsed)
{
    write(u"A1", u"Item");
    write(u"A2", u"Tea");
    list.AutoFilter(true);
    EXPECT_TRUE(sheet.activeSheet().enableAutoFilter());
    list.AutoFilter(false);
    EXPECT_FALSE(sheet.activeSheet().enableAutoFilter());
}

TEST_P(ListOverSpreadsheet, ShowsAndHidesTheHeadings)
{
    const auto shown = [&](const char16_t* later, const char16_t* oldest) {
        return GetParam() == Generation::Oldest ? sheet.object().get(oldest).boolean()
                                                : sheet.activeWindow().object().get(later).boolean();
    };
    list.ColHeaders(false);
    list.RowHeaders(false);
    EXPECT_FALSE(shown(u"DisplayColumnHeadings", u"DisplayColHeaders"));
    EXPECT_FALSE(shown(u"DisplayRowHeadings", u"DisplayRowHeaders"));
    list.ColHeaders(true);
    EXPECT_TRUE(shown(u"DisplayColumnHeadings", u"DisplayColHeaders"));
}

TEST_P(ListOverSpreadsheet, LooksAsItIsTold)
{
    list.SetInteriorColor(u"A1:B100");
    EXPECT_EQ(list.GetInteriorColor(u"B100"), shade);
    EXPECT_EQ(sheet.range(u"A5").borders().color(), silver);
    EXPECT_EQ(sheet.range(u"A5").borders().weight(), sheet.constants().owcLineWeightThin());
    list.SetInteriorColor(u"C5", 255, true);
    EXPECT_EQ(list.GetInteriorColor(u"C5"), 255);
    EXPECT_NE(sheet.range(u"C5").borders().color(), silver);
    EXPECT_TRUE(sheet.activeSheet().protection().enabled());
    list.CenterAlign(u"C1");
    list.RightEdgeColDash(u"C3");
    list.TopEdgeRowDash(u"C3");
    list.AutoFitCols(u"A1:C1");
    list.setMoveRight(true);
    EXPECT_TRUE(sheet.moveAfterReturn());
    list.SelectCell(u"C7:D9");
    EXPECT_EQ(list.fncGetSel(), u"C7");
    list.FreezePanes(u"A2");
    EXPECT_TRUE(sheet.activeWindow().freezePanes());
    EXPECT_EQ(list.fncGetSel(), u"A1");
}

TEST_P(ListOverSpreadsheet, MeasuresColumnsInPixelsOrInCharacters)
{
    list.SetColumnWidth(u"B", 20);
    EXPECT_EQ(sheet.range(u"B1").columnWidth(), 20);
    list.convertWidths = true;
    list.SetColumnWidth(u"A", 400);
    EXPECT_DOUBLE_EQ(sheet.range(u"A1").columnWidth(), 55.36);
}

TEST_P(ListOverSpreadsheet, ClearsEverythingInEditMode)
{
    write(u"A1:A2", column({u"Item", u"Tea"}));
    list.SetFont(u"A2", u"Wingdings");
    list.FreezePanes(u"A2");
    list.setEditMode(true);
    list.ClearAll();
    list.setEditMode(false);
    EXPECT_TRUE(value(u"A1").isEmpty());
    EXPECT_EQ(sheet.range(u"A2").font().name(), u"Tahoma");
    EXPECT_FALSE(sheet.activeWindow().freezePanes());
    EXPECT_FALSE(sheet.activeWindow().displayGridlines());
    EXPECT_THROW(list.ClearAll(), test::ProgramEnded) << "locked cells are cleared in edit mode only";
}

TEST_P(ListOverSpreadsheet, PrintsEveryNameAsText)
{
    const test::TemporaryFiles temporary;
    list.SetTextFormat(u"A2:A50");
    write(u"A2:A" + decimal(static_cast<long long>(test::oddNames().size()) + 1), column(test::oddNames()));
    list.PrintSheet();
    const Text path = system.verbs.at(0).second;
    const Text page = session.files.fsoShared()
                          .openTextFile(path, outlook::OpenMode::Read, false, outlook::TextFormat::Unicode)
                          .readAll();
    EXPECT_NE(page.find(u"&lt;b&gt;Cake&lt;/b&gt; &amp; more"), Text::npos);
    EXPECT_NE(page.find(u"\u05E7\u05E4\u05D4"), Text::npos);
    EXPECT_EQ(page.find(u"<b>Cake"), Text::npos);
}

} // namespace
} // namespace rf::orders
