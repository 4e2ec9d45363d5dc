#include "host/ical_file_time.h"

#include <charconv>

namespace rf::host::ical {
namespace {

/// Adds one element such as "15M" to the duration.
bool addElement(Duration& duration, std::int64_t number, char unit, bool isTime)
{
    switch (unit) {
    case 'W':
        duration.days += number * 7;
        return !isTime;
    case 'D':
        duration.days += number;
        return !isTime;
    case 'H':
        duration.seconds += number * 3600;
        return isTime;
    case 'M':
        duration.seconds += number * 60;
        return isTime;
    case 'S':
        duration.seconds += number;
        return isTime;
    default:
        return false;
    }
}

} // namespace

std::optional<FileTime> readFileTime(const Property& property, std::string_view value, FileZones& zones)
{
    const std::optional<WrittenTime> written = readTime(value);
    if (!written) {
        return std::nullopt;
    }
    FileTime time{.wall = written->time, .isDate = written->isDate, .isUtc = written->isUtc, .zone = {}};
    const std::string_view zone = property.content.parameter("TZID");
    if (!time.isDate && !time.isUtc && !zone.empty()) {
        time.zone = zones.zone(zone, property.line);
    }
    return time;
}

Seconds localTime(const FileTime& time, const ZoneTable& system)
{
    if (time.isUtc) {
        return clamped(system.utcToLocal(time.wall));
    }
    return clamped(time.zone.clocks == nullptr ? time.wall : system.utcToLocal(time.zone.clocks->toUtc(time.wall)));
}

std::optional<Duration> readDuration(std::string_view text)
{
    // A person's appointments are shorter than this; the sum of a few of these is still a number.
    constexpr std::int64_t most = 100'000'000;
    const bool isNegative = text.starts_with('-');
    text.remove_prefix(isNegative || text.starts_with('+') ? 1 : 0);
    if (!text.starts_with('P') || text.size() < 3 || text.size() > 100) {
        return std::nullopt;
    }
    text.remove_prefix(1);
    Duration duration;
    for (bool isTime = false; !text.empty();) {
        if (!isTime && text.starts_with('T')) {
            isTime = true;
            text.remove_prefix(1);
        }
        std::int64_t number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        const auto length = static_cast<std::size_t>(end - text.data());
        if (error != std::errc{} || number < 0 || number > most || length == text.size()
            || !addElement(duration, number, text[length], isTime)) {
            return std::nullopt;
        }
        text.remove_prefix(length + 1);
    }
    return isNegative ? Duration{.days = -duration.days, .seconds = -duration.seconds} : duration;
}

FileTime later(FileTime time, const Duration& duration)
{
    time.wall = clamped(time.wall + duration.days * secondsPerDay);
    const Zone* const clocks = time.zone.clocks;
    time.wall = clamped(clocks == nullptr || duration.seconds == 0
            ? time.wall + duration.seconds
            : clocks->toWall(clocks->toUtc(time.wall) + duration.seconds));
    return time;
}

} // namespace rf::host::ical
