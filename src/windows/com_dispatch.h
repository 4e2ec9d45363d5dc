#pragma once

#include "automation/object.h"
#include "windows/com_bridge.h"

#include <unordered_map>

namespace rf::native::com {

struct ExceptionInfo;
class OutgoingArguments;

/// An object behind COM. One without late-bound members answers every use with error 438, but can be passed on,
/// compared and heard.
class ComDispatch final : public automation::Dispatch {
public:
    ComDispatch(std::shared_ptr<Bridge> bridge, const ComPtr<IUnknown>& object);

    automation::Variant invoke(
        TextView member, automation::Invocation kind, std::span<automation::Variant> arguments) override;
    /// `events` outlives the connection.
    [[nodiscard]] automation::Connection advise(
        const automation::EventInterface& events, automation::EventHandler handler) override;
    /// COM promises one IUnknown for one object, whichever of its interfaces was met.
    [[nodiscard]] const void* identity() const override { return object_.get(); }

    [[nodiscard]] const ComPtr<IUnknown>& object() const { return object_; }

private:
    [[nodiscard]] DISPID idOf(TextView member);
    HRESULT use(DISPID id, automation::Invocation kind, OutgoingArguments& arguments, VARIANT* result,
        ExceptionInfo& told) const;

    std::shared_ptr<Bridge> bridge_;
    ComPtr<IUnknown> object_;
    ComPtr<IDispatch> dispatch_;
    std::unordered_map<Text, DISPID, HashIgnoringCase, EqualIgnoringCase> ids_;
};

} // namespace rf::native::com
