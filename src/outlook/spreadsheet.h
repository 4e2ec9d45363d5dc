#pragma once

#include "outlook/spreadsheet_range.h"

#include <array>

namespace rf::outlook {

/// The generations of the control, in the order in which they are tried.
inline constexpr std::array<TextView, 3> spreadsheetClasses{
    u"OWC10.Spreadsheet", u"OWC11.Spreadsheet", u"OWC.Spreadsheet"};

/// The control's own constants. Their numbers, and partly their names, differ between the generations: `ss…` are those
/// of the oldest, `xl…` of the later ones. A constant that a generation lacks is error 438.
class SpreadsheetConstants : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t owcLineWeightThin(Where where = Where::current()) const
    {
        return object().get({u"owcLineWeightThin", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t owcLineStyleDash(Where where = Where::current()) const
    {
        return object().get({u"owcLineStyleDash", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t ssToRight(Where where = Where::current()) const
    {
        return object().get({u"ssToRight", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t xlToRight(Where where = Where::current()) const
    {
        return object().get({u"xlToRight", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t ssHAlignCenter(Where where = Where::current()) const
    {
        return object().get({u"ssHAlignCenter", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t xlHAlignCenter(Where where = Where::current()) const
    {
        return object().get({u"xlHAlignCenter", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t ssEdgeRight(Where where = Where::current()) const
    {
        return object().get({u"ssEdgeRight", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t xlEdgeRight(Where where = Where::current()) const
    {
        return object().get({u"xlEdgeRight", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t ssEdgeTop(Where where = Where::current()) const
    {
        return object().get({u"ssEdgeTop", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t xlEdgeTop(Where where = Where::current()) const
    {
        return object().get({u"xlEdgeTop", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t ssAscending(Where where = Where::current()) const
    {
        return object().get({u"ssAscending", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t xlAscending(Where where = Where::current()) const
    {
        return object().get({u"xlAscending", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t ssNo(Where where = Where::current()) const
    {
        return object().get({u"ssNo", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t xlNo(Where where = Where::current()) const
    {
        return object().get({u"xlNo", where}).integer32(where);
    }
};

class SpreadsheetTitleBar : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text caption(Where where = Where::current()) const
    {
        return object().get({u"Caption", where}).text(where);
    }
    void setCaption(TextView value, Where where = Where::current()) const { object().put({u"Caption", where}, value); }
};

/// What the user may do to a sheet while its protection is enabled.
class SpreadsheetProtection : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] bool enabled(Where where = Where::current()) const
    {
        return object().get({u"Enabled", where}).boolean(where);
    }
    void setEnabled(bool on, Where where = Where::current()) const { object().put({u"Enabled", where}, on); }
    [[nodiscard]] bool allowDeletingColumns(Where where = Where::current()) const
    {
        return object().get({u"AllowDeletingColumns", where}).boolean(where);
    }
    void setAllowDeletingColumns(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowDeletingColumns", where}, on);
    }
    [[nodiscard]] bool allowDeletingRows(Where where = Where::current()) const
    {
        return object().get({u"AllowDeletingRows", where}).boolean(where);
    }
    void setAllowDeletingRows(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowDeletingRows", where}, on);
    }
    [[nodiscard]] bool allowInsertingColumns(Where where = Where::current()) const
    {
        return object().get({u"AllowInsertingColumns", where}).boolean(where);
    }
    void setAllowInsertingColumns(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowInsertingColumns", where}, on);
    }
    [[nodiscard]] bool allowInsertingRows(Where where = Where::current()) const
    {
        return object().get({u"AllowInsertingRows", where}).boolean(where);
    }
    void setAllowInsertingRows(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowInsertingRows", where}, on);
    }
    [[nodiscard]] bool allowFiltering(Where where = Where::current()) const
    {
        return object().get({u"AllowFiltering", where}).boolean(where);
    }
    void setAllowFiltering(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowFiltering", where}, on);
    }
    [[nodiscard]] bool allowFormattingColumns(Where where = Where::current()) const
    {
        return object().get({u"AllowFormattingColumns", where}).boolean(where);
    }
    void setAllowFormattingColumns(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowFormattingColumns", where}, on);
    }
    [[nodiscard]] bool allowFormattingRows(Where where = Where::current()) const
    {
        return object().get({u"AllowFormattingRows", where}).boolean(where);
    }
    void setAllowFormattingRows(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowFormattingRows", where}, on);
    }
    [[nodiscard]] bool allowSizingAllColumns(Where where = Where::current()) const
    {
        return object().get({u"AllowSizingAllColumns", where}).boolean(where);
    }
    void setAllowSizingAllColumns(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowSizingAllColumns", where}, on);
    }
    [[nodiscard]] bool allowSizingAllRows(Where where = Where::current()) const
    {
        return object().get({u"AllowSizingAllRows", where}).boolean(where);
    }
    void setAllowSizingAllRows(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowSizingAllRows", where}, on);
    }
    [[nodiscard]] bool allowSorting(Where where = Where::current()) const
    {
        return object().get({u"AllowSorting", where}).boolean(where);
    }
    void setAllowSorting(bool on, Where where = Where::current()) const { object().put({u"AllowSorting", where}, on); }
};

/// The view of a workbook in the control.
class SpreadsheetWindow : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] bool displayColumnHeadings(Where where = Where::current()) const
    {
        return object().get({u"DisplayColumnHeadings", where}).boolean(where);
    }
    void setDisplayColumnHeadings(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayColumnHeadings", where}, on);
    }
    [[nodiscard]] bool displayRowHeadings(Where where = Where::current()) const
    {
        return object().get({u"DisplayRowHeadings", where}).boolean(where);
    }
    void setDisplayRowHeadings(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayRowHeadings", where}, on);
    }
    [[nodiscard]] bool displayGridlines(Where where = Where::current()) const
    {
        return object().get({u"DisplayGridlines", where}).boolean(where);
    }
    void setDisplayGridlines(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayGridlines", where}, on);
    }
    [[nodiscard]] bool displayHorizontalScrollBar(Where where = Where::current()) const
    {
        return object().get({u"DisplayHorizontalScrollBar", where}).boolean(where);
    }
    void setDisplayHorizontalScrollBar(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayHorizontalScrollBar", where}, on);
    }
    [[nodiscard]] bool displayVerticalScrollBar(Where where = Where::current()) const
    {
        return object().get({u"DisplayVerticalScrollBar", where}).boolean(where);
    }
    void setDisplayVerticalScrollBar(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayVerticalScrollBar", where}, on);
    }
    [[nodiscard]] bool enableResize(Where where = Where::current()) const
    {
        return object().get({u"EnableResize", where}).boolean(where);
    }
    void setEnableResize(bool on, Where where = Where::current()) const { object().put({u"EnableResize", where}, on); }
    /// Whether the rows above and the columns before the selected cell stay in place.
    [[nodiscard]] bool freezePanes(Where where = Where::current()) const
    {
        return object().get({u"FreezePanes", where}).boolean(where);
    }
    void setFreezePanes(bool on, Where where = Where::current()) const { object().put({u"FreezePanes", where}, on); }
    /// The address of the cells that the user can reach.
    [[nodiscard]] Text viewableRange(Where where = Where::current()) const
    {
        return object().get({u"ViewableRange", where}).text(where);
    }
    void setViewableRange(TextView value, Where where = Where::current()) const
    {
        object().put({u"ViewableRange", where}, value);
    }
};

class SpreadsheetSheet : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] SpreadsheetProtection protection(Where where = Where::current()) const
    {
        return face<SpreadsheetProtection>(object().get({u"Protection", where}), where);
    }
    [[nodiscard]] SpreadsheetRange usedRange(Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"UsedRange", where}), where);
    }
    [[nodiscard]] SpreadsheetRange range(TextView address, Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"Range", where}, address), where);
    }
    [[nodiscard]] bool enableAutoFilter(Where where = Where::current()) const
    {
        return object().get({u"EnableAutoFilter", where}).boolean(where);
    }
    void setEnableAutoFilter(bool on, Where where = Where::current()) const
    {
        object().put({u"EnableAutoFilter", where}, on);
    }
    void calculate(Where where = Where::current()) const { object().call({u"Calculate", where}); }
};

/// The spreadsheet control. The oldest generation has the headings on the control (`DisplayColHeaders`,
/// `DisplayRowHeaders`), the later ones on the window.
class Spreadsheet : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] SpreadsheetConstants constants(Where where = Where::current()) const
    {
        return face<SpreadsheetConstants>(object().get({u"Constants", where}), where);
    }
    [[nodiscard]] SpreadsheetSheet activeSheet(Where where = Where::current()) const
    {
        return face<SpreadsheetSheet>(object().get({u"ActiveSheet", where}), where);
    }
    [[nodiscard]] SpreadsheetWindow activeWindow(Where where = Where::current()) const
    {
        return face<SpreadsheetWindow>(object().get({u"ActiveWindow", where}), where);
    }
    [[nodiscard]] SpreadsheetRange selection(Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"Selection", where}), where);
    }
    [[nodiscard]] SpreadsheetTitleBar titleBar(Where where = Where::current()) const
    {
        return face<SpreadsheetTitleBar>(object().get({u"TitleBar", where}), where);
    }
    [[nodiscard]] SpreadsheetRange range(TextView address, Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"Range", where}, address), where);
    }

    [[nodiscard]] bool allowPropertyToolbox(Where where = Where::current()) const
    {
        return object().get({u"AllowPropertyToolbox", where}).boolean(where);
    }
    void setAllowPropertyToolbox(bool on, Where where = Where::current()) const
    {
        object().put({u"AllowPropertyToolbox", where}, on);
    }
    [[nodiscard]] bool displayTitleBar(Where where = Where::current()) const
    {
        return object().get({u"DisplayTitleBar", where}).boolean(where);
    }
    void setDisplayTitleBar(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayTitleBar", where}, on);
    }
    [[nodiscard]] bool displayToolbar(Where where = Where::current()) const
    {
        return object().get({u"DisplayToolbar", where}).boolean(where);
    }
    void setDisplayToolbar(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayToolbar", where}, on);
    }
    [[nodiscard]] bool displayWorkbookTabs(Where where = Where::current()) const
    {
        return object().get({u"DisplayWorkbookTabs", where}).boolean(where);
    }
    void setDisplayWorkbookTabs(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayWorkbookTabs", where}, on);
    }
    [[nodiscard]] bool displayColHeaders(Where where = Where::current()) const
    {
        return object().get({u"DisplayColHeaders", where}).boolean(where);
    }
    void setDisplayColHeaders(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayColHeaders", where}, on);
    }
    [[nodiscard]] bool displayRowHeaders(Where where = Where::current()) const
    {
        return object().get({u"DisplayRowHeaders", where}).boolean(where);
    }
    void setDisplayRowHeaders(bool on, Where where = Where::current()) const
    {
        object().put({u"DisplayRowHeaders", where}, on);
    }
    /// The address of the cells that the user can reach.
    [[nodiscard]] Text viewableRange(Where where = Where::current()) const
    {
        return object().get({u"ViewableRange", where}).text(where);
    }
    void setViewableRange(TextView value, Where where = Where::current()) const
    {
        object().put({u"ViewableRange", where}, value);
    }
    [[nodiscard]] bool screenUpdating(Where where = Where::current()) const
    {
        return object().get({u"ScreenUpdating", where}).boolean(where);
    }
    void setScreenUpdating(bool on, Where where = Where::current()) const
    {
        object().put({u"ScreenUpdating", where}, on);
    }
    /// Whether Enter moves the selection, and where to (a constant of the control).
    [[nodiscard]] bool moveAfterReturn(Where where = Where::current()) const
    {
        return object().get({u"MoveAfterReturn", where}).boolean(where);
    }
    void setMoveAfterReturn(bool on, Where where = Where::current()) const
    {
        object().put({u"MoveAfterReturn", where}, on);
    }
    [[nodiscard]] std::int32_t moveAfterReturnDirection(Where where = Where::current()) const
    {
        return object().get({u"MoveAfterReturnDirection", where}).integer32(where);
    }
    void setMoveAfterReturnDirection(std::int32_t value, Where where = Where::current()) const
    {
        object().put({u"MoveAfterReturnDirection", where}, value);
    }
    void calculate(Where where = Where::current()) const { object().call({u"Calculate", where}); }
};

} // namespace rf::outlook
