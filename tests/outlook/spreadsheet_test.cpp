#include "member_use.h"

#include "outlook/spreadsheet.h"

namespace rf::outlook {

using namespace test;

namespace {

/// A Boolean member with its two accessors.
template <class Face>
struct Switch {
    const char16_t* member;
    bool (Face::*get)(Where) const;
    void (Face::*set)(bool, Where) const;
};

template <class Face>
void expectSwitches(std::initializer_list<Switch<Face>> switches)
{
    for (const auto& one : switches)
        expectUses<Face>({
            {one.member, Get, {}, true, [one](const Face& face) { return (face.*one.get)(Where::current()); }},
            {one.member, Put, {false}, {}, [one](const Face& face) { (face.*one.set)(false, Where::current()); }},
        });
}

} // namespace

TEST(SpreadsheetFace, UsesTheMembersOfTheControl)
{
    const Variant other = someObject();
    expectUses<Spreadsheet>({
        {u"Constants", Get, {}, other, [](auto& control) { return control.constants(); }},
        {u"ActiveSheet", Get, {}, other, [](auto& control) { return control.activeSheet(); }},
        {u"ActiveWindow", Get, {}, other, [](auto& control) { return control.activeWindow(); }},
        {u"Selection", Get, {}, other, [](auto& control) { return control.selection(); }},
        {u"TitleBar", Get, {}, other, [](auto& control) { return control.titleBar(); }},
        {u"Range", Get, {u"A1:F2000"}, other, [](auto& control) { return control.range(u"A1:F2000"); }},
        {u"ViewableRange", Get, {}, u"$A$1:$C$7", [](auto& control) { return control.viewableRange(); }},
        {u"ViewableRange", Put, {u"A1:C7"}, {}, [](auto& control) { control.setViewableRange(u"A1:C7"); }},
        {u"MoveAfterReturnDirection", Get, {}, 2, [](auto& control) { return control.moveAfterReturnDirection(); }},
        {u"MoveAfterReturnDirection", Put, {-4161}, {},
            [](auto& control) { control.setMoveAfterReturnDirection(-4161); }},
        {u"Calculate", Call, {}, {}, [](auto& control) { control.calculate(); }},
    });
    expectSwitches<Spreadsheet>({
        {u"AllowPropertyToolbox", &Spreadsheet::allowPropertyToolbox, &Spreadsheet::setAllowPropertyToolbox},
        {u"DisplayTitleBar", &Spreadsheet::displayTitleBar, &Spreadsheet::setDisplayTitleBar},
        {u"DisplayToolbar", &Spreadsheet::displayToolbar, &Spreadsheet::setDisplayToolbar},
        {u"DisplayWorkbookTabs", &Spreadsheet::displayWorkbookTabs, &Spreadsheet::setDisplayWorkbookTabs},
        {u"DisplayColHeaders", &Spreadsheet::displayColHeaders, &Spreadsheet::setDisplayColHeaders},
        {u"DisplayRowHeaders", &Spreadsheet::displayRowHeaders, &Spreadsheet::setDisplayRowHeaders},
        {u"ScreenUpdating", &Spreadsheet::screenUpdating, &Spreadsheet::setScreenUpdating},
        {u"MoveAfterReturn", &Spreadsheet::moveAfterReturn, &Spreadsheet::setMoveAfterReturn},
    });
    expectUses<SpreadsheetTitleBar>({
        {u"Caption", Get, {}, u"Supply", [](auto& bar) { return bar.caption(); }},
        {u"Caption", Put, {u"Supply"}, {}, [](auto& bar) { bar.setCaption(u"Supply"); }},
    });
}

TEST(SpreadsheetConstantsFace, AreReadFromTheControlByTheirNames)
{
    expectUses<SpreadsheetConstants>({
        {u"owcLineWeightThin", Get, {}, 1, [](auto& constants) { return constants.owcLineWeightThin(); }},
        {u"owcLineStyleDash", Get, {}, 3, [](auto& constants) { return constants.owcLineStyleDash(); }},
        {u"ssToRight", Get, {}, 2, [](auto& constants) { return constants.ssToRight(); }},
        {u"xlToRight", Get, {}, -4161, [](auto& constants) { return constants.xlToRight(); }},
        {u"ssHAlignCenter", Get, {}, 2, [](auto& constants) { return constants.ssHAlignCenter(); }},
        {u"xlHAlignCenter", Get, {}, -4108, [](auto& constants) { return constants.xlHAlignCenter(); }},
        {u"ssEdgeRight", Get, {}, 3, [](auto& constants) { return constants.ssEdgeRight(); }},
        {u"xlEdgeRight", Get, {}, 10, [](auto& constants) { return constants.xlEdgeRight(); }},
        {u"ssEdgeTop", Get, {}, 4, [](auto& constants) { return constants.ssEdgeTop(); }},
        {u"xlEdgeTop", Get, {}, 8, [](auto& constants) { return constants.xlEdgeTop(); }},
        {u"ssAscending", Get, {}, 0, [](auto& constants) { return constants.ssAscending(); }},
        {u"xlAscending", Get, {}, 1, [](auto& constants) { return constants.xlAscending(); }},
        {u"ssNo", Get, {}, 2, [](auto& constants) { return constants.ssNo(); }},
        {u"xlNo", Get, {}, 2, [](auto& constants) { return constants.xlNo(); }},
    });
}

TEST(SpreadsheetProtectionFace, UsesTheMembersOfTheControl)
{
    using Protection = SpreadsheetProtection;
    expectSwitches<Protection>({
        {u"Enabled", &Protection::enabled, &Protection::setEnabled},
        {u"AllowDeletingColumns", &Protection::allowDeletingColumns, &Protection::setAllowDeletingColumns},
        {u"AllowDeletingRows", &Protection::allowDeletingRows, &Protection::setAllowDeletingRows},
        {u"AllowInsertingColumns", &Protection::allowInsertingColumns, &Protection::setAllowInsertingColumns},
        {u"AllowInsertingRows", &Protection::allowInsertingRows, &Protection::setAllowInsertingRows},
        {u"AllowFiltering", &Protection::allowFiltering, &Protection::setAllowFiltering},
        {u"AllowFormattingColumns", &Protection::allowFormattingColumns, &Protection::setAllowFormattingColumns},
        {u"AllowFormattingRows", &Protection::allowFormattingRows, &Protection::setAllowFormattingRows},
        {u"AllowSizingAllColumns", &Protection::allowSizingAllColumns, &Protection::setAllowSizingAllColumns},
        {u"AllowSizingAllRows", &Protection::allowSizingAllRows, &Protection::setAllowSizingAllRows},
        {u"AllowSorting", &Protection::allowSorting, &Protection::setAllowSorting},
    });
}

TEST(SpreadsheetWindowFace, UsesTheMembersOfTheControl)
{
    using Face = SpreadsheetWindow;
    expectSwitches<Face>({
        {u"DisplayColumnHeadings", &Face::displayColumnHeadings, &Face::setDisplayColumnHeadings},
        {u"DisplayRowHeadings", &Face::displayRowHeadings, &Face::setDisplayRowHeadings},
        {u"DisplayGridlines", &Face::displayGridlines, &Face::setDisplayGridlines},
        {u"DisplayHorizontalScrollBar", &Face::displayHorizontalScrollBar, &Face::setDisplayHorizontalScrollBar},
        {u"DisplayVerticalScrollBar", &Face::displayVerticalScrollBar, &Face::setDisplayVerticalScrollBar},
        {u"EnableResize", &Face::enableResize, &Face::setEnableResize},
        {u"FreezePanes", &Face::freezePanes, &Face::setFreezePanes},
    });
    expectUses<Face>({
        {u"ViewableRange", Get, {}, u"$A$1:$C$7", [](auto& window) { return window.viewableRange(); }},
        {u"ViewableRange", Put, {u"A1:C7"}, {}, [](auto& window) { window.setViewableRange(u"A1:C7"); }},
    });
}

TEST(SpreadsheetSheetFace, UsesTheMembersOfTheControl)
{
    const Variant other = someObject();
    expectUses<SpreadsheetSheet>({
        {u"Protection", Get, {}, other, [](auto& sheet) { return sheet.protection(); }},
        {u"UsedRange", Get, {}, other, [](auto& sheet) { return sheet.usedRange(); }},
        {u"Range", Get, {u"a1"}, other, [](auto& sheet) { return sheet.range(u"a1"); }},
        {u"Calculate", Call, {}, {}, [](auto& sheet) { sheet.calculate(); }},
    });
    expectSwitches<SpreadsheetSheet>(
        {{u"EnableAutoFilter", &SpreadsheetSheet::enableAutoFilter, &SpreadsheetSheet::setEnableAutoFilter}});
}

TEST(SpreadsheetRangeFace, UsesTheMembersOfTheControl)
{
    const Variant other = someObject();
    expectUses<SpreadsheetRange>({
        {u"Address", Get, {}, u"$A$1", [](auto& range) { return range.address(); }},
        {u"Row", Get, {}, 1, [](auto& range) { return range.row(); }},
        {u"Column", Get, {}, 2, [](auto& range) { return range.column(); }},
        {u"Count", Get, {}, 6, [](auto& range) { return range.count(); }},
        {u"Rows", Get, {}, other, [](auto& range) { return range.rows(); }},
        {u"Columns", Get, {}, other, [](auto& range) { return range.columns(); }},
        {u"EntireColumn", Get, {}, other, [](auto& range) { return range.entireColumn(); }},
        {u"EntireRow", Get, {}, other, [](auto& range) { return range.entireRow(); }},
        {u"Value", Get, {}, 12.5, [](auto& range) { return range.value(); }},
        {u"Value", Put, {u"Coffee"}, {}, [](auto& range) { range.setValue(u"Coffee"); }},
        {u"Formula", Get, {}, u"=B2*C2", [](auto& range) { return range.formula(); }},
        {u"Formula", Put, {u"=B2*C2"}, {}, [](auto& range) { range.setFormula(u"=B2*C2"); }},
        {u"NumberFormat", Get, {}, u"General", [](auto& range) { return range.numberFormat(); }},
        {u"NumberFormat", Put, {u"Text"}, {}, [](auto& range) { range.setNumberFormat(u"Text"); }},
        {u"HTMLData", Get, {}, u"<html>", [](auto& range) { return range.htmlData(); }},
        {u"HorizontalAlignment", Get, {}, 1, [](auto& range) { return range.horizontalAlignment(); }},
        {u"HorizontalAlignment", Put, {-4108}, {}, [](auto& range) { range.setHorizontalAlignment(-4108); }},
        {u"ColumnWidth", Get, {}, 8.5, [](auto& range) { return range.columnWidth(); }},
        {u"ColumnWidth", Put, {58.0}, {}, [](auto& range) { range.setColumnWidth(58); }},
        {u"Select", Call, {}, {}, [](auto& range) { range.select(); }},
        {u"ClearContents", Call, {}, {}, [](auto& range) { range.clearContents(); }},
        {u"ClearFormats", Call, {}, {}, [](auto& range) { range.clearFormats(); }},
        {u"AutoFit", Call, {}, {}, [](auto& range) { range.autoFit(); }},
        {u"AutoFitColumns", Call, {}, {}, [](auto& range) { range.autoFitColumns(); }},
        {u"AutoFilter", Call, {}, {}, [](auto& range) { range.autoFilter(); }},
        {u"Sort", Call, {1, 0, 2}, {}, [](auto& range) { range.sort(1, 0, 2); }},
    });
    expectSwitches<SpreadsheetRange>({{u"Locked", &SpreadsheetRange::locked, &SpreadsheetRange::setLocked}});
}

TEST(SpreadsheetRangeFace, GivesTheLooksOfItsCells)
{
    const Variant other = someObject();
    expectUses<SpreadsheetRange>({
        {u"Font", Get, {}, other, [](auto& range) { return range.font(); }},
        {u"Interior", Get, {}, other, [](auto& range) { return range.interior(); }},
        {u"Borders", Get, {}, other, [](auto& range) { return range.borders(); }},
        {u"Borders", Get, {10}, other, [](auto& range) { return range.borders(10); }},
    });
    expectUses<SpreadsheetFont>({
        {u"Name", Get, {}, u"Tahoma", [](auto& font) { return font.name(); }},
        {u"Name", Put, {u"Wingdings"}, {}, [](auto& font) { font.setName(u"Wingdings"); }},
        {u"Size", Get, {}, 8.0, [](auto& font) { return font.size(); }},
        {u"Size", Put, {8.0}, {}, [](auto& font) { font.setSize(8); }},
    });
    expectSwitches<SpreadsheetFont>({{u"Bold", &SpreadsheetFont::bold, &SpreadsheetFont::setBold}});
    expectUses<SpreadsheetInterior>({
        {u"Color", Get, {}, 14215660, [](auto& interior) { return interior.color(); }},
        {u"Color", Put, {14215660}, {}, [](auto& interior) { interior.setColor(14215660); }},
    });
    expectUses<SpreadsheetBorders>({
        {u"Color", Get, {}, 12632256, [](auto& borders) { return borders.color(); }},
        {u"Color", Put, {12632256}, {}, [](auto& borders) { borders.setColor(12632256); }},
        {u"Weight", Get, {}, 2, [](auto& borders) { return borders.weight(); }},
        {u"Weight", Put, {2}, {}, [](auto& borders) { borders.setWeight(2); }},
        {u"LineStyle", Get, {}, 3, [](auto& borders) { return borders.lineStyle(); }},
        {u"LineStyle", Put, {3}, {}, [](auto& borders) { borders.setLineStyle(3); }},
    });
}

} // namespace rf::outlook
