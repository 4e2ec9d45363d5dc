#pragma once

#include "linux/class_registry.h"
#include "linux/dbus_server.h"
#include "outlook/event_interfaces.h"
#include "support/transport.h"

#include "dbus_processes.h"

#include <stdexcept>

namespace rf::test {

/// Both ends of a session bus of this test's own: the host's objects on one connection, a program's on another. Needs
/// Qt's program object.
class OverDbus final : public Transport {
public:
    [[nodiscard]] outlook::Application connect(const std::shared_ptr<host::Application>& host) override
    {
        hostSide_ = native::dbus::Bridge::connect(outlook::allEventInterfaces());
        server_ = std::make_unique<native::dbus::Server>(hostSide_);
        if (!server_->exportClass(outlook::applicationClass, [host] { return host; }))
            throw std::runtime_error{"the host could not be offered on the bus"};
        classes_ = std::make_unique<native::LinuxClassRegistry>();
        return outlook::Application{classes_->running(outlook::applicationClass, automation::Where::current())};
    }

private:
    native::dbus::PrivateBus bus_;
    std::shared_ptr<native::dbus::Bridge> hostSide_;
    std::unique_ptr<native::dbus::Server> server_;
    std::unique_ptr<native::LinuxClassRegistry> classes_;
};

} // namespace rf::test
