#pragma once

#include "host/calendar_file.h"
#include "host/ical_components.h"
#include "host/ical_file_time.h"
#include "host/ical_file_zones.h"
#include "host/ical_problems.h"

#include <optional>

namespace rf::host::ical {

/// One event of a text as it stands there, before changed occurrences are brought to their series.
struct ReadEvent {
    ImportedEvent event;
    /// The start of the occurrence of a series that this event stands for; nothing for one of its own.
    std::optional<FileTime> occurrenceOf;
    bool isCancelled = false;
};

/// Nothing when the event cannot be taken; why is among the problems.
[[nodiscard]] std::optional<ReadEvent> readEvent(const Component& event, FileZones& zones, Problems& problems);

/// The start, local, by which a series knows the occurrence that a text names by that time. A date names the one of
/// that day.
[[nodiscard]] Date originalStart(const FileTime& time, const ItemRecord& series, ZoneTable& system);

} // namespace rf::host::ical
