#include "member_use.h"

#include "outlook/appointment_item.h"
#include "outlook/mail_item.h"
#include "outlook/post_item.h"

namespace rf::outlook {

using namespace test;

TEST(ItemFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Item>({
        {u"EntryID", Get, {}, u"00AB", [](auto& item) { return item.entryId(); }},
        {u"Parent", Get, {}, other, [](auto& item) { return item.parent(); }},
        {u"GetInspector", Get, {}, other, [](auto& item) { return item.getInspector(); }},
        {u"Class", Get, {}, 43, [](auto& item) { return item.objectClass(); }},
        {u"MessageClass", Get, {}, u"IPM.Post", [](auto& item) { return item.messageClass(); }},
        {u"Subject", Get, {}, u"Board", [](auto& item) { return item.subject(); }},
        {u"Subject", Put, {u"Board"}, {}, [](auto& item) { item.setSubject(u"Board"); }},
        {u"Body", Get, {}, u"Text", [](auto& item) { return item.body(); }},
        {u"Body", Put, {u"Text"}, {}, [](auto& item) { item.setBody(u"Text"); }},
        {u"Categories", Get, {}, u"Alpha", [](auto& item) { return item.categories(); }},
        {u"Categories", Put, {u"Alpha"}, {}, [](auto& item) { item.setCategories(u"Alpha"); }},
        {u"Size", Get, {}, 149, [](auto& item) { return item.size(); }},
        {u"Saved", Get, {}, true, [](auto& item) { return item.saved(); }},
        {u"CreationTime", Get, {}, noDate, [](auto& item) { return item.creationTime(); }},
        {u"UserProperties", Get, {}, other, [](auto& item) { return item.userProperties(); }},
        {u"Save", Call, {}, {}, [](auto& item) { item.save(); }},
        {u"Close", Call, {0}, {}, [](auto& item) { item.close(CloseMode::Save); }},
        {u"Close", Call, {1}, {}, [](auto& item) { item.close(CloseMode::Discard); }},
        {u"Delete", Call, {}, {}, [](auto& item) { item.remove(); }},
        {u"Display", Call, {}, {}, [](auto& item) { item.display(); }},
        {u"Display", Call, {false}, {}, [](auto& item) { item.display(false); }},
    });
}

TEST(AppointmentItemFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    const Date nine{37000.375};
    expectUses<AppointmentItem>({
        {u"Start", Get, {}, nine, [](auto& item) { return item.start(); }},
        {u"Start", Put, {nine}, {}, [&](auto& item) { item.setStart(nine); }},
        {u"End", Get, {}, nine, [](auto& item) { return item.end(); }},
        {u"Duration", Get, {}, 90, [](auto& item) { return item.duration(); }},
        {u"Duration", Put, {90}, {}, [](auto& item) { item.setDuration(90); }},
        {u"Location", Get, {}, u"Room 1", [](auto& item) { return item.location(); }},
        {u"Location", Put, {u"Room 1"}, {}, [](auto& item) { item.setLocation(u"Room 1"); }},
        {u"BusyStatus", Get, {}, 2, [](auto& item) { return item.busyStatus(); }},
        {u"MeetingStatus", Get, {}, 1, [](auto& item) { return item.meetingStatus(); }},
        {u"IsRecurring", Get, {}, true, [](auto& item) { return item.isRecurring(); }},
        {u"GetRecurrencePattern", Call, {}, other, [](auto& item) { return item.getRecurrencePattern(); }},
        {u"Subject", Get, {}, u"Board", [](auto& item) { return item.subject(); }},
    });
}

TEST(RecurrencePatternFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<RecurrencePattern>({
        {u"StartTime", Get, {}, Date{0.375}, [](auto& pattern) { return pattern.startTime(); }},
        {u"EndTime", Get, {}, Date{0.5}, [](auto& pattern) { return pattern.endTime(); }},
    });
}

TEST(MailItemFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<MailItem>({
        {u"To", Get, {}, u"support@example.com", [](auto& mail) { return mail.to(); }},
        {u"To", Put, {u"support@example.com"}, {}, [](auto& mail) { mail.setTo(u"support@example.com"); }},
        {u"Body", Put, {u"Report"}, {}, [](auto& mail) { mail.setBody(u"Report"); }},
    });
}

TEST(PostItemFace, HasWhatEveryItemHas)
{
    expectUses<PostItem>({
        {u"Subject", Put, {u"Settings"}, {}, [](auto& post) { post.setSubject(u"Settings"); }},
        {u"Save", Call, {}, {}, [](auto& post) { post.save(); }},
    });
}

TEST(UserPropertiesFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<UserProperties>({
        {u"Count", Get, {}, 7, [](auto& all) { return all.count(); }},
        {u"Find", Call, {u"OCID"}, other, [](auto& all) { return all.find(u"OCID"); }},
        {u"Item", Call, {u"OCID"}, other, [](auto& all) { return all.item(u"OCID"); }},
        {u"Item", Call, {1}, other, [](auto& all) { return all.item(1); }},
        {u"Add", Call, {u"OCID", 1}, other, [](auto& all) { return all.add(u"OCID", UserPropertyType::Text); }},
        {u"Add", Call, {u"OriginalDuration", 3, false}, other,
            [](auto& all) { return all.add(u"OriginalDuration", UserPropertyType::Number, false); }},
        {u"Add", Call, {u"OriginalStartDate", 5, true}, other,
            [](auto& all) { return all.add(u"OriginalStartDate", UserPropertyType::DateTime, true); }},
    });
}

TEST(UserPropertyFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<UserProperty>({
        {u"Name", Get, {}, u"blnManage", [](auto& property) { return property.name(); }},
        {u"Type", Get, {}, 6, [](auto& property) { return property.type(); }},
        {u"Value", Get, {}, Currency::fromTenThousandths(15000), [](auto& property) { return property.value(); }},
        {u"Value", Put, {Date{1.5}}, {}, [](auto& property) { property.setValue(Date{1.5}); }},
    });
}

} // namespace rf::outlook
