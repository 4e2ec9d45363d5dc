#pragma once

#include "orders/list_handler_address.h"
#include "orders/list_handler_constants.h"
#include "outlook/scripting.h"
#include "outlook/webbrowser.h"
#include "storage/outlook_value.h"

#include <functional>
#include <memory>

namespace rf::orders {

/// Red, green and blue, each from 0 to 255.
struct Rgb {
    std::int32_t red = 0;
    std::int32_t green = 0;
    std::int32_t blue = 0;
};

/// The number that a spreadsheet has for a colour.
[[nodiscard]] constexpr std::int32_t colorNumber(Rgb color)
{
    constexpr std::int32_t steps = 256;
    return color.red + steps * (color.green + steps * color.blue);
}

/// The background of cells that a person cannot change.
inline constexpr std::int32_t shade = colorNumber({236, 233, 216});
inline constexpr std::int32_t silver = colorNumber({192, 192, 192});

/// A spreadsheet on a form as a list that can be edited: headings in row 1, data from row 2 on. Addresses are those of
/// the control ("A1", "A1:C7", "1:1"). An error in any member is reported under its label, such as
/// "cListHandler.SetValue", and ends the program. Every member but the fields needs `AddToForm` first (error 91).
class cListHandler {
public:
    explicit cListHandler(Session& session);
    cListHandler(const cListHandler&) = delete;
    cListHandler& operator=(const cListHandler&) = delete;
    ~cListHandler();

    /// Set by the owner before `AddToForm`: the control's name on the form, and where it stands, in twips.
    Text controlName;
    std::int16_t Top = 0;
    std::int16_t Left = 0;
    std::int16_t Height = 0;
    /// Leaves out the first of the control's classes.
    bool preferNewest = false;
    /// Widths given to `SetColumnWidth` are pixels; the control of today counts characters.
    bool convertWidths = false;

    /// In twips; a control that is there already takes it.
    [[nodiscard]] std::int32_t Width() const { return width_; }
    void setWidth(std::int32_t width);
    void setVisible(bool visible);

    /// Another part of the list is selected, or its contents were changed by hand.
    std::function<void(const Text& address)> SelectionChange;
    /// Other rows can be reached than before. It is set before the events are switched on.
    std::function<void(ViewedRows rows)> Scrolled;
    /// No event is raised until they are switched on.
    void setRaiseEventsEnabled(bool enabled);

    /// Makes the control on a form and gives it its defaults. Without a spreadsheet on this system the user is told
    /// and the program ends. The form outlives this object.
    void AddToForm(ui::FormWindow& form);
    void subSetDefaults();

    void SetBold(TextView address, bool bold = true);
    /// Locked cells refuse input while the sheet is protected.
    void LockRange(TextView address, bool OpenLock = false);
    /// The control's tools and the horizontal scroll bar.
    void SetExcelVisible(bool visible);
    void ColHeaders(bool visible);
    void RowHeaders(bool visible);
    /// What a person can reach.
    void SetVisibleRange(TextView address);
    /// The rows above and the columns before a cell stay in place.
    void FreezePanes(TextView address);
    /// The alignment is one of the control's constants.
    void FixHorizontalAlign(TextView address, std::int32_t alignment);
    void CenterAlign(TextView address);
    void AutoFitCols(TextView address);
    void SetFont(TextView address, TextView fontName);
    void RightEdgeColDash(TextView address);
    void TopEdgeRowDash(TextView address);
    void DisplayVerticalScroll(bool visible);
    void DisplayHorizontalScroll(bool visible);
    /// A column's letter, or an address with ":".
    void SetColumnWidth(TextView columnName, double width);
    void SetDateFormat(TextView address);
    void SetTextFormat(TextView address);
    void SetNumberFormat(TextView address);
    /// Unless it is told to leave them, the cells' borders become thin silver lines.
    void SetInteriorColor(TextView address, std::int32_t color = shade, bool blnClearBorders = false);
    [[nodiscard]] std::int32_t GetInteriorColor(TextView address);
    void setTitle(TextView caption);

    /// While it is on, the program can write into locked cells and nothing is drawn.
    void setEditMode(bool on);
    /// Enter moves to the right.
    void setMoveRight(bool on);
    void SelectCell(TextView address);
    /// The first cell of the selection, such as "C7".
    [[nodiscard]] Text fncGetSel();
    /// Contents, looks and frozen panes are gone.
    void ClearAll();

    /// Clears the cells first. An array fills them row by row.
    void SetValue(TextView address, const automation::Variant& value);
    /// The value as it is held, or as a kind of value.
    [[nodiscard]] automation::Variant GetValue(TextView address, std::optional<ValueKind> dataType = std::nullopt);
    /// A formula for several cells speaks of the first of them; in the others it speaks of the cells beside those.
    void SetFormula(TextView address, TextView formula);
    void calculate();
    /// The two characters of the symbol font that are a ticked and an empty box.
    void SetChecked(TextView address, bool value);
    [[nodiscard]] bool GetChecked(TextView address);
    /// Gives a column the symbol font, the whole of it or from a row on.
    void SetCheckedColumn(TextView address, std::optional<std::int32_t> fromRow = std::nullopt);
    /// The items of a dictionary down the first column.
    void SetDicList(const outlook::Dictionary& dictionary);

    /// The number that a cell counts the rows with, the row of headings among them.
    [[nodiscard]] std::int32_t UsedRows(TextView countCell);
    /// The data rows up to a column, sorted by their first one: an array in two dimensions, empty without data.
    [[nodiscard]] automation::Array fncGetRangeArray(TextView countCell, TextView lastColumn);
    /// The same rows, each a list, under the texts of their first column. Of two rows with one text the first counts.
    [[nodiscard]] outlook::Dictionary fncGetRangeDic(TextView countCell, TextView lastColumn);
    void SortRange();
    void AutoFilter(bool on);

    /// Prints what is used of the sheet, by a browser, or without one by the program that the system has for pages.
    void PrintSheet(const outlook::WebBrowser& browser = {});

    /// Looks which rows can be reached; the timer calls it while events are on and somebody hears them.
    void objTimer_Timer();

private:
    using Where = outlook::Where;

    [[nodiscard]] outlook::SpreadsheetRange range(TextView address, Where where = Where::current()) const
    {
        return spreadsheet_.range(address, where);
    }
    void place() const;
    void styleRows() const;
    void protect() const;
    /// Runs a step while the sheet is not protected; then its protection is as it was.
    void unprotected(const std::function<void()>& step) const;
    [[nodiscard]] std::int32_t countedRows(TextView countCell) const;
    [[nodiscard]] automation::Array sortedRows(TextView countCell, TextView lastColumn) const;
    void sort(TextView address) const;

    Session& session_;
    std::int32_t width_ = 0;
    bool visible_ = true;
    bool raiseEvents_ = false;
    SpreadsheetControl made_;
    outlook::Spreadsheet spreadsheet_;
    outlook::SpreadsheetSheet sheet_;
    outlook::SpreadsheetWindow window_;
    outlook::SpreadsheetProtection protection_;
    ListConstants constants_;
    std::unique_ptr<ui::Timer> objTimer_;
    std::optional<ViewedRows> viewed_;
};

} // namespace rf::orders
