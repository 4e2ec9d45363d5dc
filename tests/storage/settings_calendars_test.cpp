#include "storage/frm_add_resource.h"
#include "storage/settings_fixture.h"

namespace rf::test {
namespace {

class ManagedCalendars : public InstallationTest {
protected:
    [[nodiscard]] std::vector<Text> calendars() const { return settings().Calendars.keys(); }
    void givePostOf(TextView subject) const
    {
        host::ItemRecord post;
        post.folder = root;
        post.messageClass = u"IPM.Post";
        post.subject = subject;
        store->save(post);
    }
};

TEST_F(ManagedCalendars, AreTheCalendarFoldersInTheRootFolder)
{
    addCalendar(u"Room 2");
    addCalendar(u"Room 1");
    session.objRootFolder.folders().add(u"Archive", outlook::DefaultFolder::Inbox);
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 2", u"Room 1"}));
    EXPECT_EQ(settings().Calendars.find(u"ROOM 1")->resourceName(), u"Room 1");
    EXPECT_FALSE(settings().Calendars.find(u"Room 1")->blnMailbox);
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(ManagedCalendars, AreTheMailboxesOfTheListToo)
{
    addCalendar(u"Room 1");
    givePost({text(u"Folders0", u"\r\nRita Roe\r\nroom 1\r\n\r\nBeamer"), number(u"FoldersCount", 0)});
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1", u"Rita Roe", u"Beamer"}));
    EXPECT_TRUE(settings().Calendars.find(u"Rita Roe")->blnMailbox);
    EXPECT_FALSE(settings().Calendars.find(u"Room 1")->blnMailbox) << "the folder comes first";
}

TEST_F(ManagedCalendars, AreWhateverIsDescribedWhereThereAreNoOthers)
{
    givePostOf(u"Beamer");
    givePost({});
    givePostOf(u"Rita Roe");
    givePostOf(u"beamer");
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Beamer", u"Rita Roe"}));
    EXPECT_EQ(posts(u"Beamer").size(), 1U) << "a second description of one resource goes";
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(ManagedCalendars, AreNotLookedForAmongTheDescriptionsWhereThereAreOthers)
{
    addCalendar(u"Room 1");
    givePostOf(u"Beamer");
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1"}));
}

TEST_F(ManagedCalendars, AreLookedForAmongTheDescriptionsWhereTheListIsTooShort)
{
    givePostOf(u"Beamer");
    givePost({text(u"Folders0", u"\r\n"), number(u"FoldersCount", 0)});
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Beamer"}));
}

TEST_F(ManagedCalendars, AreRebuiltEachTime)
{
    addCalendar(u"Room 1");
    settings().GetSettings(true);
    addCalendar(u"Room 2");
    settings().GetCalendars();
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1", u"Room 2"}));
}

TEST_F(ManagedCalendars, ThatAreMissingAreAskedForUntilTheUserDeclines)
{
    EXPECT_THROW(settings().GetSettings(true), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text, u"No calendars found!\r\nWould you like to add a new calendar now?");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::YesNo, ui::Icon::None}));
    EXPECT_FALSE(session.ouaApp);
}

TEST_F(ManagedCalendars, ThatAreMissingAreNotAskedForWithoutAUser)
{
    settings().GetSettings(false);
    EXPECT_TRUE(toolkit.messages.empty());
    EXPECT_EQ(settings().Calendars.count(), 0);
}

TEST_F(ManagedCalendars, AreAskedForAgainAfterADialogThatAddedNone)
{
    toolkit.answers = {ui::Answer::Yes, ui::Answer::Yes, ui::Answer::No};
    EXPECT_THROW(settings().GetSettings(true), ProgramEnded);
    EXPECT_EQ(toolkit.messages.size(), 3U);
}

TEST_F(ManagedCalendars, AreThereOnceTheDialogHasAddedOne)
{
    const auto explorer
        = application.explorers().add(application.getNamespace().getDefaultFolder(outlook::DefaultFolder::Calendar),
            outlook::FolderDisplayMode::Normal);
    explorer.activate();
    toolkit.answers = {ui::Answer::Yes};
    toolkit.whileShown = [&] { addCalendar(u"Room 1"); };
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Room 1"}));
    EXPECT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(explorer.currentFolder().name(), u"Roomfold") << "the home page is loaded anew";
    EXPECT_EQ(session.forms.find(frmAddResource::formName), nullptr);
}

TEST_F(ManagedCalendars, AreThereOnceTheDialogHasListedAMailbox)
{
    toolkit.answers = {ui::Answer::Yes};
    toolkit.whileShown = [&] {
        const auto item = session.objRootFolder.items().item(u"Settings");
        item.userProperties().add(u"Folders0", outlook::UserPropertyType::Text, false).setValue(u"\r\nRita Roe");
        item.save();
    };
    settings().GetSettings(true);
    EXPECT_EQ(calendars(), (std::vector<Text>{u"Rita Roe"}));
}

TEST_F(ManagedCalendars, ThatCannotBeReadAreReported)
{
    addCalendar(u"Room 1");
    settings().GetSettings(true);
    const auto fault = std::make_shared<Fault>();
    fault->failingMember = u"DefaultItemType";
    session.objRootFolder = outlook::Folder{FaultyDispatch::wrap(session.objRootFolder.object(), fault)};
    EXPECT_THROW(settings().GetCalendars(), ProgramEnded);
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_NE(toolkit.messages[0].text.find(u"cSettings.GetCalendars"), Text::npos);
}

} // namespace
} // namespace rf::test
