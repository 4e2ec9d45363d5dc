#include "storage/settings.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

class DictionarySort : public test::SessionTest {
protected:
    [[nodiscard]] outlook::Dictionary dictionary(const std::vector<std::pair<Text, automation::Variant>>& entries)
    {
        auto made = session.scripting.fncCreateDic();
        for (const auto& [key, item] : entries)
            made.add(key, item);
        return made;
    }
    [[nodiscard]] std::vector<Text> sortedKeys(
        const outlook::Dictionary& entries, SortColumn column = SortColumn::Key, bool dates = false) const
    {
        return settings.fncSortDictionary(entries, column, dates).keys();
    }

    Session session{services()};
    cSettings settings{session};
};

TEST_F(DictionarySort, GoesByTheKeysWithoutRegardToCase)
{
    const auto entries = dictionary({{u"tea", u"3"}, {u"Coffee", u"1"}, {u"Sandwich", u"2"}, {u"apple", u"4"}});
    EXPECT_EQ(sortedKeys(entries), (std::vector<Text>{u"apple", u"Coffee", u"Sandwich", u"tea"}));
    EXPECT_EQ(entries.item(u"Coffee").text(), u"1");
}

TEST_F(DictionarySort, GoesByTheItemsAndLeavesEqualOnesInTheirOrder)
{
    const auto entries = dictionary({{u"a", u"b"}, {u"b", u"A"}, {u"c", u"B"}, {u"d", std::int32_t{10}}, {u"e", u"a"}});
    EXPECT_EQ(sortedKeys(entries, SortColumn::Item), (std::vector<Text>{u"d", u"b", u"e", u"a", u"c"}));
    EXPECT_EQ(entries.item(u"d"), automation::Variant{std::int32_t{10}}) << "an item stays what it is";
}

TEST_F(DictionarySort, IsDoneInTheDictionaryItself)
{
    const auto entries = dictionary({{u"b", u""}, {u"a", u""}});
    EXPECT_EQ(settings.fncSortDictionary(entries, SortColumn::Key, false), entries);
    EXPECT_EQ(entries.keys(), (std::vector<Text>{u"a", u"b"}));
    EXPECT_EQ(sortedKeys(dictionary({})), std::vector<Text>{});
}

TEST_F(DictionarySort, CarriesRecordsAlong)
{
    settings.Supply.add(u"Tea", {Currency::fromInteger(2), u"Tea"});
    settings.Supply.add(u"Coffee", {Currency::fromInteger(1), u"Coffee"});
    EXPECT_EQ(sortedKeys(settings.Supply.dictionary()), (std::vector<Text>{u"Coffee", u"Tea"}));
    EXPECT_EQ(settings.Supply.find(u"Tea")->Price, Currency::fromInteger(2));
    EXPECT_EQ(sortedKeys(settings.Supply.dictionary(), SortColumn::Item), (std::vector<Text>{u"Coffee", u"Tea"}))
        << "a record has no text, so all are equal";
}

TEST_F(DictionarySort, LeavesTheWeekdayOutOfTheComparison)
{
    const auto entries = dictionary({{u"Mon 3/5/2007", u"b"}, {u"Tue 2/6/2007", u"a"}, {u"Fri 3/16/2007", u"c"}});
    EXPECT_EQ(sortedKeys(entries, SortColumn::Key, true),
        (std::vector<Text>{u"Tue 2/6/2007", u"Fri 3/16/2007", u"Mon 3/5/2007"}))
        << "dates are sorted as texts";
}

TEST_F(DictionarySort, WritesDatesAnewInTheUsersForm)
{
    const auto entries = dictionary({{u"xxx 2007-03-05", u"a"}, {u"Wed March 6, 2007", u"b"}, {u"no date", u"c"}});
    EXPECT_EQ(
        sortedKeys(entries, SortColumn::Key, true), (std::vector<Text>{u"Mon 3/5/2007", u"Tue 3/6/2007", u"no date"}));
    EXPECT_EQ(entries.item(u"Mon 3/5/2007").text(), u"a");
}

TEST_F(DictionarySort, WritesDatesAnewInADayFirstLocale)
{
    const PatternRegional german{germanSettings()};
    Session germanSession{{german, clock, classes, system, processes, toolkit}};
    const cSettings germanSettings{germanSession};
    const auto entries = dictionary({{u"Mon 05.03.2007", u"a"}, {u"Tue 1.2.2007", u"b"}});
    const auto keys = germanSettings.fncSortDictionary(entries, SortColumn::Key, true).keys();
    EXPECT_EQ(keys, (std::vector<Text>{u"Mo 05.03.2007", u"Do 01.02.2007"}));
}

TEST_F(DictionarySort, KeepsTwoSpellingsOfOneDateApart)
{
    const auto entries = dictionary(
        {{u"xxx 2007-03-05", u"a"}, {u"Mon 3/5/2007", u"b"}, {u"yyy 2007-03-06", u"c"}, {u"zzz 2007-3-6", u"d"}});
    EXPECT_EQ(sortedKeys(entries, SortColumn::Key, true).size(), 4U);
    EXPECT_EQ(entries.item(u"xxx 2007-03-05").text(), u"a");
    EXPECT_EQ(entries.item(u"Mon 3/5/2007").text(), u"b");
    EXPECT_EQ(entries.count(), 4);
}

TEST_F(DictionarySort, SortsKeysShorterThanAWeekday)
{
    EXPECT_EQ(sortedKeys(dictionary({{u"b", u""}, {u"", u""}, {u"Mon", u""}}), SortColumn::Key, true).size(), 3U);
}

} // namespace
} // namespace rf
