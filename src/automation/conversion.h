#pragma once

#include "automation/variant.h"
#include "basic/regional.h"

namespace rf::automation {

/// The classic conversions of a value of any kind; texts are read under the user's regional settings. Error 13
/// when the kind or the text does not convert, 6 outside the range, 94 for Null.
[[nodiscard]] Text toText(const Regional& regional, const Variant& value, Where where = Where::current());
[[nodiscard]] std::int16_t toInteger(const Regional& regional, const Variant& value, Where where = Where::current());
[[nodiscard]] std::int32_t toLong(const Regional& regional, const Variant& value, Where where = Where::current());
[[nodiscard]] double toDouble(const Regional& regional, const Variant& value, Where where = Where::current());
[[nodiscard]] Currency toCurrency(const Regional& regional, const Variant& value, Where where = Where::current());
[[nodiscard]] Date toDate(const Regional& regional, const Variant& value, Where where = Where::current());
[[nodiscard]] bool toBoolean(const Regional& regional, const Variant& value, Where where = Where::current());

/// Whether the value counts as a number: numbers, truth values, Empty, and texts that read as one. Dates do not.
[[nodiscard]] bool isNumeric(const Regional& regional, const Variant& value);
/// Whether the value counts as a date: dates, and texts that read as one.
[[nodiscard]] bool isDate(const Regional& regional, const Variant& value);

} // namespace rf::automation
