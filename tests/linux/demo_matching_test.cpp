#include "linux/demo/matching.h"

#include <gtest/gtest.h>

namespace rf::demo {
namespace {

Date at(int hour) { return Date::fromFields({2024, 2, 3, hour, 0, 0}); }

Talk talk(const Text& subject, int hour, const Text& room = u"Room 1")
{
    return {room, u"Alpha", subject, at(hour), 60};
}

Booking booking(const Text& subject, int hour, const Text& room = u"Room 1")
{
    Booking result;
    result.room = room;
    result.subject = subject;
    result.start = at(hour);
    result.minutes = 60;
    return result;
}

TEST(Matching, FindsABookingOfTheSameRoomSubjectAndTime)
{
    const std::vector talks{talk(u"One", 9), talk(u"Two", 10)};
    const std::vector bookings{booking(u"Two", 10), booking(u"One", 9)};
    const Matches matches = match(talks, bookings);
    EXPECT_EQ(matches.bookings, (std::vector<std::optional<std::size_t>>{1, 0}));
    EXPECT_TRUE(matches.others.empty());
}

TEST(Matching, FindsAMovedBooking)
{
    const std::vector talks{talk(u"One", 9)};
    const std::vector bookings{booking(u"One", 15)};
    EXPECT_EQ(match(talks, bookings).bookings, (std::vector<std::optional<std::size_t>>{0}));
}

TEST(Matching, LeavesTheBookingAtItsTimeToItsOwnTalk)
{
    const std::vector talks{talk(u"Break", 9), talk(u"Break", 12)};
    const std::vector bookings{booking(u"Break", 12), booking(u"Break", 15)};
    EXPECT_EQ(match(talks, bookings).bookings, (std::vector<std::optional<std::size_t>>{1, 0}));
}

TEST(Matching, GivesABookingToOneTalkOnly)
{
    const std::vector talks{talk(u"One", 9), talk(u"One", 9)};
    const std::vector bookings{booking(u"One", 9)};
    EXPECT_EQ(match(talks, bookings).bookings, (std::vector<std::optional<std::size_t>>{0, std::nullopt}));
}

TEST(Matching, LeavesWhatIsBookedTwice)
{
    const std::vector talks{talk(u"One", 9)};
    const std::vector bookings{booking(u"One", 9), booking(u"One", 9)};
    const Matches matches = match(talks, bookings);
    EXPECT_EQ(matches.bookings, (std::vector<std::optional<std::size_t>>{0}));
    EXPECT_EQ(matches.others, (std::vector<std::size_t>{1}));
}

TEST(Matching, TellsRoomsApartAndTheirCaseNot)
{
    const std::vector talks{talk(u"One", 9, u"Janson")};
    EXPECT_FALSE(match(talks, std::vector{booking(u"One", 9, u"Room 1")}).bookings.front());
    EXPECT_TRUE(match(talks, std::vector{booking(u"One", 9, u"JANSON")}).bookings.front());
}

} // namespace
} // namespace rf::demo
