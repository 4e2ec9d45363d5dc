#include "diagnostics/operating_system.h"

#include <gtest/gtest.h>

namespace rf {
namespace {

struct NamedVersion {
    SystemVersion version;
    Text name;
};

class OperatingSystemName : public ::testing::TestWithParam<NamedVersion> { };

TEST_P(OperatingSystemName, FollowsThePlatformIdAndTheMinorVersion)
{
    EXPECT_EQ(fncGetOSName(GetParam().version), GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Systems, OperatingSystemName,
    ::testing::Values(NamedVersion{{2, 5, 1, {}}, u"Windows NT 5.1"}, NamedVersion{{2, 10, 0, {}}, u"Windows NT 10.0"},
        NamedVersion{{1, 4, 0, {}}, u"Windows 95"}, NamedVersion{{1, 4, 10, {}}, u"Windows 98"},
        NamedVersion{{1, 4, 90, {}}, u"Windows Me"}, NamedVersion{{1, 4, 3, {}}, u""}, NamedVersion{{0, 3, 1, {}}, u""},
        NamedVersion{{3, 1, 0, {}}, u""}, NamedVersion{{0, 6, 1, u"Linux"}, u"Linux 6.1"}));

} // namespace
} // namespace rf
