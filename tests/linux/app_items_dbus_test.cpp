#include "booking/app_items_suite.h"

#include "over_dbus_with_qt.h"

namespace rf::test {

INSTANTIATE_TEST_SUITE_P(
    Over, AppItems, ::testing::Values(overDbusWithQt()), [](const auto& kind) { return kind.param.name; });

} // namespace rf::test
