#pragma once

#include "basic/currency.h"
#include "basic/text.h"

#include <optional>
#include <string>

namespace rf {

/// A number in decimal digits, as it is read and written: `digits` times ten to the power of `exponent`. Rounding
/// here is exact, since no digit passes through binary floating point. Zero has no digits.
struct DecimalNumber {
    bool negative = false;
    std::string digits; ///< Without leading zeros.
    long long exponent = 0;

    friend bool operator==(const DecimalNumber&, const DecimalNumber&) = default;
};

inline constexpr int digitsOfDouble = 15;
inline constexpr int digitsOfSingle = 7;

/// The number in 15 significant digits, as many as every double keeps. Error 6 when it is not finite.
[[nodiscard]] DecimalNumber fifteenDigits(double number);
/// The number in 7 significant digits, as many as every single keeps. Error 6 when it is not finite.
[[nodiscard]] DecimalNumber sevenDigits(float number);
/// The fewest digits that stand for this number and no other. Error 6 when it is not finite.
[[nodiscard]] DecimalNumber shortestDigits(double number);
[[nodiscard]] DecimalNumber digitsOf(Currency amount);

/// Rounded half away from zero to a count of decimals.
[[nodiscard]] DecimalNumber rounded(DecimalNumber number, int decimals);

/// The nearest double; nothing when the number is too large for one.
[[nodiscard]] std::optional<double> toDouble(const DecimalNumber& number);
/// Rounded half to even at the fourth decimal; nothing when the number is too large.
[[nodiscard]] std::optional<Currency> toCurrency(const DecimalNumber& number);

/// The number in digits with exactly this count of decimals, at least one digit before the separator, and no sign
/// in front of a zero.
[[nodiscard]] Text writeFixed(const DecimalNumber& number, int decimals, TextView decimalSeparator);
/// The same with as many decimals as the number has.
[[nodiscard]] Text writePlain(const DecimalNumber& number, TextView decimalSeparator);
/// In one of the two forms, whichever is usual for a number of so many significant digits: a power of ten where plain
/// digits would only count zeros.
[[nodiscard]] Text writeGeneral(const DecimalNumber& number, int significantDigits, TextView decimalSeparator);
/// One digit before the separator and a power of ten behind: 1.5E+20.
[[nodiscard]] Text writeScientific(const DecimalNumber& number, TextView decimalSeparator);

} // namespace rf
