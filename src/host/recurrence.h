#pragma once

#include "host/records.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace rf::host {

/// One time that an appointment takes place.
struct Occurrence {
    /// The start that the series gives it, by which a change or a deletion names it.
    Date original;
    Date start;
    Date end;
    /// Which of the series' changes made it what it is; nothing when it is as the series has it.
    std::optional<std::size_t> change;

    [[nodiscard]] bool isException() const { return change.has_value(); }

    friend bool operator==(const Occurrence&, const Occurrence&) = default;
};

/// Tells when an appointment takes place. Dates are local to the installation, in and out.
///
/// A series keeps the hours of its start and of its end in its own time zone: 22:00 to 06:00 stays so in the night in
/// which the clocks change, though that night is an hour shorter or longer, and an occurrence may stand an hour earlier
/// or later on the clocks of an installation elsewhere. A time that a change of the clocks leaves out stands as much
/// later, one that it brings twice is the first of the two. A series without a time zone has the installation's hours,
/// and an all-day series its dates, in any zone.
///
/// The first occurrence is the appointment's own start whether or not the rule would give it, and it counts as one of
/// the rule's COUNT. A rule that cannot be read, and a time zone that is unknown, are as none. An object of this class
/// serves one thread.
class RecurrenceEngine {
public:
    /// What one call answers at most, and the count at which a series ends at the latest: a rule that repeats by the
    /// second must not fill the memory.
    static constexpr std::size_t mostOccurrences = 100'000;

    virtual ~RecurrenceEngine() = default;

    /// The occurrences that have a moment in common with the closed window, in order of their start; an occurrence
    /// that ends as the window begins does. The work depends on the window, and on how far a COUNT has to be counted,
    /// not on how long ago the series began. An appointment without recurrence is its only occurrence.
    [[nodiscard]] virtual std::vector<Occurrence> expand(const ItemRecord& series, Date from, Date to) const = 0;

    /// The occurrence that the series has at that start, as its changes made it; nothing when there is none, or when
    /// it was deleted.
    [[nodiscard]] virtual std::optional<Occurrence> occurrence(const ItemRecord& series, Date original) const = 0;

    /// A time that no occurrence outlasts: the end of the last one, deleted ones included. Nothing: it has no end.
    [[nodiscard]] virtual std::optional<Date> lastEnd(const ItemRecord& series) const = 0;
};

/// The engine of this platform. It takes the time zone of the installation as it is now.
[[nodiscard]] std::unique_ptr<RecurrenceEngine> makeRecurrenceEngine();

} // namespace rf::host
