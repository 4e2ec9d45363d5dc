#include "storage/long_property.h"
#include "storage/storage_fixture.h"

namespace rf {
namespace {

using outlook::UserPropertyType;

class LongProperty : public test::StorageTest {
protected:
    void write(const Text& text) { subFixLongProperty(session, item, text, u"strSupply"); }
    Text read() { return fncGetLongProperty(session, item, u"strSupply"); }
    [[nodiscard]] Text piece(int index) const { return stored(item, u"strSupply" + decimal(index)).text(); }
    [[nodiscard]] double count() const { return stored(item, u"strSupplyCount").number(); }
    /// The pieces and the count of a text of that length, which must come back as it was.
    void expectPieces(std::size_t length, std::int32_t highest)
    {
        item = newPost();
        Text text;
        while (text.size() < length)
            text += decimal(static_cast<long long>(text.size())) + u";";
        text.resize(length);
        write(text);
        EXPECT_EQ(count(), highest) << length;
        EXPECT_EQ(item.userProperties().count(), highest + 2) << length;
        EXPECT_EQ(read(), text) << length;
    }

    outlook::Item item = newPost();
};

TEST_F(LongProperty, CountsThePiecesRoundedHalfToEven)
{
    expectPieces(0, 0);
    expectPieces(499, 0);
    expectPieces(500, 0);
    expectPieces(501, 1);
    expectPieces(999, 1);
    expectPieces(1000, 1);
    expectPieces(1499, 1);
    expectPieces(1500, 2);
    expectPieces(2499, 2);
    expectPieces(2500, 2);
    expectPieces(2501, 3);
    expectPieces(3500, 4);
}

TEST_F(LongProperty, OfExactlyOneThousandUnitsHasAnEmptySecondPiece)
{
    write(Text(1000, u'x'));
    EXPECT_EQ(piece(0), Text(1000, u'x'));
    EXPECT_TRUE(stored(item, u"strSupply1").is<Text>());
    EXPECT_EQ(piece(1), u"");
    EXPECT_EQ(count(), 1);
}

TEST_F(LongProperty, OfTwoAndAHalfThousandUnitsEndsInItsThirdPiece)
{
    write(Text(2500, u'x'));
    EXPECT_EQ(piece(2), Text(500, u'x'));
    EXPECT_EQ(count(), 2);
}

TEST_F(LongProperty, HasTextPiecesAndANumberAsCount)
{
    write(u"Coffee\t2.5\r\n");
    EXPECT_EQ(item.userProperties().find(u"strSupply0").type(), UserPropertyType::Text);
    EXPECT_EQ(item.userProperties().find(u"strSupplyCount").type(), UserPropertyType::Number);
}

TEST_F(LongProperty, LeavesTheHigherPiecesOfALongerTextAndReadsWithoutThem)
{
    write(Text(3000, u'x'));
    write(u"short");
    EXPECT_EQ(piece(2), Text(1000, u'x'));
    EXPECT_EQ(read(), u"short");
    write(u"");
    EXPECT_EQ(piece(1), Text(1000, u'x'));
    EXPECT_EQ(read(), u"");
}

TEST_F(LongProperty, OfAnItemWithoutOneIsEmpty)
{
    EXPECT_EQ(read(), u"");
    EXPECT_EQ(fncGetLongProperty(session, {}, u"strSupply"), u"");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(LongProperty, CountsAMissingPieceAsEmpty)
{
    const auto properties = item.userProperties();
    properties.add(u"strSupply0", UserPropertyType::Text).setValue(u"first");
    properties.add(u"strSupply2", UserPropertyType::Text).setValue(u"third");
    properties.add(u"strSupplyCount", UserPropertyType::Number).setValue(2.0);
    EXPECT_EQ(read(), u"firstthird");
}

TEST_F(LongProperty, WithADamagedCountIsItsFirstPiece)
{
    const auto properties = item.userProperties();
    properties.add(u"strSupply0", UserPropertyType::Text).setValue(u"first");
    properties.add(u"strSupply1", UserPropertyType::Text).setValue(u"second");
    EXPECT_EQ(read(), u"first") << "no count at all";
    const auto damaged = properties.add(u"strSupplyCount", UserPropertyType::Text);
    for (const TextView words : {u"damaged", u"", u"1x"}) {
        damaged.setValue(words);
        EXPECT_EQ(read(), u"first") << toUtf8(words);
    }
    damaged.setValue(u"70000");
    EXPECT_EQ(read(), u"first") << "more than 16 bits hold";
}

TEST_F(LongProperty, WithANegativeCountIsEmpty)
{
    write(u"first");
    item.userProperties().find(u"strSupplyCount").setValue(-1.0);
    EXPECT_EQ(read(), u"");
}

TEST_F(LongProperty, KeepsASurrogatePairThatABorderSplits)
{
    const Text text = Text(999, u'x') + u"\U0001F600" + Text(500, u'y');
    write(text);
    EXPECT_EQ(piece(0).back(), u'\xD83D');
    EXPECT_EQ(piece(1).front(), u'\xDE00');
    EXPECT_EQ(read(), text);
}

TEST_F(LongProperty, KeepsASplitSurrogatePairOverSavingAndOpening)
{
    const Text text = Text(999, u'x') + u"\U0001F600\U0001F600" + Text(998, u'y') + u"\U0001F600";
    write(text);
    item.setSubject(u"Settings");
    item.save();
    const auto opened = session.objRootFolder.items().item(u"Settings");
    EXPECT_EQ(fncGetLongProperty(session, opened, u"strSupply"), text);
}

TEST_F(LongProperty, KeepsEveryUnitOfAText)
{
    Text text;
    for (int unit = 0; unit <= 0xFFFF; ++unit)
        text += static_cast<char16_t>(unit);
    write(text);
    EXPECT_EQ(read(), text);
}

TEST_F(LongProperty, IsNotSaved)
{
    write(u"text");
    EXPECT_FALSE(item.saved());
    EXPECT_EQ(item.entryId(), u"");
}

TEST_F(LongProperty, AnnouncesItself)
{
    write(u"text");
    EXPECT_EQ(session.trace.fncLastAction(), u"Entering subFixLongProperty to save strSupply");
}

TEST_F(LongProperty, ReportsAFailureUnderTheNameOfTheWholeText)
{
    item.userProperties().add(u"strSupply1", UserPropertyType::Number);
    const auto report = reportOf([&] { write(Text(1200, u'x')); });
    EXPECT_NE(report.find(u"Failed to save strSupply\r\n"), Text::npos);
    EXPECT_NE(report.find(u"modOutlookCode.subFixLongProperty"), Text::npos);
    EXPECT_EQ(piece(0), Text(1000, u'x')) << "written before, not taken back";
}

TEST_F(LongProperty, ReportsThatThereIsNoItem)
{
    EXPECT_NE(reportOf([&] { subFixLongProperty(session, {}, u"text", u"strSupply"); }).find(u"#91"), Text::npos);
}

TEST_F(LongProperty, UsesEachPieceOnce)
{
    const auto counter = std::make_shared<test::Fault>();
    const outlook::Item counted{test::FaultyDispatch::wrap(item.object(), counter)};
    subFixLongProperty(session, counted, Text(4000, u'x'), u"strSupply");
    EXPECT_EQ(counter->uses, 1 + 6 * 2) << "UserProperties; Add and Value of five pieces and the count";
    counter->uses = 0;
    static_cast<void>(fncGetLongProperty(session, counted, u"strSupply"));
    EXPECT_EQ(counter->uses, 6 * 3) << "UserProperties, Find and Value of five pieces and the count";
}

} // namespace
} // namespace rf
