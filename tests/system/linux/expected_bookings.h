#pragma once

#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace rf::test {

/// One event of a calendar text, read here without the host's reader.
struct PlainEvent {
    std::string block;
    std::map<std::string, std::string> values;

    [[nodiscard]] std::string value(const std::string& name) const
    {
        const auto found = values.find(name);
        return found == values.end() ? std::string{} : found->second;
    }
};

[[nodiscard]] inline std::string textOfFile(const std::string& path)
{
    std::ifstream file{path, std::ios::binary};
    return {std::istreambuf_iterator<char>{file}, {}};
}

/// The events of a calendar text that has a time zone of one kind only and no series, as the conferences' have.
[[nodiscard]] inline std::vector<PlainEvent> plainEvents(const std::string& text)
{
    std::vector<PlainEvent> events;
    std::istringstream lines{text};
    std::string line;
    std::string* last = nullptr;
    bool inside = false;
    while (std::getline(lines, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line == "BEGIN:VEVENT") {
            events.emplace_back();
            inside = true;
        }
        if (!inside)
            continue;
        events.back().block += line + "\r\n";
        const auto colon = line.find(':');
        if (line.starts_with(" ") && last != nullptr) {
            *last += line.substr(1);
        } else if (colon != std::string::npos) {
            last = &events.back().values[line.substr(0, line.find_first_of(":;"))];
            *last = line.substr(colon + 1);
        }
        inside = line != "END:VEVENT";
    }
    return events;
}

/// What the rules make of the events when they come in this order into empty rooms: each one is accepted unless its
/// stretch of time has a moment in common with one that was accepted in its room before, or it has no project.
struct Expected {
    std::size_t accepted = 0;
    std::size_t held = 0;
};

[[nodiscard]] inline Expected expectedOf(const std::vector<PlainEvent>& events)
{
    Expected expected;
    std::map<std::string, std::vector<std::pair<std::string, std::string>>> rooms;
    for (const PlainEvent& event : events) {
        auto& taken = rooms[event.value("LOCATION")];
        // Times of one form stand in the order of the clock.
        const std::string start = event.value("DTSTART");
        const std::string end = event.value("DTEND");
        const bool collides
            = std::ranges::any_of(taken, [&](const auto& other) { return start < other.second && other.first < end; });
        if (collides || event.value("CATEGORIES").empty()) {
            ++expected.held;
            continue;
        }
        ++expected.accepted;
        taken.emplace_back(start, end);
    }
    return expected;
}

} // namespace rf::test
