#pragma once

#include "host/restriction.h"

#include <optional>
#include <variant>
#include <vector>

namespace rf::host {

/// A closed span of time, exact to the second.
struct TimeWindow {
    Date from;
    Date to;

    friend bool operator==(const TimeWindow&, const TimeWindow&) = default;
};

/// The first and the last second that a date can have, where a window is open on that side. Nobody expands an endless
/// series up to there.
inline constexpr Date firstDate{-657434.0};
[[nodiscard]] Date lastDate();

/// Ordered by time, with a gap between each two. None at all when no item can match.
using TimeWindows = std::vector<TimeWindow>;

struct SubjectEquality {
    Text subject;
};

struct PropertyEquality {
    Text name;
    /// Never empty: an empty text is also met by the items that lack the property, which no index has.
    Text text;
};

/// Where to look for the items that can match: among those that share a moment with one of the windows, touching its
/// first or last second included, or among those with that subject or that text, in any case. What is found there still
/// has to be tested, and found in several windows it is still one item. A plan speaks of the items that are tested: an
/// occurrence of a series can have a subject or a property of its own, so occurrences are looked for by time alone.
using Plan = std::variant<TimeWindows, SubjectEquality, PropertyEquality>;

/// The narrowest plan; nothing when every item of the folder has to be tested.
[[nodiscard]] std::optional<Plan> plan(const Restriction& restriction);

/// The same by time alone, for occurrences.
[[nodiscard]] std::optional<TimeWindows> planWindows(const Restriction& restriction);

} // namespace rf::host
