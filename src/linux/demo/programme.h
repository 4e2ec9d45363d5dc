#pragma once

#include "basic/date.h"
#include "basic/text.h"

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace rf::demo {

/// One entry of a conference calendar: what somebody wants to book.
struct Talk {
    Text room;
    Text project;
    Text subject;
    Date start;
    std::int32_t minutes = 0;

    [[nodiscard]] Date end() const { return start.plusMinutes(minutes); }
    friend bool operator==(const Talk&, const Talk&) = default;
};

struct Programme {
    std::vector<Talk> talks;
    /// What could not be taken as it stands in the files, a sentence for each.
    std::vector<std::string> problems;
};

/// Reads the talks of calendar files in their order. The location is the room, the categories are the project; a talk
/// without a location is in the room "No location". Of a series the first occurrence counts. A file that cannot be read
/// is a `std::runtime_error`.
[[nodiscard]] Programme readProgramme(std::span<const std::filesystem::path> files);

/// The rooms, or the projects, each once, in the order in which the talks name them first; case does not tell two
/// apart.
[[nodiscard]] std::vector<Text> roomsOf(std::span<const Talk> talks);
[[nodiscard]] std::vector<Text> projectsOf(std::span<const Talk> talks);

/// A stretch of whole weeks, Monday to Monday.
struct Weeks {
    Date from;
    Date to;
};
/// The weeks of all talks; of no talks an empty stretch.
[[nodiscard]] Weeks weeksOf(std::span<const Talk> talks);
/// The Monday on or before a day.
[[nodiscard]] Date mondayOf(Date date);

} // namespace rf::demo
