#include "outlook/events.h"
#include "storage/folder_picker.h"
#include "storage/home_page.h"
#include "storage/storage_fixture.h"

namespace rf {
namespace {

class FolderPicker : public test::StorageTest {
protected:
    class Form final : public ui::Form {
    public:
        [[nodiscard]] TextView name() const override { return u"frmSettings"; }
        [[nodiscard]] Text caption() const override { return u"Settings"; }
        void setFocus() override { ++focused; }
        int focused = 0;
    };

    Form form;
};

TEST_F(FolderPicker, GivesTheFolderThatTheUserPicks)
{
    windows.picked = rootId;
    EXPECT_EQ(fncPickFolder(session, nullptr), session.objRootFolder);
}

TEST_F(FolderPicker, GivesNoneWhenTheUserCancels)
{
    EXPECT_FALSE(fncPickFolder(session, nullptr));
    EXPECT_FALSE(fncPickFolder(session, &form));
}

TEST_F(FolderPicker, BringsTheHostToTheFrontAndTheFormBack)
{
    const Text hostCaption = session.ouaApp.activeWindow().caption();
    static_cast<void>(fncPickFolder(session, &form));
    EXPECT_EQ(toolkit.activated, (std::vector<Text>{hostCaption, u"Settings"}));
    EXPECT_EQ(form.focused, 1);
}

TEST_F(FolderPicker, BringsTheFormBackThoughTheHostFails)
{
    putFaultBeforeHost();
    static_cast<void>(fncPickFolder(session, nullptr));
    const int uses = fault->uses;
    for (int use = 1; use <= uses; ++use) {
        *fault = {.uses = 0, .failingUse = use};
        form.focused = 0;
        static_cast<void>(fncPickFolder(session, &form));
        EXPECT_EQ(form.focused, 1) << use;
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

TEST_F(FolderPicker, AttachesToTheHostFirst)
{
    session.ouaApp = {};
    windows.picked = rootId;
    EXPECT_TRUE(fncPickFolder(session, nullptr));
}

TEST_F(FolderPicker, EndsTheProgramWithoutAHost)
{
    session.ouaApp = {};
    classes.runningObjects.clear();
    EXPECT_THROW(static_cast<void>(fncPickFolder(session, nullptr)), test::ProgramEnded);
}

class HomePage : public test::StorageTest { };

TEST_F(HomePage, IsShownAnewByWayOfTheFolderAbove)
{
    session.objRootFolder.setWebViewOn(false);
    const auto explorer = session.ouaApp.activeExplorer();
    std::vector<Text> shown;
    const auto connection = outlook::connect(
        explorer, outlook::ExplorerEvents{.folderSwitch = [&] { shown.push_back(explorer.currentFolder().name()); }});
    subRefreshRFHomepage(session);
    EXPECT_TRUE(session.objRootFolder.webViewOn());
    EXPECT_EQ(shown, (std::vector<Text>{u"All Public Folders", u"Roomfold"}));
    EXPECT_EQ(session.objCurrentFolder, session.objRootFolder);
    EXPECT_EQ(session.trace.fncLastAction(), u"Refreshing the homepage.");
}

TEST_F(HomePage, IsLeftAloneWhileNoRootFolderIsKnown)
{
    session.objRootFolder = {};
    subRefreshRFHomepage(session);
    EXPECT_FALSE(session.objCurrentFolder);
    EXPECT_EQ(session.ouaApp.activeExplorer().currentFolder().name(), u"Calendar");
}

TEST_F(HomePage, FailsSilently)
{
    putFaultBeforeHost();
    for (int use = 1; use <= 5; ++use) {
        *fault = {.uses = 0, .failingUse = use};
        EXPECT_NO_THROW(subRefreshRFHomepage(session)) << use;
    }
    EXPECT_TRUE(toolkit.messages.empty());
}

} // namespace
} // namespace rf
