#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rf {

/// Text as the host keeps it: UTF-16 units. Lengths, chunk borders and comparisons count units, and a unit
/// may be half of a surrogate pair (a border can split one), so nothing here repairs or rejects text.
using Text = std::u16string;
using TextView = std::u16string_view;

inline constexpr TextView lineBreak = u"\r\n";

/// The text without leading and trailing blanks (U+0020 only: tabs and line ends stay).
[[nodiscard]] TextView trim(TextView text);

/// The pieces between the delimiters, empty ones included. An empty text has no pieces at all; an empty
/// delimiter gives the whole text as the only piece.
[[nodiscard]] std::vector<Text> split(TextView text, TextView delimiter);

/// As `split`, without copying; the views live as long as the text they point into.
[[nodiscard]] std::vector<TextView> splitViews(TextView text, TextView delimiter);

/// The pieces with the delimiter between each two.
[[nodiscard]] Text join(std::span<const Text> pieces, TextView delimiter);

/// Every occurrence of `what`, from left to right and without overlap, replaced; an exact comparison.
[[nodiscard]] Text replaceAll(TextView text, TextView what, TextView with);

/// Upper and lower case, unit by unit: one unit stays one unit, so ß and half a surrogate pair are kept.
[[nodiscard]] char16_t upper(char16_t unit);
[[nodiscard]] char16_t lower(char16_t unit);
[[nodiscard]] Text upper(TextView text);
[[nodiscard]] Text lower(TextView text);

/// Below 0, 0 or above 0 as `left` stands before, with or behind `right`, without regard to case.
[[nodiscard]] int compareIgnoringCase(TextView left, TextView right);
[[nodiscard]] bool equalIgnoringCase(TextView left, TextView right);

/// The position of the first occurrence from `from` on, without regard to case; `Text::npos` when there is none.
[[nodiscard]] std::size_t findIgnoringCase(TextView text, TextView what, std::size_t from = 0);

/// Hash and equality for containers whose keys compare without regard to case.
struct HashIgnoringCase {
    using is_transparent = void;
    [[nodiscard]] std::size_t operator()(TextView text) const;
};
struct EqualIgnoringCase {
    using is_transparent = void;
    [[nodiscard]] bool operator()(TextView left, TextView right) const { return equalIgnoringCase(left, right); }
};

/// UTF-8 for the world outside. Half of a surrogate pair becomes its three-byte form and comes back as it was;
/// a byte that belongs to no character becomes U+FFFD.
[[nodiscard]] std::string toUtf8(TextView text);
[[nodiscard]] Text fromUtf8(std::string_view bytes);

/// A whole number in decimal digits, without padding.
[[nodiscard]] Text decimal(long long number);

} // namespace rf
