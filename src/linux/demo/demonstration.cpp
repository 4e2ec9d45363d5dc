#include "linux/demo/demonstration.h"

#include "app/session.h"
#include "booking/overlap_filter.h"
#include "linux/demo/progress.h"
#include "linux/demo/report.h"
#include "linux/demo/week_picture.h"

#include <algorithm>
#include <fstream>
#include <map>

namespace rf::demo {

namespace {

/// One run over one programme.
class Demonstration {
public:
    Demonstration(Session& session, const HostClient& host, Programme programme)
        : session_(session)
        , host_(host)
        , talks_(std::move(programme.talks))
        , weeks_(weeksOf(talks_))
        , installation_(prepareInstallation(session, talks_))
        , watch_(host, installation_)
        , delivery_(session, host, installation_, watch_)
    {
    }

    [[nodiscard]] const Installation& installation() const { return installation_; }
    [[nodiscard]] const std::vector<Talk>& talks() const { return talks_; }
    [[nodiscard]] std::vector<Booking> bookings() const
    {
        std::vector<Booking> all;
        for (const auto& [room, folder] : installation_.rooms)
            std::ranges::copy(bookingsOf(session_, folder, room, weeks_), std::back_inserter(all));
        return all;
    }

    [[nodiscard]] std::chrono::milliseconds start() const { return watch_.start(); }

    [[nodiscard]] Run run()
    {
        Run run;
        run.talks = talks_.size();
        const std::vector<Talk> open = takeUp(bookings());
        run.known = run.talks - open.size();
        run.latency = host_.latency();
        deliver(open, run);
        count(run);
        return run;
    }

    [[nodiscard]] std::optional<FollowUp> followUpOf(std::span<const Booking> bookings) const
    {
        return followUp(session_, installation_, talks_, bookings);
    }

private:
    /// Completes what earlier runs have begun. The talks that are not booked yet.
    std::vector<Talk> takeUp(std::vector<Booking> bookings)
    {
        const auto left = std::stable_partition(
            bookings.begin(), bookings.end(), [](const Booking& booking) { return booking.isBooked; });
        std::for_each(left, bookings.end(), [&](const Booking& booking) { delivery_.remove(booking); });
        bookings.erase(left, bookings.end());
        if (copiesIn(installation_.personal) != bookings.size() || copiesIn(installation_.master) != bookings.size())
            std::ranges::for_each(bookings, [&](const Booking& booking) { delivery_.completeCopies(booking); });
        const Matches matches = match(talks_, bookings);
        std::vector<Talk> open;
        for (std::size_t index = 0; index < talks_.size(); ++index)
            if (!matches.bookings[index])
                open.push_back(talks_[index]);
        return open;
    }

    void deliver(const std::vector<Talk>& talks, Run& run)
    {
        Progress progress{"Delivering", talks.size()};
        const auto calls = host_.trafficOfOthers().calls;
        const auto begin = std::chrono::steady_clock::now();
        for (const Talk& talk : talks) {
            run.delivered.push_back({talk, delivery_.deliver(talk)});
            progress.show(run.delivered.size());
        }
        run.time = std::chrono::steady_clock::now() - begin;
        run.calls = host_.trafficOfOthers().calls - calls;
    }

    void count(Run& run) const
    {
        std::vector<Booking> found = bookings();
        std::erase_if(found, [](const Booking& booking) { return !booking.isBooked; });
        const Matches matches = match(talks_, found);
        run.bookings = found.size();
        run.personalCopies = withOneCopy(found, installation_.personal);
        run.masterCopies = withOneCopy(found, installation_.master);
        for (const std::size_t position : matches.others)
            if (isTalks(found[position]))
                run.doubled.push_back(found[position]);
        for (std::size_t index = 0; index < talks_.size(); ++index)
            if (!matches.bookings[index] && !isHeld(run, talks_[index]))
                run.lost.push_back(talks_[index]);
    }

    /// Whether a booking is some talk's; others may be a person's own.
    [[nodiscard]] bool isTalks(const Booking& booking) const
    {
        return std::ranges::any_of(talks_, [&](const Talk& talk) {
            return talk.subject == booking.subject && equalIgnoringCase(talk.room, booking.room);
        });
    }

    /// How many of the bookings have one copy in a folder, neither none nor two.
    [[nodiscard]] std::size_t withOneCopy(std::span<const Booking> bookings, const outlook::Folder& folder) const
    {
        std::map<Text, int> copies;
        for (const Booking& copy : bookingsOf(session_, folder, {}, weeks_))
            ++copies[copy.link];
        return static_cast<std::size_t>(
            std::ranges::count_if(bookings, [&](const Booking& booking) { return copies[booking.link] == 1; }));
    }

    static bool isHeld(const Run& run, const Talk& talk)
    {
        return std::ranges::any_of(
            run.delivered, [&](const Delivered& one) { return !one.outcome.isAccepted && one.talk == talk; });
    }

    [[nodiscard]] std::size_t copiesIn(const outlook::Folder& folder) const
    {
        const Text filter = fncMakeOverlapFilter(session_.services.regional, weeks_.from, weeks_.to);
        return static_cast<std::size_t>(folder.items().restrict(filter).count());
    }

    Session& session_;
    const HostClient& host_;
    std::vector<Talk> talks_;
    Weeks weeks_;
    Installation installation_;
    ProgramWatch watch_;
    Delivery delivery_;
};

std::vector<WeekEntry> entriesOf(const FollowUp& followUp, const std::vector<Booking>& bookings)
{
    std::vector<WeekEntry> entries;
    entries.reserve(bookings.size());
    for (const Booking& booking : bookings)
        entries.push_back({booking.subject, booking.start, booking.minutes,
            booking.entryId == followUp.entryId ? Tone::Told : Tone::Plain});
    return entries;
}

std::filesystem::path writePicture(const std::filesystem::path& folder, const FollowUp& followUp)
{
    Week before{u"Before", entriesOf(followUp, followUp.before)};
    Week after{u"After", entriesOf(followUp, followUp.after)};
    const auto told = std::ranges::find(before.entries, Tone::Told, &WeekEntry::tone);
    if (told != before.entries.end())
        after.entries.push_back({told->subject, told->start, told->minutes, Tone::Left});
    std::filesystem::path file = folder / "week.svg";
    std::ofstream out{file, std::ios::binary};
    out << weekPicture(u"A week in " + followUp.room, followUp.monday, {before, after});
    out.close();
    if (!out)
        throw DemoError{file.string() + " cannot be written"};
    return file;
}

void tellBeginning(std::ostream& out, const Programme& programme)
{
    for (const std::string& problem : programme.problems)
        out << problem << '\n';
    out << "Calendar        " << programme.talks.size() << " talks in " << roomsOf(programme.talks).size() << " rooms, "
        << projectsOf(programme.talks).size() << " projects\n";
}

bool showFollowUp(const Demonstration& demonstration, const DemoOptions& options, std::ostream& out)
{
    const auto bookings = demonstration.bookings();
    if (options.hasScreen)
        out << "\nThe host may show a message now; it waits for your answer." << std::endl;
    const auto followUp = demonstration.followUpOf(bookings);
    if (!followUp)
        return true;
    tellFollowUp(out, *followUp);
    out << "  The week before and after: " << writePicture(options.pictures, *followUp).string() << '\n';
    return std::ranges::all_of(followUp->steps, &Step::isAsExpected);
}

} // namespace

bool demonstrate(Session& session, const HostClient& host, const DemoOptions& options, std::ostream& out)
{
    Programme programme = readProgramme(options.calendars);
    if (programme.talks.empty())
        throw DemoError{"the calendar has no talks"};
    tellBeginning(out, programme);
    Demonstration demonstration{session, host, std::move(programme)};
    out << "Installation    " << (demonstration.installation().isNew ? "set up" : "of an earlier run") << std::endl;
    const auto time = demonstration.start();
    out << "RFBookingInfo   watches " << demonstration.installation().rooms.size() << " calendars, " << time.count()
        << " ms after the root folder was opened" << std::endl;
    const Run run = demonstration.run();
    tellRun(out, run);
    const bool isAsExpected = !options.withFollowUp || showFollowUp(demonstration, options, out);
    return run.isComplete() && isAsExpected;
}

} // namespace rf::demo
