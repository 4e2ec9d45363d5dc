#pragma once

#include "host/ical_components.h"
#include "host/ical_file_zones.h"
#include "host/ical_wall_time.h"

#include <optional>
#include <string_view>

namespace rf::host::ical {

/// A time of a calendar text and the clocks that show it; none for a date and for a local time.
struct FileTime {
    Seconds wall = 0;
    bool isDate = false;
    bool isUtc = false;
    FileZone zone;
};

/// A single value of a property that may name a zone. Nothing when it is no time.
[[nodiscard]] std::optional<FileTime> readFileTime(const Property& property, std::string_view value, FileZones& zones);

/// The local time of the installation at that moment. A date is its midnight, wherever it is.
[[nodiscard]] Seconds localTime(const FileTime& time, const ZoneTable& system);

/// "P1W", "-PT15M", "P1DT2H": whole days and an exact time, since a day is not always 24 hours.
struct Duration {
    std::int64_t days = 0;
    Seconds seconds = 0;
};
[[nodiscard]] std::optional<Duration> readDuration(std::string_view text);

/// The time that lies a duration behind another.
[[nodiscard]] FileTime later(FileTime time, const Duration& duration);

} // namespace rf::host::ical
