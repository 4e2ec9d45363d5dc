#pragma once

#include "over_dbus.h"

#include <QCoreApplication>

namespace rf::test {

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

[[nodiscard]] inline TransportKind overDbusWithQt()
{
    return {"Dbus", [] { return std::make_unique<OverDbusWithQt>(); }};
}

} // namespace rf::test
