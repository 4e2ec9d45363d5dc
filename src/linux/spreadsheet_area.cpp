#include "linux/spreadsheet_area.h"

namespace rf::native::spreadsheet {

namespace {

/// Of the alphabet, in which columns count.
constexpr std::int32_t letters = u'Z' - u'A' + 1;

/// One side of an address: a part that is not there is 0.
struct Side {
    std::int32_t row = 0;
    std::int32_t column = 0;
};

std::optional<Side> parseSide(TextView text)
{
    Side side;
    std::size_t index = 0;
    const auto skipSign = [&] { index += index < text.size() && text[index] == u'$' ? 1 : 0; };
    skipSign();
    for (; index < text.size() && upper(text[index]) >= u'A' && upper(text[index]) <= u'Z'; ++index) {
        side.column = side.column * letters + (upper(text[index]) - u'A' + 1);
        if (side.column > columnLimit)
            return std::nullopt;
    }
    if (side.column > 0)
        skipSign();
    const std::size_t digits = index;
    for (; index < text.size() && text[index] >= u'0' && text[index] <= u'9'; ++index) {
        side.row = side.row * 10 + (text[index] - u'0');
        if (side.row > rowLimit)
            return std::nullopt;
    }
    const bool emptyRow = index > digits && side.row == 0;
    if (index < text.size() || emptyRow || (side.row == 0 && side.column == 0))
        return std::nullopt;
    return side;
}

} // namespace

std::optional<Area> Area::common(const Area& other) const
{
    const Area shared{{std::max(first.row, other.first.row), std::max(first.column, other.first.column)},
        {std::min(last.row, other.last.row), std::min(last.column, other.last.column)}};
    if (shared.rows() < 1 || shared.columns() < 1)
        return std::nullopt;
    return shared;
}

std::optional<Area> parseAddress(TextView text)
{
    const auto colon = text.find(u':');
    const auto from = parseSide(trim(text.substr(0, colon)));
    const auto to = colon == TextView::npos ? from : parseSide(trim(text.substr(colon + 1)));
    if (!from || !to || (from->row == 0) != (to->row == 0) || (from->column == 0) != (to->column == 0))
        return std::nullopt;
    // A row alone is a number, not an address; a column alone is how a program names one.
    if (colon == TextView::npos && from->column == 0)
        return std::nullopt;
    const auto [firstRow, lastRow] = std::minmax(from->row, to->row);
    const auto [firstColumn, lastColumn] = std::minmax(from->column, to->column);
    return Area{{firstRow == 0 ? 1 : firstRow, firstColumn == 0 ? 1 : firstColumn},
        {firstRow == 0 ? rowLimit : lastRow, firstColumn == 0 ? columnLimit : lastColumn}};
}

Text columnName(std::int32_t column)
{
    Text name;
    for (; column > 0; column = (column - 1) / letters)
        name.insert(name.begin(), static_cast<char16_t>(u'A' + (column - 1) % letters));
    return name;
}

Text addressOf(const Area& area)
{
    const bool wholeRows = area.columns() == columnLimit;
    const bool wholeColumns = area.rows() == rowLimit;
    const auto side = [&](Cell cell) {
        Text text;
        if (!wholeRows || wholeColumns)
            text += u"$" + columnName(cell.column);
        if (!wholeColumns)
            text += u"$" + decimal(cell.row);
        return text;
    };
    return area.isOneCell() ? side(area.first) : side(area.first) + u":" + side(area.last);
}

} // namespace rf::native::spreadsheet
