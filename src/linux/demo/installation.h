#pragma once

#include "linux/demo/matching.h"
#include "outlook/folder.h"

#include <unordered_map>

namespace rf {
class Session;
}

namespace rf::demo {

/// The installation that the demonstration works in, as the administrator of the calendar product has set it up.
struct Installation {
    outlook::Folder root;
    std::unordered_map<Text, outlook::Folder, HashIgnoringCase, EqualIgnoringCase> rooms;
    outlook::Folder personal;
    outlook::Folder master;
    /// Whether this run set it up.
    bool isNew = false;

    [[nodiscard]] const outlook::Folder& room(TextView name) const { return rooms.find(name)->second; }
};

/// Sets the installation up through the object model and adds what a programme needs beyond an earlier one: a calendar
/// for each room, a master calendar beside the root folder, and in the settings the projects, some supplies and place
/// settings, a mandatory project, no double bookings and both copies. What is there already stays as people left it.
/// The session knows the settings afterwards.
[[nodiscard]] Installation prepareInstallation(Session& session, std::span<const Talk> talks);

/// The appointments of a room in a stretch of time.
[[nodiscard]] std::vector<Booking> bookingsOf(
    Session& session, const outlook::Folder& folder, const Text& room, const Weeks& weeks);

} // namespace rf::demo
