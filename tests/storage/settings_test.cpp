#include "storage/settings_suite.h"

namespace rf::test {

INSTANTIATE_TEST_SUITE_P(
    Over, SettingsPost, ::testing::Values(inProcess()), [](const auto& kind) { return kind.param.name; });

} // namespace rf::test
