#include "basic/decimal_number.h"

#include "basic/runtime_error.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace rf {
namespace {

constexpr int currencyDecimals = 4;
constexpr std::size_t longestAmount = 19; ///< Digits of the largest 64-bit number.

Text widened(std::string_view digits) { return {digits.begin(), digits.end()}; }

void dropTrailingZeros(DecimalNumber& number)
{
    const std::size_t kept = number.digits.find_last_not_of('0') + 1;
    number.exponent += static_cast<long long>(number.digits.size() - kept);
    number.digits.resize(kept);
}

/// From the form d.ddde±xx.
DecimalNumber fromScientific(std::string_view text)
{
    DecimalNumber number;
    number.negative = text.front() == '-';
    const std::size_t exponentMark = text.find('e');
    for (const char unit : text.substr(0, exponentMark)) {
        if (unit >= '0' && unit <= '9' && !(unit == '0' && number.digits.empty())) {
            number.digits += unit;
        }
    }
    const std::size_t decimals = text.find('.') < exponentMark ? exponentMark - text.find('.') - 1 : 0;
    number.exponent = std::stoll(std::string{text.substr(exponentMark + 1)}) - static_cast<long long>(decimals);
    dropTrailingZeros(number);
    return number;
}

template <typename... Precision>
DecimalNumber digitsThrough(double number, Precision... precision)
{
    if (!std::isfinite(number)) {
        throw RuntimeError{error_number::overflow};
    }
    std::array<char, 32> text{};
    const auto written
        = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific, precision...);
    return fromScientific({text.data(), written.ptr});
}

/// How many of the digits stand before the given decimal place; below 0 when even zeros would have to.
long long digitsBefore(const DecimalNumber& number, long long decimals)
{
    return static_cast<long long>(number.digits.size()) + number.exponent + decimals;
}

void addOneInLastPlace(std::string& digits)
{
    const std::size_t place = digits.find_last_not_of('9');
    if (place == std::string::npos) {
        digits.assign(digits.size() + 1, '0');
        digits.front() = '1';
        return;
    }
    ++digits[place];
    std::fill(digits.begin() + static_cast<std::ptrdiff_t>(place) + 1, digits.end(), '0');
}

bool roundsUpToEven(std::string_view kept, std::string_view rest)
{
    if (rest.empty() || rest.front() != '5' || rest.find_first_not_of('0', 1) != std::string_view::npos) {
        return !rest.empty() && rest.front() >= '5';
    }
    return !kept.empty() && (kept.back() - '0') % 2 != 0;
}

} // namespace

DecimalNumber fifteenDigits(double number) { return digitsThrough(number, digitsOfDouble - 1); }

DecimalNumber sevenDigits(float number) { return digitsThrough(number, digitsOfSingle - 1); }

DecimalNumber shortestDigits(double number) { return digitsThrough(number); }

DecimalNumber digitsOf(Currency amount)
{
    const auto bits = static_cast<std::uint64_t>(amount.tenThousandths());
    DecimalNumber number{amount.tenThousandths() < 0, "", -currencyDecimals};
    if (bits != 0) {
        number.digits = std::to_string(number.negative ? 0 - bits : bits);
        dropTrailingZeros(number);
    }
    return number;
}

DecimalNumber rounded(DecimalNumber number, int decimals)
{
    const long long kept = digitsBefore(number, decimals);
    if (kept >= static_cast<long long>(number.digits.size())) {
        return number;
    }
    if (kept < 0) {
        return {};
    }
    const auto place = static_cast<std::size_t>(kept);
    const bool up = number.digits[place] >= '5';
    number.digits.resize(place);
    number.exponent = -decimals;
    if (up) {
        addOneInLastPlace(number.digits);
    }
    return number;
}

std::optional<double> toDouble(const DecimalNumber& number)
{
    if (number.digits.empty()) {
        return 0.0;
    }
    const std::string text = (number.negative ? "-" : "") + number.digits + "e" + std::to_string(number.exponent);
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec == std::errc{}) {
        return value;
    }
    const bool vanishes = digitsBefore(number, 0) < 0;
    return vanishes ? std::optional{0.0} : std::nullopt;
}

std::optional<Currency> toCurrency(const DecimalNumber& number)
{
    const long long before = digitsBefore(number, currencyDecimals);
    if (number.digits.empty() || before < 0) {
        return Currency{};
    }
    if (before > static_cast<long long>(longestAmount)) {
        return std::nullopt;
    }
    const auto place = static_cast<std::size_t>(before);
    std::string kept = number.digits.substr(0, place);
    const bool up = place < number.digits.size() && roundsUpToEven(kept, number.digits.substr(place));
    kept.resize(place, '0');
    const std::uint64_t magnitude = (kept.empty() ? 0 : std::stoull(kept)) + (up ? 1 : 0);
    constexpr std::uint64_t largest = std::numeric_limits<std::int64_t>::max();
    if (magnitude > largest + (number.negative ? 1 : 0)) {
        return std::nullopt;
    }
    return Currency::fromTenThousandths(static_cast<std::int64_t>(number.negative ? 0 - magnitude : magnitude));
}

Text writeFixed(const DecimalNumber& number, int decimals, TextView decimalSeparator)
{
    const DecimalNumber value = rounded(number, decimals);
    std::string digits = value.digits;
    if (!digits.empty()) {
        digits.append(static_cast<std::size_t>(value.exponent + decimals), '0');
    }
    const auto places = static_cast<std::size_t>(decimals);
    if (digits.size() <= places) {
        digits.insert(0, places + 1 - digits.size(), '0');
    }
    Text text = value.negative && !value.digits.empty() ? u"-" : u"";
    text += widened(digits).substr(0, digits.size() - places);
    if (decimals > 0) {
        text += decimalSeparator;
        text += widened(digits).substr(digits.size() - places);
    }
    return text;
}

Text writePlain(const DecimalNumber& number, TextView decimalSeparator)
{
    const long long decimals = number.digits.empty() ? 0 : std::max(-number.exponent, 0LL);
    return writeFixed(number, static_cast<int>(decimals), decimalSeparator);
}

Text writeGeneral(const DecimalNumber& number, int significantDigits, TextView decimalSeparator)
{
    // The power of ten that the first digit stands for.
    const long long power = static_cast<long long>(number.digits.size()) + number.exponent - 1;
    const bool scientific = !number.digits.empty() && (power < -4 || power >= significantDigits);
    return scientific ? writeScientific(number, decimalSeparator) : writePlain(number, decimalSeparator);
}

Text writeScientific(const DecimalNumber& number, TextView decimalSeparator)
{
    const long long power = digitsBefore(number, 0) - 1;
    const DecimalNumber mantissa{number.negative, number.digits, 1 - static_cast<long long>(number.digits.size())};
    const std::string powerDigits = std::to_string(std::abs(power));
    Text text = writePlain(mantissa, decimalSeparator) + (power < 0 ? u"E-" : u"E+");
    text += powerDigits.size() < 2 ? u"0" : u"";
    return text + widened(powerDigits);
}

} // namespace rf
