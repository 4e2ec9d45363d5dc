#pragma once

#include "basic/decimal_number.h"
#include "basic/pattern_regional.h"

namespace rf {

/// The number that a text stands for under the settings, in its decimal digits; nothing when it is no number.
[[nodiscard]] std::optional<DecimalNumber> readNumber(const RegionalSettings& settings, TextView text);

/// Blanks as people type them, and those that keep a number and its symbol on one line.
[[nodiscard]] constexpr bool isBlank(char16_t unit)
{
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r') || unit == u'\u00A0' || unit == u'\u202F';
}

[[nodiscard]] constexpr bool isDigit(char16_t unit) { return unit >= u'0' && unit <= u'9'; }

} // namespace rf
