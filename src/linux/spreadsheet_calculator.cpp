#include "linux/spreadsheet_calculator.h"

#include <cmath>
#include <ixion/address.hpp>
#include <ixion/cell_access.hpp>
#include <ixion/document.hpp>
#include <ixion/types.hpp>
#include <regex>
#include <stdexcept>

namespace rf::native::spreadsheet {

using automation::Variant;

struct Calculator::Document : ixion::document {
    Document() { append_sheet("Sheet1"); }
};

namespace {

ixion::abs_address_t place(Cell cell) { return {0, cell.row - 1, cell.column - 1}; }

/// The library calculates with whole columns and rows but cannot forget a formula that has them, so they are written
/// out to the end of the sheet. Texts in quotes stay.
std::string withoutWholeLines(const std::string& formula)
{
    static const std::regex columns{R"((^|[^A-Za-z0-9$"])(\$?[A-Za-z]{1,2}):(\$?[A-Za-z]{1,2})(?![A-Za-z0-9(]))"};
    static const std::regex rows{R"((^|[^A-Za-z0-9$"])\$?([0-9]{1,5}):\$?([0-9]{1,5})(?![A-Za-z0-9(]))"};
    std::string text;
    for (std::size_t start = 0; start <= formula.size();) {
        const std::size_t quote = std::min(formula.find('"', start), formula.size());
        std::string part = formula.substr(start, quote - start);
        part = std::regex_replace(part, columns, "$01$021:$0365536");
        part = std::regex_replace(part, rows, "$01A$02:ZZ$03");
        const std::size_t closing = std::min(formula.find('"', quote + 1), formula.size());
        text += part + formula.substr(quote, closing + 1 - quote);
        start = closing + 1;
    }
    return text;
}

void give(ixion::document& document, Cell cell, const Variant& value)
{
    if (const auto* text = value.getIf<Text>())
        document.set_string_cell(place(cell), toUtf8(*text));
    else if (const auto* truth = value.getIf<bool>())
        document.set_boolean_cell(place(cell), *truth);
    else if (const auto* date = value.getIf<Date>())
        document.set_numeric_cell(place(cell), date->days());
    else if (value.isEmpty())
        document.empty_cell(place(cell));
    else
        document.set_numeric_cell(place(cell), value.number());
}

} // namespace

Calculator::Calculator()
    : document_(std::make_unique<Document>())
{
}

Calculator::~Calculator() = default;

/// Takes whatever the cell holds out of the library's books first; it expects that of whoever replaces a formula.
void Calculator::empty(Cell cell)
{
    values_.erase(cell);
    formulas_.erase(cell);
    try {
        document_->empty_cell(place(cell));
    } catch (const std::exception&) {
        rebuild();
    }
    stale_ = true;
}

/// Starts anew with everything that is known to be good: after a failure the library's books may be half written.
void Calculator::rebuild()
{
    document_ = std::make_unique<Document>();
    for (const auto& [cell, value] : values_)
        give(*document_, cell, value);
    for (const auto& [cell, formula] : formulas_)
        document_->set_formula_cell(place(cell), formula);
    stale_ = true;
}

void Calculator::setValue(Cell cell, const Variant& value)
{
    if (formulas_.contains(cell))
        empty(cell);
    if (value.isEmpty())
        values_.erase(cell);
    else
        values_[cell] = value;
    give(*document_, cell, value);
    stale_ = true;
}

bool Calculator::setFormula(Cell cell, TextView formula)
{
    empty(cell);
    const std::string text = withoutWholeLines(toUtf8(formula));
    try {
        document_->set_formula_cell(place(cell), text);
        document_->calculate(0);
        if (document_->get_cell_access(place(cell)).get_value_type() == ixion::cell_value_t::error
            && document_->get_cell_access(place(cell)).get_error_value() == ixion::formula_error_t::invalid_expression)
            throw std::invalid_argument{text};
    } catch (const std::exception&) {
        rebuild();
        return false;
    }
    formulas_[cell] = text;
    stale_ = false;
    return true;
}

Variant Calculator::result(Cell cell)
{
    if (stale_)
        document_->calculate(0);
    stale_ = false;
    const auto access = document_->get_cell_access(place(cell));
    switch (access.get_value_type()) {
    case ixion::cell_value_t::numeric: {
        const double number = access.get_numeric_value();
        return std::isfinite(number) ? Variant{number} : Variant{u"#NUM!"};
    }
    case ixion::cell_value_t::string:
        return Variant{fromUtf8(access.get_string_value())};
    case ixion::cell_value_t::boolean:
        return Variant{access.get_boolean_value()};
    case ixion::cell_value_t::error:
        return Variant{fromUtf8(ixion::get_formula_error_name(access.get_error_value()))};
    case ixion::cell_value_t::empty:
    case ixion::cell_value_t::unknown:
        break;
    }
    return {};
}

} // namespace rf::native::spreadsheet
