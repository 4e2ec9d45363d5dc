#include "basic/clock.h"

#include <gtest/gtest.h>

#include <ctime>

namespace rf {
namespace {

TEST(SystemClock, TellsLocalTimeExactToTheSecond)
{
    const std::time_t before = std::time(nullptr);
    const Date now = SystemClock{}.now();
    const DateFields fields = now.fields();
    EXPECT_EQ(Date::fromFields(fields), now);
    std::tm local{};
    local.tm_year = fields.year - 1900;
    local.tm_mon = fields.month - 1;
    local.tm_mday = fields.day;
    local.tm_hour = fields.hour;
    local.tm_min = fields.minute;
    local.tm_sec = fields.second;
    local.tm_isdst = -1;
    const std::time_t told = std::mktime(&local);
    EXPECT_GE(told, before);
    EXPECT_LE(told, std::time(nullptr));
}

TEST(FixedClock, StandsWhereItWasSet)
{
    FixedClock clock{Date{36923.5}};
    EXPECT_EQ(clock.now(), Date{36923.5});
    clock.set(Date{36924});
    EXPECT_EQ(clock.now(), Date{36924});
}

} // namespace
} // namespace rf
