#include "linux/spreadsheet_reference.h"
#include "linux/spreadsheet_sheet.h"

#include <numeric>

namespace rf::native::spreadsheet {

using automation::Variant;

namespace {

/// Numbers stand before texts, texts before truth values; empty cells come last in either order.
int rankOf(const Variant& value)
{
    if (value.isEmpty())
        return 3;
    if (value.is<bool>())
        return 2;
    return value.is<Text>() ? 1 : 0;
}

double numberIn(const Variant& value) { return value.is<Date>() ? value.date().days() : value.number(); }

int compare(const Variant& left, const Variant& right)
{
    const int rank = rankOf(left);
    if (rank != rankOf(right))
        return rank < rankOf(right) ? -1 : 1;
    if (rank == 1)
        return compareIgnoringCase(left.text(), right.text());
    if (rank == 3)
        return 0;
    const double difference = rank == 2 ? static_cast<double>(left.boolean()) - static_cast<double>(right.boolean())
                                        : numberIn(left) - numberIn(right);
    return difference < 0 ? -1 : difference > 0 ? 1 : 0;
}

} // namespace

std::vector<std::int32_t> Sheet::sortedRows(const Area& area, std::int32_t column, Order order) const
{
    std::vector<std::pair<Variant, std::int32_t>> keys;
    // Rows below the last content are empty and stay where they are.
    const std::int32_t last = std::min(area.last.row, usedArea().last.row);
    for (std::int32_t row = area.first.row; row <= last; ++row)
        keys.emplace_back(value({row, column}), row);
    std::ranges::stable_sort(keys, [&](const auto& left, const auto& right) {
        if (left.first.isEmpty() || right.first.isEmpty())
            return !left.first.isEmpty() && right.first.isEmpty();
        const int compared = compare(left.first, right.first);
        return order == Order::Ascending ? compared < 0 : compared > 0;
    });
    std::vector<std::int32_t> rows;
    rows.reserve(keys.size());
    for (const auto& [key, row] : keys)
        rows.push_back(row);
    return rows;
}

bool Sheet::sort(const Area& area, std::int32_t column, Order order, bool header)
{
    if (protection_.enabled && !protection_.allowSorting)
        return false;
    Area data = area;
    data.first.row += header ? 1 : 0;
    if (column < 1 || column > data.columns() || data.rows() < 1)
        return true;
    const auto rows = sortedRows(data, data.first.column + column - 1, order);
    Contents moved;
    std::int32_t target = data.first.row;
    for (const std::int32_t row : rows) {
        for (auto entry = contents_.lower_bound({row, data.first.column});
             entry != contents_.end() && entry->first.row == row && entry->first.column <= data.last.column; ++entry) {
            Content content = entry->second;
            content.formula = movedBy(content.formula, {target - row, 0});
            moved[{target, entry->first.column}] = std::move(content);
        }
        ++target;
    }
    std::erase_if(contents_, [&](const auto& entry) {
        if (!data.contains(entry.first))
            return false;
        calculator_.setValue(entry.first, {});
        return true;
    });
    for (auto& [cell, content] : moved) {
        if (content.formula.empty())
            calculator_.setValue(cell, content.value);
        else
            static_cast<void>(calculator_.setFormula(cell, content.formula));
        contents_[cell] = std::move(content);
    }
    tell(Change::Contents);
    return true;
}

void Sheet::setFilter(std::optional<Area> area)
{
    filter_ = area;
    hiddenTexts_.clear();
    tell(Change::Layout);
}

void Sheet::setHiddenTexts(std::int32_t column, std::set<Text> texts)
{
    if (texts.empty())
        hiddenTexts_.erase(column);
    else
        hiddenTexts_[column] = std::move(texts);
    tell(Change::Layout);
}

const std::set<Text>& Sheet::hiddenTexts(std::int32_t column) const
{
    static const std::set<Text> none;
    const auto found = hiddenTexts_.find(column);
    return found == hiddenTexts_.end() ? none : found->second;
}

bool Sheet::isRowHidden(std::int32_t row) const
{
    if (!filter_ || row <= filter_->first.row || row > filter_->last.row)
        return false;
    return std::ranges::any_of(hiddenTexts_, [&](const auto& entry) {
        return entry.second.contains(shown({row, entry.first}));
    });
}

} // namespace rf::native::spreadsheet
