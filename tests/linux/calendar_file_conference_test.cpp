#include "host/calendar_file.h"
#include "linux/ical_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <iterator>
#include <set>

namespace rf::host::test {
namespace {

std::string contents(const std::string& name)
{
    std::ifstream file{RF_TEST_DATA "/" + name, std::ios::binary};
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>{file}, {}};
}

std::vector<ItemRecord> itemsOf(const CalendarImport& import)
{
    std::vector<ItemRecord> items;
    for (const ImportedEvent& event : import.events) {
        items.push_back(event.item);
    }
    return items;
}

class Conference : public ::testing::Test {
protected:
    static std::size_t roomsOf(const CalendarImport& import)
    {
        std::set<Text> rooms;
        for (const ImportedEvent& event : import.events) {
            rooms.insert(event.item.location);
        }
        return rooms.size();
    }

    const InZone brussels_{"Europe/Brussels"};
};

TEST_F(Conference, Of2019IsReadCompletely)
{
    const CalendarImport import = readCalendar(contents("conference-2019.ics"));
    EXPECT_TRUE(import.problems.empty());
    ASSERT_EQ(import.events.size(), 775U);
    EXPECT_EQ(roomsOf(import), 33U);
    const ItemRecord& third = import.events[2].item;
    EXPECT_EQ(third.subject, u"FLOSS, the Internet and the Future");
    EXPECT_EQ(third.start, date("20190202T110000"));
    EXPECT_EQ(third.end, date("20190202T115000"));
    EXPECT_EQ(third.location, u"Janson");
    EXPECT_EQ(third.categories, u"Keynotes");
    EXPECT_EQ(third.uid, u"talk-8804@2019.schedule");
}

TEST_F(Conference, Of2024IsReadCompletely)
{
    const CalendarImport import = readCalendar(contents("conference-2024.ics"));
    EXPECT_TRUE(import.problems.empty());
    EXPECT_EQ(import.events.size(), 674U);
    EXPECT_EQ(roomsOf(import), 26U);
}

TEST_F(Conference, ComesBackAsItWas)
{
    for (const char* const name : {"conference-2019.ics", "conference-2024.ics"}) {
        const std::vector<ItemRecord> items = itemsOf(readCalendar(contents(name)));
        const CalendarExport text = writeCalendar(items, date("20240101"));
        EXPECT_TRUE(text.problems.empty());
        const CalendarImport again = readCalendar(text.bytes);
        EXPECT_TRUE(again.problems.empty());
        ASSERT_EQ(again.events.size(), items.size());
        for (std::size_t index = 0; index < items.size(); ++index) {
            const ItemRecord& back = again.events[index].item;
            EXPECT_EQ(back.uid, items[index].uid);
            EXPECT_EQ(back.subject, items[index].subject);
            EXPECT_EQ(back.location, items[index].location);
            EXPECT_EQ(back.categories, items[index].categories);
            EXPECT_EQ(back.start, items[index].start);
            EXPECT_EQ(back.end, items[index].end);
        }
    }
}

TEST_F(Conference, StandsAtOtherHoursElsewhere)
{
    const InZone newYork{"America/New_York"};
    const CalendarImport import = readCalendar(contents("conference-2019.ics"));
    EXPECT_EQ(import.events.at(0).item.start, date("20190202T033000"));
}

TEST_F(Conference, IsReadInMuchLessThanASecond)
{
    const std::string text = contents("conference-2019.ics");
    // The processor's time, and the best of some, so that nothing counts but the reading.
    double best = 1;
    for (int round = 0; round < 3; ++round) {
        const std::clock_t begin = std::clock();
        const CalendarImport import = readCalendar(text);
        best = std::min(best, static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC);
    }
    RecordProperty("seconds", std::to_string(best));
    EXPECT_LT(best, 0.5);
}

} // namespace
} // namespace rf::host::test
