#pragma once

#include "automation/variant.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <vector>

namespace rf::automation {

struct EventMember {
    TextView name;
    /// The dispatch id under which a COM source raises it.
    std::int32_t id = 0;
};

/// A set of events that an object can raise. COM knows the set by its interface id, whose last eight bytes are the
/// same for all that the host has; other transports know it by its name.
struct EventInterface {
    TextView name;
    std::uint32_t id = 0;
    std::span<const EventMember> members;

    [[nodiscard]] const EventMember* find(TextView member) const;
    [[nodiscard]] const EventMember* find(std::int32_t memberId) const;
};

/// Receives every event of a set by its name. An argument that is a reference may be assigned (`Cancel`).
using EventHandler = std::function<void(TextView event, std::span<Variant> arguments)>;

/// A handler's tie to its source. It is cut when this object goes; cutting it twice, or after the source has gone,
/// does nothing.
class Connection {
public:
    Connection() = default;
    explicit Connection(std::function<void()> disconnect)
        : disconnect_(std::move(disconnect))
    {
    }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;
    Connection(Connection&& other) noexcept;
    Connection& operator=(Connection&& other) noexcept;
    ~Connection() { disconnect(); }

    void disconnect();
    [[nodiscard]] explicit operator bool() const { return static_cast<bool>(disconnect_); }

private:
    std::function<void()> disconnect_;
};

/// The source side of a set of events for an object of this process. Handlers may connect and disconnect while an
/// event is being raised: one that has gone hears nothing more, a new one hears of the next event.
class EventSource {
public:
    EventSource();

    [[nodiscard]] Connection connect(EventHandler handler);
    /// Calls the handlers in the order of their connection, nested in this call.
    void raise(TextView event, std::span<Variant> arguments) const;
    void raise(TextView event) const { raise(event, {}); }
    [[nodiscard]] bool hasHandlers() const;

private:
    struct Handlers;
    std::shared_ptr<Handlers> handlers_;
};

} // namespace rf::automation
