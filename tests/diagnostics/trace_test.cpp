#include "diagnostics/trace.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

TEST(Trace, StartsEmpty) { EXPECT_EQ(Trace{}.fncLastAction(), u""); }

TEST(Trace, KeepsOnlyTheLastMessage)
{
    Trace trace;
    trace.subTrace(u"Checking which folders are selected!");
    trace.subTrace(u"Finding Temp folder path");
    EXPECT_EQ(trace.fncLastAction(), u"Finding Temp folder path");
}

} // namespace
} // namespace rf
