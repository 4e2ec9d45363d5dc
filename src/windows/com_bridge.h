#pragma once

#include "automation/events.h"
#include "windows/com_variant.h"

#include <span>
#include <unordered_map>

namespace rf::native::com {

class ComObject;

/// The two-way street between the program's objects and COM's. An object that crosses it twice is itself again: a
/// COM object imported by this bridge goes out as it came in, an object of the program that comes back is the
/// original, and goes out under one COM identity however often it does. The COM apartment outlives it. One thread
/// uses it.
class Bridge final : public ObjectMap, public std::enable_shared_from_this<Bridge> {
public:
    /// `events` are the sets of events that exported objects may offer to other processes; it outlives the bridge.
    [[nodiscard]] static std::shared_ptr<Bridge> make(std::span<const automation::EventInterface* const> events = {});

    [[nodiscard]] std::shared_ptr<automation::Dispatch> importObject(IUnknown* object) override;
    [[nodiscard]] ComPtr<IUnknown> exportObject(const std::shared_ptr<automation::Dispatch>& object) override;

    /// The set of events that COM knows by an interface id; null when exported objects offer no such set.
    [[nodiscard]] const automation::EventInterface* findEvents(REFIID id) const;
    /// How many objects of the program are in the hands of COM: a server without any can go.
    [[nodiscard]] std::size_t exportedCount() const { return exported_.size(); }

private:
    friend class ComObject;

    explicit Bridge(std::span<const automation::EventInterface* const> events)
        : events_(events)
    {
    }
    void forget(const void* identity) { exported_.erase(identity); }

    std::span<const automation::EventInterface* const> events_;
    /// The living COM objects by the identity of what they stand for; each leaves when it goes.
    std::unordered_map<const void*, ComObject*> exported_;
};

/// The interface id of a set of events: its number with the tail that all of the host's have.
[[nodiscard]] IID interfaceId(const automation::EventInterface& events);

} // namespace rf::native::com
