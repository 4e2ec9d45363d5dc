#include "windows/com_bridge.h"

#include "windows/com_dispatch.h"
#include "windows/com_object.h"

#include <algorithm>

namespace rf::native::com {

using automation::Dispatch;
using automation::EventInterface;

namespace {

/// Whether the object lives elsewhere. Proxies answer for IClientSecurity themselves, so asking costs no call to
/// their process.
bool isProxy(const ComPtr<IUnknown>& object) { return static_cast<bool>(object.query<IClientSecurity>()); }

} // namespace

std::shared_ptr<Bridge> Bridge::make(std::span<const EventInterface* const> events)
{
    return std::shared_ptr<Bridge>{new Bridge{events}};
}

std::shared_ptr<Dispatch> Bridge::importObject(IUnknown* object)
{
    const ComPtr<IUnknown> shared{object};
    if (!shared)
        return nullptr;
    if (!isProxy(shared))
        if (const auto own = shared.query<ExportedObject>(exportedObjectId))
            return own->original();
    return std::make_shared<ComDispatch>(shared_from_this(), shared);
}

ComPtr<IUnknown> Bridge::exportObject(const std::shared_ptr<Dispatch>& object)
{
    if (!object)
        return {};
    if (const auto* imported = dynamic_cast<const ComDispatch*>(object.get()))
        return imported->object();
    if (const auto known = exported_.find(object->identity()); known != exported_.end())
        return ComPtr<IUnknown>{known->second->unknown()};
    const auto fresh = makeCounted<ComObject>(shared_from_this(), object);
    exported_.emplace(object->identity(), fresh.get());
    return ComPtr<IUnknown>{fresh->unknown()};
}

const EventInterface* Bridge::findEvents(REFIID id) const
{
    const auto found = std::ranges::find_if(
        events_, [&](const EventInterface* events) { return IsEqualIID(interfaceId(*events), id); });
    return found == events_.end() ? nullptr : *found;
}

IID interfaceId(const EventInterface& events) { return {events.id, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}}; }

} // namespace rf::native::com
