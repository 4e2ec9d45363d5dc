#pragma once

#include "automation/class_registry.h"

#include <memory>

namespace rf::native {

namespace dbus {
class Bridge;
}

/// The classes of this system: the scripting classes, made in this process, and those that other processes offer on
/// the session bus under the name of the class. There is one object of such a class, so that a new one differs from the
/// running one only in that its process is started when need be. Class ids in braces stand for nothing here. The one
/// display name that stands for something is that of the management service.
class LinuxClassRegistry final : public automation::ClassRegistry {
public:
    /// Connects to the session bus when a class is first looked for there.
    LinuxClassRegistry();
    /// Programs that export objects of their own give the bridge that does it.
    explicit LinuxClassRegistry(std::shared_ptr<dbus::Bridge> bridge);
    LinuxClassRegistry(const LinuxClassRegistry&) = delete;
    LinuxClassRegistry& operator=(const LinuxClassRegistry&) = delete;
    ~LinuxClassRegistry() override;

    [[nodiscard]] automation::Object running(
        TextView className, automation::Where where = automation::Where::current()) override;
    [[nodiscard]] automation::Object create(
        TextView className, automation::Where where = automation::Where::current()) override;
    [[nodiscard]] automation::Object bind(
        TextView displayName, automation::Where where = automation::Where::current()) override;

private:
    /// Null while there is no bus.
    [[nodiscard]] const std::shared_ptr<dbus::Bridge>& bridge();

    std::shared_ptr<dbus::Bridge> bridge_;
};

} // namespace rf::native
