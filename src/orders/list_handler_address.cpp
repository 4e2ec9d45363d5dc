#include "orders/list_handler_address.h"

namespace rf::orders {

namespace {

constexpr std::int32_t letters = 26;
/// More rows than any sheet has.
constexpr std::int32_t mostRows = 100'000'000;

/// The number behind the letters of a cell; nothing when there is none.
std::optional<std::int32_t> rowIn(TextView cell)
{
    const auto start = cell.find_first_of(u"0123456789");
    if (start == TextView::npos)
        return std::nullopt;
    constexpr std::int32_t base = 10;
    std::int32_t row = 0;
    for (const char16_t digit : cell.substr(start)) {
        if (digit < u'0' || digit > u'9' || row > mostRows)
            return std::nullopt;
        row = row * base + (digit - u'0');
    }
    return row;
}

} // namespace

std::optional<ViewedRows> viewedRows(TextView address)
{
    const Text plain = replaceAll(address, u"$", {});
    const auto corners = splitViews(plain, u":");
    if (corners.empty())
        return std::nullopt;
    const auto first = rowIn(corners.front());
    const auto last = rowIn(corners.back());
    if (!first || !last)
        return std::nullopt;
    return ViewedRows{*first, *last - *first + 1};
}

Text cellAddress(std::int32_t row, std::int32_t column)
{
    Text name;
    for (; column > 0; column = (column - 1) / letters)
        name.insert(name.begin(), static_cast<char16_t>(u'A' + (column - 1) % letters));
    return name + decimal(row);
}

Text columnAddress(TextView name)
{
    if (name.find(u':') != TextView::npos)
        return Text{name};
    return Text{name} + u":" + Text{name};
}

Text columnOf(TextView address, std::optional<std::int32_t> fromRow)
{
    const Text column{address.substr(0, 1)};
    if (!fromRow)
        return columnAddress(column);
    return column + decimal(*fromRow) + u":" + column + decimal(lastStyledRow);
}

} // namespace rf::orders
