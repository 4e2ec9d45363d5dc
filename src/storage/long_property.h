#pragma once

#include "outlook/item.h"

namespace rf {

class Session;

/// Writes a text that may exceed what one property holds: NAME0, NAME1, … with 1000 units each, and NAMECount with the
/// highest index. Pieces of a longer text that the item had before stay in it behind the count. The caller saves the
/// item. A failure is reported and ends the program; what was written before it is not taken back.
void subFixLongProperty(Session& session, const outlook::Item& item, TextView text, TextView name);

/// The text that `subFixLongProperty` has written, unit by unit; empty for an item that has none. A piece that is
/// missing counts as empty, a count that is no number as 0. No error leaves it.
[[nodiscard]] Text fncGetLongProperty(Session& session, const outlook::Item& item, TextView name);

} // namespace rf
