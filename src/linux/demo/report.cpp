#include "linux/demo/report.h"

#include "booking/overlap_filter.h"

#include <algorithm>
#include <array>
#include <iomanip>
#include <ostream>

namespace rf::demo {

namespace {

constexpr int labelWidth = 16;
constexpr double millisecondsPerSecond = 1000;
constexpr double percent = 100;

std::ostream& label(std::ostream& out, const char* name)
{
    return out << std::left << std::setw(labelWidth) << name << std::right;
}

/// A reason or a name on one line of the terminal.
std::string onOneLine(const Text& text) { return toUtf8(replaceAll(text, lineBreak, u" ")); }

void tellHeld(std::ostream& out, const Delivered& held)
{
    out << "  " << toUtf8(held.talk.room) << ", " << slotOf(held.talk.start, held.talk.minutes) << "  "
        << onOneLine(held.talk.subject) << "\n    " << onOneLine(held.outcome.reason) << '\n';
    for (const Text& collision : held.outcome.collisions)
        out << "    collides with " << onOneLine(collision) << '\n';
}

void tellInterruptions(std::ostream& out, const Run& run)
{
    for (const Delivered& one : run.delivered)
        for (const std::string& remains : one.outcome.interruptions)
            label(out, "Interrupted") << toUtf8(one.talk.room) << ", " << slotOf(one.talk.start, one.talk.minutes)
                                      << "  " << onOneLine(one.talk.subject)
                                      << "\n    the program ended meanwhile and was started again; " << remains << '\n';
}

void tellRate(std::ostream& out, const Run& run)
{
    if (run.delivered.empty())
        return;
    const auto count = static_cast<double>(run.delivered.size());
    const double calls = static_cast<double>(run.calls) / count;
    const double share = static_cast<double>(run.calls) * run.latency / (run.time.count() * millisecondsPerSecond);
    label(out << std::fixed << std::setprecision(1), "Time")
        << run.time.count() << " s, " << count / run.time.count() << " bookings/s\n";
    label(out, "Automation") << calls << " calls of the program for a booking; at " << std::setprecision(3)
                             << run.latency << " ms a call, pure latency is " << std::setprecision(0) << percent * share
                             << " % of the time\n";
}

} // namespace

std::size_t Run::accepted() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(delivered, [](const Delivered& one) { return one.outcome.isAccepted; }));
}

bool Run::isComplete() const
{
    return lost.empty() && doubled.empty() && known + delivered.size() == talks && bookings >= known + accepted()
        && personalCopies == bookings && masterCopies == bookings;
}

std::string slotOf(Date start, std::int32_t minutes)
{
    constexpr std::array days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    constexpr std::array months{"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const DateFields fields = start.fields();
    return std::string{days.at(static_cast<std::size_t>(start.weekday() - 1))} + " " + std::to_string(fields.day) + " "
        + months.at(static_cast<std::size_t>(fields.month - 1)) + " " + toUtf8(fncTimeHHNN(start)) + " - "
        + toUtf8(fncTimeHHNN(start.plusMinutes(minutes)));
}

void tellRun(std::ostream& out, const Run& run)
{
    if (run.known > 0)
        label(out, "Known") << run.known << " talks are booked already, from an earlier run\n";
    label(out, "Accepted") << run.accepted() << " bookings, each with a personal and a master copy\n";
    label(out, "Held back") << run.held() << '\n';
    for (const Delivered& one : run.delivered)
        if (!one.outcome.isAccepted)
            tellHeld(out, one);
    tellInterruptions(out, run);
    tellRate(out, run);
    label(out, "In the store") << run.bookings << " bookings, " << run.personalCopies << " personal copies, "
                               << run.masterCopies
                               << " master copies: " << (run.isComplete() ? "complete" : "NOT as it should be") << '\n';
    for (const Talk& talk : run.lost)
        label(out, "LOST") << toUtf8(talk.room) << ", " << slotOf(talk.start, talk.minutes) << "  "
                           << onOneLine(talk.subject) << '\n';
    for (const Booking& booking : run.doubled)
        label(out, "DOUBLED") << toUtf8(booking.room) << ", " << slotOf(booking.start, booking.minutes) << "  "
                              << onOneLine(booking.subject) << '\n';
}

void tellFollowUp(std::ostream& out, const FollowUp& followUp)
{
    out << "\nThen, in " << toUtf8(followUp.room) << ", \"" << onOneLine(followUp.subject) << "\" is\n";
    for (const Step& step : followUp.steps)
        out << "  " << step.what << "\n    " << step.result << '\n';
}

} // namespace rf::demo
