#pragma once

#include "automation/object.h"

#include <functional>
#include <memory>
#include <optional>

namespace rf::test {

/// Counts the uses of a host's objects and makes one of them fail.
struct Fault {
    int uses = 0;
    /// The use that fails, counted from 1; none fails without it.
    std::optional<int> failingUse;
    /// What happens just before that use in place of its failure, where a test says so.
    std::function<void()> instead = {};
    /// The member that the fault struck.
    Text member = {};
    /// A member that fails at every use; none without it.
    std::optional<Text> failingMember = std::nullopt;
};

inline constexpr std::int32_t injectedErrorNumber = -2147467259;

/// Stands before an object, and before every object that it answers with, and passes everything on until the fault
/// strikes.
class FaultyDispatch final : public automation::Dispatch {
public:
    FaultyDispatch(std::shared_ptr<automation::Dispatch> target, std::shared_ptr<Fault> fault)
        : target_(std::move(target))
        , fault_(std::move(fault))
    {
    }

    [[nodiscard]] static automation::Object wrap(const automation::Object& object, const std::shared_ptr<Fault>& fault)
    {
        return object ? automation::Object{std::make_shared<FaultyDispatch>(object.dispatch(), fault)} : object;
    }

    automation::Variant invoke(
        TextView member, automation::Invocation kind, std::span<automation::Variant> arguments) override
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

    [[nodiscard]] automation::Connection advise(
        const automation::EventInterface& events, automation::EventHandler handler) override
    {
        strike(events.name);
        return target_->advise(events, std::move(handler));
    }

    [[nodiscard]] const void* identity() const override { return target_->identity(); }

private:
    void strike(TextView member) const
    {
        if (++fault_->uses != fault_->failingUse && member != fault_->failingMember)
            return;
        fault_->member = member;
        if (fault_->instead)
            fault_->instead();
        else
            throw automation::Error{injectedErrorNumber, {u"The operation failed.", u"Host", Text{member}}};
    }

    std::shared_ptr<automation::Dispatch> target_;
    std::shared_ptr<Fault> fault_;
};

} // namespace rf::test
