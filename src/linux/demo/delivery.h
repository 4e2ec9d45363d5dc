#pragma once

#include "automation/events.h"
#include "linux/demo/program_watch.h"
#include "outlook/appointment_item.h"
#include "outlook/inspector.h"

namespace rf::demo {

/// What became of a talk.
struct Outcome {
    /// Booked, with both copies; else it was held back.
    bool isAccepted = false;
    /// Why it was held back, in the program's words, and with which bookings it collides.
    Text reason;
    std::vector<Text> collisions;
    /// What was left of it when the program ended while it was at work on it; once for each time that happened.
    std::vector<std::string> interruptions;
};

/// What is left of a talk in its room when the program has ended while it was at work on it.
enum class Remains { Nothing, Item, BookingWithoutCopies, Whole };
[[nodiscard]] const char* sentenceOf(Remains remains);

/// The bookings that a conflict list names, each with its time of day: "Board meeting (09:00 - 10:30)".
[[nodiscard]] std::vector<Text> collisionsIn(TextView conflicts);

/// Brings talks into their rooms' calendars as another client does, an appointment for each, and sees what the program
/// makes of them.
class Delivery {
public:
    Delivery(Session& session, const HostClient& host, const Installation& installation, const ProgramWatch& watch);
    Delivery(const Delivery&) = delete;
    Delivery& operator=(const Delivery&) = delete;
    ~Delivery() = default;

    /// Delivers a talk and waits for the answer. When the program ends meanwhile it is started again, and what it has
    /// left undone is begun anew, so that the talk is in its room once. A `DemoError` when there is no answer.
    Outcome deliver(const Talk& talk);
    /// Makes the rules run once more over a booking that lacks a copy.
    void completeCopies(const Booking& booking);
    /// Whether both copies of a booking are there.
    [[nodiscard]] bool hasCopies(const Booking& booking) const;
    /// Removes what an earlier run has left in a room without making a booking of it.
    void remove(const Booking& booking) const;

private:
    void drop(const Talk& talk) const;
    [[nodiscard]] bool waitForAnswer() const;
    [[nodiscard]] std::optional<Booking> bookingOf(const Talk& talk) const;
    [[nodiscard]] Remains remainsOf(const std::optional<Booking>& booking) const;
    /// Goes on where the program was interrupted; whether there is an answer to wait for.
    bool resume(const Talk& talk);
    /// A person does not close a window before it is there as a whole, with what the program puts on it.
    void waitForToolbar() const;
    void describeRefusal(const Talk& talk, Outcome& outcome);

    Session& session_;
    const HostClient& host_;
    const Installation& installation_;
    const ProgramWatch& watch_;
    /// What is waited for: the master copy, which is written last, or the window of what is held back.
    Text subject_;
    bool isCopied_ = false;
    outlook::Inspector window_;
    outlook::Inspectors inspectors_;
    outlook::Items masterItems_;
    automation::Connection windowEvents_;
    automation::Connection masterEvents_;
};

} // namespace rf::demo
