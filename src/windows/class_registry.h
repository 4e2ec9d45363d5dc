#pragma once

#include "automation/class_registry.h"
#include "windows/com_bridge.h"

namespace rf::native {

/// The classes that are registered with COM. Programs that export objects of their own give the bridge that does it.
class ComClassRegistry final : public automation::ClassRegistry {
public:
    explicit ComClassRegistry(std::shared_ptr<com::Bridge> bridge = com::Bridge::make())
        : bridge_(std::move(bridge))
    {
    }

    [[nodiscard]] automation::Object running(
        TextView className, automation::Where where = automation::Where::current()) override;
    [[nodiscard]] automation::Object create(
        TextView className, automation::Where where = automation::Where::current()) override;
    [[nodiscard]] automation::Object bind(
        TextView displayName, automation::Where where = automation::Where::current()) override;

private:
    std::shared_ptr<com::Bridge> bridge_;
};

} // namespace rf::native
