#pragma once

#include "automation/object.h"

#include <memory>
#include <optional>
#include <vector>

namespace rf::test {

/// An object that notes how it is used and answers with whatever it has been told to.
class RecordingDispatch final : public automation::Dispatch {
public:
    struct Use {
        Text member;
        automation::Invocation kind = automation::Invocation::Get;
        std::vector<automation::Variant> arguments;
    };

    automation::Variant answer;
    /// With a number here every use fails with it.
    std::optional<std::int32_t> failure;
    std::vector<Use> uses;
    std::vector<Text> advised;
    automation::EventSource events;

    automation::Variant invoke(
        TextView member, automation::Invocation kind, std::span<automation::Variant> arguments) override
    {
        uses.push_back({Text{member}, kind, {arguments.begin(), arguments.end()}});
        if (failure)
            throw automation::Error{*failure, {u"It does not want to.", u"Recorder", Text{member}}};
        return answer;
    }

    automation::Connection advise(
        const automation::EventInterface& interface, automation::EventHandler handler) override
    {
        advised.emplace_back(interface.name);
        if (failure)
            throw automation::Error{*failure, {u"It does not want to.", u"Recorder", Text{interface.name}}};
        return events.connect(std::move(handler));
    }
};

/// A new object as the value of a member.
[[nodiscard]] inline automation::Variant someObject()
{
    return automation::Variant{std::shared_ptr<automation::Dispatch>{std::make_shared<RecordingDispatch>()}};
}

} // namespace rf::test
