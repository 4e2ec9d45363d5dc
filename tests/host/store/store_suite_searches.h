#pragma once

#include "host/store/store_fixture.h"

#include <algorithm>
#include <random>

namespace rf::host::test {

TEST_P(StoreSuite, FindsASubjectInAnyCaseOldestFirst)
{
    const ItemRecord first = saved(u"\u00C4pfel und M\u00C4USE", at(9), at(9));
    const ItemRecord other = saved(u"\u00C4pfel und M\u00C4USE 2");
    const ItemRecord second = saved(u"\u00E4PFEL UND m\u00E4use", at(2), at(2));

    EXPECT_EQ(store().withSubject(room(), u"\u00C4PFEL UND M\u00C4use"), (std::vector{first.id, second.id}));
    EXPECT_EQ(store().withSubject(room(), other.subject), std::vector{other.id});
    EXPECT_TRUE(store().withSubject(room(), u"\u00C4pfel").empty());
    EXPECT_TRUE(store().withSubject(room(), u"").empty());
}

TEST_P(StoreSuite, FindsAnItemByTheSubjectItHasNow)
{
    ItemRecord item = saved(u"Before");
    item.subject = u"After";
    store().save(item);

    EXPECT_TRUE(store().withSubject(room(), u"before").empty());
    EXPECT_EQ(store().withSubject(room(), u"AFTER"), std::vector{item.id});
    store().remove(item.id);
    EXPECT_TRUE(store().withSubject(room(), u"After").empty());
}

TEST_P(StoreSuite, TellsLongTextsApartThatBeginAlike)
{
    const Text alike(5000, u'x');
    ItemRecord first = appointment(room(), alike + u"a", at(1), at(1));
    first.userProperties = {{u"Link", 1, alike + u"a"}, {alike + u"a", 1, Text{u"v"}}};
    store().save(first);
    ItemRecord second = appointment(room(), alike + u"b", at(1), at(1));
    second.userProperties = {{u"Link", 1, alike + u"b"}, {alike + u"b", 1, Text{u"v"}}};
    store().save(second);

    EXPECT_EQ(store().withSubject(room(), alike + u"A"), std::vector{first.id});
    EXPECT_EQ(store().withProperty(room(), u"LINK", alike + u"B"), std::vector{second.id});
    EXPECT_EQ(store().withProperty(room(), alike + u"B", u"V"), std::vector{second.id});
    EXPECT_TRUE(store().withSubject(room(), alike).empty());
}

TEST_P(StoreSuite, FindsAPropertyByNameAndTextInAnyCaseOldestFirst)
{
    ItemRecord first = appointment(room(), u"1", at(9), at(9));
    first.userProperties = {{u"LinkID", 1, Text{u"Abc"}}, {u"Other", 1, Text{u"xyz"}}};
    store().save(first);
    ItemRecord second = appointment(room(), u"2", at(1), at(1));
    second.userProperties = {{u"linkid", 1, Text{u"aBC"}}, {u"LINKID", 1, Text{u"ABC"}}};
    store().save(second);

    EXPECT_EQ(store().withProperty(room(), u"LINKid", u"ABC"), (std::vector{first.id, second.id}));
    EXPECT_TRUE(store().withProperty(room(), u"LinkID", u"xyz").empty());
    EXPECT_TRUE(store().withProperty(FolderId{99}, u"LinkID", u"Abc").empty());
    EXPECT_TRUE(store().remove(first.id));
    EXPECT_EQ(store().withProperty(room(), u"LinkID", u"Abc"), std::vector{second.id});
}

TEST_P(StoreSuite, FindsNoPropertyByAValueThatIsNoText)
{
    ItemRecord item = appointment(room(), u"Number", at(1), at(1));
    item.userProperties = {{u"Amount", 3, 7.0}, {u"Empty", 1, {}}, {u"Blank", 1, Text{}}};
    store().save(item);

    EXPECT_TRUE(store().withProperty(room(), u"Amount", u"7").empty());
    EXPECT_TRUE(store().withProperty(room(), u"Empty", u"").empty());
    EXPECT_EQ(store().withProperty(room(), u"Blank", u""), std::vector{item.id});
}

TEST_P(StoreSuite, CountsATouchAsOverlap)
{
    const ItemRecord item = saved(u"Meeting", at(5, 600), at(5, 660));

    EXPECT_EQ(store().overlapping(room(), at(5, 660), at(5, 700)), std::vector{item.id});
    EXPECT_EQ(store().overlapping(room(), at(5, 500), at(5, 600)), std::vector{item.id});
    EXPECT_EQ(store().overlapping(room(), at(5, 630), at(5, 630)), std::vector{item.id});
    EXPECT_TRUE(store().overlapping(room(), at(5, 661), at(5, 700)).empty());
    EXPECT_TRUE(store().overlapping(room(), at(5, 500), at(5, 599)).empty());
    EXPECT_TRUE(store().overlapping(FolderId{99}, at(1), at(9)).empty());
}

TEST_P(StoreSuite, FollowsAnItemThatIsMovedInTime)
{
    ItemRecord item = saved(u"Meeting", at(5, 600), at(5, 660));
    item.start = at(7, 600);
    item.end = at(8, 600);
    store().save(item);

    EXPECT_TRUE(store().overlapping(room(), at(5), at(6)).empty());
    EXPECT_EQ(store().overlapping(room(), at(8), at(8, 1)), std::vector{item.id});
}

TEST_P(StoreSuite, OrdersOverlappingItemsByTheirStart)
{
    const ItemRecord late = saved(u"c", at(5, 600), at(5, 601));
    const ItemRecord early = saved(u"a", at(1), at(9));
    const ItemRecord first = saved(u"b", at(5, 300), at(5, 900));
    const ItemRecord second = saved(u"b", at(5, 300), at(5, 601));

    EXPECT_EQ(
        store().overlapping(room(), at(5, 600), at(5, 600)), (std::vector{early.id, first.id, second.id, late.id}));
}

TEST_P(StoreSuite, AnswersASeriesFromItsStartToItsEnd)
{
    ItemRecord ending = appointment(room(), u"Ending", at(5, 600), at(5, 660));
    ending.recurrence
        = RecurrenceRecord{.rule = u"FREQ=DAILY;COUNT=5", .additions = {}, .changes = {}, .lastEnd = at(9, 660)};
    store().save(ending);
    EXPECT_EQ(store().overlapping(room(), at(9, 660), at(12)), std::vector{ending.id});
    EXPECT_TRUE(store().overlapping(room(), at(9, 661), at(12)).empty());
    EXPECT_TRUE(store().overlapping(room(), at(1), at(5, 599)).empty());

    ItemRecord endless = appointment(room(), u"Endless", at(12), at(12));
    endless.recurrence = RecurrenceRecord{.rule = u"FREQ=DAILY", .additions = {}, .changes = {}, .lastEnd = {}};
    store().save(endless);
    EXPECT_EQ(store().overlapping(room(), noDate, noDate), std::vector{endless.id});
    EXPECT_TRUE(store().overlapping(room(), at(10), at(11)).empty());
}

TEST_P(StoreSuite, AnswersASeriesWhereOccurrencesWereMovedOrAdded)
{
    ItemRecord series = appointment(room(), u"Series", at(10, 600), at(10, 660));
    series.recurrence = RecurrenceRecord{.rule = u"FREQ=DAILY;COUNT=2",
        .additions = {at(15, 600)},
        .changes = {moved(at(11, 600), at(3), at(3, 60)), deleted(at(10, 600), at(1), at(28))},
        .lastEnd = at(11, 660)};
    store().save(series);

    EXPECT_EQ(store().overlapping(room(), at(3, 30), at(3, 40)), std::vector{series.id});
    EXPECT_EQ(store().overlapping(room(), at(15, 660), at(16)), std::vector{series.id});
    EXPECT_TRUE(store().overlapping(room(), at(16), at(17)).empty());
    EXPECT_TRUE(store().overlapping(room(), at(1), at(2)).empty());
}

TEST_P(StoreSuite, AnswersAnItemThatEndsBeforeItStarts)
{
    const ItemRecord item = saved(u"Backwards", at(5, 660), at(5, 600));

    EXPECT_EQ(store().overlapping(room(), at(5, 630), at(5, 640)), std::vector{item.id});
}

TEST_P(StoreSuite, ComparesDatesOutsideTheCalendarToo)
{
    const ItemRecord item = saved(u"Ever", Date{-1e9}, Date{1e9});

    EXPECT_EQ(store().overlapping(room(), at(1), at(1)), std::vector{item.id});
    EXPECT_EQ(store().overlapping(room(), Date{2e9}, Date{3e9}), std::vector{item.id});
    EXPECT_EQ(store().overlapping(room(), Date{-1.25}, Date{-1.5}), std::vector{item.id});
}

namespace {

/// Appointments of every length from none to years over two decades, some of them series.
std::vector<ItemRecord> randomItems(FolderId folder, std::mt19937& random, int count)
{
    constexpr long long lengths[] = {0, 1, 15, 30, 60, 240, 1440, 10'080, 43'200, 263'520, 2'000'000};
    std::uniform_int_distribution<long long> starts{0, 20LL * 365 * 1440};
    std::uniform_int_distribution<std::size_t> classes{0, std::size(lengths) - 1};
    std::uniform_int_distribution<int> dice{1, 20};
    std::vector<ItemRecord> items;
    for (int number = 0; number < count; ++number) {
        const Date start = at(1).plusMinutes(starts(random));
        std::uniform_int_distribution<long long> length{0, lengths[classes(random)]};
        items.push_back(appointment(folder, u"Item", start, start.plusMinutes(length(random))));
        const int thrown = dice(random);
        if (thrown <= 2) {
            RecurrenceRecord series;
            if (thrown == 1)
                series.lastEnd = start.plusMinutes(starts(random));
            items.back().recurrence = series;
        }
    }
    return items;
}

std::vector<ItemId> bruteForce(const std::vector<ItemRecord>& items, Date from, Date to)
{
    std::vector<const ItemRecord*> hits;
    for (const ItemRecord& item : items) {
        const bool endless = item.recurrence && !item.recurrence->lastEnd;
        const Date end = item.recurrence ? std::max(item.end, item.recurrence->lastEnd.value_or(noDate)) : item.end;
        if (item.start.seconds() <= to.seconds() && (endless || end.seconds() >= from.seconds()))
            hits.push_back(&item);
    }
    std::ranges::stable_sort(hits, {}, [](const ItemRecord* item) { return item->start.seconds(); });
    std::vector<ItemId> ids;
    for (const ItemRecord* item : hits)
        ids.push_back(item->id);
    return ids;
}

} // namespace

TEST_P(StoreSuite, FindsWhatALookAtEveryItemFinds)
{
    std::mt19937 random{20010201};
    std::vector<ItemRecord> items = randomItems(room(), random, 2000);
    store().saveTogether(items);
    std::uniform_int_distribution<long long> starts{-100'000, 22LL * 365 * 1440};
    std::uniform_int_distribution<long long> lengths{0, 3000};
    for (int question = 0; question < 400; ++question) {
        const Date from = at(1).plusMinutes(starts(random));
        const Date to = from.plusMinutes(question % 4 == 0 ? 0 : lengths(random));
        ASSERT_EQ(store().overlapping(room(), from, to), bruteForce(items, from, to)) << question;
    }
}

} // namespace rf::host::test
