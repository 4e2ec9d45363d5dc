#include "orders/frm_orders2k_position.h"

#include <gtest/gtest.h>

namespace rf::orders {
namespace {

TEST(OrdersFormPosition, StandsOverTheAppointmentWindow)
{
    const auto here = overAppointment({100, 200}, 15);
    EXPECT_GT(here.left, 100 * 15);
    EXPECT_GT(here.top, 200 * 15);
    const auto there = overAppointment({150, 260}, 15);
    EXPECT_EQ(there.left - here.left, 50 * 15);
    EXPECT_EQ(there.top - here.top, 60 * 15);
}

TEST(OrdersFormPosition, CountsTheTwipsOfTheScreen)
{
    EXPECT_EQ(overAppointment({100, 0}, 12).left - overAppointment({0, 0}, 12).left, 1200);
}

TEST(OrdersFormPosition, FollowsAWindowOnAScreenToTheLeft)
{
    EXPECT_LT(overAppointment({-1000, -500}, 15).left, 0);
    EXPECT_LT(overAppointment({-1000, -500}, 15).top, 0);
}

TEST(OrdersFormPosition, StaysANumberForAWindowFarOffEveryScreen)
{
    EXPECT_LT(overAppointment({-2147483647, 2147483647}, 15).left, -1000);
    EXPECT_GT(overAppointment({-2147483647, 2147483647}, 15).top, 1000);
}

} // namespace
} // namespace rf::orders
