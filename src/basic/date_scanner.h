#pragma once

#include "basic/pattern_regional.h"

namespace rf {

/// A number in the text of a date; "01" and "2001" differ in what they can stand for.
struct DateNumber {
    int value = 0;
    std::size_t digits = 0;
    bool afterComma = false; ///< A comma separates it from the number before.
};

/// What the text of a date consists of, in its order but without a meaning yet.
struct DateText {
    std::vector<DateNumber> numbers; ///< Of the day, the month and the year, in the order of the text.
    std::optional<int> month; ///< Where it was given by its name.
    std::vector<int> clock; ///< Hour, minute and second, as far as given.
    std::optional<bool> afternoon; ///< What AM or PM says.
};

/// Takes a text apart into numbers, names and times; nothing when it contains anything else.
[[nodiscard]] std::optional<DateText> scanDate(const RegionalSettings& settings, TextView text);

} // namespace rf
