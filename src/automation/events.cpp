#include "automation/events.h"

#include <algorithm>
#include <utility>

namespace rf::automation {

const EventMember* EventInterface::find(TextView member) const
{
    const auto found = std::ranges::find(members, member, &EventMember::name);
    return found == members.end() ? nullptr : &*found;
}

const EventMember* EventInterface::find(std::int32_t memberId) const
{
    const auto found = std::ranges::find(members, memberId, &EventMember::id);
    return found == members.end() ? nullptr : &*found;
}

Connection::Connection(Connection&& other) noexcept
    : disconnect_(std::exchange(other.disconnect_, nullptr))
{
}

Connection& Connection::operator=(Connection&& other) noexcept
{
    if (this != &other) {
        disconnect();
        disconnect_ = std::exchange(other.disconnect_, nullptr);
    }
    return *this;
}

void Connection::disconnect()
{
    if (const auto cut = std::exchange(disconnect_, nullptr))
        cut();
}

struct EventSource::Handlers {
    std::vector<std::shared_ptr<EventHandler>> list;
};

EventSource::EventSource()
    : handlers_(std::make_shared<Handlers>())
{
}

Connection EventSource::connect(EventHandler handler)
{
    auto entry = std::make_shared<EventHandler>(std::move(handler));
    handlers_->list.push_back(entry);
    return Connection{[handlers = std::weak_ptr{handlers_}, entry] {
        if (const auto alive = handlers.lock())
            std::erase(alive->list, entry);
    }};
}

void EventSource::raise(TextView event, std::span<Variant> arguments) const
{
    // The copies keep the list and each handler alive even when a handler makes the source or itself go.
    const auto handlers = handlers_;
    for (const auto called = handlers->list; const auto& handler : called)
        if (std::ranges::find(handlers->list, handler) != handlers->list.end())
            (*handler)(event, arguments);
}

bool EventSource::hasHandlers() const { return !handlers_->list.empty(); }

} // namespace rf::automation
