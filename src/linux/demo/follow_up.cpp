#include "linux/demo/follow_up.h"

#include "app/session.h"
#include "diagnostics/pending_error.h"
#include "linux/demo/waiting.h"

#include <algorithm>
#include <map>

namespace rf::demo {

namespace {

constexpr int firstHour = 9;
constexpr int lastHour = 18;
constexpr int hoursPerDay = 24;
constexpr int daysPerWeek = 7;
constexpr long long minutesPerHour = 60;
constexpr long long minutesPerDay = hoursPerDay * minutesPerHour;
constexpr std::chrono::seconds stepLimit{10};

bool overlaps(const Booking& booking, Date start, Date end)
{
    return booking.start.seconds() < end.seconds() && start.seconds() < booking.end().seconds();
}

bool isFree(std::span<const Booking> bookings, const Booking& booking, Date start)
{
    const Date end = start.plusMinutes(booking.minutes);
    return std::ranges::none_of(bookings,
        [&](const Booking& other) { return other.entryId != booking.entryId && overlaps(other, start, end); });
}

/// The full hours at which a booking of that length may begin, from a moment on.
std::vector<Date> hoursFrom(Date monday, std::int32_t minutes)
{
    std::vector<Date> hours;
    for (int day = 0; day < daysPerWeek; ++day)
        for (int hour = firstHour; hour * minutesPerHour + minutes <= lastHour * minutesPerHour; ++hour)
            hours.push_back(monday.plusMinutes(day * minutesPerDay + hour * minutesPerHour));
    return hours;
}

std::string momentOf(Date date)
{
    constexpr std::array<const char*, daysPerWeek> names{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    const DateFields fields = date.fields();
    const auto twoDigits = [](int value) { return (value < 10 ? "0" : "") + std::to_string(value); };
    return std::string{names.at(static_cast<std::size_t>(date.weekday() - 1))} + " " + twoDigits(fields.hour) + ":"
        + twoDigits(fields.minute);
}

/// The booking under test and what is known of it.
class Trial {
public:
    Trial(Session& session, const Installation& installation, Booking booking)
        : session_(session)
        , installation_(installation)
        , booking_(std::move(booking))
    {
    }

    Step moveOnto(const Booking& other) const
    {
        move(other.start);
        const bool isBack = waitUntil([&] { return start() == booking_.start.seconds(); }, stepLimit);
        return {"moved onto \"" + toUtf8(other.subject) + "\" (" + momentOf(other.start) + ")",
            isBack ? "put back to " + momentOf(booking_.start) + ", without a word" : "NOT put back", isBack};
    }

    Step moveTo(Date start) const
    {
        move(start);
        const bool follow = waitUntil(
            [&] {
                return copyStart(installation_.personal) == start.seconds()
                    && copyStart(installation_.master) == start.seconds();
            },
            stepLimit);
        return {"moved to a free slot (" + momentOf(start) + ")",
            follow ? "accepted; its two copies have followed" : "its copies have NOT followed", follow};
    }

    /// In its window, as a person does it. The person then gives up, and the booking is as it was.
    Step editWithoutProject() const
    {
        const auto booking = item();
        const Text project = booking.categories();
        booking.display();
        booking.setCategories({});
        booking.save();
        const bool isHeld = !booking.saved();
        const bool isKept = item().categories() == project;
        booking.setCategories(project);
        closeWindow(booking);
        return {"edited without a project", isHeld && isKept ? "held: the edit is not saved" : "NOT held",
            isHeld && isKept};
    }

private:
    [[nodiscard]] outlook::AppointmentItem item() const
    {
        return session_.ounNameSpace.getItemFromId(booking_.entryId).as<outlook::AppointmentItem>();
    }
    [[nodiscard]] std::int64_t start() const { return item().start().seconds(); }

    void move(Date start) const
    {
        const auto booking = item();
        booking.setStart(start);
        booking.save();
    }

    /// 0 when there is no copy.
    [[nodiscard]] std::int64_t copyStart(const outlook::Folder& folder) const
    {
        const auto copy = folder.items()
                              .find(u"[OCID] = '" + replaceAll(booking_.link, u"'", u"''") + u"'")
                              .as<outlook::AppointmentItem>();
        return copy ? copy.start().seconds() : 0;
    }

    static void closeWindow(const outlook::Item& booking)
    {
        PendingError errors;
        errors.attempt([&] { booking.close(outlook::CloseMode::Discard); });
    }

    Session& session_;
    const Installation& installation_;
    Booking booking_;
};

std::vector<Booking> inRoom(std::span<const Booking> bookings, TextView room)
{
    std::vector<Booking> found;
    std::ranges::copy_if(bookings, std::back_inserter(found),
        [&](const Booking& booking) { return booking.isBooked && equalIgnoringCase(booking.room, room); });
    std::ranges::sort(found, {}, [](const Booking& booking) { return booking.start.seconds(); });
    return found;
}

/// The room with the most bookings; empty when none has two.
Text busiestRoom(std::span<const Booking> bookings)
{
    std::map<Text, int> counts;
    for (const Booking& booking : bookings)
        ++counts[booking.room];
    const auto most = std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; });
    return most == counts.end() || most->second < 2 ? Text{} : most->first;
}

} // namespace

std::optional<Date> freeSlot(std::span<const Booking> bookings, const Booking& booking)
{
    std::vector<Date> hours = hoursFrom(mondayOf(booking.start), booking.minutes);
    // First those behind the booking.
    std::stable_partition(
        hours.begin(), hours.end(), [&](Date hour) { return hour.seconds() > booking.start.seconds(); });
    const auto found = std::ranges::find_if(hours, [&](Date hour) {
        return !overlaps(booking, hour, hour.plusMinutes(booking.minutes)) && isFree(bookings, booking, hour);
    });
    return found == hours.end() ? std::nullopt : std::optional{*found};
}

std::optional<FollowUp> followUp(
    Session& session, const Installation& installation, std::span<const Talk> talks, std::span<const Booking> bookings)
{
    const Text room = busiestRoom(bookings);
    if (room.empty())
        return std::nullopt;
    FollowUp result;
    result.room = room;
    result.before = inRoom(bookings, room);
    // The talk that its room booked first, wherever an earlier run has moved it to: each run takes the same one.
    const auto talk = std::ranges::find_if(talks, [&](const Talk& one) { return equalIgnoringCase(one.room, room); });
    const auto known = std::ranges::find(result.before, talk->subject, &Booking::subject);
    const Booking booking = known == result.before.end() ? result.before.front() : *known;
    const Booking& other
        = result.before.front().entryId == booking.entryId ? result.before.back() : result.before.front();
    const bool isMoved = known != result.before.end() && booking.start.seconds() != talk->start.seconds();
    const auto target = isMoved && isFree(result.before, booking, talk->start) ? std::optional{talk->start}
                                                                               : freeSlot(result.before, booking);
    result.subject = booking.subject;
    result.entryId = booking.entryId;
    result.monday = mondayOf(booking.start);
    const Trial trial{session, installation, booking};
    result.steps.push_back(trial.moveOnto(other));
    if (target)
        result.steps.push_back(trial.moveTo(*target));
    result.steps.push_back(trial.editWithoutProject());
    result.after = inRoom(bookingsOf(session, installation.room(room), room,
                              {result.monday, result.monday.plusMinutes(minutesPerDay * daysPerWeek)}),
        room);
    return result;
}

} // namespace rf::demo
