#include "booking/app_items_suite.h"

#include "over_dbus.h"

#include <QCoreApplication>

namespace rf::test {
namespace {

/// A bus together with Qt's part of the process, without which nothing arrives.
class OverDbusWithQt final : public Transport {
public:
    [[nodiscard]] outlook::Application connect(const std::shared_ptr<host::Application>& host) override
    {
        return bus_.connect(host);
    }

private:
    int argumentCount_ = 1;
    char name_[5] = "test";
    char* arguments_[2] = {name_, nullptr};
    QCoreApplication application_{argumentCount_, arguments_};
    OverDbus bus_;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Over, AppItems,
    ::testing::Values(TransportKind{"Dbus", [] { return std::make_unique<OverDbusWithQt>(); }}),
    [](const auto& kind) { return kind.param.name; });

} // namespace rf::test
