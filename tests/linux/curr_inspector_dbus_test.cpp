#include "booking/curr_inspector_suite.h"

#include "over_dbus_with_qt.h"

namespace rf::test {

INSTANTIATE_TEST_SUITE_P(
    Over, AppointmentWindow, ::testing::Values(overDbusWithQt()), [](const auto& kind) { return kind.param.name; });

} // namespace rf::test
