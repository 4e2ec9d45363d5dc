#include "basic/currency.h"

#include "basic/conversion.h"
#include "basic/decimal_number.h"
#include "basic/runtime_error.h"

#include <cmath>

namespace rf {
namespace {

std::int64_t sum(std::int64_t left, std::int64_t right)
{
    std::int64_t result = 0;
    if (__builtin_add_overflow(left, right, &result)) {
        throw RuntimeError{error_number::overflow};
    }
    return result;
}

std::int64_t difference(std::int64_t left, std::int64_t right)
{
    std::int64_t result = 0;
    if (__builtin_sub_overflow(left, right, &result)) {
        throw RuntimeError{error_number::overflow};
    }
    return result;
}

std::int64_t product(std::int64_t left, std::int64_t right)
{
    std::int64_t result = 0;
    if (__builtin_mul_overflow(left, right, &result)) {
        throw RuntimeError{error_number::overflow};
    }
    return result;
}

} // namespace

Currency Currency::fromInteger(std::int64_t whole) { return Currency{product(whole, scale)}; }

// Through the decimal digits of the number, since a product with 10000 may round to a half that the number has not.
Currency Currency::fromDouble(double number, std::source_location where)
{
    const auto amount = std::isfinite(number) ? toCurrency(shortestDigits(number)) : std::nullopt;
    if (!amount) {
        throw RuntimeError{error_number::overflow, where};
    }
    return *amount;
}

Currency operator+(Currency left, Currency right) { return Currency{sum(left.amount_, right.amount_)}; }

Currency operator-(Currency left, Currency right) { return Currency{difference(left.amount_, right.amount_)}; }

// Whole units and ten-thousandths of both factors are multiplied apart, so that no intermediate result is wider than
// the final one: all four parts have the sign of the product, and one that overflows means that the product does.
Currency operator*(Currency left, Currency right)
{
    const std::int64_t leftRest = left.amount_ % Currency::scale;
    const std::int64_t rightRest = right.amount_ % Currency::scale;
    const std::int64_t whole = sum(
        product(left.amount_ / Currency::scale, right.amount_), product(leftRest, right.amount_ / Currency::scale));
    // An odd last place takes part in the rounding, which looks for the even neighbour.
    const std::int64_t odd = whole % 2;
    const std::int64_t rest = divideHalfToEven(odd * Currency::scale + leftRest * rightRest, Currency::scale);
    return Currency{sum(whole - odd, rest)};
}

} // namespace rf
