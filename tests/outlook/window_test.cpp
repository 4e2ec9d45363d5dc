#include "member_use.h"

#include "outlook/explorer.h"
#include "outlook/inspector.h"

namespace rf::outlook {

using namespace test;

TEST(WindowFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Window>({
        {u"Caption", Get, {}, u"Inbox", [](auto& window) { return window.caption(); }},
        {u"CommandBars", Get, {}, other, [](auto& window) { return window.commandBars(); }},
        {u"Activate", Call, {}, {}, [](auto& window) { window.activate(); }},
        {u"Display", Call, {}, {}, [](auto& window) { window.display(); }},
        {u"Left", Get, {}, 10, [](auto& window) { return window.left(); }},
        {u"Left", Put, {11}, {}, [](auto& window) { window.setLeft(11); }},
        {u"Top", Get, {}, 20, [](auto& window) { return window.top(); }},
        {u"Top", Put, {21}, {}, [](auto& window) { window.setTop(21); }},
        {u"Width", Get, {}, 30, [](auto& window) { return window.width(); }},
        {u"Width", Put, {31}, {}, [](auto& window) { window.setWidth(31); }},
        {u"Height", Get, {}, 40, [](auto& window) { return window.height(); }},
        {u"Height", Put, {41}, {}, [](auto& window) { window.setHeight(41); }},
        {u"WindowState", Get, {}, 1, [](auto& window) { return window.windowState(); }},
        {u"WindowState", Put, {2}, {}, [](auto& window) { window.setWindowState(WindowState::Normal); }},
    });
}

TEST(ExplorerFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    const Folder folder{automation::Object{other.dispatch()}};
    expectUses<Explorer>({
        {u"CurrentFolder", Get, {}, other, [](auto& explorer) { return explorer.currentFolder(); }},
        {u"CurrentFolder", Put, {other}, {}, [&](auto& explorer) { explorer.setCurrentFolder(folder); }},
        {u"Close", Call, {}, {}, [](auto& explorer) { explorer.close(); }},
        {u"Caption", Get, {}, u"Inbox", [](auto& explorer) { return explorer.caption(); }},
    });
}

TEST(ExplorersFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    const Variant calendar = someObject();
    const Folder folder{automation::Object{calendar.dispatch()}};
    expectUses<Explorers>({
        {u"Count", Get, {}, 1, [](auto& explorers) { return explorers.count(); }},
        {u"Item", Call, {1}, other, [](auto& explorers) { return explorers.item(1); }},
        {u"Add", Call, {calendar, 0}, other,
            [&](auto& explorers) { return explorers.add(folder, FolderDisplayMode::Normal); }},
    });
}

TEST(InspectorFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Inspector>({
        {u"CurrentItem", Get, {}, other, [](auto& inspector) { return inspector.currentItem(); }},
        {u"Close", Call, {1}, {}, [](auto& inspector) { inspector.close(CloseMode::Discard); }},
        {u"Display", Call, {}, {}, [](auto& inspector) { inspector.display(); }},
        {u"Display", Call, {true}, {}, [](auto& inspector) { inspector.display(true); }},
        {u"HideFormPage", Call, {u"Scheduling"}, {}, [](auto& inspector) { inspector.hideFormPage(u"Scheduling"); }},
    });
}

TEST(InspectorsFace, UsesTheMembersOfTheObjectModel)
{
    const Variant other = someObject();
    expectUses<Inspectors>({
        {u"Count", Get, {}, 3, [](auto& inspectors) { return inspectors.count(); }},
        {u"Item", Call, {3}, other, [](auto& inspectors) { return inspectors.item(3); }},
    });
}

} // namespace rf::outlook
