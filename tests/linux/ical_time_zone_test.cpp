#include "linux/ical_support.h"

#include "host/ical_zone.h"

#include <gtest/gtest.h>

namespace rf::host::test {
namespace {

std::string ends(const ItemRecord& item, std::string_view from, std::string_view to)
{
    std::string result;
    for (const Occurrence& occurrence : makeRecurrenceEngine()->expand(item, date(from), date(to))) {
        result += (result.empty() ? "" : " ") + written(occurrence.end);
    }
    return result;
}

TEST(SeriesInAZone, KeepsItsHourThereWhenOnlyOneSideHasChangedItsClocks)
{
    const InZone newYork{"America/New_York"};
    const ItemRecord item = series("20240304T030000", "20240304T040000", u"FREQ=WEEKLY;BYDAY=MO", u"Europe/Brussels");
    EXPECT_EQ(startsOf(item, "20240301", "20240408"),
        (Starts{"20240304T030000", "20240311T040000", "20240318T040000", "20240325T040000", "20240401T030000"}));
    EXPECT_EQ(
        startsOf(item, "20241020", "20241105"), (Starts{"20241021T030000", "20241028T040000", "20241104T030000"}));
}

TEST(SeriesInAZone, KeepsItsHourAtHome)
{
    const InZone brussels{"Europe/Brussels"};
    const ItemRecord item = series("20240325T090000", "20240325T100000", u"FREQ=WEEKLY", u"Europe/Brussels");
    EXPECT_EQ(
        startsOf(item, "20240301", "20240409"), (Starts{"20240325T090000", "20240401T090000", "20240408T090000"}));
}

TEST(SeriesInAZone, KeepsTheDayThatItHasThere)
{
    // Monday morning in Auckland is Sunday evening in Brussels.
    const InZone brussels{"Europe/Brussels"};
    const ItemRecord item = series("20240602T230000", "20240603T000000", u"FREQ=WEEKLY;BYDAY=MO", u"Pacific/Auckland");
    EXPECT_EQ(
        startsOf(item, "20240601", "20240618"), (Starts{"20240602T230000", "20240609T230000", "20240616T230000"}));
}

TEST(SeriesInAZone, EndsAtItsHourInTheNightOfTheChange)
{
    const InZone newYork{"America/New_York"};
    const ItemRecord item = series("20240329T170000", "20240330T010000", u"FREQ=DAILY;COUNT=3", u"Europe/Brussels");
    // 22:00 to 06:00 in Brussels; on 31 March there, 06:00 comes an hour sooner.
    EXPECT_EQ(ends(item, "20240301", "20240408"), "20240330T010000 20240331T000000 20240401T000000");
    EXPECT_EQ(
        startsOf(item, "20240301", "20240408"), (Starts{"20240329T170000", "20240330T170000", "20240331T160000"}));
}

TEST(SeriesInAZone, StandsAnHourLaterWhereTheClocksLeaveItsHourOut)
{
    const InZone brussels{"Europe/Brussels"};
    const ItemRecord item = series("20240330T023000", "20240330T024500", u"FREQ=DAILY;COUNT=3", u"Europe/Brussels");
    EXPECT_EQ(
        startsOf(item, "20240301", "20240408"), (Starts{"20240330T023000", "20240331T033000", "20240401T023000"}));
}

TEST(SeriesInAZone, TakesTheFirstOfTwoHours)
{
    const InZone utc{"UTC"};
    const ItemRecord item = series("20241026T003000", "20241026T004500", u"FREQ=DAILY;COUNT=3", u"Europe/Brussels");
    EXPECT_EQ(
        startsOf(item, "20241001", "20241108"), (Starts{"20241026T003000", "20241027T003000", "20241028T013000"}));
}

TEST(SeriesInAZone, EndsByTheClocksOfTheZone)
{
    const InZone newYork{"America/New_York"};
    const ItemRecord item
        = series("20240304T030000", "20240304T040000", u"FREQ=DAILY;UNTIL=20240306T090000", u"Europe/Brussels");
    EXPECT_EQ(
        startsOf(item, "20240301", "20240408"), (Starts{"20240304T030000", "20240305T030000", "20240306T030000"}));
}

TEST(SeriesInAZone, ThatNobodyKnowsHasTheHoursOfTheInstallation)
{
    const InZone newYork{"America/New_York"};
    const ItemRecord item = series("20240304T030000", "20240304T040000", u"FREQ=WEEKLY;COUNT=2", u"Middle/Earth");
    EXPECT_EQ(startsOf(item, "20240301", "20240408"), (Starts{"20240304T030000", "20240311T030000"}));
}

TEST(SeriesWithoutZone, HasTheHoursOfTheInstallation)
{
    const InZone brussels{"Europe/Brussels"};
    const ItemRecord item = series("20240330T023000", "20240330T024500", u"FREQ=DAILY;COUNT=3");
    EXPECT_EQ(
        startsOf(item, "20240301", "20240408"), (Starts{"20240330T023000", "20240331T023000", "20240401T023000"}));
}

TEST(AllDaySeries, KeepsItsDatesInAnyZone)
{
    for (const char* zone : {"America/New_York", "Pacific/Auckland", "Europe/Brussels"}) {
        const InZone here{zone};
        ItemRecord item = series("20240330", "20240331", u"FREQ=DAILY;COUNT=3", u"Asia/Tokyo");
        item.allDay = true;
        EXPECT_EQ(
            startsOf(item, "20240301", "20240408"), (Starts{"20240330T000000", "20240331T000000", "20240401T000000"}));
        EXPECT_EQ(ends(item, "20240301", "20240408"), "20240331T000000 20240401T000000 20240402T000000");
    }
}

TEST(ZoneTable, KnowsTheZoneOfTheInstallation)
{
    const InZone brussels{"Europe/Brussels"};
    const ical::ZoneTable zones;
    EXPECT_EQ(zones.localName(), u"Europe/Brussels");
    EXPECT_EQ(ical::writeTime(zones.utcToLocal(date("20240701T120000").seconds())), "20240701T140000");
}

TEST(ZoneTable, KnowsOnlyNamesOfZones)
{
    ical::ZoneTable zones;
    EXPECT_NE(zones.named(u"America/Sao_Paulo"), nullptr);
    for (const TextView name : {u"", u"Middle/Earth", u"\xD800", u"Europe/Brüssel"}) {
        EXPECT_EQ(zones.named(name), nullptr);
    }
    EXPECT_EQ(ical::ianaNameOf(u"Romance Standard Time"), u"Europe/Paris");
    EXPECT_EQ(ical::ianaNameOf(u"Lunar Standard Time"), u"");
}

TEST(ZoneDefinition, SaysOffsetsAndRules)
{
    const std::string definition = ical::zoneDefinition(u"Europe/Brussels", date("20240101").seconds());
    EXPECT_TRUE(definition.starts_with("BEGIN:VTIMEZONE\r\nTZID:Europe/Brussels\r\n")) << definition;
    EXPECT_TRUE(definition.ends_with("END:VTIMEZONE\r\n"));
    EXPECT_NE(definition.find("TZOFFSETTO:+0200\r\n"), std::string::npos) << definition;
    EXPECT_NE(definition.find("RRULE:FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU\r\n"), std::string::npos) << definition;
    EXPECT_EQ(ical::zoneDefinition(u"Middle/Earth", 0), "");
}

} // namespace
} // namespace rf::host::test
