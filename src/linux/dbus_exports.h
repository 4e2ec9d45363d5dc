#pragma once

#include "automation/object.h"

#include <QString>
#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>

namespace rf::native::dbus {

/// The objects of this process that other processes hold, how often each process holds them, and the handlers that
/// each has connected. An object is kept alive by its holders and has one number as long as there are any; numbers are
/// never used again. What goes may do anything while it goes, so it goes when the tables are in order again.
class Exports {
public:
    using Number = std::uint64_t;
    using Holder = QString;

    /// Gives a process one more reference, and the object a number when it has none.
    [[nodiscard]] Number hold(const std::shared_ptr<automation::Dispatch>& object, const Holder& holder);
    /// One more reference to an object that somebody holds; false when nobody does.
    bool hold(Number number, const Holder& holder);
    /// Takes references away; more than there are take all.
    void release(Number number, const Holder& holder, std::uint64_t count);

    /// Keeps a connection until `disconnect` or the end of its process.
    void connect(const Holder& holder, std::uint64_t sink, automation::Connection connection);
    void disconnect(const Holder& holder, std::uint64_t sink);

    /// Takes back all that a process has.
    void drop(const Holder& holder);
    void clear();

    [[nodiscard]] std::shared_ptr<automation::Dispatch> find(Number number) const;
    [[nodiscard]] std::size_t objectCount() const { return objects_.size(); }
    [[nodiscard]] std::size_t sinkCount() const;
    [[nodiscard]] std::size_t sinkCount(const Holder& holder) const;

private:
    struct Entry {
        std::shared_ptr<automation::Dispatch> object;
        std::size_t holders = 0;
    };
    struct Possessions {
        std::unordered_map<Number, std::uint64_t> references;
        std::map<std::uint64_t, automation::Connection> sinks;
    };

    /// What nobody holds any more, for the caller to let go.
    [[nodiscard]] std::shared_ptr<automation::Dispatch> leave(Number number);

    std::unordered_map<Number, Entry> objects_;
    std::unordered_map<const void*, Number> numbers_;
    std::map<Holder, Possessions> holders_;
    Number lastNumber_ = 0;
};

} // namespace rf::native::dbus
