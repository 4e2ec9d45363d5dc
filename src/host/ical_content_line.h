#pragma once

#include "basic/text.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace rf::host::ical {

/// A line as its continuations make it, and where it begins in the text (counted from 1).
struct LogicalLine {
    std::size_t line = 0;
    std::string bytes;
    /// The line is longer than any that the reader keeps; `bytes` is its begin.
    bool isTooLong = false;
    /// Where in `bytes` the continuations begin.
    std::vector<std::size_t> continuations;

    /// The line of the text that a byte of this one stands on.
    [[nodiscard]] std::size_t lineOf(std::size_t byte) const;
};

/// Takes a text apart into its lines. They end with CR LF or LF, one that begins with a blank continues the one before,
/// and a byte-order mark at the begin counts for nothing.
class LogicalLines {
public:
    /// No more of a line is kept.
    static constexpr std::size_t longestLine = 1 << 20;

    explicit LogicalLines(std::string_view bytes);

    /// The next line that is not empty; false at the end. The bytes may be no UTF-8.
    bool next(LogicalLine& line);

private:
    [[nodiscard]] std::string_view takeLine();
    static void append(LogicalLine& line, std::string_view bytes);

    std::string_view rest_;
    std::size_t lineNumber_ = 0;
};

/// Where the bytes stop being UTF-8; nothing when all are. Half of a surrogate pair is not.
[[nodiscard]] std::optional<std::size_t> firstBadByte(std::string_view bytes);
/// The bytes with U+FFFD for whatever is no UTF-8.
[[nodiscard]] std::string repaired(std::string_view bytes);

struct Parameter {
    std::string name;
    std::string value;
};

/// A line taken apart: NAME;PARAMETER=value:value. Names in capitals.
struct ContentLine {
    std::string name;
    std::vector<Parameter> parameters;
    std::string value;

    /// Empty when the line has no such parameter.
    [[nodiscard]] std::string_view parameter(std::string_view wanted) const;
};

/// Nothing when the line is not made so.
[[nodiscard]] std::optional<ContentLine> readContentLine(std::string_view bytes);

/// Whether two names of components, properties or their like are the same, capitals or not.
[[nodiscard]] bool sameName(std::string_view left, std::string_view right);

} // namespace rf::host::ical
