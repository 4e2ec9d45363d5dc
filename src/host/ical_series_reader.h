#pragma once

#include "host/ical_components.h"
#include "host/ical_file_time.h"
#include "host/ical_file_zones.h"
#include "host/ical_problems.h"
#include "host/records.h"

namespace rf::host::ical {

/// Makes a series of an item whose other fields are read, where the event repeats: its rule, further starts, deleted
/// occurrences and time zone. `start` is as the text has it.
void readSeries(ItemRecord& item, const Component& event, const FileTime& start, FileZones& zones, Problems& problems);

} // namespace rf::host::ical
