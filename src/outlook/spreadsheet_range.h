#pragma once

#include "outlook/proxy.h"

namespace rf::outlook {

class SpreadsheetFont : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] Text name(Where where = Where::current()) const { return object().get({u"Name", where}).text(where); }
    void setName(TextView value, Where where = Where::current()) const { object().put({u"Name", where}, value); }
    [[nodiscard]] bool bold(Where where = Where::current()) const
    {
        return object().get({u"Bold", where}).boolean(where);
    }
    void setBold(bool on, Where where = Where::current()) const { object().put({u"Bold", where}, on); }
    /// In points.
    [[nodiscard]] double size(Where where = Where::current()) const
    {
        return object().get({u"Size", where}).number(where);
    }
    void setSize(double value, Where where = Where::current()) const { object().put({u"Size", where}, value); }
};

/// The background of cells. Colours are red + 256 * green + 65536 * blue.
class SpreadsheetInterior : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t color(Where where = Where::current()) const
    {
        return object().get({u"Color", where}).integer32(where);
    }
    void setColor(std::int32_t value, Where where = Where::current()) const { object().put({u"Color", where}, value); }
};

/// The lines around cells: all of them, or those of one edge. Weights and styles are constants of the control.
class SpreadsheetBorders : public Proxy {
public:
    using Proxy::Proxy;

    [[nodiscard]] std::int32_t color(Where where = Where::current()) const
    {
        return object().get({u"Color", where}).integer32(where);
    }
    void setColor(std::int32_t value, Where where = Where::current()) const { object().put({u"Color", where}, value); }
    [[nodiscard]] std::int32_t weight(Where where = Where::current()) const
    {
        return object().get({u"Weight", where}).integer32(where);
    }
    void setWeight(std::int32_t value, Where where = Where::current()) const
    {
        object().put({u"Weight", where}, value);
    }
    [[nodiscard]] std::int32_t lineStyle(Where where = Where::current()) const
    {
        return object().get({u"LineStyle", where}).integer32(where);
    }
    void setLineStyle(std::int32_t value, Where where = Where::current()) const
    {
        object().put({u"LineStyle", where}, value);
    }
};

/// One or more cells.
class SpreadsheetRange : public Proxy {
public:
    using Proxy::Proxy;

    /// Such as "$A$1:$C$7".
    [[nodiscard]] Text address(Where where = Where::current()) const
    {
        return object().get({u"Address", where}).text(where);
    }
    /// The position of the first cell, from 1 up.
    [[nodiscard]] std::int32_t row(Where where = Where::current()) const
    {
        return object().get({u"Row", where}).integer32(where);
    }
    [[nodiscard]] std::int32_t column(Where where = Where::current()) const
    {
        return object().get({u"Column", where}).integer32(where);
    }
    /// Of cells; of rows or columns when the range stands for those.
    [[nodiscard]] std::int32_t count(Where where = Where::current()) const
    {
        return object().get({u"Count", where}).integer32(where);
    }
    [[nodiscard]] SpreadsheetRange rows(Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"Rows", where}), where);
    }
    [[nodiscard]] SpreadsheetRange columns(Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"Columns", where}), where);
    }
    [[nodiscard]] SpreadsheetRange entireColumn(Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"EntireColumn", where}), where);
    }
    [[nodiscard]] SpreadsheetRange entireRow(Where where = Where::current()) const
    {
        return face<SpreadsheetRange>(object().get({u"EntireRow", where}), where);
    }

    /// One value, or a two-dimensional array for several cells.
    [[nodiscard]] Variant value(Where where = Where::current()) const { return object().get({u"Value", where}); }
    void setValue(Variant value, Where where = Where::current()) const
    {
        object().put({u"Value", where}, std::move(value));
    }
    [[nodiscard]] Variant formula(Where where = Where::current()) const { return object().get({u"Formula", where}); }
    void setFormula(TextView formula, Where where = Where::current()) const
    {
        object().put({u"Formula", where}, formula);
    }
    /// A named format such as "General Date", or a picture.
    [[nodiscard]] Text numberFormat(Where where = Where::current()) const
    {
        return object().get({u"NumberFormat", where}).text(where);
    }
    void setNumberFormat(TextView value, Where where = Where::current()) const
    {
        object().put({u"NumberFormat", where}, value);
    }
    /// The cells as a page.
    [[nodiscard]] Text htmlData(Where where = Where::current()) const
    {
        return object().get({u"HTMLData", where}).text(where);
    }

    [[nodiscard]] SpreadsheetFont font(Where where = Where::current()) const
    {
        return face<SpreadsheetFont>(object().get({u"Font", where}), where);
    }
    [[nodiscard]] SpreadsheetInterior interior(Where where = Where::current()) const
    {
        return face<SpreadsheetInterior>(object().get({u"Interior", where}), where);
    }
    [[nodiscard]] SpreadsheetBorders borders(Where where = Where::current()) const
    {
        return face<SpreadsheetBorders>(object().get({u"Borders", where}), where);
    }
    [[nodiscard]] SpreadsheetBorders borders(std::int32_t edge, Where where = Where::current()) const
    {
        return face<SpreadsheetBorders>(object().get({u"Borders", where}, edge), where);
    }
    /// Whether the cells refuse input while the sheet is protected.
    [[nodiscard]] bool locked(Where where = Where::current()) const
    {
        return object().get({u"Locked", where}).boolean(where);
    }
    void setLocked(bool on, Where where = Where::current()) const { object().put({u"Locked", where}, on); }
    [[nodiscard]] std::int32_t horizontalAlignment(Where where = Where::current()) const
    {
        return object().get({u"HorizontalAlignment", where}).integer32(where);
    }
    void setHorizontalAlignment(std::int32_t value, Where where = Where::current()) const
    {
        object().put({u"HorizontalAlignment", where}, value);
    }
    [[nodiscard]] double columnWidth(Where where = Where::current()) const
    {
        return object().get({u"ColumnWidth", where}).number(where);
    }
    void setColumnWidth(double value, Where where = Where::current()) const
    {
        object().put({u"ColumnWidth", where}, value);
    }

    void select(Where where = Where::current()) const { object().call({u"Select", where}); }
    void clearContents(Where where = Where::current()) const { object().call({u"ClearContents", where}); }
    void clearFormats(Where where = Where::current()) const { object().call({u"ClearFormats", where}); }
    /// Widths that suit the contents; the oldest generation of the control has `AutoFitColumns` only.
    void autoFit(Where where = Where::current()) const { object().call({u"AutoFit", where}); }
    void autoFitColumns(Where where = Where::current()) const { object().call({u"AutoFitColumns", where}); }
    void autoFilter(Where where = Where::current()) const { object().call({u"AutoFilter", where}); }
    /// By a column, counted from 1 within the range; order and header are constants of the control.
    void sort(std::int32_t column, std::int32_t order, std::int32_t header, Where where = Where::current()) const
    {
        object().call({u"Sort", where}, column, order, header);
    }
};

} // namespace rf::outlook
