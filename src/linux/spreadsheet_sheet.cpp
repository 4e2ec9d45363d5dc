#include "linux/spreadsheet_sheet.h"

#include "automation/conversion.h"
#include "linux/spreadsheet_number_format.h"
#include "linux/spreadsheet_reference.h"

#include <cmath>

namespace rf::native::spreadsheet {

using automation::Variant;

namespace {

constexpr double standardWidth = 8.43;
constexpr double widestColumn = 255;

/// Works on what is there instead of on every cell of an area, which may be a whole column.
template <class Contents, class Step>
void forContents(Contents& contents, const Area& area, Step step)
{
    for (auto entry = contents.lower_bound(area.first); entry != contents.end() && entry->first.row <= area.last.row;
         ++entry)
        if (area.contains(entry->first))
            step(*entry);
}

template <class Step>
void forCells(const Area& area, Step step)
{
    for (std::int32_t row = area.first.row; row <= area.last.row; ++row)
        for (std::int32_t column = area.first.column; column <= area.last.column; ++column)
            step(Cell{row, column});
}

} // namespace

Sheet::Sheet(std::shared_ptr<const Regional> regional, Generation generation)
    : regional_(std::move(regional))
    , generation_(generation)
{
}

Variant Sheet::value(Cell cell) const
{
    const auto found = contents_.find(cell);
    if (found == contents_.end())
        return {};
    return found->second.formula.empty() ? found->second.value : calculator_.result(cell);
}

bool Sheet::hasFormula(Cell cell) const
{
    const auto found = contents_.find(cell);
    return found != contents_.end() && !found->second.formula.empty();
}

Text Sheet::input(Cell cell) const
{
    const auto found = contents_.find(cell);
    if (found == contents_.end())
        return {};
    if (!found->second.formula.empty())
        return u"=" + found->second.formula;
    const Variant& value = found->second.value;
    // Money is typed without its symbol.
    return value.is<Currency>() ? regional_->formatPlain(value.currency()) : formatted(*regional_, value, u"");
}

Text Sheet::shown(Cell cell) const { return formatted(*regional_, value(cell), formats_.numberFormat.at(cell)); }

std::optional<bool> Sheet::tick(Cell cell) const
{
    if (!equalIgnoringCase(formats_.fontName.at(cell), u"Wingdings"))
        return std::nullopt;
    const Variant held = value(cell);
    const auto* text = held.getIf<Text>();
    if (text == nullptr || (*text != tickedBox && *text != emptyBox))
        return std::nullopt;
    return *text == tickedBox;
}

void Sheet::tell(Change change) const
{
    if (changed && appearance_.screenUpdating)
        changed(change);
}

void Sheet::tellOfPersonsChange() const
{
    if (const auto heard = SelectionChange)
        heard(addressOf(selection_));
}

Variant Sheet::asEntered(Cell cell, TextView text) const
{
    const Text& format = formats_.numberFormat.at(cell);
    if (isTextFormat(format))
        return Variant{text};
    if (const auto number = regional_->parseNumber(text); number && std::isfinite(*number))
        return Variant{*number};
    // Elsewhere "3-4" is no date: most of what people type here are counts.
    if (isDateFormat(format))
        if (const auto date = regional_->parseDate(text))
            return Variant{*date};
    return Variant{text};
}

void Sheet::put(Cell cell, const Variant& value)
{
    const auto* text = value.getIf<Text>();
    const bool nothing = value.isEmpty() || value.is<automation::Null>() || (text != nullptr && text->empty());
    const Variant kept = nothing ? Variant{} : text != nullptr ? asEntered(cell, *text) : value;
    calculator_.setValue(cell, kept);
    if (nothing)
        contents_.erase(cell);
    else
        contents_[cell] = {kept, {}};
}

bool Sheet::refuses(const Area& area) const { return protection_.enabled && formats_.locked.has(area, true); }

bool Sheet::setValue(const Area& area, const Variant& value)
{
    if (refuses(area))
        return false;
    const auto array = value.isArray() ? value.array() : nullptr;
    const auto width = array == nullptr ? 1 : array->dimensions.back().size;
    forCells(area, [&](Cell cell) {
        if (array == nullptr) {
            put(cell, value);
            return;
        }
        // A list fills each row anew; what an array does not reach stays.
        const bool flat = array->dimensions.size() == 1;
        const std::int32_t row = flat ? 0 : cell.row - area.first.row;
        const std::int32_t column = cell.column - area.first.column;
        const auto index
            = static_cast<std::size_t>(row) * static_cast<std::size_t>(width) + static_cast<std::size_t>(column);
        if (column < width && index < array->values.size())
            put(cell, array->values[index]);
    });
    tell(Change::Contents);
    return true;
}

Sheet::Outcome Sheet::setFormula(const Area& area, TextView formula)
{
    if (!formula.starts_with(u'=') || formula.size() == 1)
        return setValue(area, Variant{formula}) ? Outcome::Done : Outcome::Locked;
    if (refuses(area))
        return Outcome::Locked;
    auto outcome = Outcome::Done;
    forCells(area, [&](Cell cell) {
        const Text text = movedBy(formula.substr(1), {cell.row - area.first.row, cell.column - area.first.column});
        if (outcome == Outcome::Done && calculator_.setFormula(cell, text)) {
            contents_[cell] = {{}, text};
            return;
        }
        // The cell keeps what it had.
        outcome = Outcome::NotUnderstood;
        const auto found = contents_.find(cell);
        if (found == contents_.end())
            return;
        if (found->second.formula.empty())
            calculator_.setValue(cell, found->second.value);
        else
            static_cast<void>(calculator_.setFormula(cell, found->second.formula));
    });
    tell(Change::Contents);
    return outcome;
}

Sheet::Outcome Sheet::enter(Cell cell, TextView typed)
{
    const bool text = isTextFormat(formats_.numberFormat.at(cell));
    return text ? (setValue(Area::of(cell), Variant{typed}) ? Outcome::Done : Outcome::Locked)
                : setFormula(Area::of(cell), typed);
}

bool Sheet::clearContents(const Area& area)
{
    if (refuses(area))
        return false;
    std::vector<Cell> cells;
    forContents(contents_, area, [&](const auto& entry) { cells.push_back(entry.first); });
    for (const Cell cell : cells)
        put(cell, {});
    tell(Change::Contents);
    return true;
}

Area Sheet::usedArea() const
{
    Cell last;
    for (const auto& [cell, content] : contents_)
        last = {std::max(last.row, cell.row), std::max(last.column, cell.column)};
    return {{1, 1}, last};
}

void Sheet::format(const std::function<void(Formats&)>& change)
{
    change(formats_);
    tell(Change::Looks);
}

void Sheet::arrange(const std::function<void(Appearance&)>& change)
{
    change(appearance_);
    tell(Change::Layout);
}

void Sheet::protect(const std::function<void(Protection&)>& change)
{
    change(protection_);
    tell(Change::Looks);
}

double Sheet::columnWidth(std::int32_t column) const
{
    const auto found = columnWidths_.find(column);
    return found == columnWidths_.end() ? standardWidth : found->second;
}

void Sheet::setColumnWidth(const Area& columns, double characters)
{
    for (std::int32_t column = columns.first.column; column <= columns.last.column; ++column)
        columnWidths_[column] = std::clamp(characters, 0.0, widestColumn);
    tell(Change::Layout);
}

void Sheet::fitColumns(const Area& columns)
{
    std::map<std::int32_t, double> widths;
    forContents(contents_, {{1, columns.first.column}, {rowLimit, columns.last.column}}, [&](const auto& entry) {
        const double needed = measure ? measure(entry.first) : static_cast<double>(shown(entry.first).size()) + 1;
        double& width = widths[entry.first.column];
        width = std::max(width, std::min(needed, widestColumn));
    });
    for (const auto& [column, width] : widths)
        columnWidths_[column] = width;
    tell(Change::Layout);
}

void Sheet::select(const Area& area)
{
    if (area == selection_)
        return;
    selection_ = area;
    tell(Change::Selection);
    tellOfPersonsChange();
}

} // namespace rf::native::spreadsheet
