#pragma once

#include "basic/date.h"
#include "basic/text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace rf::demo {

/// How an entry of a week is drawn: as one of many, as the one that is told of, or as the place where that one was.
enum class Tone { Plain, Told, Left };

struct WeekEntry {
    Text subject;
    Date start;
    std::int32_t minutes = 0;
    Tone tone = Tone::Plain;
};

/// One week of a room.
struct Week {
    Text caption;
    std::vector<WeekEntry> entries;
};

/// Draws weeks side by side, all from the same Monday on and with the same days and hours, as an SVG picture. Days
/// before the first and behind the last entry are left out.
[[nodiscard]] std::string weekPicture(const Text& title, Date monday, const std::vector<Week>& weeks);

} // namespace rf::demo
