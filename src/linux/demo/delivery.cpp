#include "linux/demo/delivery.h"

#include "app/session.h"
#include "booking/conflicts.h"
#include "booking/toolbar.h"
#include "booking/validation.h"
#include "diagnostics/pending_error.h"
#include "linux/demo/waiting.h"
#include "outlook/events.h"

#include <algorithm>
#include <utility>

namespace rf::demo {

namespace {

constexpr TextView masterSubjectMark = u"FR: ";
/// How often it is looked whether the program is still there, and how long a living one may take.
constexpr std::chrono::milliseconds lookInterval{250};
constexpr std::chrono::seconds answerLimit{60};
constexpr std::chrono::seconds toolbarLimit{5};
/// A program that asks nothing for so long is done.
constexpr std::chrono::milliseconds quietTime{50};

/// The fields behind the subject, which may hold the separator itself.
constexpr std::size_t fieldsBehindSubject = 5;

Text collisionIn(TextView record)
{
    std::vector<Text> fields = split(record, u";");
    if (fields.size() <= fieldsBehindSubject)
        return Text{record};
    const Text time = fields[fields.size() - fieldsBehindSubject];
    fields.resize(fields.size() - fieldsBehindSubject);
    return join(fields, u";") + u" (" + time + u")";
}

bool holdsLink(const outlook::Folder& folder, TextView link)
{
    // The search fails in a calendar that has never had a copy.
    PendingError errors;
    return static_cast<bool>(
        errors.attempt([&] { return folder.items().find(u"[OCID] = '" + replaceAll(link, u"'", u"''") + u"'"); }));
}

} // namespace

const char* sentenceOf(Remains remains)
{
    switch (remains) {
    case Remains::Nothing:
        return "missing: the item was taken, its booking not yet saved";
    case Remains::Item:
        return "unreplaced: the item lay there as it came";
    case Remains::BookingWithoutCopies:
        return "booked, but not both copies made";
    case Remains::Whole:
        break;
    }
    return "booked, with both copies";
}

std::vector<Text> collisionsIn(TextView conflicts)
{
    std::vector<Text> collisions;
    for (const TextView record : splitViews(conflicts, lineBreak))
        collisions.push_back(collisionIn(record));
    return collisions;
}

Delivery::Delivery(
    Session& session, const HostClient& host, const Installation& installation, const ProgramWatch& watch)
    : session_(session)
    , host_(host)
    , installation_(installation)
    , watch_(watch)
    , inspectors_(host.application().inspectors())
    , masterItems_(installation.master.items())
    , windowEvents_(outlook::connect(inspectors_,
          outlook::InspectorsEvents{.newInspector = [this](const outlook::Inspector& window) { window_ = window; }}))
    , masterEvents_(outlook::connect(masterItems_, outlook::ItemsEvents{.itemAdd = [this](const outlook::Item& item) {
        isCopied_ = isCopied_ || item.subject() == Text{masterSubjectMark} + subject_;
    }}))
{
}

void Delivery::drop(const Talk& talk) const
{
    const auto item = installation_.room(talk.room).items().add().as<outlook::AppointmentItem>();
    item.setSubject(talk.subject);
    item.setStart(talk.start);
    item.setDuration(talk.minutes);
    item.setCategories(talk.project);
    item.save();
}

bool Delivery::waitForAnswer() const
{
    const auto answered = [this] {
        host_.requireHost();
        return isCopied_ || static_cast<bool>(window_);
    };
    const auto end = std::chrono::steady_clock::now() + answerLimit;
    while (!waitUntil(answered, lookInterval, lookInterval)) {
        if (!watch_.watches())
            return answered();
        if (std::chrono::steady_clock::now() > end)
            throw DemoError{"RFBookingInfo does not answer"};
    }
    return true;
}

std::optional<Booking> Delivery::bookingOf(const Talk& talk) const
{
    const auto bookings
        = bookingsOf(session_, installation_.room(talk.room), talk.room, {talk.start, talk.start.plusMinutes(1)});
    const auto found = std::ranges::find_if(bookings, [&](const Booking& booking) {
        return booking.subject == talk.subject && booking.start.seconds() == talk.start.seconds()
            && booking.minutes == talk.minutes;
    });
    return found == bookings.end() ? std::nullopt : std::optional{*found};
}

bool Delivery::hasCopies(const Booking& booking) const
{
    return holdsLink(installation_.personal, booking.link) && holdsLink(installation_.master, booking.link);
}

Remains Delivery::remainsOf(const std::optional<Booking>& booking) const
{
    if (!booking)
        return Remains::Nothing;
    if (!booking->isBooked)
        return Remains::Item;
    return hasCopies(*booking) ? Remains::Whole : Remains::BookingWithoutCopies;
}

void Delivery::remove(const Booking& booking) const { session_.ounNameSpace.getItemFromId(booking.entryId).remove(); }

void Delivery::completeCopies(const Booking& booking)
{
    const auto end = std::chrono::steady_clock::now() + answerLimit;
    while (!hasCopies(booking)) {
        if (std::chrono::steady_clock::now() > end)
            throw DemoError{"RFBookingInfo does not complete the copies of " + toUtf8(booking.subject)};
        if (!watch_.watches())
            static_cast<void>(watch_.start());
        session_.ounNameSpace.getItemFromId(booking.entryId).save();
        static_cast<void>(waitUntil([&] { return hasCopies(booking); }, lookInterval));
    }
}

bool Delivery::resume(const Talk& talk)
{
    const auto booking = bookingOf(talk);
    switch (remainsOf(booking)) {
    case Remains::Item:
        remove(*booking);
        [[fallthrough]];
    case Remains::Nothing:
        drop(talk);
        return true;
    case Remains::BookingWithoutCopies:
        completeCopies(*booking);
        break;
    case Remains::Whole:
        break;
    }
    return false;
}

void Delivery::waitForToolbar() const
{
    const auto hasToolbar = [this] {
        PendingError errors;
        return errors.attempt([&] {
            const auto bar = findToolbar(window_);
            return bar && bar.controls().count() > 0;
        });
    };
    static_cast<void>(waitUntil(hasToolbar, toolbarLimit));
    // The list of the projects and the pages come behind it.
    auto calls = host_.trafficOfOthers().calls;
    const auto isQuiet = [&] { return std::exchange(calls, host_.trafficOfOthers().calls) == calls; };
    for (bool quiet = false; !quiet;) {
        static_cast<void>(waitUntil([] { return false; }, quietTime, quietTime));
        quiet = isQuiet();
    }
}

void Delivery::describeRefusal(const Talk& talk, Outcome& outcome)
{
    const auto item = window_.currentItem().as<outlook::AppointmentItem>();
    outcome.reason = fncValidateBooking(session_, item);
    outcome.collisions
        = collisionsIn(fncFindConflicts(session_, {}, talk.start, talk.end(), installation_.room(talk.room)));
    waitForToolbar();
    window_.close(outlook::CloseMode::Discard);
    window_ = {};
}

Outcome Delivery::deliver(const Talk& talk)
{
    Outcome outcome;
    subject_ = talk.subject;
    isCopied_ = false;
    window_ = {};
    drop(talk);
    while (!waitForAnswer()) {
        outcome.interruptions.emplace_back(sentenceOf(remainsOf(bookingOf(talk))));
        static_cast<void>(watch_.start());
        if (!resume(talk))
            isCopied_ = true;
    }
    outcome.isAccepted = isCopied_;
    if (!outcome.isAccepted)
        describeRefusal(talk, outcome);
    return outcome;
}

} // namespace rf::demo
