#include "booking/root_lookup.h"

#include "app/attachment.h"
#include "host/installation.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

using test::ProgramEnded;

constexpr ui::MessageStyle questionStyle{ui::Buttons::OkCancel, ui::Icon::Question};

/// A host that shows the calendar of a mailbox; the installation lies in the public folders.
class RootLookup : public test::SessionTest {
protected:
    void SetUp() override
    {
        runHost();
        root = host::ensureRoomfoldRoot(*store, u"Roomfold", u"file://server/pages/Roomfold.htm");
        classes.runningObjects[Text{outlook::applicationClass}] = automation::Object{host};
    }

    /// A program that is attached to the host and speaks already.
    Session& started()
    {
        fncStartOutlook(session, outlook::DefaultFolder::Calendar);
        session.language.LoadLanguages(session.language.fncGetlocalLanguage());
        return session;
    }

    void show(host::FolderId id) const
    {
        host->explorers().add(std::make_shared<host::Folder>(host->model().shared_from_this(), id))->activate();
    }
    [[nodiscard]] host::FolderId otherFolder(TextView name, TextView page, outlook::ItemType type) const
    {
        host::FolderRecord record;
        record.parent = folder(host::FolderRole::MailboxRoot)->id();
        record.name = name;
        record.webViewUrl = page;
        record.defaultItemType = static_cast<std::int32_t>(type);
        return store->addFolder(record);
    }
    [[nodiscard]] bool asksOnlyForAFolder() const
    {
        return toolkit.messages.size() == 1 && toolkit.messages[0].style == questionStyle;
    }

    host::FolderId root{};
    Session session{services()};
};

TEST_F(RootLookup, FindsTheRootThatTheExplorerShowsWithoutAQuestion)
{
    show(root);
    subGetRoot(started());
    EXPECT_EQ(session.objRootFolder.name(), u"Roomfold");
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(RootLookup, AcceptsAHomePageInAnyCase)
{
    for (const TextView page : {u"c:\\pages\\roomfold.htm", u"C:\\PAGES\\ROOMFOLD.HTM", u"RoomFold.Htm"}) {
        show(otherFolder(page, page, outlook::ItemType::Post));
        EXPECT_EQ(fncGetRoot(started()).webViewUrl(), page);
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(RootLookup, TakesTheShownFolderWhateverItHolds)
{
    show(otherFolder(u"Calendars", u"roomfold.htm", outlook::ItemType::Appointment));
    EXPECT_EQ(fncGetRoot(started()).name(), u"Calendars");
}

TEST_F(RootLookup, AsksWhereAnotherPageOnlyContainsTheName)
{
    for (const TextView page : {u"roomfold.html", u"roomfold.htm?x=1", u"oomfold.htm", u"m", u""}) {
        show(otherFolder(u"Other " + Text{page}, page, outlook::ItemType::Post));
        toolkit.messages.clear();
        EXPECT_THROW(static_cast<void>(fncGetRoot(started())), ProgramEnded) << toUtf8(page);
        EXPECT_TRUE(asksOnlyForAFolder()) << toUtf8(page);
        fncStartOutlook(session, outlook::DefaultFolder::Calendar);
    }
}

TEST_F(RootLookup, EndsTheProgramOnCancelAtTheFirstQuestionWithoutTouchingAFolder)
{
    show(folder(host::FolderRole::Calendar)->id());
    windows.picked = root;
    const auto changes = store->lastChange();
    EXPECT_THROW(subGetRoot(started()), ProgramEnded);
    ASSERT_TRUE(asksOnlyForAFolder());
    EXPECT_EQ(toolkit.messages[0].text, u"Choose folder …");
    EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook 5.0");
    EXPECT_EQ(store->lastChange(), changes);
    EXPECT_TRUE(toolkit.activated.empty()) << "the host's folder dialog was not asked for";
    EXPECT_FALSE(session.objRootFolder);
    EXPECT_FALSE(session.ouaApp);
}

TEST_F(RootLookup, TakesTheFolderThatTheUserPicks)
{
    show(folder(host::FolderRole::Calendar)->id());
    windows.picked = root;
    toolkit.answers = {ui::Answer::Ok};
    subGetRoot(started());
    EXPECT_EQ(session.objRootFolder.name(), u"Roomfold");
    EXPECT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.activated, (std::vector<Text>{u"Calendar - Outlook"})) << "the host came to the front";
}

TEST_F(RootLookup, SaysSoWhenThePickedFolderIsNoInstallationAndAsksAgain)
{
    show(folder(host::FolderRole::Calendar)->id());
    windows.picked = folder(host::FolderRole::Inbox)->id();
    toolkit.answers = {ui::Answer::Ok, ui::Answer::Ok, ui::Answer::Ok};
    toolkit.whileShown = [&] {
        if (toolkit.messages.size() == 3)
            windows.picked = root;
    };
    EXPECT_EQ(fncGetRoot(started()).name(), u"Roomfold");
    ASSERT_EQ(toolkit.messages.size(), 3U);
    EXPECT_EQ(toolkit.messages[1].text,
        u"This is not a Roomfold for Outlook "
        u"folder! Select a valid installation.");
    EXPECT_EQ(toolkit.messages[1].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::None}));
    EXPECT_EQ(toolkit.messages[1].caption, u"RFBookingInfo");
    EXPECT_EQ(toolkit.messages[2].style, questionStyle);
}

TEST_F(RootLookup, RefusesAPickedFolderThatHoldsNoPostsWhateverItsPage)
{
    show(folder(host::FolderRole::Calendar)->id());
    windows.picked = otherFolder(u"Calendars", u"Roomfold.htm", outlook::ItemType::Appointment);
    toolkit.answers = {ui::Answer::Ok, ui::Answer::Ok, ui::Answer::Cancel};
    EXPECT_THROW(static_cast<void>(fncGetRoot(started())), ProgramEnded);
    EXPECT_EQ(toolkit.messages.size(), 3U);
}

TEST_F(RootLookup, AsksAgainWhenThePickerIsCancelled)
{
    show(folder(host::FolderRole::Calendar)->id());
    toolkit.answers = {ui::Answer::Ok, ui::Answer::Ok, ui::Answer::Cancel};
    EXPECT_THROW(static_cast<void>(fncGetRoot(started())), ProgramEnded);
    EXPECT_EQ(toolkit.messages.size(), 3U);
}

TEST_F(RootLookup, LoadsThePhrasesBeforeItsQuestion)
{
    show(folder(host::FolderRole::Calendar)->id());
    fncStartOutlook(session, outlook::DefaultFolder::Calendar);
    ASSERT_TRUE(session.language.phrases().LNGCHOOSEFOLDER.empty());
    EXPECT_THROW(static_cast<void>(fncGetRoot(session)), ProgramEnded);
    EXPECT_EQ(toolkit.messages.at(0).text, u"Choose folder …");
}

TEST_F(RootLookup, AttachesToTheHostWhenItIsNotHeld)
{
    show(root);
    subGetRoot(session);
    EXPECT_TRUE(session.ouaApp);
    EXPECT_EQ(session.objRootFolder.name(), u"Roomfold");
}

TEST_F(RootLookup, EndsTheProgramAtOnceBesideAHostWithoutAnExplorer)
{
    session.ouaApp = outlook::Application{automation::Object{host}};
    EXPECT_THROW(subGetRoot(session), ProgramEnded);
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(RootLookup, StopsInGoodOrder)
{
    show(root);
    subGetRoot(started());
    EXPECT_THROW(subQuit(session), ProgramEnded);
    EXPECT_FALSE(session.objRootFolder);
    EXPECT_FALSE(session.ouaApp);
}

/// Whichever call fails, the root is found or the user is asked; nothing is reported and nothing is written.
TEST_F(RootLookup, AsksWhereTheHostFailsAtAnyOneCall)
{
    show(root);
    int asked = 0;
    bool struck = true;
    for (int use = 1; struck; ++use) {
        const auto fault = std::make_shared<test::Fault>(test::Fault{0, use});
        Session other{services()};
        other.ouaApp = outlook::Application{test::FaultyDispatch::wrap(automation::Object{host}, fault)};
        toolkit.messages.clear();
        try {
            subGetRoot(other);
            EXPECT_TRUE(other.objRootFolder) << "at use " << use;
        } catch (const ProgramEnded&) {
            EXPECT_TRUE(toolkit.messages.empty() || asksOnlyForAFolder()) << "at use " << use;
            asked += static_cast<int>(toolkit.messages.size());
        }
        struck = fault->uses >= use;
    }
    EXPECT_EQ(asked, 3) << "the explorer, its folder and the folder's page";
    EXPECT_EQ(store->lastChange(), 0);
}

} // namespace
} // namespace rf
