#include "basic/conversion.h"

#include "basic/runtime_error.h"

#include <cmath>
#include <limits>

namespace rf {
namespace {

template <typename Whole>
Whole toWhole(double number, const std::source_location& where)
{
    const double rounded = roundHalfToEven(number);
    // Written so that what is no number at all fails too.
    if (!(rounded >= std::numeric_limits<Whole>::min() && rounded <= std::numeric_limits<Whole>::max())) {
        throw RuntimeError{error_number::overflow, where};
    }
    return static_cast<Whole>(rounded);
}

// The instants that automation can carry, in days: 1 January 100 to the end of 9999.
constexpr double firstDay = -657434;
constexpr double dayBehindLast = 2958466;

} // namespace

// The sum turns a negative zero into a plain one, which no text shows with a sign.
double roundHalfToEven(double number) { return std::nearbyint(number) + 0.0; }

std::int64_t divideHalfToEven(std::int64_t number, std::int64_t divisor)
{
    const std::int64_t quotient = number / divisor;
    const std::int64_t rest = number % divisor;
    const std::int64_t magnitude = rest < 0 ? -rest : rest;
    const std::int64_t missing = divisor - magnitude;
    const bool away = magnitude > missing || (magnitude == missing && quotient % 2 != 0);
    if (!away) {
        return quotient;
    }
    return number < 0 ? quotient - 1 : quotient + 1;
}

std::int16_t toInteger(double number, std::source_location where) { return toWhole<std::int16_t>(number, where); }

std::int32_t toLong(double number, std::source_location where) { return toWhole<std::int32_t>(number, where); }

Date toDate(double days, std::source_location where)
{
    // Written so that what is no number at all fails too. The time of the first day counts away from it.
    if (!(days > firstDay - 1 && days < dayBehindLast)) {
        throw RuntimeError{error_number::overflow, where};
    }
    return Date{days};
}

std::int16_t toInteger(const Regional& regional, TextView text, std::source_location where)
{
    return toInteger(toDouble(regional, text, where), where);
}

std::int32_t toLong(const Regional& regional, TextView text, std::source_location where)
{
    return toLong(toDouble(regional, text, where), where);
}

double toDouble(const Regional& regional, TextView text, std::source_location where)
{
    const auto number = regional.parseNumber(text);
    if (!number) {
        throw RuntimeError{error_number::typeMismatch, where};
    }
    return *number;
}

Currency toCurrency(const Regional& regional, TextView text, std::source_location where)
{
    const auto amount = regional.parseCurrency(text);
    if (!amount) {
        throw RuntimeError{isNumeric(regional, text) ? error_number::overflow : error_number::typeMismatch, where};
    }
    return *amount;
}

Date toDate(const Regional& regional, TextView text, std::source_location where)
{
    if (const auto date = regional.parseDate(text)) {
        return *date;
    }
    return toDate(toDouble(regional, text, where), where);
}

bool toBoolean(const Regional& regional, TextView text, std::source_location where)
{
    const TextView word = trim(text);
    if (equalIgnoringCase(word, toText(true))) {
        return true;
    }
    if (equalIgnoringCase(word, toText(false))) {
        return false;
    }
    return toDouble(regional, text, where) != 0;
}

TextView toText(bool value) { return value ? u"True" : u"False"; }

} // namespace rf
