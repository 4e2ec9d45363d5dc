#include "storage/frm_add_resource.h"

#include "diagnostics/product.h"
#include "storage/resource_addition.h"
#include "storage/settings_fixture.h"
#include "support/faulty_dispatch.h"

namespace rf::test {
namespace {

/// An administrator in front of the dialog.
class AddResource : public InstallationTest {
protected:
    AddResource()
    {
        addCalendar(u"Room 1");
        settings().GetSettings(false);
    }

    RecordingWindow& open()
    {
        session.forms.load(std::make_shared<frmAddResource>(session));
        return *toolkit.lastWindow();
    }
    void add(const Text& name, TextView where)
    {
        auto& window = open();
        window.type(u"txtResourceName", name);
        window.choose(where);
        window.press(u"cmdOK");
    }
    [[nodiscard]] bool isOpen() const { return session.forms.find(frmAddResource::formName) != nullptr; }
    [[nodiscard]] std::optional<host::FolderRecord> folderOf(const Text& name) const
    {
        return host::folderAt(*store, u"Public Folders\\All Public Folders\\Roomfold\\" + name);
    }
    [[nodiscard]] std::vector<Text> calendars()
    {
        settings().GetCalendars();
        return settings().Calendars.keys();
    }
    void setRootPage(const Text& address) const
    {
        auto record = *host::folderAt(*store, u"Public Folders\\All Public Folders\\Roomfold");
        record.webViewUrl = address;
        store->updateFolder(record);
    }
    void failAt(const Text& member)
    {
        fault->failingMember = member;
        session.objRootFolder = outlook::Folder{FaultyDispatch::wrap(session.objRootFolder.object(), fault)};
    }

    std::shared_ptr<Fault> fault = std::make_shared<Fault>();
};

TEST_F(AddResource, SpeaksTheUsersLanguage)
{
    const auto& window = open();
    EXPECT_EQ(window.caption(), u"Add calendar");
    EXPECT_EQ(window.labelOf(u"lblResourceName"), u"Enter name");
    EXPECT_EQ(window.at<ui::OptionButton>(u"optPublicFolder").caption(), u"Public folder");
    EXPECT_EQ(window.at<ui::OptionButton>(u"optMailbox").caption(), u"Directly in a mailbox");
    EXPECT_EQ(window.at<ui::Button>(u"cmdOK").caption(), u"OK");
    EXPECT_EQ(window.at<ui::Button>(u"cmdCancel").caption(), u"Cancel");
    EXPECT_EQ(session.forms.find(frmAddResource::formName)->caption(), u"Add calendar");
}

TEST_F(AddResource, BeginsWithAPublicFolder) { EXPECT_TRUE(open().at<ui::OptionButton>(u"optPublicFolder").value()); }

TEST_F(AddResource, HoldsItsControlsInsideItsWindow)
{
    const auto& window = open();
    for (const auto& control : window.controls()) {
        const auto bounds = control->bounds();
        EXPECT_GE(bounds.left, 0);
        EXPECT_GE(bounds.top, 0);
        EXPECT_LE(bounds.left + bounds.width, window.size().first) << toUtf8(control->name());
        EXPECT_LE(bounds.top + bounds.height, window.size().second) << toUtf8(control->name());
    }
}

TEST_F(AddResource, MakesACalendarInTheRootFolderWithTheRedirectPage)
{
    add(u"Room 2", u"optPublicFolder");
    const auto folder = folderOf(u"Room 2");
    ASSERT_TRUE(folder);
    EXPECT_EQ(folder->defaultItemType, outlook::code(outlook::ItemType::Appointment));
    EXPECT_EQ(folder->webViewUrl, u"file:///pages/RFRedirect.htm");
    EXPECT_TRUE(folder->webViewOn);
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1", u"Room 2"}));
    EXPECT_FALSE(stored(u"FoldersCount")) << "a folder is found where it lies";
}

TEST_F(AddResource, ListsAMailboxWithTheSettings)
{
    add(u"Rita Roe", u"optMailbox");
    add(u"Max Moe", u"optMailbox");
    EXPECT_EQ(stored(u"Folders0"), automation::Variant{u"\r\nRita Roe\r\nMax Moe"});
    EXPECT_EQ(stored(u"FoldersCount"), automation::Variant{0.0});
    EXPECT_FALSE(folderOf(u"Rita Roe"));
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1", u"Rita Roe", u"Max Moe"}));
}

TEST_F(AddResource, SplitsALongList)
{
    const Text first(700, u'a');
    const Text second(700, u'b');
    add(first, u"optMailbox");
    add(second, u"optMailbox");
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1", first, second}));
}

TEST_F(AddResource, WithANameThatIsACalendarAlreadyChangesNothingAndShowsNoMessage)
{
    const auto folders = store->folders().size();
    const auto revision = settingsPost().revision;
    for (const TextView place : {u"optPublicFolder", u"optMailbox"}) {
        add(u"Room 1", place);
        add(u"ROOM 1", place);
    }
    EXPECT_EQ(store->folders().size(), folders);
    EXPECT_EQ(settingsPost().revision, revision);
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_TRUE(isOpen());
}

TEST_F(AddResource, WithoutANameDoesNothing)
{
    const auto folders = store->folders().size();
    open().press(u"cmdOK");
    EXPECT_EQ(store->folders().size(), folders);
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_TRUE(isOpen());
}

TEST_F(AddResource, CopiesARootPageThatNamesNeitherStartPageUnchanged)
{
    setRootPage(u"file:///pages/ROOMFOLD.HTM");
    add(u"Room 2", u"optPublicFolder");
    EXPECT_EQ(folderOf(u"Room 2")->webViewUrl, u"file:///pages/ROOMFOLD.HTM");
}

TEST_F(AddResource, ReplacesEitherStartPageWhereverItStands)
{
    EXPECT_EQ(fncRedirectPage(u"file:///Roomfold.htm/x?Roomfold.htm"), u"file:///RFRedirect.htm/x?RFRedirect.htm");
    EXPECT_EQ(fncRedirectPage(u"http://x/RoomfoldNoMSCal.htm"), u"http://x/RFRedirect.htm");
    EXPECT_EQ(fncRedirectPage(u"http://x/roomfold.htm"), u"http://x/roomfold.htm");
    EXPECT_EQ(fncRedirectPage(u""), u"");
}

TEST_F(AddResource, TellsWhyAFolderCannotBeMadeAndStays)
{
    failAt(u"Add");
    add(u"Room 2", u"optPublicFolder");
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text,
        u"Failed to create a new folder in that location!\r\nCheck that you have the appropriate permissions!\r\n"
            + decimal(injectedErrorNumber) + u":The operation failed.");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
    EXPECT_EQ(toolkit.messages[0].caption, productCaption);
    EXPECT_TRUE(isOpen());
    fault->failingMember.reset();
    toolkit.lastWindow()->press(u"cmdOK");
    EXPECT_TRUE(folderOf(u"Room 2"));
}

TEST_F(AddResource, TellsThatAFolderCannotBeGivenItsPage)
{
    failAt(u"WebViewOn");
    add(u"Room 2", u"optPublicFolder");
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_TRUE(toolkit.messages[0].text.starts_with(u"Failed to create a new folder in that location!\r\n"));
}

TEST_F(AddResource, TellsWhyTheSettingsCannotBeSavedAndStays)
{
    failAt(u"Save");
    add(u"Rita Roe", u"optMailbox");
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text,
        u"Failed to save settings\r\nCheck that you have the appropriate permissions!\r\n"
            + decimal(injectedErrorNumber) + u"\r\nThe operation failed.");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
    EXPECT_EQ(toolkit.messages[0].caption, productCaption);
    EXPECT_TRUE(isOpen());
    EXPECT_FALSE(stored(u"FoldersCount"));
}

TEST_F(AddResource, ClosesWithoutChangeWhenItIsCancelled)
{
    const auto folders = store->folders().size();
    auto& window = open();
    window.type(u"txtResourceName", u"Room 2");
    window.press(u"cmdCancel");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(store->folders().size(), folders);
}

TEST_F(AddResource, IsUnloadedWhenItsWindowIsClosed)
{
    open().closeBySystemBox();
    EXPECT_FALSE(isOpen());
}

TEST_F(AddResource, HasNothingOnTheScreenBeforeItIsLoaded)
{
    frmAddResource form{session};
    form.show();
    form.showModal();
    form.setFocus();
    form.unload();
    EXPECT_EQ(form.caption(), u"");
    EXPECT_EQ(form.window(), 0);
    EXPECT_TRUE(toolkit.formWindows.empty());
}

TEST_F(AddResource, IsShownBesideTheProgramToo)
{
    const auto& window = open();
    const auto form = session.forms.find(frmAddResource::formName);
    form->show();
    form->setFocus();
    EXPECT_TRUE(window.isShown());
    EXPECT_EQ(form->window(), window.handle());
    form->unload();
    EXPECT_FALSE(window.isShown());
}

TEST_F(AddResource, IsShownUntilItIsClosed)
{
    bool shown = false;
    toolkit.whileModal = [&](RecordingWindow& window) {
        shown = window.isShown() && isOpen();
        window.type(u"txtResourceName", u"Room 2");
        window.press(u"cmdOK");
        EXPECT_FALSE(window.isShown());
    };
    subShowAddResource(session);
    EXPECT_TRUE(shown);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(folderOf(u"Room 2"));
    EXPECT_TRUE(toolkit.formWindows.empty());
}

class FirstCalendar : public InstallationTest { };

TEST_F(FirstCalendar, ComesThroughTheDialogWhereThereIsNone)
{
    toolkit.answers = {ui::Answer::Yes};
    toolkit.whileModal = [](RecordingWindow& window) {
        window.type(u"txtResourceName", u"Room 2");
        window.press(u"cmdOK");
    };
    settings().GetSettings(true);
    EXPECT_EQ(settings().Calendars.keys(), (std::vector<Text>{u"Room 2"}));
    EXPECT_EQ(toolkit.messages.size(), 1U);
}

} // namespace
} // namespace rf::test
