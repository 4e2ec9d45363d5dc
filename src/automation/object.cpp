#include "automation/object.h"

namespace rf::automation {

namespace {

/// Runs a use of an object and gives every failure the caller's place.
template <class Use>
auto located(const Member& member, Use&& use)
{
    try {
        return use();
    } catch (const Error& error) {
        throw error.at(member.where);
    } catch (const RuntimeError& error) {
        throw Error{error.number(), {error.description(), {}, Text{member.name}}, member.where};
    }
}

[[noreturn]] void objectNotSet(const Member& member)
{
    throw Error{error_number::objectNotSet, {Text{errorDescription(error_number::objectNotSet)}, {}, Text{member.name}},
        member.where};
}

} // namespace

Variant Object::invoke(const Member& member, Invocation kind, std::span<Variant> arguments) const
{
    if (!dispatch_)
        objectNotSet(member);
    // Held here, since an event that is handled during the call may drop the handle.
    const auto dispatch = dispatch_;
    return located(member, [&] { return dispatch->invoke(member.name, kind, arguments); });
}

Connection Object::advise(const EventInterface& events, EventHandler handler, Where where) const
{
    const Member member{u"advise", where};
    if (!dispatch_)
        objectNotSet(member);
    const auto dispatch = dispatch_;
    return located(member, [&] { return dispatch->advise(events, std::move(handler)); });
}

bool operator==(const Object& left, const Object& right)
{
    if (!left.dispatch_ || !right.dispatch_)
        return !left.dispatch_ && !right.dispatch_;
    return left.dispatch_->identity() == right.dispatch_->identity();
}

} // namespace rf::automation
