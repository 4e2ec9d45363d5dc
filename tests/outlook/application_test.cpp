#include "member_use.h"

#include "outlook/application.h"

namespace rf::outlook {

using namespace test;

TEST(ApplicationFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Application>({
        {u"Version", Get, {}, u"11.0.8169", [](auto& host) { return host.version(); }},
        {u"GetNamespace", Call, {u"MAPI"}, other, [](auto& host) { return host.getNamespace(); }},
        {u"Explorers", Get, {}, other, [](auto& host) { return host.explorers(); }},
        {u"ActiveExplorer", Call, {}, other, [](auto& host) { return host.activeExplorer(); }},
        {u"Inspectors", Get, {}, other, [](auto& host) { return host.inspectors(); }},
        {u"ActiveInspector", Call, {}, other, [](auto& host) { return host.activeInspector(); }},
        {u"ActiveWindow", Call, {}, other, [](auto& host) { return host.activeWindow(); }},
        {u"Assistant", Get, {}, other, [](auto& host) { return host.assistant(); }},
        {u"CreateItem", Call, {0}, other, [](auto& host) { return host.createItem(ItemType::Mail); }},
        {u"CreateItem", Call, {6}, other, [](auto& host) { return host.createItem(ItemType::Post); }},
    });
}

TEST(NameSpaceFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    const Variant person = someObject();
    const Recipient recipient{automation::Object{person.dispatch()}};
    expectUses<NameSpace>({
        {u"Folders", Get, {}, other, [](auto& session) { return session.folders(); }},
        {u"GetDefaultFolder", Call, {9}, other,
            [](auto& session) { return session.getDefaultFolder(DefaultFolder::Calendar); }},
        {u"CreateRecipient", Call, {u"Room 1"}, other,
            [](auto& session) { return session.createRecipient(u"Room 1"); }},
        {u"GetSharedDefaultFolder", Call, {person, 6}, other,
            [&](auto& session) { return session.getSharedDefaultFolder(recipient, DefaultFolder::Inbox); }},
        {u"PickFolder", Call, {}, other, [](auto& session) { return session.pickFolder(); }},
        {u"GetFolderFromID", Call, {u"00AB", u"00CD"}, other,
            [](auto& session) { return session.getFolderFromId(u"00AB", u"00CD"); }},
        {u"GetItemFromID", Call, {u"00AB"}, other, [](auto& session) { return session.getItemFromId(u"00AB"); }},
    });
}

TEST(RecipientFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<Recipient>({
        {u"Name", Get, {}, u"Room 1", [](auto& recipient) { return recipient.name(); }},
        {u"Resolve", Call, {}, true, [](auto& recipient) { return recipient.resolve(); }},
        {u"Resolved", Get, {}, false, [](auto& recipient) { return recipient.resolved(); }},
    });
}

TEST(AssistantFace, UsesTheMembersOfTheObjectModel)
{
    expectUses<Assistant>({
        {u"Visible", Get, {}, true, [](auto& assistant) { return assistant.visible(); }},
        {u"Visible", Put, {true}, {}, [](auto& assistant) { assistant.setVisible(true); }},
        {u"DoAlert", Call, {u"Title", u"Text", 1, 3, 0, -1, false}, 2,
            [](auto& assistant) {
                return assistant.doAlert(u"Title", u"Text", AlertButtons::OkCancel, AlertIcon::Warning);
            }},
    });
}

} // namespace rf::outlook
