#include "storage/outlook_value.h"
#include "storage/storage_fixture.h"

namespace rf {
namespace {

using automation::Null;
using automation::Variant;
using outlook::UserPropertyType;

class OutlookValue : public test::StorageTest {
protected:
    using StorageTest::StorageTest;

    void write(TextView name, const Variant& value, ValueKind kind, bool addToFolderFields = false)
    {
        subSetOutlookValue(session, item, name, value, kind, addToFolderFields);
    }
    Variant read(TextView name, ValueKind kind, const Variant& defaultValue)
    {
        return fncGetOutlookValue(session, item, name, kind, defaultValue);
    }
    [[nodiscard]] UserPropertyType typeOf(TextView name) const { return item.userProperties().find(name).type(); }
    [[nodiscard]] std::vector<Text> folderFields() const
    {
        std::vector<Text> names;
        for (const auto& folder : store->folders())
            if (folder.id == rootId)
                for (const auto& field : folder.fields)
                    names.push_back(field.name);
        return names;
    }

    outlook::Item item = newPost();
};

class OutlookValueInLocale : public OutlookValue, public ::testing::WithParamInterface<test::Locale> {
protected:
    OutlookValueInLocale()
        : OutlookValue(GetParam().settings)
    {
    }
};

constexpr auto otherCode = static_cast<ValueKind>(3);

TEST_F(OutlookValue, CreatesAPropertyOfTheTypeThatTheKindHas)
{
    write(u"intSeats", std::int16_t{12}, ValueKind::Integer);
    write(u"OriginalStartDate", Date{39146.5}, ValueKind::Date);
    write(u"CostCenter", u"4711", ValueKind::String);
    write(u"blnNoDoubles", true, ValueKind::Boolean);
    EXPECT_EQ(typeOf(u"intSeats"), UserPropertyType::Number);
    EXPECT_EQ(typeOf(u"OriginalStartDate"), UserPropertyType::DateTime);
    EXPECT_EQ(typeOf(u"CostCenter"), UserPropertyType::Text);
    EXPECT_EQ(typeOf(u"blnNoDoubles"), UserPropertyType::YesNo);
    EXPECT_EQ(stored(item, u"intSeats"), Variant{12.0});
    EXPECT_EQ(stored(item, u"OriginalStartDate"), Variant{Date{39146.5}});
    EXPECT_EQ(stored(item, u"CostCenter"), Variant{u"4711"});
    EXPECT_EQ(stored(item, u"blnNoDoubles"), Variant{true});
}

TEST_F(OutlookValue, HasTheKindCodesThatOlderDataKnows)
{
    EXPECT_EQ(static_cast<int>(ValueKind::Integer), 2);
    EXPECT_EQ(static_cast<int>(ValueKind::Date), 7);
    EXPECT_EQ(static_cast<int>(ValueKind::String), 8);
    EXPECT_EQ(static_cast<int>(ValueKind::Boolean), 11);
}

TEST_F(OutlookValue, OfAnyOtherCodeIsNeitherCreatedNorWrittenNorRead)
{
    write(u"Other", u"text", otherCode);
    EXPECT_EQ(item.userProperties().count(), 0);
    EXPECT_TRUE(read(u"Other", otherCode, u"default").isEmpty());
    write(u"Existing", u"text", ValueKind::String);
    write(u"Existing", u"new text", otherCode);
    EXPECT_EQ(stored(item, u"Existing"), Variant{u"text"});
    EXPECT_TRUE(read(u"Existing", otherCode, u"default").isEmpty());
}

TEST_F(OutlookValue, PassesOnWhetherTheFolderGetsTheField)
{
    write(u"OCID", u"a", ValueKind::String, true);
    write(u"CostCenter", u"b", ValueKind::String, false);
    EXPECT_EQ(folderFields(), std::vector<Text>{u"OCID"});
}

TEST_F(OutlookValue, IsNotSaved)
{
    write(u"OCID", u"a", ValueKind::String);
    EXPECT_FALSE(item.saved());
    EXPECT_EQ(item.entryId(), u"");
}

TEST_F(OutlookValue, WritesZeroForWhatIsNoNumber)
{
    write(u"intSeats", u"twelve", ValueKind::Integer);
    EXPECT_EQ(stored(item, u"intSeats"), Variant{0.0});
    write(u"intSeats", u"12", ValueKind::Integer);
    EXPECT_EQ(stored(item, u"intSeats"), Variant{12.0});
    write(u"intSeats", Null{}, ValueKind::Integer);
    EXPECT_EQ(stored(item, u"intSeats"), Variant{0.0});
}

TEST_F(OutlookValue, LeavesADateUnchangedForWhatIsNone)
{
    write(u"OriginalStartDate", Date{39146.0}, ValueKind::Date);
    write(u"OriginalStartDate", u"no date", ValueKind::Date);
    write(u"OriginalStartDate", 5.0, ValueKind::Date);
    EXPECT_EQ(stored(item, u"OriginalStartDate"), Variant{Date{39146.0}});
    write(u"Other", u"no date", ValueKind::Date);
    EXPECT_EQ(stored(item, u"Other"), Variant{noDate}) << "created, but never assigned";
}

TEST_F(OutlookValue, WritesThePropertyThatIsThereWhateverItsCase)
{
    write(u"blnShortcut", true, ValueKind::Boolean);
    write(u"BLNSHORTCUT", false, ValueKind::Boolean);
    EXPECT_EQ(item.userProperties().count(), 1);
    EXPECT_EQ(stored(item, u"blnShortcut"), Variant{false});
}

TEST_F(OutlookValue, WritesNothingWithoutAnItem)
{
    subSetOutlookValue(session, outlook::Item{}, u"OCID", u"a", ValueKind::String, true);
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OutlookValue, ReportsAFailureToWriteAndEndsTheProgram)
{
    const auto report = reportOf([&] { write(u"blnManage", u"maybe", ValueKind::Boolean); });
    EXPECT_NE(report.find(u"modOutlookCode.subSetOutlookValue"), Text::npos);
    EXPECT_NE(report.find(u"#13"), Text::npos);
}

TEST_F(OutlookValue, ReportsAnExistingPropertyOfATypeThatRefusesTheValue)
{
    write(u"OCID", Date{39146.0}, ValueKind::Date);
    EXPECT_NE(reportOf([&] {
        write(u"OCID", u"20074", ValueKind::String);
        write(u"OCID", u"no date", ValueKind::String);
    }),
        Text{});
}

TEST_F(OutlookValue, KeepsWhatWasWrittenBeforeAFailure)
{
    write(u"strFirst", u"a", ValueKind::String);
    reportOf([&] { write(u"strSecond", Null{}, ValueKind::String); });
    EXPECT_EQ(stored(item, u"strFirst"), Variant{u"a"});
}

TEST_F(OutlookValue, AnnouncesTheReading)
{
    static_cast<void>(read(u"CostCenter", ValueKind::String, u""));
    EXPECT_EQ(session.trace.fncLastAction(), u"Reading the value of the Outlook property CostCenter");
}

TEST_F(OutlookValue, OfAMissingNumberIsTheDefaultNumberElseZero)
{
    EXPECT_EQ(read(u"intSeats", ValueKind::Integer, std::int16_t{5}), Variant{std::int16_t{5}});
    EXPECT_EQ(read(u"intSeats", ValueKind::Integer, u"5"), Variant{std::int16_t{5}});
    EXPECT_EQ(read(u"intSeats", ValueKind::Integer, 2.5), Variant{std::int16_t{2}});
    EXPECT_EQ(read(u"intSeats", ValueKind::Integer, std::int16_t{0}), Variant{std::int16_t{0}});
    EXPECT_EQ(read(u"intSeats", ValueKind::Integer, u""), Variant{std::int16_t{0}});
    EXPECT_EQ(read(u"intSeats", ValueKind::Integer, 70000.0), Variant{std::int16_t{0}});
}

TEST_F(OutlookValue, OfAMissingDateIsTheZeroDateWhateverTheDefault)
{
    EXPECT_EQ(read(u"OriginalStartDate", ValueKind::Date, Date{39146.0}), Variant{Date{}});
    EXPECT_EQ(read(u"OriginalStartDate", ValueKind::Date, u""), Variant{Date{}});
}

TEST_F(OutlookValue, OfAMissingTextIsTheDefaultAsText)
{
    EXPECT_EQ(read(u"strKCFormat", ValueKind::String, u"1"), Variant{u"1"});
    EXPECT_EQ(read(u"strKCFormat", ValueKind::String, 2.5), Variant{u"2.5"});
    EXPECT_EQ(read(u"strKCFormat", ValueKind::String, Variant{}), Variant{u""});
    EXPECT_EQ(read(u"strKCFormat", ValueKind::String, Null{}), Variant{u""});
}

TEST_F(OutlookValue, OfAMissingTruthIsTheDefaultWhenThatIsNumericElseEmpty)
{
    EXPECT_EQ(read(u"blnManage", ValueKind::Boolean, true), Variant{true});
    EXPECT_EQ(read(u"blnManage", ValueKind::Boolean, false), Variant{false});
    EXPECT_EQ(read(u"blnManage", ValueKind::Boolean, std::int16_t{7}), Variant{true});
    EXPECT_EQ(read(u"blnManage", ValueKind::Boolean, u"0"), Variant{false});
    const auto nonNumeric = read(u"blnManage", ValueKind::Boolean, u"True");
    EXPECT_TRUE(nonNumeric.isEmpty());
    EXPECT_FALSE(nonNumeric.boolean());
}

TEST_F(OutlookValue, OfAStoredNumberIsThatNumberInSixteenBitsWhereTheyHoldIt)
{
    const auto property = item.userProperties().add(u"OriginalDuration", UserPropertyType::Number);
    const auto readBack = [&](double number) {
        property.setValue(number);
        return read(u"OriginalDuration", ValueKind::Integer, std::int16_t{9});
    };
    EXPECT_EQ(readBack(90), Variant{std::int16_t{90}});
    EXPECT_EQ(readBack(-32767), Variant{std::int16_t{-32767}});
    EXPECT_EQ(readBack(40320), Variant{40320.0}) << "four weeks in minutes";
    EXPECT_EQ(readBack(2.5), Variant{2.5});
    EXPECT_EQ(readBack(2.5).integer16(), 2) << "half to even";
}

TEST_F(OutlookValue, OfAStoredTextThatIsEmptyIsTheDefault)
{
    write(u"strDefaultPlaceSetting", u"", ValueKind::String);
    EXPECT_EQ(read(u"strDefaultPlaceSetting", ValueKind::String, u"U shape"), Variant{u"U shape"});
    EXPECT_EQ(read(u"strDefaultPlaceSetting", ValueKind::String, u""), Variant{u""});
    write(u"strDefaultPlaceSetting", u" ", ValueKind::String);
    EXPECT_EQ(read(u"strDefaultPlaceSetting", ValueKind::String, u"U shape"), Variant{u" "});
}

TEST_F(OutlookValue, OfAnotherTypeThanExpectedConvertsOrIsTheKindsNeutralValue)
{
    write(u"Text", u"words", ValueKind::String);
    EXPECT_EQ(read(u"Text", ValueKind::Integer, std::int16_t{5}), Variant{std::int16_t{0}});
    EXPECT_EQ(read(u"Text", ValueKind::Date, u""), Variant{Date{}});
    EXPECT_TRUE(read(u"Text", ValueKind::Boolean, true).isEmpty());
    write(u"Digits", u"12", ValueKind::String);
    EXPECT_EQ(read(u"Digits", ValueKind::Integer, u""), Variant{std::int16_t{12}});
    write(u"Number", 1.5, ValueKind::Integer);
    EXPECT_EQ(read(u"Number", ValueKind::String, u""), Variant{u"1.5"});
    EXPECT_EQ(read(u"Number", ValueKind::Date, u""), Variant{Date{}});
    EXPECT_EQ(read(u"Number", ValueKind::Boolean, u""), Variant{true});
}

TEST_F(OutlookValue, OfNoItemIsTheDefault)
{
    EXPECT_EQ(fncGetOutlookValue(session, {}, u"blnManage", ValueKind::Boolean, true), Variant{true});
    EXPECT_EQ(fncGetOutlookValue(session, {}, u"strKCFormat", ValueKind::String, u"1"), Variant{u"1"});
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(OutlookValue, IsTheDefaultWhicheverCallOfTheHostFails)
{
    write(u"blnManage", false, ValueKind::Boolean);
    for (int use = 1; use <= 3; ++use) {
        const outlook::Item faulty{test::FaultyDispatch::wrap(
            item.object(), std::make_shared<test::Fault>(test::Fault{.uses = 0, .failingUse = use}))};
        EXPECT_EQ(fncGetOutlookValue(session, faulty, u"blnManage", ValueKind::Boolean, true), Variant{true}) << use;
    }
}

TEST_F(OutlookValue, IsFoundOnceForReadingAndOnceForWriting)
{
    write(u"blnManage", false, ValueKind::Boolean);
    const auto counter = std::make_shared<test::Fault>();
    const outlook::Item counted{test::FaultyDispatch::wrap(item.object(), counter)};
    static_cast<void>(fncGetOutlookValue(session, counted, u"blnManage", ValueKind::Boolean, true));
    EXPECT_EQ(counter->uses, 3) << "UserProperties, Find, Value";
    subSetOutlookValue(session, counted, u"blnManage", true, ValueKind::Boolean, false);
    EXPECT_EQ(counter->uses, 6) << "UserProperties, Find, Value";
    subSetOutlookValue(session, counted, u"blnShortcut", true, ValueKind::Boolean, false);
    EXPECT_EQ(counter->uses, 10) << "UserProperties, Find, Add, Value";
}

TEST_P(OutlookValueInLocale, ReadsTextsAsTheUserWritesNumbersAndDates)
{
    const Text half = regional->formatNumber(2.5);
    const Text date = regional->formatDate(Date{39146.25});
    EXPECT_EQ(fncGetOutlookValue(session, {}, u"x", ValueKind::Integer, half), Variant{std::int16_t{2}});
    EXPECT_EQ(fncGetOutlookValue(session, {}, u"x", ValueKind::String, 2.5), Variant{half});
    item.userProperties().add(u"OriginalStartDate", UserPropertyType::DateTime);
    write(u"OriginalStartDate", date, ValueKind::Date);
    EXPECT_EQ(stored(item, u"OriginalStartDate"), Variant{Date{39146.25}});
    write(u"CostCenter", Date{39146.25}, ValueKind::String);
    EXPECT_EQ(stored(item, u"CostCenter"), Variant{date});
    EXPECT_EQ(read(u"CostCenter", ValueKind::Date, u""), Variant{Date{39146.25}});
}

INSTANTIATE_TEST_SUITE_P(
    Locales, OutlookValueInLocale, ::testing::ValuesIn(test::locales()), ::testing::PrintToStringParamName());

} // namespace
} // namespace rf
