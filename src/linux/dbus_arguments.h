#pragma once

#include "linux/dbus_value.h"

#include <utility>
#include <vector>

namespace rf::native::dbus {

/// The arguments of a call as the callee sees them. A reference refers to a value kept here.
class IncomingArguments {
public:
    IncomingArguments(const QList<WireValue>& arguments, ObjectImporter& objects);
    IncomingArguments(const IncomingArguments&) = delete;
    IncomingArguments& operator=(const IncomingArguments&) = delete;
    ~IncomingArguments() = default;

    [[nodiscard]] std::span<automation::Variant> values() { return values_; }
    /// The references that the callee has assigned, for the reply.
    [[nodiscard]] QList<WireAssignment> assignments(Packer& packer) const;

private:
    struct Target {
        uint position = 0;
        automation::Variant value;
        automation::Variant before;
    };

    std::vector<automation::Variant> values_;
    std::vector<Target> targets_;
};

/// What a reply says about arguments by reference.
using Assignments = std::vector<std::pair<std::size_t, automation::Variant>>;
[[nodiscard]] Assignments unpackAssignments(const QVariant& argument, ObjectImporter& objects);
/// Gives the references among the arguments their new values.
void assign(const Assignments& assignments, std::span<automation::Variant> arguments);

} // namespace rf::native::dbus
