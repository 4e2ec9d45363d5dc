#include "app/frm_timer.h"

#include "support/recording_toolkit.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

class TimerForm : public ::testing::Test {
protected:
    void tick() const { dynamic_cast<const test::ManualTimer&>(form.timTimer()).tick(); }

    test::RecordingToolkit toolkit;
    frmTimer form{toolkit};
};

TEST_F(TimerForm, IsOffAtFirst)
{
    EXPECT_FALSE(form.TimerEnabled());
    EXPECT_FALSE(form.timTimer().enabled());
}

TEST_F(TimerForm, SwitchesItsTimer)
{
    form.setTimerEnabled(true);
    EXPECT_TRUE(form.timTimer().enabled());
    EXPECT_TRUE(form.TimerEnabled());
    form.setTimerEnabled(false);
    EXPECT_FALSE(form.timTimer().enabled());
}

TEST_F(TimerForm, GivesItsTimerTheIntervalInMilliseconds)
{
    form.setTimerInterval(90'000);
    EXPECT_EQ(form.timTimer().interval(), std::chrono::seconds{90});
    EXPECT_EQ(form.TimerInterval(), 90'000);
}

TEST_F(TimerForm, TellsOfEveryTick)
{
    int fired = 0;
    form.TimerFired = [&] { ++fired; };
    tick();
    tick();
    EXPECT_EQ(fired, 2);
}

TEST_F(TimerForm, TicksWithoutAnyoneWhoListens) { EXPECT_NO_THROW(tick()); }

TEST_F(TimerForm, StopsWhenItIsUnloaded)
{
    form.setTimerEnabled(true);
    form.unload();
    EXPECT_FALSE(form.TimerEnabled());
}

} // namespace
} // namespace rf
