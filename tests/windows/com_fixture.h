#pragma once

#include "automation/local_object.h"
#include "windows/com_apartment.h"
#include "windows/com_bridge.h"
#include "windows/com_dispatch.h"

#include <gtest/gtest.h>

namespace rf::native::com {

inline constexpr automation::EventMember boilerEventMembers[] = {{u"Heated", 0xF001}, {u"BeforeHeat", 0xF002}};
inline constexpr automation::EventInterface boilerEvents{u"BoilerEvents", 0x0006FF01, boilerEventMembers};
inline constexpr automation::EventInterface unknownEvents{u"UnknownEvents", 0x0006FF02, {}};
inline constexpr automation::EventInterface unraisedEvents{u"UnraisedEvents", 0x0006FF03, {}};
inline constexpr const automation::EventInterface* offeredEvents[] = {&boilerEvents, &unraisedEvents};

/// An object of this process with a member for everything that can cross to COM.
class Boiler final : public automation::LocalObject<Boiler> {
public:
    static constexpr TextView className = u"Boiler";

    /// Asks `BeforeHeat(degrees, Cancel)`, then heats and raises `Heated(degrees)`.
    bool heat(std::int32_t degrees)
    {
        automation::Variant cancel{false};
        automation::Variant asked[] = {degrees, automation::Reference{&cancel}};
        events_.raise(u"BeforeHeat", asked);
        if (cancel.boolean())
            return false;
        temperature_ = degrees;
        automation::Variant told[] = {degrees};
        events_.raise(u"Heated", told);
        return true;
    }

    static std::span<const automation::LocalMember<Boiler>> members()
    {
        using automation::Arguments;
        using automation::Variant;
        static constexpr automation::LocalMember<Boiler> table[] = {
            {u"Temperature", [](Boiler& self, const Arguments&) -> Variant { return self.temperature_; },
                [](Boiler& self, const Arguments& arguments) { self.temperature_ = arguments.value().integer32(); }},
            {u"Heat",
                [](Boiler& self, const Arguments& arguments) -> Variant {
                    return self.heat(arguments[0].integer32());
                }},
            {u"Echo", [](Boiler&, const Arguments& arguments) -> Variant { return arguments[0]; }},
            {u"Minus",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    return arguments[0].integer32() - arguments[1].integer32();
                }},
            {u"CountArguments",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    return static_cast<std::int32_t>(arguments.count()) * 10 + (arguments.has(1) ? 1 : 0);
                }},
            {u"Swap",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    Variant first = arguments[0];
                    arguments.assign(0, arguments[1]);
                    arguments.assign(1, std::move(first));
                    return {};
                }},
            {u"Neighbour", [](Boiler& self, const Arguments&) -> Variant { return self.neighbour_; },
                [](Boiler& self, const Arguments& arguments) { self.neighbour_ = arguments.value().dispatch(); }},
            {u"Part",
                [](Boiler& self, const Arguments& arguments) -> Variant {
                    return self.parts_[static_cast<std::size_t>(arguments[0].integer32())];
                },
                [](Boiler& self, const Arguments& arguments) {
                    self.parts_[static_cast<std::size_t>(arguments[0].integer32())] = arguments.value().text();
                }},
            {u"Fail",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    throw automation::Error{arguments[0].integer32(), {u"Too hot \u263A", u"Boiler.Valve", {}}};
                }},
            {u"Explode", [](Boiler&, const Arguments&) -> Variant { throw std::logic_error{"bang"}; }},
        };
        return table;
    }

    [[nodiscard]] bool isHeard() const { return events_.hasHandlers(); }

protected:
    automation::EventSource* eventSource(const automation::EventInterface& events) override
    {
        return &events == &boilerEvents ? &events_ : nullptr;
    }

private:
    std::int32_t temperature_ = 20;
    std::shared_ptr<automation::Dispatch> neighbour_;
    std::array<Text, 3> parts_;
    automation::EventSource events_;
};

struct ComTest : testing::Test {
    ComApartment apartment;
    std::shared_ptr<Bridge> bridge = Bridge::make(offeredEvents);

    /// The object as another process sees it: reached through COM, although it lives here.
    [[nodiscard]] automation::Object throughCom(const std::shared_ptr<automation::Dispatch>& object)
    {
        return automation::Object{std::make_shared<ComDispatch>(bridge, bridge->exportObject(object))};
    }
};

/// The number of the error that a use ends with; 0 when it succeeds.
template <class Use>
[[nodiscard]] std::int32_t errorNumberOf(Use&& use)
{
    try {
        static_cast<void>(use());
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

} // namespace rf::native::com
