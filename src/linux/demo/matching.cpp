#include "linux/demo/matching.h"

#include <map>

namespace rf::demo {

namespace {

enum class Closeness { ToTheMoment, AnyTime };

template <class Entry>
Text keyOf(const Entry& entry, Closeness closeness)
{
    Text key = upper(entry.room) + u"\n" + entry.subject + u"\n" + decimal(entry.minutes);
    return closeness == Closeness::AnyTime ? key : key + u"\n" + decimal(entry.start.seconds());
}

/// Gives the talks that have none a booking that is nobody's.
void matchSome(std::span<const Talk> talks, std::span<const Booking> bookings, Closeness closeness, Matches& matches)
{
    std::multimap<Text, std::size_t> free;
    for (const std::size_t position : matches.others)
        free.emplace(keyOf(bookings[position], closeness), position);
    for (std::size_t index = 0; index < talks.size(); ++index)
        if (const auto found = matches.bookings[index] ? free.end() : free.find(keyOf(talks[index], closeness));
            found != free.end()) {
            matches.bookings[index] = found->second;
            free.erase(found);
        }
    std::vector<bool> isFree(bookings.size());
    for (const auto& entry : free)
        isFree[entry.second] = true;
    std::erase_if(matches.others, [&](std::size_t position) { return !isFree[position]; });
}

} // namespace

Matches match(std::span<const Talk> talks, std::span<const Booking> bookings)
{
    Matches matches;
    matches.bookings.resize(talks.size());
    for (std::size_t position = 0; position < bookings.size(); ++position)
        matches.others.push_back(position);
    matchSome(talks, bookings, Closeness::ToTheMoment, matches);
    matchSome(talks, bookings, Closeness::AnyTime, matches);
    return matches;
}

} // namespace rf::demo
