#pragma once

#include "automation/local_object.h"

#include <array>
#include <cstdlib>
#include <functional>
#include <stdexcept>

namespace rf::test {

inline constexpr automation::EventMember boilerEventMembers[]
    = {{u"Heated", 0xF001}, {u"BeforeHeat", 0xF002}, {u"Deeper", 0xF003}};
inline constexpr automation::EventInterface boilerEvents{u"BoilerEvents", 0x0006FF01, boilerEventMembers};
inline constexpr automation::EventInterface unknownEvents{u"UnknownEvents", 0x0006FF02, {}};
inline constexpr automation::EventInterface unraisedEvents{u"UnraisedEvents", 0x0006FF03, {}};
inline constexpr const automation::EventInterface* offeredEvents[] = {&boilerEvents, &unraisedEvents};

/// An object with a member for everything that can cross to another process.
class Boiler final : public automation::LocalObject<Boiler> {
public:
    static constexpr TextView className = u"Boiler";

    Boiler() { ++count; }
    ~Boiler() override { --count; }
    /// The boilers of this process.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): the class counts what no one else can.
    static inline int count = 0;
    /// Called before the temperature is assigned.
    std::function<void(std::int32_t degrees)> onAssignment = [](std::int32_t) {};

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
                [](Boiler& self, const Arguments& arguments) { self.assign(arguments.value().integer32()); }},
            {u"Heat",
                [](Boiler& self, const Arguments& arguments) -> Variant {
                    return self.heat(arguments[0].integer32());
                }},
            {u"Echo", [](Boiler&, const Arguments& arguments) -> Variant { return arguments[0]; }},
            {u"Kind",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    return static_cast<std::int32_t>(arguments.span()[0].value().index());
                }},
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
                    return self.parts_.at(static_cast<std::size_t>(arguments[0].integer32()));
                },
                [](Boiler& self, const Arguments& arguments) {
                    self.parts_.at(static_cast<std::size_t>(arguments[0].integer32())) = arguments.value().text();
                }},
            {u"Boilers",
                [](Boiler&, const Arguments& arguments) -> Variant { return boilers(arguments[0].integer32()); }},
            {u"HeatOther",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    return automation::Object{arguments[0].dispatch()}.call(u"Heat", arguments[1]);
                }},
            {u"Dive",
                [](Boiler& self, const Arguments& arguments) -> Variant {
                    return self.dive(arguments[0].integer32());
                }},
            {u"Fail",
                [](Boiler&, const Arguments& arguments) -> Variant {
                    throw automation::Error{
                        arguments[0].integer32(), {Text{u"Too hot \u263A"} + char16_t{0xD800}, u"Boiler.Valve", {}}};
                }},
            {u"Explode", [](Boiler&, const Arguments&) -> Variant { throw std::logic_error{"bang"}; }},
            {u"Die", [](Boiler&, const Arguments&) -> Variant { std::_Exit(1); }},
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
    void assign(std::int32_t degrees)
    {
        onAssignment(degrees);
        temperature_ = degrees;
    }

    /// Raises `Deeper(steps, Depth)` until the steps are used up; handlers dive on. Answers how deep it went.
    automation::Variant dive(std::int32_t steps)
    {
        automation::Variant depth{0};
        automation::Variant told[] = {steps, automation::Reference{&depth}};
        if (steps > 0)
            events_.raise(u"Deeper", told);
        return depth.integer32() + 1;
    }

    static automation::Variant boilers(std::int32_t number)
    {
        std::vector<automation::Variant> made;
        made.reserve(static_cast<std::size_t>(number));
        for (std::int32_t index = 0; index < number; ++index)
            made.emplace_back(std::make_shared<Boiler>());
        return automation::Array::list(std::move(made));
    }

    std::int32_t temperature_ = 20;
    std::shared_ptr<automation::Dispatch> neighbour_;
    std::array<Text, 3> parts_;
    automation::EventSource events_;
};

} // namespace rf::test
