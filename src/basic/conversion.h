#pragma once

#include "basic/regional.h"
#include "basic/text.h"

#include <cstdint>
#include <source_location>

namespace rf {

/// The nearest whole number, halves to the even one: 0.5 gives 0, 1.5 and 2.5 give 2.
[[nodiscard]] double roundHalfToEven(double number);

/// Whole-number division rounded the same way, for counts: 1500 by 1000 gives 2, 2500 gives 2.
/// `divisor` is above 0.
[[nodiscard]] std::int64_t divideHalfToEven(std::int64_t number, std::int64_t divisor);

/// Whole numbers of 16 and 32 bits, rounded half to even. Error 6 outside their range.
[[nodiscard]] std::int16_t toInteger(double number, std::source_location where = std::source_location::current());
[[nodiscard]] std::int32_t toLong(double number, std::source_location where = std::source_location::current());

/// The date that lies so many days behind the zero date. Error 6 outside the years 100 to 9999.
[[nodiscard]] Date toDate(double days, std::source_location where = std::source_location::current());

/// The same from a text in the user's regional form. Error 13 when the text is no number.
[[nodiscard]] std::int16_t toInteger(
    const Regional& regional, TextView text, std::source_location where = std::source_location::current());
[[nodiscard]] std::int32_t toLong(
    const Regional& regional, TextView text, std::source_location where = std::source_location::current());
[[nodiscard]] double toDouble(
    const Regional& regional, TextView text, std::source_location where = std::source_location::current());
[[nodiscard]] Currency toCurrency(
    const Regional& regional, TextView text, std::source_location where = std::source_location::current());
/// A text that is a number counts as days since the zero date. Error 13 when it is neither date nor number.
[[nodiscard]] Date toDate(
    const Regional& regional, TextView text, std::source_location where = std::source_location::current());
/// "True" and "False" in any case, or a number (0 is false). Error 13 for anything else.
[[nodiscard]] bool toBoolean(
    const Regional& regional, TextView text, std::source_location where = std::source_location::current());

/// The texts that truth values have everywhere, whatever the user's language.
[[nodiscard]] TextView toText(bool value);

[[nodiscard]] inline bool isNumeric(const Regional& regional, TextView text)
{
    return regional.parseNumber(text).has_value();
}
[[nodiscard]] inline bool isDate(const Regional& regional, TextView text)
{
    return regional.parseDate(text).has_value();
}

} // namespace rf
