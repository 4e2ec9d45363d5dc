#pragma once

#include "basic/date.h"
#include "basic/text.h"
#include "host/ical_wall_time.h"
#include "host/records.h"
#include "host/recurrence.h"
#include "support/environment_variable.h"

#include <string>
#include <string_view>
#include <vector>

namespace rf::host::test {

/// The installation stands in a time zone while this lives.
struct InZone : rf::test::EnvironmentVariable {
    explicit InZone(const char* name)
        : EnvironmentVariable{"TZ", name}
    {
    }
};

/// "20240203" or "20240203T103000".
inline Date date(std::string_view text) { return Date::fromSeconds(ical::readTime(text).value().time); }

inline std::string written(Date date) { return ical::writeTime(date.seconds()); }

inline ItemRecord appointment(std::string_view start, std::string_view end)
{
    ItemRecord item;
    item.messageClass = u"IPM.Appointment";
    item.start = date(start);
    item.end = date(end);
    return item;
}

inline ItemRecord series(std::string_view start, std::string_view end, TextView rule, TextView zone = {})
{
    ItemRecord item = appointment(start, end);
    item.recurrence.emplace().rule = rule;
    item.timeZone = zone;
    return item;
}

/// The starts of the occurrences, with a mark at those that were changed.
inline std::vector<std::string> starts(const std::vector<Occurrence>& occurrences)
{
    std::vector<std::string> result;
    for (const Occurrence& occurrence : occurrences) {
        result.push_back(written(occurrence.start) + (occurrence.isException() ? "*" : ""));
    }
    return result;
}

inline std::vector<std::string> startsOf(const ItemRecord& item, std::string_view from, std::string_view to)
{
    return starts(makeRecurrenceEngine()->expand(item, date(from), date(to)));
}

using Starts = std::vector<std::string>;

} // namespace rf::host::test
