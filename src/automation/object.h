#pragma once

#include "automation/error.h"
#include "automation/events.h"
#include "automation/variant.h"

#include <array>
#include <memory>
#include <span>

namespace rf::automation {

/// How a member is used: `Get` and `Call` read it, with or without arguments; `Put` assigns the last argument.
enum class Invocation { Get, Put, Call };

/// One late-bound object wherever it lives: in this process, behind COM, behind D-Bus.
class Dispatch {
public:
    Dispatch() = default;
    Dispatch(const Dispatch&) = delete;
    Dispatch& operator=(const Dispatch&) = delete;
    virtual ~Dispatch() = default;

    /// Uses a member by its name, whose case does not count. Arguments stand in the order of the call; those that
    /// are references may be assigned. Every failure is an `Error`; 438 when there is no such member.
    virtual Variant invoke(TextView member, Invocation kind, std::span<Variant> arguments) = 0;

    /// Hears a set of events until the connection goes. Error 459 when the object has no such set.
    [[nodiscard]] virtual Connection advise(const EventInterface& events, EventHandler handler) = 0;

    /// Equal for two handles to one object, also where a transport made two proxies of it.
    [[nodiscard]] virtual const void* identity() const { return this; }
};

/// A member's name with the place of the call, so that a failure can name the caller's line.
struct Member {
    TextView name;
    Where where;

    Member(const char16_t* memberName, Where place = Where::current())
        : name(memberName)
        , where(place)
    {
    }
};

/// The value handle to an object, or to nothing. Using a member of nothing is error 91.
class Object {
public:
    Object() = default;
    explicit Object(std::shared_ptr<Dispatch> dispatch)
        : dispatch_(std::move(dispatch))
    {
    }

    [[nodiscard]] explicit operator bool() const { return dispatch_ != nullptr; }
    [[nodiscard]] const std::shared_ptr<Dispatch>& dispatch() const { return dispatch_; }
    operator Variant() const { return Variant{dispatch_}; }

    template <class... Arguments>
    Variant get(Member member, Arguments&&... arguments) const
    {
        return use(member, Invocation::Get, std::forward<Arguments>(arguments)...);
    }
    template <class... Arguments>
    Variant call(Member member, Arguments&&... arguments) const
    {
        return use(member, Invocation::Call, std::forward<Arguments>(arguments)...);
    }
    /// The value is the last argument.
    template <class... Arguments>
    void put(Member member, Arguments&&... argumentsAndValue) const
    {
        use(member, Invocation::Put, std::forward<Arguments>(argumentsAndValue)...);
    }
    [[nodiscard]] Connection advise(
        const EventInterface& events, EventHandler handler, Where where = Where::current()) const;

    /// Two handles to one object, or both to nothing.
    friend bool operator==(const Object& left, const Object& right);

private:
    template <class... Arguments>
    Variant use(const Member& member, Invocation kind, Arguments&&... arguments) const
    {
        std::array<Variant, sizeof...(Arguments)> list{Variant(std::forward<Arguments>(arguments))...};
        return invoke(member, kind, list);
    }
    Variant invoke(const Member& member, Invocation kind, std::span<Variant> arguments) const;

    std::shared_ptr<Dispatch> dispatch_;
};

} // namespace rf::automation
