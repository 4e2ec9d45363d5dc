#include "storage/simple_list.h"

#include "platform/command_bar_list.h"
#include "storage/list_controls.h"
#include "storage/storage_fixture.h"

#include <cmath>

namespace rf {
namespace {

using automation::Null;
using automation::Variant;

class SimpleList : public test::StorageTest {
protected:
    using Texts = std::vector<Text>;

    [[nodiscard]] Texts loaded(TextView text)
    {
        list.FromString(text);
        return list.ToArray();
    }
    /// A combo box on a command bar of the host.
    [[nodiscard]] CommandBarList combo() const
    {
        const auto bar
            = session.ouaApp.activeExplorer().commandBars().add(u"Booking", outlook::BarPosition::Top, false, true);
        return CommandBarList{bar.controls().addComboBox(true)};
    }
    [[nodiscard]] static Texts linesOf(const ui::ListControl& control)
    {
        Texts lines;
        for (std::int32_t position = 0; position < control.listCount(); ++position)
            lines.push_back(control.list(position));
        return lines;
    }
    [[nodiscard]] static std::shared_ptr<test::Table> table(std::vector<std::vector<Variant>> rows)
    {
        return std::make_shared<test::Table>(Texts{u"Id", u"Setting"}, std::move(rows));
    }
    [[nodiscard]] static outlook::Recordset recordset(const std::shared_ptr<test::Table>& rows)
    {
        return outlook::Recordset{automation::Object{rows}};
    }

    cSimpleList list{session};
};

TEST_F(SimpleList, LoadsEachLineOnceAndNoEmptyOne)
{
    EXPECT_EQ(loaded(u"a\r\n\r\nb\r\na"), (Texts{u"a", u"b"}));
    EXPECT_EQ(list.ToString(), u"a\r\nb");
}

TEST_F(SimpleList, IsEmptiedByTheEmptyText)
{
    list.FromString(u"a\r\nb");
    list.FromString(u"");
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.ToString(), u"");
}

TEST_F(SimpleList, ReplacesItsContents)
{
    list.FromString(u"a\r\nb");
    EXPECT_EQ(loaded(u"c"), Texts{u"c"});
}

TEST_F(SimpleList, DoesNotTrimItsEntries)
{
    EXPECT_EQ(loaded(u"b\r\n a\r\na\r\na "), (Texts{u"b", u" a", u"a", u"a "}));
}

TEST_F(SimpleList, TrimsItsTextForm)
{
    list.FromString(u" a\r\n b\r\nc  ");
    EXPECT_EQ(list.ToString(), u"a\r\n b\r\nc");
}

TEST_F(SimpleList, DoesNotTellEntriesApartByCase) { EXPECT_EQ(loaded(u"Theatre\r\nTHEATRE"), Texts{u"Theatre"}); }

TEST_F(SimpleList, KeepsStrayLineEndsInTheirEntries)
{
    EXPECT_EQ(loaded(u"a\nb\rc\r\n\n\r\nd\r"), (Texts{u"a\nb\rc", u"\n", u"d\r"}));
}

TEST_F(SimpleList, KeepsHalvesOfSurrogatePairs)
{
    const Text text{u'a', u'\xD83D', u'\r', u'\n', u'\xDE00'};
    list.FromString(text);
    EXPECT_EQ(list.ToString(), text);
}

TEST_F(SimpleList, LoadsTensOfThousandsOfLines)
{
    constexpr int lines = 50'000;
    Text text;
    for (int line = 0; line < lines; ++line)
        text += decimal(line) + u"\r\n";
    list.FromString(text);
    EXPECT_EQ(list.count(), lines);
}

TEST_F(SimpleList, LoadsWhatStandsAmongAMillionEmptyLines)
{
    constexpr std::size_t lines = 1'000'000;
    Text text = u"a";
    text.reserve(2 * lines + 2);
    for (std::size_t line = 0; line < lines; ++line)
        text += lineBreak;
    EXPECT_EQ(loaded(text + u"b"), (Texts{u"a", u"b"}));
}

TEST_F(SimpleList, FillsAControlWithWhatIsNotBlank)
{
    list.FromString(u"Theatre\r\n  \r\nU shape");
    auto control = combo();
    control.addItem(u"old");
    control.setText(u"Boardroom");
    list.AddToComboOrList(control);
    EXPECT_EQ(linesOf(control), (Texts{u"Theatre", u"U shape"}));
    EXPECT_EQ(control.text(), u"Boardroom");
}

TEST_F(SimpleList, GivesTheControlItsDefaultBeforeItsOldText)
{
    list.FromString(u"Theatre");
    auto control = combo();
    control.setText(u"Boardroom");
    list.AddToComboOrList(control, u"Theatre");
    EXPECT_EQ(control.text(), u"Theatre");
}

TEST_F(SimpleList, LeavesAControlWithoutTextWithoutOne)
{
    list.FromString(u"Theatre");
    auto control = combo();
    list.AddToComboOrList(control);
    EXPECT_EQ(control.text(), u"");
}

TEST_F(SimpleList, MindsNoControlThatRefusesTheText)
{
    list.FromString(u"Theatre\r\nU shape");
    test::ListBox control;
    list.AddToComboOrList(control, u"Boardroom");
    EXPECT_EQ(control.lines, (Texts{u"Theatre", u"U shape"}));
    EXPECT_EQ(control.chosen, u"");
    list.AddToComboOrList(control, u"U shape");
    EXPECT_EQ(control.chosen, u"U shape");
}

TEST_F(SimpleList, TakesTheLinesOfAControl)
{
    auto control = combo();
    for (const TextView line : {u"Theatre", u"U shape", u"theatre", u""})
        control.addItem(line);
    list.FromString(u"U shape");
    list.FromComboOrList(control);
    EXPECT_EQ(list.ToArray(), (Texts{u"U shape", u"Theatre"}));
}

TEST_F(SimpleList, TakesTheElementsOfAnArray)
{
    list.FromString(u"b");
    list.FromArray(Texts{u"a", u"b", u"", u"c", u"a"});
    EXPECT_EQ(list.ToArray(), (Texts{u"b", u"a", u"c"}));
}

TEST_F(SimpleList, TakesTheSecondColumnOfARecordset)
{
    list.FromRS(recordset(table({{1, u"Theatre"}, {2, u"U shape"}, {3, u"Theatre"}, {4, Null{}}, {5, 7.5}})));
    EXPECT_EQ(list.ToArray(), (Texts{u"Theatre", u"U shape", u"7.5"}));
}

TEST_F(SimpleList, TakesNothingFromNoRecordset)
{
    list.FromRS({});
    list.FromRS(recordset(table({})));
    EXPECT_EQ(list.count(), 0);
}

TEST_F(SimpleList, FailsOnARecordsetWithoutASecondColumn)
{
    const auto narrow = std::make_shared<test::Table>(Texts{u"Id"}, std::vector<std::vector<Variant>>{{1}});
    EXPECT_THROW(list.FromRS(recordset(narrow)), RuntimeError);
    EXPECT_THROW(list.ToRS(recordset(narrow)), RuntimeError);
}

TEST_F(SimpleList, AddsARowForEachEntryThatARecordsetLacks)
{
    const auto rows = table({{1, u"U shape"}, {2, u"Theatre"}});
    list.FromString(u"Theatre\r\nBoardroom\r\nU shape");
    list.ToRS(recordset(rows));
    EXPECT_EQ(
        rows->rows, (std::vector<std::vector<Variant>>{{1, u"U shape"}, {2, u"Theatre"}, {Variant{}, u"Boardroom"}}));
    EXPECT_EQ(rows->criteria.front(), u"Setting = 'Theatre'");
}

TEST_F(SimpleList, FillsARecordsetWithoutRows)
{
    const auto rows = table({});
    list.FromString(u"Speaker's corner\r\nTheatre");
    list.ToRS(recordset(rows));
    list.ToRS(recordset(rows));
    EXPECT_EQ(
        rows->rows, (std::vector<std::vector<Variant>>{{Variant{}, u"Speaker's corner"}, {Variant{}, u"Theatre"}}));
}

TEST_F(SimpleList, DrawsAnEntryWithOneNumber)
{
    list.FromString(u"a\r\nb\r\nc\r\nd");
    int drawn = 0;
    double number = 0;
    session.randomNumbers = [&] { return ++drawn, number; };
    EXPECT_EQ(list.RandomItem(), u"a");
    number = 0.25;
    EXPECT_EQ(list.RandomItem(), u"b");
    number = std::nextafter(1.0, 0.0);
    EXPECT_EQ(list.RandomItem(), u"d");
    EXPECT_EQ(drawn, 3);
}

TEST_F(SimpleList, DrawsNothingWhenItIsEmpty) { EXPECT_EQ(list.RandomItem(), u""); }

} // namespace
} // namespace rf
