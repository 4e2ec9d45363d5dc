#include "orders/text_table.h"

#include "basic/runtime_error.h"

namespace rf {

namespace {

constexpr TextView fieldBreak = u"\t";

} // namespace

TextTable::TextTable(TextView text, ShortLines shortLines)
{
    std::vector<TextView> lines = splitViews(text, lineBreak);
    if (lines.empty())
        return;
    lines.pop_back();
    if (lines.empty())
        return;
    columns_ = splitViews(lines.front(), fieldBreak).size();
    cells_.reserve(lines.size() * columns_);
    for (const TextView line : lines)
        appendLine(line, shortLines);
}

void TextTable::appendLine(TextView line, ShortLines shortLines)
{
    const std::vector<TextView> fields = splitViews(line, fieldBreak);
    if (fields.size() < columns_ && shortLines == ShortLines::Refuse)
        throw RuntimeError{error_number::subscriptOutOfRange};
    for (std::size_t column = 0; column < columns_; ++column)
        cells_.emplace_back(column < fields.size() ? fields[column] : TextView{});
    ++rows_;
}

const Text& TextTable::cell(std::size_t row, std::size_t column) const
{
    if (row >= rows_ || column >= columns_)
        throw RuntimeError{error_number::subscriptOutOfRange};
    return cells_[row * columns_ + column];
}

TextTable fncTextToArray(TextView text) { return {text, ShortLines::Refuse}; }

} // namespace rf
