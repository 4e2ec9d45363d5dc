#include "linux/demo/programme.h"

#include "host/calendar_file.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <unordered_set>

namespace rf::demo {

namespace {

constexpr std::int64_t secondsPerMinute = 60;
constexpr long long minutesPerDay = 1440;
constexpr int daysPerWeek = 7;
/// Sunday is 1.
constexpr int weekdayOfMonday = 2;

std::string contentsOf(const std::filesystem::path& file)
{
    std::ifstream stream{file, std::ios::binary};
    std::string bytes{std::istreambuf_iterator<char>{stream}, {}};
    if (!stream)
        throw std::runtime_error{file.string() + " cannot be read"};
    return bytes;
}

/// A folder's name: on one line, as the selection file lists it, and without what separates the names of a path.
Text roomName(TextView location)
{
    Text name{trim(replaceAll(location, lineBreak, u" "))};
    std::ranges::replace_if(
        name, [](char16_t unit) { return unit < u' '; }, u' ');
    std::ranges::replace(name, u'\\', u'/');
    return name.empty() ? Text{u"No location"} : name;
}

Text projectName(const Text& categories)
{
    Text name{trim(categories)};
    // The list of the projects has the colour behind that sign.
    std::ranges::replace(name, u';', u',');
    return name;
}

Talk talkOf(const host::ItemRecord& item)
{
    return {roomName(item.location), projectName(item.categories), item.subject, item.start,
        static_cast<std::int32_t>((item.end.seconds() - item.start.seconds()) / secondsPerMinute)};
}

std::vector<Text> distinct(std::span<const Talk> talks, Text Talk::*name)
{
    std::vector<Text> names;
    std::unordered_set<Text, HashIgnoringCase, EqualIgnoringCase> known;
    for (const Talk& talk : talks)
        if (!(talk.*name).empty() && known.insert(talk.*name).second)
            names.push_back(talk.*name);
    return names;
}

Date midnightOf(Date date)
{
    const DateFields fields = date.fields();
    return Date::fromFields({fields.year, fields.month, fields.day, 0, 0, 0});
}

} // namespace

Programme readProgramme(std::span<const std::filesystem::path> files)
{
    Programme programme;
    for (const std::filesystem::path& file : files) {
        const host::CalendarImport import = host::readCalendar(contentsOf(file));
        const auto tell = [&](std::size_t line, const std::string& sentence) {
            programme.problems.push_back(file.string() + ":" + std::to_string(line) + ": " + sentence);
        };
        for (const host::CalendarProblem& problem : import.problems)
            tell(problem.line, toUtf8(problem.sentence));
        for (const host::ImportedEvent& event : import.events) {
            programme.talks.push_back(talkOf(event.item));
            if (event.item.recurrence)
                tell(event.line, "Of this series only the first occurrence is booked.");
        }
    }
    return programme;
}

std::vector<Text> roomsOf(std::span<const Talk> talks) { return distinct(talks, &Talk::room); }

std::vector<Text> projectsOf(std::span<const Talk> talks) { return distinct(talks, &Talk::project); }

Date mondayOf(Date date)
{
    const int daysSinceMonday = (date.weekday() - weekdayOfMonday + daysPerWeek) % daysPerWeek;
    return midnightOf(date).plusMinutes(-minutesPerDay * daysSinceMonday);
}

Weeks weeksOf(std::span<const Talk> talks)
{
    if (talks.empty())
        return {};
    const Talk& first = *std::ranges::min_element(talks, {}, [](const Talk& talk) { return talk.start.seconds(); });
    const Talk& last = *std::ranges::max_element(talks, {}, [](const Talk& talk) { return talk.end().seconds(); });
    return {mondayOf(first.start), mondayOf(last.end()).plusMinutes(minutesPerDay * daysPerWeek)};
}

} // namespace rf::demo
