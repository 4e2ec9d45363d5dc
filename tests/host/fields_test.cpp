#include "host/fields.h"

#include <gtest/gtest.h>

#include <limits>

namespace rf::host {
namespace {

ItemRecord meeting()
{
    ItemRecord item;
    item.messageClass = u"IPM.Appointment";
    item.subject = u"Board meeting";
    item.categories = u"Alpha, Beta";
    item.location = u"Hall";
    item.to = u"Jane";
    item.start = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 9});
    item.end = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 10, .minute = 30});
    item.allDay = true;
    item.busyStatus = 3;
    item.meetingStatus = 1;
    item.creationTime = Date{36900.0};
    item.lastModificationTime = Date{36901.0};
    item.size = 512;
    return item;
}

FieldValue valueOf(TextView field, const ItemRecord& item, std::span<const FieldDefinition> folderFields = {})
{
    return Field::find(field, folderFields).value().read(item);
}

TEST(BuiltInFields, ReadWhatTheItemHolds)
{
    const ItemRecord item = meeting();
    EXPECT_EQ(valueOf(u"MessageClass", item), FieldValue{TextView{u"IPM.Appointment"}});
    EXPECT_EQ(valueOf(u"Subject", item), FieldValue{TextView{u"Board meeting"}});
    EXPECT_EQ(valueOf(u"Categories", item), FieldValue{TextView{u"Alpha, Beta"}});
    EXPECT_EQ(valueOf(u"Location", item), FieldValue{TextView{u"Hall"}});
    EXPECT_EQ(valueOf(u"To", item), FieldValue{TextView{u"Jane"}});
    EXPECT_EQ(valueOf(u"Start", item), FieldValue{item.start});
    EXPECT_EQ(valueOf(u"End", item), FieldValue{item.end});
    EXPECT_EQ(valueOf(u"AllDayEvent", item), FieldValue{true});
    EXPECT_EQ(valueOf(u"BusyStatus", item), FieldValue{3.0});
    EXPECT_EQ(valueOf(u"MeetingStatus", item), FieldValue{1.0});
    EXPECT_EQ(valueOf(u"CreationTime", item), FieldValue{Date{36900.0}});
    EXPECT_EQ(valueOf(u"LastModificationTime", item), FieldValue{Date{36901.0}});
    EXPECT_EQ(valueOf(u"Size", item), FieldValue{512.0});
}

TEST(BuiltInFields, PointIntoTheItemInsteadOfCopyingItsTexts)
{
    const ItemRecord item = meeting();
    EXPECT_EQ(std::get<TextView>(valueOf(u"Subject", item)).data(), item.subject.data());
}

TEST(BuiltInFields, CountTheDurationInMinutes) { EXPECT_EQ(valueOf(u"Duration", meeting()), FieldValue{90.0}); }

TEST(BuiltInFields, KnowASeriesByItsRule)
{
    ItemRecord item = meeting();
    EXPECT_EQ(valueOf(u"IsRecurring", item), FieldValue{false});
    item.recurrence = RecurrenceRecord{};
    EXPECT_EQ(valueOf(u"IsRecurring", item), FieldValue{true});
}

TEST(BuiltInFields, AreFoundByTheirNameInAnyCase)
{
    for (const BuiltInField& field : builtInFields()) {
        EXPECT_EQ(findBuiltInField(field.name), &field);
        EXPECT_EQ(findBuiltInField(upper(field.name)), &field);
        EXPECT_EQ(findBuiltInField(lower(field.name)), &field);
    }
    EXPECT_EQ(findBuiltInField(u"[Start]"), nullptr);
    EXPECT_EQ(findBuiltInField(u""), nullptr);
}

TEST(BuiltInFields, LeaveOutWhatOutlookRefusesToSearchBy)
{
    EXPECT_EQ(findBuiltInField(u"Body"), nullptr);
    EXPECT_EQ(findBuiltInField(u"EntryID"), nullptr);
}

TEST(BuiltInFields, StandBeforeAUserPropertyOfTheirName)
{
    const std::vector<FieldDefinition> fields{{u"Subject", 3}};
    const auto field = Field::find(u"subject", fields);
    ASSERT_TRUE(field);
    EXPECT_FALSE(field->isUserProperty());
    EXPECT_EQ(field->kind(), FieldKind::Text);
    EXPECT_EQ(field->name(), u"Subject");
}

class UserPropertyFields : public ::testing::Test {
protected:
    [[nodiscard]] FieldValue valueOf(TextView field) const { return host::valueOf(field, item_, fields_); }

    std::vector<FieldDefinition> fields_{{u"OCID", 1}, {u"Guests", 3}, {u"Seen", 5}, {u"Paid", 6}};
    ItemRecord item_;
};

TEST_F(UserPropertyFields, AreKnownWhereTheFolderDefinesThem)
{
    const auto field = Field::find(u"ocid", fields_);
    ASSERT_TRUE(field);
    EXPECT_TRUE(field->isUserProperty());
    EXPECT_EQ(field->name(), u"OCID");
    EXPECT_FALSE(Field::find(u"OCID", {}));
    EXPECT_FALSE(Field::find(u"CostCenter", fields_));
}

TEST_F(UserPropertyFields, HaveTheKindOfTheirType)
{
    EXPECT_EQ(Field::find(u"OCID", fields_)->kind(), FieldKind::Text);
    EXPECT_EQ(Field::find(u"Guests", fields_)->kind(), FieldKind::Number);
    EXPECT_EQ(Field::find(u"Seen", fields_)->kind(), FieldKind::Date);
    EXPECT_EQ(Field::find(u"Paid", fields_)->kind(), FieldKind::YesNo);
}

TEST_F(UserPropertyFields, OfOtherTypesAreNotKnown)
{
    fields_.push_back({u"Formula", 18});
    EXPECT_FALSE(Field::find(u"Formula", fields_));
}

TEST_F(UserPropertyFields, ReadTheItemsValueByNameInAnyCase)
{
    item_.userProperties = {{u"ocid", 1, u"a"}, {u"GUESTS", 3, 7.0}, {u"seen", 5, Date{36923.5}}, {u"paid", 6, true}};
    EXPECT_EQ(valueOf(u"OCID"), FieldValue{TextView{u"a"}});
    EXPECT_EQ(valueOf(u"Guests"), FieldValue{7.0});
    EXPECT_EQ(valueOf(u"Seen"), FieldValue{Date{36923.5}});
    EXPECT_EQ(valueOf(u"Paid"), FieldValue{true});
}

TEST_F(UserPropertyFields, TakeEveryKindOfNumber)
{
    const automation::Variant numbers[]
        = {std::int32_t{7}, std::int16_t{7}, std::uint8_t{7}, 7.0F, 7.0, Currency::fromInteger(7)};
    for (const auto& number : numbers) {
        item_.userProperties = {{u"Guests", 3, number}};
        EXPECT_EQ(valueOf(u"Guests"), FieldValue{7.0}) << number.value().index();
    }
}

TEST_F(UserPropertyFields, CountAsNothingWhereTheItemLacksThem)
{
    EXPECT_EQ(valueOf(u"OCID"), FieldValue{TextView{}});
    EXPECT_EQ(valueOf(u"Guests"), FieldValue{0.0});
    EXPECT_EQ(valueOf(u"Seen"), FieldValue{noDate});
    EXPECT_EQ(valueOf(u"Paid"), FieldValue{false});
}

TEST_F(UserPropertyFields, CountAsNothingWhereTheItemHasThemInAnotherKind)
{
    item_.userProperties = {{u"OCID", 3, 7.0}, {u"Guests", 1, u"7"}, {u"Seen", 3, 36923.5}, {u"Paid", 3, 1.0}};
    EXPECT_EQ(valueOf(u"OCID"), FieldValue{TextView{}});
    EXPECT_EQ(valueOf(u"Guests"), FieldValue{0.0});
    EXPECT_EQ(valueOf(u"Seen"), FieldValue{noDate});
    EXPECT_EQ(valueOf(u"Paid"), FieldValue{false});
    item_.userProperties = {{u"OCID", 1, {}}, {u"Guests", 3, automation::Null{}}};
    EXPECT_EQ(valueOf(u"OCID"), FieldValue{TextView{}});
    EXPECT_EQ(valueOf(u"Guests"), FieldValue{0.0});
}

TEST(MinuteOf, CountsWholeMinutesFromTheZeroDate)
{
    EXPECT_EQ(minuteOf(Date{}), 0);
    EXPECT_EQ(minuteOf(Date{1.0}), 1440);
    EXPECT_EQ(minuteOf(Date::fromSeconds(59)), 0);
    EXPECT_EQ(minuteOf(Date::fromSeconds(60)), 1);
    EXPECT_EQ(minuteOf(Date::fromSeconds(-1)), -1);
    EXPECT_EQ(minuteOf(Date::fromSeconds(-60)), -1);
    EXPECT_EQ(minuteOf(Date::fromSeconds(-61)), -2);
}

TEST(MinuteOf, IgnoresTheNoiseOfAFraction)
{
    const Date nineOClock = Date::fromFields({.year = 2001, .month = 2, .day = 1, .hour = 9});
    EXPECT_EQ(minuteOf(Date{nineOClock.days() - 1e-9}), minuteOf(nineOClock));
    EXPECT_EQ(minuteOf(Date{nineOClock.days() + 1e-9}), minuteOf(nineOClock));
}

TEST(MinuteOf, TakesTheNearestMinuteForWhatIsNoDate)
{
    const std::int64_t first = minuteOf(Date::fromFields({.year = 100, .month = 1, .day = 1}));
    const std::int64_t last
        = minuteOf(Date::fromFields({.year = 9999, .month = 12, .day = 31, .hour = 24, .second = -1}));
    EXPECT_EQ(minuteOf(Date{-657434.5}), first + 720);
    EXPECT_EQ(minuteOf(Date{-657435.0}), first);
    EXPECT_EQ(minuteOf(Date{-std::numeric_limits<double>::infinity()}), first);
    EXPECT_EQ(minuteOf(Date{2958466.0}), last);
    EXPECT_EQ(minuteOf(Date{1e300}), last);
    EXPECT_EQ(minuteOf(Date{std::numeric_limits<double>::quiet_NaN()}), minuteOf(noDate));
}

} // namespace
} // namespace rf::host
