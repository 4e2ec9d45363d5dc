#include "member_use.h"

#include "outlook/application.h"

namespace rf::outlook {

using namespace test;

TEST(FolderFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Folder>({
        {u"Name", Get, {}, u"Room 1", [](auto& folder) { return folder.name(); }},
        {u"EntryID", Get, {}, u"00AB", [](auto& folder) { return folder.entryId(); }},
        {u"StoreID", Get, {}, u"00CD", [](auto& folder) { return folder.storeId(); }},
        {u"Parent", Get, {}, other, [](auto& folder) { return folder.parent(); }},
        {u"Folders", Get, {}, other, [](auto& folder) { return folder.folders(); }},
        {u"Items", Get, {}, other, [](auto& folder) { return folder.items(); }},
        {u"DefaultItemType", Get, {}, 1, [](auto& folder) { return folder.defaultItemType(); }},
        {u"WebViewURL", Get, {}, u"ROOMFOLD.HTM", [](auto& folder) { return folder.webViewUrl(); }},
        {u"WebViewURL", Put, {u"page.htm"}, {}, [](auto& folder) { folder.setWebViewUrl(u"page.htm"); }},
        {u"WebViewOn", Get, {}, true, [](auto& folder) { return folder.webViewOn(); }},
        {u"WebViewOn", Put, {true}, {}, [](auto& folder) { folder.setWebViewOn(true); }},
        {u"Application", Get, {}, other, [](auto& folder) { return folder.application(); }},
    });
}

TEST(FoldersFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Folders>({
        {u"Count", Get, {}, 4, [](auto& folders) { return folders.count(); }},
        {u"Item", Call, {1}, other, [](auto& folders) { return folders.item(1); }},
        {u"Item", Call, {u"Room 1"}, other, [](auto& folders) { return folders.item(u"Room 1"); }},
        {u"Add", Call, {u"Room 2"}, other, [](auto& folders) { return folders.add(u"Room 2"); }},
        {u"Add", Call, {u"Room 2", 9}, other,
            [](auto& folders) { return folders.add(u"Room 2", DefaultFolder::Calendar); }},
    });
}

TEST(ParentFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Parent>({
        {u"Class", Get, {}, 26, [](auto& parent) { return parent.objectClass(); }},
        {u"Name", Get, {}, u"Mailbox", [](auto& parent) { return parent.name(); }},
        {u"EntryID", Get, {}, u"00AB", [](auto& parent) { return parent.entryId(); }},
        {u"StoreID", Get, {}, u"00CD", [](auto& parent) { return parent.storeId(); }},
        {u"Parent", Get, {}, other, [](auto& parent) { return parent.parent(); }},
    });
}

TEST(ParentFace, TellsAFolderFromAnAppointment)
{
    const auto dispatch = std::make_shared<RecordingDispatch>();
    const Parent parent{automation::Object{dispatch}};
    dispatch->answer = 2;
    EXPECT_TRUE(parent.isFolder());
    EXPECT_FALSE(parent.isAppointment());
    dispatch->answer = 26;
    EXPECT_FALSE(parent.isFolder());
    EXPECT_TRUE(parent.isAppointment());
}

TEST(ItemsFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Items>({
        {u"Count", Get, {}, 2, [](auto& items) { return items.count(); }},
        {u"Item", Call, {2}, other, [](auto& items) { return items.item(2); }},
        {u"Item", Call, {u"Settings"}, other, [](auto& items) { return items.item(u"Settings"); }},
        {u"Add", Call, {}, other, [](auto& items) { return items.add(); }},
        {u"Add", Call, {u"IPM.Post"}, other, [](auto& items) { return items.add(message_class::post); }},
        {u"Find", Call, {u"[OCID] = '1'"}, other, [](auto& items) { return items.find(u"[OCID] = '1'"); }},
        {u"FindNext", Call, {}, other, [](auto& items) { return items.findNext(); }},
        {u"Restrict", Call, {u"[Subject] = 'a'"}, other,
            [](auto& items) { return items.restrict(u"[Subject] = 'a'"); }},
        {u"Sort", Call, {u"[Start]"}, {}, [](auto& items) { items.sort(field::start); }},
        {u"Sort", Call, {u"CreationTime", true}, {}, [](auto& items) { items.sort(field::creationTime, true); }},
        {u"IncludeRecurrences", Get, {}, true, [](auto& items) { return items.includeRecurrences(); }},
        {u"IncludeRecurrences", Put, {true}, {}, [](auto& items) { items.setIncludeRecurrences(true); }},
    });
}

} // namespace rf::outlook
