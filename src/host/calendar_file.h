#pragma once

#include "host/records.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace rf::host {

/// Something in a calendar text that was not taken, or not as it stands there.
struct CalendarProblem {
    /// Counted from 1, as editors do; 0 where the text as a whole is meant.
    std::size_t line = 0;
    /// A whole sentence for the person who imports or exports.
    Text sentence;

    friend bool operator==(const CalendarProblem&, const CalendarProblem&) = default;
};

/// One appointment or series of a calendar text. The item is new: it has no id, no folder and no times of creation; the
/// end of a series is filled in.
struct ImportedEvent {
    ItemRecord item;
    /// The line on which it begins.
    std::size_t line = 0;
    /// Who invites; empty where the text names nobody.
    Text organizerName;
    Text organizerAddress;
};

struct CalendarImport {
    /// In the order of the text.
    std::vector<ImportedEvent> events;
    /// In the order of their lines; of very many only the first.
    std::vector<CalendarProblem> problems;
};

struct CalendarExport {
    /// UTF-8, lines end with CR LF.
    std::string bytes;
    /// Without line numbers.
    std::vector<CalendarProblem> problems;
};

/// Reads a calendar text (iCalendar). Nothing in it makes the call fail: what cannot be read is named with its line,
/// and the rest is taken. Single events of other time zones come with the installation's hour, series keep their zone.
/// A changed occurrence whose series is not in the text comes as a single event, a cancelled event not at all.
[[nodiscard]] CalendarImport readCalendar(std::string_view bytes);

/// Writes appointments as a calendar text that `readCalendar` reads back as they are: subject, body, location,
/// categories, start, end, all day, busy status, recurrence, time zone and identifier. An item without an identifier
/// gets one, the same at each export. `stamp` is the local time that the text says it was made at. User properties stay
/// behind: they tie an item to others of this installation.
[[nodiscard]] CalendarExport writeCalendar(std::span<const ItemRecord> items, Date stamp);

} // namespace rf::host
