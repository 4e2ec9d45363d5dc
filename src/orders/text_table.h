#pragma once

#include "basic/text.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace rf {

/// What a line with fewer fields than the first one means to the reader of a table.
enum class ShortLines {
    /// The text is damaged.
    Refuse,
    /// The missing fields are empty.
    Fill
};

/// Texts in rows and columns, as wide as the first line of what it was read from.
class TextTable {
public:
    TextTable() = default;
    /// Reads whole lines: what stands behind the last CR LF is no line. Fields beyond the width are dropped.
    /// Error 9 for a line that is too short where those are refused.
    TextTable(TextView text, ShortLines shortLines);

    [[nodiscard]] std::size_t rows() const { return rows_; }
    /// 0 in a table without rows.
    [[nodiscard]] std::size_t columns() const { return columns_; }
    /// Error 9 outside the table.
    [[nodiscard]] const Text& cell(std::size_t row, std::size_t column) const;

private:
    void appendLine(TextView line, ShortLines shortLines);

    std::size_t rows_ = 0;
    std::size_t columns_ = 0;
    /// Row by row.
    std::vector<Text> cells_;
};

/// The table of a text of lines that each end in CR LF, with a TAB between each two fields; orders are kept so. A last
/// line without its CR LF is not read, since every writer ends each line. An empty text has no rows. A line with fewer
/// fields than the first is error 9.
[[nodiscard]] TextTable fncTextToArray(TextView text);

} // namespace rf
