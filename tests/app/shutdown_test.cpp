#include "app/frm_dummy.h"
#include "app/frm_timer.h"
#include "app/main.h"
#include "app/root_explorer.h"
#include "app/shutdown.h"
#include "booking/app_items.h"
#include "booking/inspectors.h"
#include "storage/settings.h"
#include "support/session_fixture.h"

namespace rf {
namespace {

using test::ProgramEnded;

/// A form that can refuse to go, or fail at it.
class StubbornForm final : public ui::Form {
public:
    explicit StubbornForm(TextView name)
        : name_(name)
    {
    }
    [[nodiscard]] TextView name() const override { return name_; }
    [[nodiscard]] bool queryUnload() override
    {
        ++asked;
        return refusals-- <= 0;
    }
    void unload() override
    {
        if (fails)
            throw RuntimeError{error_number::invalidCall};
    }

    int asked = 0;
    int refusals = 0;
    bool fails = false;

private:
    TextView name_;
};

class Shutdown : public test::SessionTest {
protected:
    std::shared_ptr<StubbornForm> loadForm(TextView name)
    {
        auto form = std::make_shared<StubbornForm>(name);
        session.forms.load(form);
        return form;
    }

    Session session{services()};
};

TEST_F(Shutdown, ComesWhenTheHostQuits)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_THROW(host->quit(), ProgramEnded);
    EXPECT_EQ(session.forms.count(), 0U);
    EXPECT_FALSE(session.ouaApp);
}

TEST_F(Shutdown, ComesWhenTheWatchedExplorerCloses)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_THROW(host->explorers().item(1)->close(), ProgramEnded);
}

TEST_F(Shutdown, ComesWhenTheWatchedExplorerSwitchesFolder)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_THROW(host->explorers().item(1)->switchTo(folder(host::FolderRole::Inbox)), ProgramEnded);
}

TEST_F(Shutdown, DoesNotComeFromAnotherExplorer)
{
    runVisibleInstallation();
    Main(session);
    const auto other = host->explorers().add(folder(host::FolderRole::Inbox));
    other->switchTo(folder(host::FolderRole::Calendar));
    other->close();
    EXPECT_EQ(session.forms.count(), 1U);
}

TEST_F(Shutdown, ReleasesTheProcessWideObjects)
{
    runVisibleInstallation();
    Main(session);
    session.colAppItems[u"Room 1"] = std::make_shared<cAppItems>(session);
    EXPECT_THROW(subEndProgram(session), ProgramEnded);
    EXPECT_TRUE(session.colAppItems.empty());
    EXPECT_EQ(session.objInspectors, nullptr);
    EXPECT_EQ(session.objRootExplorer, nullptr);
    EXPECT_EQ(session.objSettings, nullptr);
    EXPECT_FALSE(session.ounNameSpace);
    EXPECT_FALSE(session.ouaApp);
}

TEST_F(Shutdown, DetachesTheHandlersOfTheHostsEvents)
{
    runVisibleInstallation();
    Main(session);
    EXPECT_THROW(subEndProgram(session), ProgramEnded);
    host->quit();
    host->explorers().item(1)->close();
}

TEST_F(Shutdown, StopsTheTimerOfTheHiddenForm)
{
    runVisibleInstallation();
    Main(session);
    const auto form = std::dynamic_pointer_cast<frmDummy>(session.forms.find(frmDummy::formName));
    EXPECT_THROW(subEndProgram(session), ProgramEnded);
    EXPECT_FALSE(form->timCheckSelected().enabled());
}

TEST_F(Shutdown, UnloadsTheFormsFromTheLastToTheFirst)
{
    const auto first = loadForm(u"frmFirst");
    const auto last = loadForm(u"frmLast");
    last->refusals = 1;
    subCleanUp(session);
    EXPECT_EQ(last->asked, 1);
    EXPECT_EQ(first->asked, 0);
    EXPECT_EQ(session.forms.count(), 2U);
}

TEST_F(Shutdown, UnloadsTheTimerAndTheOrdersFormEvenBehindAFormThatRefuses)
{
    const auto timer = std::make_shared<frmTimer>(toolkit);
    timer->setTimerEnabled(true);
    session.forms.load(timer);
    loadForm(u"frmOrders2K");
    loadForm(u"frmLast")->refusals = 1;
    subCleanUp(session);
    EXPECT_FALSE(timer->TimerEnabled());
    EXPECT_EQ(session.forms.find(frmTimer::formName), nullptr);
    EXPECT_EQ(session.forms.find(u"frmOrders2K"), nullptr);
    EXPECT_NE(session.forms.find(u"frmLast"), nullptr);
}

TEST_F(Shutdown, LetsGoOfTheHostWithTheLastForm)
{
    runVisibleInstallation();
    session.ouaApp = outlook::Application{automation::Object{host}};
    session.ounNameSpace = session.ouaApp.getNamespace();
    session.objRootFolder = session.objCurrentFolder
        = session.ounNameSpace.getDefaultFolder(outlook::DefaultFolder::Calendar);
    subUnloadAllForms(session);
    EXPECT_FALSE(session.ouaApp);
    EXPECT_FALSE(session.ounNameSpace);
    EXPECT_FALSE(session.objRootFolder);
    EXPECT_FALSE(session.objCurrentFolder);
}

TEST_F(Shutdown, AsksARefusingFormASecondTime)
{
    const auto form = loadForm(u"frmLast");
    form->refusals = 1;
    EXPECT_THROW(subEndProgram(session), ProgramEnded);
    EXPECT_EQ(form->asked, 2);
    EXPECT_EQ(session.forms.count(), 0U);
}

TEST_F(Shutdown, EndsTheProgramThoughAFormFailsToUnload)
{
    loadForm(u"frmBroken")->fails = true;
    EXPECT_THROW(subEndProgram(session), ProgramEnded);
}

} // namespace
} // namespace rf
