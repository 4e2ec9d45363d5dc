#pragma once

#include "automation/events.h"
#include "linux/class_registry.h"
#include "linux/dbus_bridge.h"
#include "outlook/application.h"

#include <chrono>
#include <memory>
#include <stdexcept>

namespace rf::demo {

/// What ends the demonstration, in words for the person who started it.
class DemoError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// This process as one more program beside the host.
class HostClient {
public:
    /// Connects to the session bus; without one a `DemoError`.
    HostClient();

    [[nodiscard]] automation::ClassRegistry& classes() { return classes_; }
    /// Finds the running host, waiting for it to come up; one that does not run is started where the bus knows how. A
    /// `DemoError` when there is none.
    void attach(std::chrono::milliseconds limit);
    [[nodiscard]] const outlook::Application& application() const { return application_; }

    /// A `DemoError` when the host has quit since.
    void requireHost() const;

    /// What other programs have asked of the host, and the handlers that they have connected to it.
    [[nodiscard]] native::dbus::Traffic trafficOfOthers() const;
    /// The time of one automation call that does next to nothing, the median of many, in milliseconds.
    [[nodiscard]] double latency() const;

private:
    [[nodiscard]] native::dbus::Traffic traffic(const QString& process) const;

    std::shared_ptr<native::dbus::Bridge> bridge_;
    native::LinuxClassRegistry classes_;
    outlook::Application application_;
    QString host_;
    automation::Connection applicationEvents_;
    bool quit_ = false;
};

} // namespace rf::demo
