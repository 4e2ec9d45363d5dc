#include "object_model/object_model.h"

#include "host/host_error.h"

namespace rf::test {
namespace {

class ItemObjects : public ObjectModel { };

TEST_P(ItemObjects, HaveNoEntryIdBeforeTheirFirstSave)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    EXPECT_EQ(item.entryId(), u"");
    item.save();
    EXPECT_FALSE(item.entryId().empty());
    const Text entryId = item.entryId();
    item.save();
    EXPECT_EQ(item.entryId(), entryId);
}

TEST_P(ItemObjects, AreSavedWhenNothingChangedSinceTheLastSave)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    EXPECT_FALSE(item.saved());
    item.save();
    EXPECT_TRUE(item.saved());
    item.setSubject(u"Bored");
    EXPECT_FALSE(item.saved());
}

TEST_P(ItemObjects, HaveNoSizeBeforeTheirFirstSave)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    EXPECT_EQ(item.size(), 0);
    item.save();
    EXPECT_GT(item.size(), 0);
}

TEST_P(ItemObjects, HaveNoCreationTimeBeforeTheirFirstSave)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    EXPECT_EQ(item.creationTime(), noDate);
    item.save();
    EXPECT_EQ(item.creationTime(), clock.now());
}

TEST_P(ItemObjects, CannotBeDeletedTwice)
{
    const auto item = booked(u"Board", at(9), 60);
    item.remove();
    EXPECT_EQ(errorOf([&] { item.remove(); }), host::host_error::deleted);
    EXPECT_EQ(errorOf([&] { item.save(); }), host::host_error::deleted);
}

TEST_P(ItemObjects, AreDeletedByExactlyOneOfTwo)
{
    booked(u"Board", at(9), 60);
    const auto one = calendar().items().item(1);
    const auto other = calendar().items().item(1);
    EXPECT_EQ(errorOf([&] { one.remove(); }), 0);
    EXPECT_EQ(errorOf([&] { other.remove(); }), host::host_error::deleted);
    EXPECT_EQ(calendar().items().count(), 0);
}

TEST_P(ItemObjects, ThatWereDeletedCannotBeSavedFromAnotherCopy)
{
    booked(u"Board", at(9), 60);
    const auto one = calendar().items().item(1);
    const auto other = calendar().items().item(1);
    one.remove();
    other.setSubject(u"Back again");
    EXPECT_NE(errorOf([&] { other.save(); }), 0);
    EXPECT_EQ(calendar().items().count(), 0);
}

TEST_P(ItemObjects, OfOneItemDoNotSeeEachOthersChanges)
{
    const auto one = booked(u"Board", at(9), 60);
    const auto other = calendar().items().item(1);
    one.setSubject(u"Changed");
    EXPECT_EQ(other.subject(), u"Board");
    one.save();
    EXPECT_EQ(calendar().items().item(1).subject(), u"Changed");
}

TEST_P(ItemObjects, KeepTheirLengthWhenTheyAreMoved)
{
    const auto item = newAppointment(u"Board", at(9), 90);
    item.setStart(at(14));
    EXPECT_EQ(item.end(), at(15, 30));
    EXPECT_EQ(item.duration(), 90);
    item.setDuration(30);
    EXPECT_EQ(item.end(), at(14, 30));
}

TEST_P(ItemObjects, KnowTheirParent)
{
    const auto item = booked(u"Board", at(9), 60);
    EXPECT_EQ(item.parent().entryId(), calendar().entryId());
    EXPECT_TRUE(item.parent().isFolder());
}

TEST_P(ItemObjects, CarryTextsUnharmedDownToHalfASurrogatePair)
{
    const Text text = u"caf\u00E9 \U0001F600 " + Text{char16_t{0xD83D}} + u" end " + Text{char16_t{0}} + u"!";
    const auto item = newAppointment(text, at(9), 60);
    item.setBody(text);
    item.save();
    EXPECT_EQ(calendar().items().item(1).subject(), text);
    EXPECT_EQ(calendar().items().item(1).body(), text);
}

TEST_P(ItemObjects, StartAtTheNextHalfHour)
{
    const auto item = calendar().items().add().as<outlook::AppointmentItem>();
    EXPECT_EQ(item.start(), at(9, 30));
    EXPECT_EQ(item.duration(), 30);
}

class UserPropertyObjects : public ObjectModel { };

TEST_P(UserPropertyObjects, AreNotFoundWhereTheyAreAbsent)
{
    EXPECT_FALSE(newAppointment(u"Board", at(9), 60).userProperties().find(u"OCID"));
}

TEST_P(UserPropertyObjects, AreFoundInAnyCase)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    item.userProperties().add(u"SafeOrganizer", outlook::UserPropertyType::Text, false).setValue(u"Jane");
    EXPECT_EQ(item.userProperties().find(u"safeorganizer").value().text(), u"Jane");
    EXPECT_EQ(item.userProperties().count(), 1);
}

TEST_P(UserPropertyObjects, AreNotAddedTwice)
{
    const auto properties = newAppointment(u"Board", at(9), 60).userProperties();
    properties.add(u"OCID", outlook::UserPropertyType::Text, false).setValue(u"1");
    EXPECT_EQ(properties.add(u"ocid", outlook::UserPropertyType::Text, false).value().text(), u"1");
    EXPECT_EQ(properties.count(), 1);
}

TEST_P(UserPropertyObjects, BeginWithTheNeutralValueOfTheirType)
{
    const auto properties = newAppointment(u"Board", at(9), 60).userProperties();
    EXPECT_EQ(properties.add(u"t", outlook::UserPropertyType::Text, false).value().text(), u"");
    EXPECT_EQ(properties.add(u"n", outlook::UserPropertyType::Number, false).value().number(), 0);
    EXPECT_EQ(properties.add(u"d", outlook::UserPropertyType::DateTime, false).value().date(), noDate);
    EXPECT_FALSE(properties.add(u"b", outlook::UserPropertyType::YesNo, false).value().boolean());
}

TEST_P(UserPropertyObjects, AreSavedWithTheirItem)
{
    const auto item = newAppointment(u"Board", at(9), 60);
    item.userProperties().add(u"OriginalDuration", outlook::UserPropertyType::Number, false).setValue(60);
    item.userProperties().add(u"OriginalStartDate", outlook::UserPropertyType::DateTime, false).setValue(at(9));
    item.save();
    const auto stored = calendar().items().item(1).userProperties();
    EXPECT_EQ(stored.find(u"OriginalDuration").value().number(), 60);
    EXPECT_EQ(stored.find(u"OriginalStartDate").value().date(), at(9));
}

TEST_P(UserPropertyObjects, AreSearchableOnlyWhereTheFolderKnowsThem)
{
    const auto hidden = newAppointment(u"Board", at(9), 60);
    hidden.userProperties().add(u"OCID", outlook::UserPropertyType::Text, false).setValue(u"a");
    hidden.save();
    EXPECT_NE(errorOf([&] { static_cast<void>(calendar().items().find(u"[OCID] = 'a'")); }), 0);

    const auto known = newAppointment(u"Sales", at(11), 60);
    known.userProperties().add(u"OCID", outlook::UserPropertyType::Text, true).setValue(u"b");
    known.save();
    EXPECT_EQ(calendar().items().find(u"[OCID] = 'B'").subject(), u"Sales");
    EXPECT_EQ(calendar().items().find(u"[OCID] = 'a'").subject(), u"Board");
}

class ItemCollections : public ObjectModel { };

TEST_P(ItemCollections, AnswerByPositionAndBySubject)
{
    booked(u"Board", at(9), 60);
    booked(u"Sales", at(11), 60);
    EXPECT_EQ(calendar().items().count(), 2);
    EXPECT_EQ(calendar().items().item(2).subject(), u"Sales");
    EXPECT_EQ(calendar().items().item(u"SALES").subject(), u"Sales");
}

TEST_P(ItemCollections, FailOnAMiss)
{
    booked(u"Board", at(9), 60);
    EXPECT_EQ(errorOf([&] { static_cast<void>(calendar().items().item(2)); }), host::host_error::badArgument);
    EXPECT_EQ(errorOf([&] { static_cast<void>(calendar().items().item(0)); }), host::host_error::badArgument);
    EXPECT_EQ(errorOf([&] { static_cast<void>(calendar().items().item(u"Sales")); }), host::host_error::badArgument);
}

TEST_P(ItemCollections, FindTheItemsThatOverlap)
{
    booked(u"before", at(8), 60);
    booked(u"inside", at(9, 15), 30);
    booked(u"around", at(8), 240);
    booked(u"after", at(10), 60);
    const auto items = calendar().items();
    items.sort(u"[Start]", false);
    const Text a = u"\"#2024-2-3 9:00 AM#\"";
    const Text b = u"\"#2024-2-3 10:00 AM#\"";
    auto found = items.find(u"([Start] >= " + a + u" and [Start] < " + b + u")or ([End] > " + a + u" and [End] <= " + b
        + u")  or ([Start] < " + a + u" and [End] >= " + b + u")");
    std::vector<Text> subjects;
    for (; found; found = items.findNext())
        subjects.push_back(found.subject());
    EXPECT_EQ(subjects, (std::vector<Text>{u"around", u"inside"}));
}

TEST_P(ItemCollections, FindNothingWhereNothingMatches)
{
    booked(u"Board", at(9), 60);
    EXPECT_FALSE(calendar().items().find(u"[Subject] = 'Sales'"));
}

TEST_P(ItemCollections, AreRestrictedAndStayAlive)
{
    booked(u"Board", at(9), 60);
    booked(u"Sales", at(10), 60);
    booked(u"Board", at(11), 60);
    const auto items = calendar().items().restrict(u"[Subject] = 'board'");
    EXPECT_EQ(items.count(), 2);
    items.item(2).remove();
    EXPECT_EQ(items.count(), 1);
}

TEST_P(ItemCollections, RefuseARestrictionThatIsNone)
{
    for (const TextView text : {u"[Subject] = ", u"[NoSuchField] = 'a'", u"([Subject] = 'a'", u"nonsense"})
        EXPECT_EQ(errorOf([&] { static_cast<void>(calendar().items().find(text)); }), host::host_error::badArgument)
            << toUtf8(text);
}

TEST_P(ItemCollections, AreSortedBothWays)
{
    booked(u"b", at(9), 60);
    booked(u"a", at(11), 60);
    booked(u"C", at(10), 60);
    const auto items = calendar().items();
    items.sort(u"[Subject]", false);
    EXPECT_EQ(items.item(1).subject(), u"a");
    EXPECT_EQ(items.item(3).subject(), u"C");
    items.sort(u"Start", true);
    EXPECT_EQ(items.item(1).subject(), u"a");
}

TEST_P(ItemCollections, AddPostsByTheirMessageClass)
{
    const auto post = folder(root).items().add(u"IPM.Post").as<outlook::PostItem>();
    post.setSubject(u"Settings");
    post.save();
    EXPECT_EQ(folder(root).items().item(u"Settings").messageClass(), u"IPM.Post");
}

RF_EVERY_TRANSPORT(ItemObjects);
RF_EVERY_TRANSPORT(UserPropertyObjects);
RF_EVERY_TRANSPORT(ItemCollections);

} // namespace
} // namespace rf::test
