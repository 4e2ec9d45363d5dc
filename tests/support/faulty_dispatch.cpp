#include "support/faulty_dispatch.h"

namespace rf::test {

FaultyDispatch::FaultyDispatch(std::shared_ptr<automation::Dispatch> target, std::shared_ptr<Fault> fault)
    : target_(std::move(target))
    , fault_(std::move(fault))
{
}

automation::Object FaultyDispatch::wrap(const automation::Object& object, const std::shared_ptr<Fault>& fault)
{
    return object ? automation::Object{std::make_shared<FaultyDispatch>(object.dispatch(), fault)} : object;
}

automation::Variant FaultyDispatch::invoke(
    TextView member, automation::Invocation kind, std::span<automation::Variant> arguments)
{
    strike(member);
    std::vector<automation::Variant> passed{arguments.begin(), arguments.end()};
    for (auto& argument : passed)
        if (const auto* object = argument.getIf<std::shared_ptr<Dispatch>>())
            if (const auto faulty = std::dynamic_pointer_cast<FaultyDispatch>(*object))
                argument = faulty->target_;
    auto result = target_->invoke(member, kind, passed);
    const auto* object = result.getIf<std::shared_ptr<Dispatch>>();
    if (object == nullptr || *object == nullptr)
        return result;
    return std::make_shared<FaultyDispatch>(*object, fault_);
}

automation::Connection FaultyDispatch::advise(
    const automation::EventInterface& events, automation::EventHandler handler)
{
    strike(events.name);
    return target_->advise(events, std::move(handler));
}

const void* FaultyDispatch::identity() const { return target_->identity(); }

void FaultyDispatch::strike(TextView member) const
{
    if (++fault_->uses != fault_->failingUse && member != fault_->failingMember)
        return;
    fault_->member = member;
    if (fault_->instead)
        fault_->instead();
    else
        throw automation::Error{injectedErrorNumber, {u"The operation failed.", u"Host", Text{member}}};
}

} // namespace rf::test
