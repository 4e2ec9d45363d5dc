#include "orders/supply_list.h"

#include "orders/text_table.h"

namespace rf {

namespace {

constexpr std::size_t nameColumn = 0;
constexpr std::size_t priceColumn = 1;

/// People edit these lists by other means too, and a list that could not be read would be saved as an empty one: so
/// lines may stand empty, the last one may lack its CR LF, and any its price.
TextTable supplyTable(TextView text)
{
    while (text.starts_with(lineBreak))
        text.remove_prefix(lineBreak.size());
    Text lines{text};
    if (!text.ends_with(lineBreak))
        lines += lineBreak;
    return {lines, ShortLines::Fill};
}

} // namespace

Text supplyLine(const cSupplyItem& supply, const Regional& regional)
{
    return supply.ItemName + u"\t" + regional.formatPlain(supply.Price) + Text{lineBreak};
}

std::vector<cSupplyItem> readSupplyList(TextView text, const Regional& regional)
{
    const TextTable table = supplyTable(text);
    std::vector<cSupplyItem> supplies;
    for (std::size_t row = 0; row < table.rows() && table.columns() > 0; ++row) {
        const Text& name = table.cell(row, nameColumn);
        // An empty line is a stray line end, not a supply without a name.
        if (name.empty())
            continue;
        const auto price
            = table.columns() > priceColumn ? regional.parseCurrency(table.cell(row, priceColumn)) : std::nullopt;
        supplies.push_back({price.value_or(Currency{}), name});
    }
    return supplies;
}

} // namespace rf
