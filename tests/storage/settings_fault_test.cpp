#include "storage/settings_fixture.h"

namespace rf::test {
namespace {

/// What the last step was, as a test sees it from outside.
enum class Outcome { Done, Told, Reported };

/// An installation whose settings are all set, and a host that fails at one call.
class SettingsAtAFailingHost : public InstallationTest {
protected:
    SettingsAtAFailingHost()
    {
        addCalendar(u"Room 1");
        settings().GetSettings(true);
        settings().subFillSupply(u"Coffee\t2.5\r\n");
        settings().NewItemTemplate = u"Agenda:";
        settings().NoRecurring = true;
        settings().SaveSettings();
    }

    /// A program whose host fails at one use, counted from its root folder on.
    [[nodiscard]] std::unique_ptr<Session> program(const std::shared_ptr<Fault>& fault)
    {
        auto other = std::make_unique<Session>(services());
        attach(*other);
        other->objRootFolder = outlook::Folder{FaultyDispatch::wrap(session.objRootFolder.object(), fault)};
        toolkit.messages.clear();
        return other;
    }

    /// Runs a step at a host that fails at its first, second … use, until it gets through; the checks see each outcome.
    template <class Step, class Check>
    int atEveryUse(Step&& step, Check&& check)
    {
        for (int use = 1;; ++use) {
            const auto fault = std::make_shared<Fault>();
            const auto other = program(fault);
            step(*other, [&] { fault->failingUse = fault->uses + use; });
            const bool struck = fault->failingUse.has_value() && fault->uses >= *fault->failingUse;
            if (!struck)
                return use - 1;
            check(use, other.get());
        }
    }

    template <class Step>
    Outcome outcomeOf(Step&& step)
    {
        try {
            step();
            return Outcome::Done;
        } catch (const ProgramEnded&) {
            EXPECT_EQ(toolkit.messages.size(), 1U) << "the program ends with a word, and with one";
            const bool told = !toolkit.messages.empty() && toolkit.messages[0].style.icon == ui::Icon::Critical;
            return told ? Outcome::Told : Outcome::Reported;
        }
    }
};

/// However loading fails, the post of the installation is as it was, and the next start loads it in full.
TEST_F(SettingsAtAFailingHost, LoseNothingByLoading)
{
    const auto before = settingsPost();
    std::map<Outcome, int> outcomes;
    auto outcome = Outcome::Done;
    const int uses = atEveryUse(
        [&](Session& other, const auto& arm) {
            arm();
            outcome = outcomeOf([&] { other.objSettings->GetSettings(true); });
        },
        [&](int use, const Session* other) {
            ++outcomes[outcome];
            EXPECT_EQ(settingsPost().revision, before.revision) << "at use " << use;
            EXPECT_EQ(outcome == Outcome::Done, static_cast<bool>(other->ouaApp)) << "at use " << use;
            cSettings next{session};
            next.GetSettings(false);
            EXPECT_EQ(next.fncBuildSupplyList(), u"Coffee\t2.5\r\n") << "at use " << use;
            EXPECT_TRUE(next.NoRecurring) << "at use " << use;
            EXPECT_EQ(next.Calendars.keys(), (std::vector<Text>{u"Room 1"})) << "at use " << use;
        });
    EXPECT_GT(uses, 100);
    EXPECT_EQ(outcomes[Outcome::Told], 1) << "only where the root folder's items are not to be had";
    EXPECT_GT(outcomes[Outcome::Done], uses / 2);
    EXPECT_GT(outcomes[Outcome::Reported], 0) << "calendars that cannot be read";
}

/// However saving fails, the post is the old one or the new one, and what saving leaves alone is in it either way.
TEST_F(SettingsAtAFailingHost, AreSavedAsAWholeOrNotAtAll)
{
    std::map<Outcome, int> outcomes;
    auto outcome = Outcome::Done;
    const auto before = settingsPost();
    const int uses = atEveryUse(
        [&](Session& other, const auto& arm) {
            other.objSettings->GetSettings(false);
            other.objSettings->NewItemTemplate = u"Agenda and minutes:";
            other.objSettings->PersonalCopy = true;
            arm();
            outcome = outcomeOf([&] { other.objSettings->SaveSettings(); });
        },
        [&](int use, const Session*) {
            ++outcomes[outcome];
            const bool isNew = stored(u"blnPersonalCopy") == automation::Variant{true};
            EXPECT_EQ(stored(u"strNewItemTemplate0"), automation::Variant{isNew ? u"Agenda and minutes:" : u"Agenda:"})
                << "at use " << use;
            EXPECT_EQ(stored(u"strSupply0"), automation::Variant{u"Coffee\t2.5\r\n"}) << "at use " << use;
            EXPECT_EQ(stored(u"blnNoRecurring"), automation::Variant{true}) << "at use " << use;
            if (outcome != Outcome::Done) {
                EXPECT_FALSE(isNew) << "at use " << use;
            }
            auto restored = before;
            restored.revision = settingsPost().revision;
            store->save(restored);
        });
    EXPECT_GT(uses, 100);
    EXPECT_GT(outcomes[Outcome::Reported], 50) << "a key that cannot be written is reported";
    EXPECT_GT(outcomes[Outcome::Done], 0);
}

TEST_F(SettingsAtAFailingHost, TellTheUserWhenTheyCannotBeSavedAndGoOn)
{
    const auto before = settingsPost();
    const auto fault = std::make_shared<Fault>();
    const auto other = program(fault);
    other->objSettings->GetSettings(true);
    other->objSettings->NoRecurring = false;
    fault->failingMember = u"Save";
    other->objSettings->SaveSettings();
    ASSERT_EQ(toolkit.messages.size(), 1U);
    EXPECT_EQ(toolkit.messages[0].text,
        u"Failed to save settings\r\nCheck that you have the appropriate "
        u"permissions!\r\n-2147467259 "
        u"The operation failed.");
    EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
    EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
    EXPECT_EQ(settingsPost().revision, before.revision);
    EXPECT_TRUE(other->ouaApp);

    fault->failingMember.reset();
    other->objSettings->SaveSettings();
    EXPECT_EQ(toolkit.messages.size(), 1U) << "the error is not pending any more";
    EXPECT_EQ(stored(u"blnNoRecurring"), automation::Variant{false});
}

TEST_F(SettingsAtAFailingHost, EndTheProgramWhenTheirPostCannotBeMade)
{
    for (const TextView member : {u"Add", u"Save", u"Subject"}) {
        const auto folder = host::ensureRoomfoldRoot(*store, u"Second " + Text{member}, u"ROOMFOLD.HTM");
        const auto fault = std::make_shared<Fault>();
        const auto other = program(fault);
        const auto mapi = application.getNamespace();
        other->objRootFolder
            = outlook::Folder{FaultyDispatch::wrap(mapi.getFolderFromId(host::entryIdOf(folder), {}).object(), fault)};
        fault->failingMember = member;
        EXPECT_THROW(other->objSettings->GetSettings(true), ProgramEnded) << toUtf8(member);
        ASSERT_EQ(toolkit.messages.size(), 1U) << toUtf8(member);
        EXPECT_EQ(toolkit.messages[0].text,
            u"Failed to save settings\r\nCheck that you have the appropriate "
            u"permissions!\r\n-2147467259 "
            u"The operation failed.")
            << toUtf8(member);
        EXPECT_EQ(toolkit.messages[0].style, (ui::MessageStyle{ui::Buttons::Ok, ui::Icon::Critical}));
        EXPECT_EQ(toolkit.messages[0].caption, u"Roomfold for Outlook Booking Info");
        EXPECT_TRUE(store->items(folder).empty()) << toUtf8(member);
        EXPECT_FALSE(other->ouaApp);
    }
}

TEST_F(SettingsAtAFailingHost, EndTheProgramWithoutARootFolder)
{
    session.objRootFolder = {};
    EXPECT_THROW(settings().GetSettings(true), ProgramEnded);
    EXPECT_EQ(toolkit.messages.at(0).style.icon, ui::Icon::Critical);
}

} // namespace
} // namespace rf::test
