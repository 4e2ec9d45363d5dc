#include "linux/class_registry.h"

#include "linux/dbus_names.h"
#include "linux/management.h"
#include "linux/scripting.h"
#include "outlook/event_interfaces.h"

namespace rf::native {

namespace {

using automation::Object;
using automation::Where;
using dbus::Bridge;

using FindProcess = QString (*)(Bridge& bridge, const QString& name);

/// However an object fails to come, the caller hears the one classic number for it.
[[noreturn]] void cannotCreate(TextView className, Where where)
{
    throw automation::Error{error_number::cannotCreateObject,
        {Text{errorDescription(error_number::cannotCreateObject)}, Text{className}, {}}, where};
}

Object rootOf(Bridge* bridge, TextView className, FindProcess find, Where where)
try {
    const QString name = dbus::busName(className);
    if (bridge == nullptr || name.isEmpty())
        cannotCreate(className, where);
    const QString process = find(*bridge, name);
    if (process.isEmpty())
        cannotCreate(className, where);
    const Object object{bridge->root(process, name)};
    return object ? object : throw RuntimeError{error_number::objectNotSet};
} catch (const RuntimeError&) {
    cannotCreate(className, where);
}

} // namespace

LinuxClassRegistry::LinuxClassRegistry() = default;

LinuxClassRegistry::LinuxClassRegistry(std::shared_ptr<Bridge> bridge)
    : bridge_(std::move(bridge))
{
}

LinuxClassRegistry::~LinuxClassRegistry() = default;

const std::shared_ptr<Bridge>& LinuxClassRegistry::bridge()
{
    if (bridge_)
        return bridge_;
    bridge_ = Bridge::connect();
    if (bridge_)
        bridge_->setFarewells(outlook::farewells);
    return bridge_;
}

Object LinuxClassRegistry::running(TextView className, Where where)
{
    return rootOf(bridge().get(), className, dbus::findOwner, where);
}

Object LinuxClassRegistry::create(TextView className, Where where)
{
    if (auto object = makeScriptingObject(className))
        return object;
    return rootOf(bridge().get(), className, dbus::startOwner, where);
}

Object LinuxClassRegistry::bind(TextView displayName, Where where)
{
    if (auto service = makeManagementService(displayName))
        return service;
    cannotCreate(displayName, where);
}

} // namespace rf::native
