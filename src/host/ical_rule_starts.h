#pragma once

#include "host/ical_rule.h"

#include <optional>
#include <vector>

namespace rf::host::ical {

/// The starts that a rule gives a series within a closed interval, in order, no more than `most`. The first start of
/// the series is one of them in any case, and it counts as one of the rule's COUNT. The work grows with the length of
/// the interval; only a COUNT is counted from the first start on.
[[nodiscard]] std::vector<Seconds> startsBetween(
    const Rule& rule, Seconds first, Seconds from, Seconds to, std::size_t most);

/// A start that none of the series is behind: the last one, where it is found with bounded work. Nothing: the rule has
/// no end. A COUNT above `most` ends there.
[[nodiscard]] std::optional<Seconds> lastStart(const Rule& rule, Seconds first, std::size_t most);

} // namespace rf::host::ical
