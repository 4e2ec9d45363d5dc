#include "orders/order_grid.h"

#include "automation/conversion.h"
#include "basic/conversion.h"
#include "orders/order_row.h"
#include "orders/text_table.h"

#include <unordered_map>

namespace rf::orders {

using automation::Array;

namespace {

constexpr std::size_t nameColumn = 0;
constexpr std::size_t quantityColumn = 1;
constexpr std::size_t columnsRead = 3;
constexpr std::size_t readQuantityColumn = 2;

cOrderRow orderRow(const Regional& regional, const TextTable& table, std::size_t line)
{
    cOrderRow row{table.cell(line, nameColumn), 0};
    if (table.columns() > quantityColumn && isNumeric(regional, table.cell(line, quantityColumn)))
        row.Quantity = toLong(regional, table.cell(line, quantityColumn));
    return row;
}

} // namespace

std::int32_t lastRow(const Supplies& supplies) { return static_cast<std::int32_t>(supplies.size()) + 1; }

Array supplyCells(const Supplies& supplies)
{
    constexpr std::int32_t columns = 2;
    Array cells{{{1, static_cast<std::int32_t>(supplies.size())}, {1, columns}}, {}};
    cells.values.reserve(supplies.size() * columns);
    for (const auto& supply : supplies) {
        cells.values.emplace_back(supply->ItemName);
        cells.values.emplace_back(supply->Price);
    }
    return cells;
}

std::vector<GridQuantity> gridQuantities(const Regional& regional, const Supplies& supplies, TextView strOrdersList)
{
    std::unordered_map<TextView, std::int32_t> rowOf;
    for (std::int32_t row = grid::firstRow; const auto& supply : supplies)
        rowOf.emplace(supply->ItemName, row++);
    const TextTable table = fncTextToArray(strOrdersList);
    std::vector<GridQuantity> quantities;
    for (std::size_t line = 0; line < table.rows(); ++line) {
        const cOrderRow row = orderRow(regional, table, line);
        if (const auto found = rowOf.find(row.ItemName); found != rowOf.end())
            quantities.push_back({u"c" + decimal(found->second), row.Quantity});
    }
    return quantities;
}

Text orderLines(const Regional& regional, const Array& rows)
{
    Text lines;
    for (std::size_t start = 0; start + columnsRead <= rows.values.size(); start += columnsRead) {
        const Text quantity = toText(regional, rows.values[start + readQuantityColumn]);
        if (!quantity.empty())
            lines.append(toText(regional, rows.values[start])).append(u"\t").append(quantity).append(lineBreak);
    }
    return lines;
}

} // namespace rf::orders
