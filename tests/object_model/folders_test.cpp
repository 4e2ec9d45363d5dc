#include "object_model/object_model.h"

#include "host/host_error.h"

namespace rf::test {
namespace {

class FolderObjects : public ObjectModel { };

TEST_P(FolderObjects, AnswerByPositionAndByName)
{
    const auto stores = application.getNamespace().folders();
    EXPECT_EQ(stores.count(), 3);
    EXPECT_EQ(stores.item(1).name(), u"Public Folders");
    EXPECT_EQ(stores.item(u"mailbox - jane doe").folders().item(u"Calendar").name(), u"Calendar");
}

TEST_P(FolderObjects, FailOnAMiss)
{
    const auto stores = application.getNamespace().folders();
    EXPECT_EQ(errorOf([&] { static_cast<void>(stores.item(4)); }), host::host_error::notFound);
    EXPECT_EQ(errorOf([&] { static_cast<void>(stores.item(u"nowhere")); }), host::host_error::notFound);
}

TEST_P(FolderObjects, KnowTheDefaultFoldersOfTheUser)
{
    const auto own = application.getNamespace().getDefaultFolder(outlook::DefaultFolder::Calendar);
    EXPECT_EQ(own.name(), u"Calendar");
    EXPECT_EQ(own.parent().name(), u"Mailbox - Jane Doe");
    EXPECT_EQ(own.defaultItemType(), outlook::ItemType::Appointment);
}

TEST_P(FolderObjects, KnowTheDefaultFoldersOfOtherPeople)
{
    const auto session = application.getNamespace();
    const auto rita = session.createRecipient(u"rita roe");
    EXPECT_TRUE(rita.resolve());
    EXPECT_EQ(
        session.getSharedDefaultFolder(rita, outlook::DefaultFolder::Calendar).parent().name(), u"Mailbox - Rita Roe");
    const auto nobody = session.createRecipient(u"Nobody");
    EXPECT_FALSE(nobody.resolve());
    EXPECT_NE(
        errorOf([&] { static_cast<void>(session.getSharedDefaultFolder(nobody, outlook::DefaultFolder::Calendar)); }),
        0);
}

TEST_P(FolderObjects, BelongToOneSessionHoweverOftenItIsAsked)
{
    EXPECT_TRUE(application.getNamespace() == application.getNamespace());
    const auto publicFolders = application.getNamespace().folders().item(1);
    EXPECT_FALSE(publicFolders.parent().isFolder());
    EXPECT_TRUE(publicFolders.parent().object() == application.getNamespace().object());
}

TEST_P(FolderObjects, AreAsOtherProcessesLeaveThem)
{
    const auto own = calendar();
    const outlook::Application elsewhere{automation::Object{secondHost(u"Rita Roe")}};
    const auto theirs = elsewhere.getNamespace().getFolderFromId(folder(root).entryId(), {}).folders();
    theirs.add(u"Room 2", outlook::DefaultFolder::Calendar);
    EXPECT_EQ(folder(root).folders().item(u"Room 2").defaultItemType(), outlook::ItemType::Appointment);

    host::FolderRecord renamed = *store.folder(room);
    renamed.name = u"Large room";
    store.updateFolder(renamed);
    EXPECT_EQ(own.name(), u"Large room");
    EXPECT_EQ(errorOf([&] { static_cast<void>(folder(root).folders().item(u"Room 1")); }), host::host_error::notFound);

    store.removeFolder(room);
    EXPECT_EQ(folder(root).folders().count(), 1);
    EXPECT_EQ(errorOf([&] { static_cast<void>(own.name()); }), host::host_error::notFound);
    EXPECT_EQ(errorOf([&] { static_cast<void>(own.items()); }), host::host_error::notFound);
}

TEST_P(FolderObjects, AreFoundAgainByTheirIds)
{
    const auto room1 = calendar();
    const auto again = application.getNamespace().getFolderFromId(room1.entryId(), room1.storeId());
    EXPECT_EQ(again.name(), u"Room 1");
    EXPECT_TRUE(again == room1);
    EXPECT_EQ(errorOf([&] { static_cast<void>(application.getNamespace().getFolderFromId(u"EF00", {})); }),
        host::host_error::notFound);
}

TEST_P(FolderObjects, BelongToTheirStore)
{
    EXPECT_EQ(calendar().storeId(), folder(root).storeId());
    EXPECT_NE(
        calendar().storeId(), application.getNamespace().getDefaultFolder(outlook::DefaultFolder::Calendar).storeId());
}

TEST_P(FolderObjects, AreAddedForTheItemsOfADefaultFolder)
{
    const auto added = folder(root).folders().add(u"Room 2", outlook::DefaultFolder::Calendar);
    EXPECT_EQ(added.defaultItemType(), outlook::ItemType::Appointment);
    EXPECT_EQ(folder(root).folders().count(), 2);
    EXPECT_NE(errorOf([&] { folder(root).folders().add(u"ROOM 2", outlook::DefaultFolder::Calendar); }), 0);
    EXPECT_NE(errorOf([&] { folder(root).folders().add(u" ", outlook::DefaultFolder::Calendar); }), 0);
}

TEST_P(FolderObjects, HaveAHomePage)
{
    EXPECT_EQ(folder(root).webViewUrl(), u"file:///roomfold/Roomfold.htm");
    EXPECT_TRUE(folder(root).webViewOn());
    calendar().setWebViewUrl(u"file:///roomfold/RFRedirect.htm");
    calendar().setWebViewOn(true);
    EXPECT_EQ(calendar().webViewUrl(), u"file:///roomfold/RFRedirect.htm");
    EXPECT_TRUE(calendar().webViewOn());
}

TEST_P(FolderObjects, ArePickedByThePerson)
{
    EXPECT_FALSE(application.getNamespace().pickFolder());
    windows.picked = room;
    EXPECT_EQ(application.getNamespace().pickFolder().name(), u"Room 1");
}

class WindowObjects : public ObjectModel { };

TEST_P(WindowObjects, OfFoldersAreAddedAndBroughtToTheFront)
{
    EXPECT_EQ(application.explorers().count(), 0);
    EXPECT_FALSE(application.activeExplorer());
    const auto explorer = application.explorers().add(calendar(), outlook::FolderDisplayMode::Normal);
    EXPECT_EQ(application.explorers().count(), 1);
    explorer.activate();
    EXPECT_EQ(application.activeExplorer().currentFolder().name(), u"Room 1");
    EXPECT_EQ(application.activeWindow().caption(), u"Room 1 - Outlook");
}

TEST_P(WindowObjects, HideAPageOfTheirFormAndFailOnAnUnknownOne)
{
    newAppointment(u"Board", at(9), 60).display();
    const auto inspector = application.activeInspector();
    inspector.hideFormPage(u"Scheduling");
    EXPECT_EQ(errorOf([&] { inspector.hideFormPage(u"Terminplanung"); }), host::host_error::badArgument);
}

TEST_P(WindowObjects, HaveCommandBars)
{
    newAppointment(u"Board", at(9), 60).display();
    const auto bars = application.activeInspector().commandBars();
    const auto bar = bars.add(u"Booking", outlook::BarPosition::Top, false, true);
    bar.setVisible(true);
    bar.setPosition(outlook::BarPosition::Top);
    EXPECT_EQ(bars.item(bars.count()).name(), u"Booking");
    EXPECT_TRUE(bar.visible());
    const auto control = bars.findControl(outlook::host_control::inviteAttendees);
    ASSERT_TRUE(control);
    control.setVisible(false);
    EXPECT_FALSE(bars.findControl(outlook::host_control::inviteAttendees).visible());
}

TEST_P(WindowObjects, StandWhereTheyArePut)
{
    newAppointment(u"Board", at(9), 60).display();
    application.explorers().add(calendar(), outlook::FolderDisplayMode::Normal).activate();
    for (const outlook::Window& window : {outlook::Window{application.activeInspector().object()},
             outlook::Window{application.activeExplorer().object()}}) {
        window.setLeft(10);
        window.setTop(-20);
        window.setWidth(640);
        window.setHeight(480);
        window.setWindowState(outlook::WindowState::Maximized);
        EXPECT_EQ(window.left(), 10);
        EXPECT_EQ(window.top(), -20);
        EXPECT_EQ(window.width(), 640);
        EXPECT_EQ(window.height(), 480);
        EXPECT_EQ(window.windowState(), outlook::WindowState::Maximized);
        EXPECT_NE(errorOf([&] { window.object().put(u"WindowState", 3); }), 0);
        EXPECT_EQ(window.windowState(), outlook::WindowState::Maximized);
    }
}

TEST_P(WindowObjects, LoseATemporaryBarWithTheirEnd)
{
    const auto item = booked(u"Board", at(9), 60);
    item.display();
    const auto before = application.activeInspector().commandBars().count();
    application.activeInspector().commandBars().add(u"Booking", outlook::BarPosition::Top, false, true);
    item.close(outlook::CloseMode::Discard);
    item.display();
    EXPECT_EQ(application.activeInspector().commandBars().count(), before);
    EXPECT_FALSE(application.activeInspector().commandBars().findControl(4711));
}

TEST_P(WindowObjects, OfFoldersHaveTheBarOfTheHomePage)
{
    const auto explorer = application.explorers().add(calendar(), outlook::FolderDisplayMode::Normal);
    const auto web = explorer.commandBars().item(outlook::host_control::webBar);
    EXPECT_EQ(web.controls().item(1).id(), outlook::host_control::refreshPage);
    web.controls().item(1).execute();
}

TEST_P(WindowObjects, ShowAlertsAndAnswerWithTheButton)
{
    windows.answer = 2;
    application.assistant().setVisible(true);
    EXPECT_EQ(application.assistant().doAlert(
                  u"Title", u"Text", outlook::AlertButtons::OkCancel, outlook::AlertIcon::Critical),
        2);
    EXPECT_EQ(windows.alerts, (std::vector<Text>{u"Title|Text|1|1"}));
}

TEST_P(WindowObjects, OfANewMailAreShownForSending)
{
    const auto mail = application.createItem(outlook::ItemType::Mail).as<outlook::MailItem>();
    mail.setTo(u"support@roomfold.example");
    mail.setSubject(u"Error");
    mail.save();
    mail.display();
    EXPECT_EQ(application.activeInspector().currentItem().subject(), u"Error");
}

RF_EVERY_TRANSPORT(FolderObjects);
RF_EVERY_TRANSPORT(WindowObjects);

} // namespace
} // namespace rf::test
