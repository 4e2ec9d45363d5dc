#include "host/shown_bars.h"

#include "outlook/constants.h"

#include <gtest/gtest.h>

namespace rf::host {

namespace {

using automation::Object;

constexpr std::int32_t button = 1;
constexpr std::int32_t combo = 4;

struct ShownBarsOfAWindow : testing::Test {
    std::shared_ptr<CommandBars> bars = std::make_shared<CommandBars>();
    std::shared_ptr<CommandBar> bar = bars->add(u"Roomfold", 1);

    std::shared_ptr<CommandBarControl> add(std::int32_t type, const Text& caption) const
    {
        auto control = bar->controls().add(type, 1);
        Object{control}.put(u"Caption", caption);
        return control;
    }
    [[nodiscard]] std::vector<ShownControl> controls() const
    {
        const auto shown = shownBars(*bars);
        return shown.empty() ? std::vector<ShownControl>{} : shown.front().controls;
    }
};

TEST_F(ShownBarsOfAWindow, AreTheVisibleOnesInTheirOrder)
{
    add(button, u"Booking info");
    EXPECT_TRUE(shownBars(*bars).empty());
    bar->show();
    bars->add(u"Other", 1)->show();
    const auto shown = shownBars(*bars);
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[0].name, u"Roomfold");
    EXPECT_EQ(shown[1].name, u"Other");
    ASSERT_EQ(shown[0].controls.size(), 1U);
    EXPECT_EQ(shown[0].controls[0].label, u"Booking info");
}

TEST_F(ShownBarsOfAWindow, LeaveOutHiddenControls)
{
    bar->show();
    Object{add(button, u"Booking info")}.put(u"Visible", false);
    EXPECT_TRUE(shownBars(*bars).empty());
    add(button, u"Help");
    ASSERT_EQ(controls().size(), 1U);
    EXPECT_EQ(controls().front().label, u"Help");
}

TEST_F(ShownBarsOfAWindow, LabelAComboOnlyWhenItsStyleDoes)
{
    bar->show();
    const auto projects = add(combo, u"&Project");
    EXPECT_EQ(controls().at(0).label, u"");
    EXPECT_EQ(controls().at(0).name, u"Project");
    Object{projects}.put(u"Style", 1);
    EXPECT_EQ(controls().at(0).label, u"&Project");
}

TEST_F(ShownBarsOfAWindow, HaveNamesForPeopleWhoHearTheScreen)
{
    bar->show();
    add(button, u"Cut && &paste");
    add(button, u"");
    EXPECT_EQ(controls().at(0).name, u"Cut & paste");
    EXPECT_EQ(controls().at(1).name, u"Command");
}

TEST_F(ShownBarsOfAWindow, NameTheHostsOwnControls)
{
    const auto own = CommandBars::ofExplorer();
    EXPECT_TRUE(shownBars(*own).empty());
    own->find(outlook::host_control::webBar)->show();
    const auto shown = shownBars(*own);
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown[0].controls.at(0).name, u"Refresh");
}

TEST_F(ShownBarsOfAWindow, OfferNoInvitationThatNobodyWouldSend)
{
    const auto own = CommandBars::ofInspector();
    ASSERT_EQ(own->all().size(), 1U);
    EXPECT_EQ(own->all().front()->controls().all().front()->id(), outlook::host_control::inviteAttendees);
    EXPECT_TRUE(shownBars(*own).empty());
}

TEST_F(ShownBarsOfAWindow, StayTheSameWhileAPersonTypesIntoACombo)
{
    bar->show();
    const auto projects = add(combo, u"Project");
    const auto before = shownBars(*bars);
    projects->choose(u"Alpha");
    EXPECT_EQ(shownBars(*bars), before);
    Object{projects}.call(u"AddItem", u"Alpha");
    EXPECT_NE(shownBars(*bars), before);
}

} // namespace

} // namespace rf::host
