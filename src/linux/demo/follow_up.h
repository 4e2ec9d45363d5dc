#pragma once

#include "linux/demo/delivery.h"

namespace rf::demo {

/// One thing that is tried with a booking, and what came of it.
struct Step {
    std::string what;
    std::string result;
    bool isAsExpected = false;
};

/// What happens to one booking after it was accepted.
struct FollowUp {
    Text room;
    Text subject;
    std::vector<Step> steps;
    /// The room's week before and after.
    Date monday;
    std::vector<Booking> before;
    std::vector<Booking> after;
    Text entryId;
};

/// The first free stretch of that length between nine and six o'clock, on full hours: from the booking on to the end of
/// its week, then from the week's beginning. Nothing when the week is full.
[[nodiscard]] std::optional<Date> freeSlot(std::span<const Booking> bookings, const Booking& booking);

/// Moves a booking onto another, then to a free slot, or back to where it was booked first when it has been moved
/// before, and edits it without a project. The room is the one with the most bookings of these talks. Nothing when no
/// room has two.
[[nodiscard]] std::optional<FollowUp> followUp(
    Session& session, const Installation& installation, std::span<const Talk> talks, std::span<const Booking> bookings);

} // namespace rf::demo
