#pragma once

#include "automation/local_object.h"

#include <array>
#include <functional>
#include <vector>

namespace rf::test {

inline constexpr std::array<automation::EventMember, 2> roomEventMembers{{{u"Booked", 1}, {u"Closing", 2}}};
inline constexpr automation::EventInterface roomEvents{u"RoomEvents", 0x00010001, roomEventMembers};
inline constexpr automation::EventInterface otherEvents{u"OtherEvents", 0x00010002, roomEventMembers};

/// An object of this process with a member of every sort.
class Room final : public automation::LocalObject<Room> {
public:
    static constexpr TextView className = u"Room";

    Text name = u"Room 1";
    Text code;
    /// What the last `Book` was given, in order, the arguments that were left out included.
    std::vector<automation::Variant> booked;
    std::function<void()> whileVisited;
    automation::EventSource changes;

    [[nodiscard]] static std::span<const automation::LocalMember<Room>> members();

private:
    [[nodiscard]] automation::EventSource* eventSource(const automation::EventInterface& events) override
    {
        return events.id == roomEvents.id ? &changes : nullptr;
    }
};

inline std::span<const automation::LocalMember<Room>> Room::members()
{
    using automation::Arguments;
    using automation::LocalMember;
    using automation::Variant;
    static constexpr std::array table{
        LocalMember<Room>{u"Name", [](Room& self, const Arguments&) -> Variant { return self.name; },
            [](Room& self, const Arguments& arguments) { self.name = arguments.value().text(); }},
        LocalMember<Room>{u"Seats", [](Room&, const Arguments&) -> Variant { return 12; }},
        LocalMember<Room>{
            u"Code", nullptr, [](Room& self, const Arguments& arguments) { self.code = arguments.value().text(); }},
        LocalMember<Room>{u"Book",
            [](Room& self, const Arguments& arguments) -> Variant {
                self.booked.clear();
                for (std::size_t index = 0; index < arguments.count(); ++index)
                    self.booked.push_back(arguments.span()[index].dereferenced());
                return arguments.has(1) ? arguments[1] : arguments[0];
            }},
        // The seats that are left go into the first argument.
        LocalMember<Room>{u"Reserve",
            [](Room&, const Arguments& arguments) -> Variant {
                arguments.assign(0, arguments[0].integer32() - 1);
                return true;
            }},
        LocalMember<Room>{u"Visit",
            [](Room& self, const Arguments&) -> Variant {
                if (self.whileVisited)
                    self.whileVisited();
                return self.name;
            }},
    };
    return table;
}

} // namespace rf::test
