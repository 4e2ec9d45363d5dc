#include "storage/settings_fixture.h"

namespace rf::test {
namespace {

/// An installation whose settings post somebody else deletes just before one of the program's calls.
class SettingsUnderDeletion : public InstallationTest {
protected:
    SettingsUnderDeletion() { addCalendar(u"Room 1"); }

    void giveFullPost() const
    {
        givePost({text(u"strSupply0", u"Coffee\t2.5\r\n"), number(u"strSupplyCount", 0), truth(u"blnNoRecurring", true),
            text(u"strDefaultPlaceSetting", u"U")});
    }
    void deletePosts() const
    {
        for (const auto& post : posts(u"Settings"))
            store->remove(post.id);
    }

    /// `step(program)` once for every call that it makes; the post is there when it begins and goes before that call.
    template <class Step, class Check>
    void atEveryUse(Step&& step, Check&& check)
    {
        for (int use = 1;; ++use) {
            SCOPED_TRACE("at use " + std::to_string(use));
            deletePosts();
            giveFullPost();
            const auto fault = std::make_shared<Fault>();
            Session other{services()};
            other.ouaApp = application;
            other.ounNameSpace = session.ounNameSpace;
            other.objRootFolder = outlook::Folder{FaultyDispatch::wrap(session.objRootFolder.object(), fault)};
            other.objSettings = std::make_unique<cSettings>(other);
            toolkit.messages.clear();
            fault->failingUse = use;
            fault->instead = [this] { deletePosts(); };
            step(*other.objSettings);
            if (fault->uses < use) {
                EXPECT_GT(use, 100) << "the step has to use the host";
                return;
            }
            check();
        }
    }

    /// A start of the program finds or makes one post, and the installation's calendars are as they were.
    void expectNextStart()
    {
        cSettings next{session};
        next.GetSettings(false);
        EXPECT_EQ(posts(u"Settings").size(), 1U);
        EXPECT_EQ(next.Calendars.keys(), (std::vector<Text>{u"Room 1"}));
        EXPECT_EQ(next.KCFormat, u"1");
    }
};

/// Each value is the one that was stored or the one that a missing property counts as, and never more than one post is
/// made in place of the one that has gone.
TEST_F(SettingsUnderDeletion, AreLoadedAsFarAsTheyAreThere)
{
    atEveryUse(
        [&](cSettings& settings) {
            settings.GetSettings(true);
            const Text supplies = settings.fncBuildSupplyList();
            EXPECT_TRUE(supplies == u"Coffee\t2.5\r\n" || supplies.empty()) << toUtf8(supplies);
            EXPECT_TRUE(settings.DefaultPlaceSetting == u"U" || settings.DefaultPlaceSetting.empty());
            EXPECT_TRUE(settings.ShowManage);
            EXPECT_EQ(settings.Calendars.keys(), (std::vector<Text>{u"Room 1"}));
        },
        [&] {
            EXPECT_TRUE(toolkit.messages.empty());
            EXPECT_LE(posts(u"Settings").size(), 1U);
            expectNextStart();
        });
}

/// What is saved is in a post, or the user is told that it is not.
TEST_F(SettingsUnderDeletion, AreSavedOrTheUserIsTold)
{
    int told = 0;
    atEveryUse(
        [&](cSettings& settings) {
            settings.NewItemTemplate = u"Agenda:";
            settings.SaveSettings();
        },
        [&] {
            ASSERT_LE(posts(u"Settings").size(), 1U);
            const bool isStored = stored(u"strNewItemTemplate0") == automation::Variant{u"Agenda:"};
            EXPECT_EQ(toolkit.messages.size(), isStored ? 0U : 1U);
            if (!isStored) {
                ++told;
                EXPECT_EQ(toolkit.messages.front().style.icon, ui::Icon::Critical);
            }
            expectNextStart();
        });
    EXPECT_GT(told, 0);
}

} // namespace
} // namespace rf::test
