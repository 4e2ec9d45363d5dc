#pragma once

#include "outlook/item.h"

#include <cstdint>

namespace rf {

class Session;

/// What a stored value is, by the codes that callers and older data know. With any other code nothing is created,
/// written or read.
enum class ValueKind : std::int16_t {
    /// 16 bits, as far as they hold the number.
    Integer = 2,
    Date = 7,
    String = 8,
    Boolean = 11
};

/// Writes a user property of an item, which it makes when the item has none of that name; `addToFolderFields` then
/// makes it searchable in the item's folder. A value that is no number is written as the number 0, one that is no date
/// leaves a date as it was. Without an item nothing happens. The caller saves the item after its batch of writes.
/// A failure is reported and ends the program.
void subSetOutlookValue(Session& session, const outlook::Item& item, TextView name, const automation::Variant& value,
    ValueKind kind, bool addToFolderFields);

/// Reads a user property as a value of that kind: a 16-bit integer (a stored number that does not fit or has decimals
/// comes as it is), a date, a text or a truth value.
/// A property that is missing or cannot be read gives the caller's default: a number where the default is one, else 0;
/// the zero date whatever the default; the default's text; a truth value where the default is a number or one itself,
/// else Empty, which reads as false. An empty text gives way to the default too. What is stored but does not convert
/// gives 0, the zero date, "" or Empty. No error leaves it.
[[nodiscard]] automation::Variant fncGetOutlookValue(Session& session, const outlook::Item& item, TextView name,
    ValueKind kind, const automation::Variant& defaultValue);

} // namespace rf
