#pragma once

#include "linux/demo/programme.h"

#include <optional>

namespace rf::demo {

/// An appointment as a room's calendar holds it.
struct Booking {
    Text room;
    Text entryId;
    Text subject;
    Date start;
    std::int32_t minutes = 0;
    /// Whether the program made it a booking; what merely lies in the calendar has no organizer.
    bool isBooked = false;
    /// The identifier that its copies carry.
    Text link;

    [[nodiscard]] Date end() const { return start.plusMinutes(minutes); }
};

struct Matches {
    /// For each talk the position of its booking.
    std::vector<std::optional<std::size_t>> bookings;
    /// The bookings that are no talk's: a talk that was booked twice leaves one here.
    std::vector<std::size_t> others;
};

/// Tells which booking is which talk's, each one's at most once: those of the same room, subject, start and length, and
/// then, since bookings are moved, those of the same room, subject and length.
[[nodiscard]] Matches match(std::span<const Talk> talks, std::span<const Booking> bookings);

} // namespace rf::demo
