#pragma once

#include "linux/demo/follow_up.h"

#include <iosfwd>

namespace rf::demo {

/// A talk together with what became of it.
struct Delivered {
    Talk talk;
    Outcome outcome;
};

/// What a run has done with a programme, to be told to the person who started it.
struct Run {
    std::size_t talks = 0;
    /// Those that an earlier run had booked already.
    std::size_t known = 0;
    std::vector<Delivered> delivered;
    std::chrono::duration<double> time{};
    /// Automation calls of the program, and what one call takes at least, in milliseconds.
    std::uint64_t calls = 0;
    double latency = 0;
    /// What the rooms hold at the end, bookings that people made themselves included, and how many of these have one
    /// copy.
    std::size_t bookings = 0;
    std::size_t personalCopies = 0;
    std::size_t masterCopies = 0;
    /// Talks that are neither booked nor held back, and those that are booked once more.
    std::vector<Talk> lost;
    std::vector<Booking> doubled;

    [[nodiscard]] std::size_t accepted() const;
    [[nodiscard]] std::size_t held() const { return delivered.size() - accepted(); }
    /// Whether every talk is booked once, with two copies, or held back.
    [[nodiscard]] bool isComplete() const;
};

/// "Sat 3 Feb 17:30 - 18:15".
[[nodiscard]] std::string slotOf(Date start, std::int32_t minutes);

void tellRun(std::ostream& out, const Run& run);
void tellFollowUp(std::ostream& out, const FollowUp& followUp);

} // namespace rf::demo
