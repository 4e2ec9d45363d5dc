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
    FaultyDispatch(std::shared_ptr<automation::Dispatch> target, std::shared_ptr<Fault> fault);

    [[nodiscard]] static automation::Object wrap(const automation::Object& object, const std::shared_ptr<Fault>& fault);

    automation::Variant invoke(
        TextView member, automation::Invocation kind, std::span<automation::Variant> arguments) override;
    [[nodiscard]] automation::Connection advise(
        const automation::EventInterface& events, automation::EventHandler handler) override;
    [[nodiscard]] const void* identity() const override;

private:
    void strike(TextView member) const;

    std::shared_ptr<automation::Dispatch> target_;
    std::shared_ptr<Fault> fault_;
};

} // namespace rf::test
