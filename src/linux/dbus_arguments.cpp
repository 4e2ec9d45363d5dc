#include "linux/dbus_arguments.h"

namespace rf::native::dbus {

using automation::Reference;
using automation::Variant;

IncomingArguments::IncomingArguments(const QList<WireValue>& arguments, ObjectImporter& objects)
{
    values_.reserve(static_cast<std::size_t>(arguments.size()));
    // No target moves once something refers to it.
    targets_.reserve(static_cast<std::size_t>(arguments.size()));
    for (const auto& argument : arguments) {
        const auto position = static_cast<uint>(values_.size());
        Variant value = unpack(argument, objects);
        if (isReference(argument)) {
            targets_.push_back({position, value, value});
            values_.emplace_back(Reference{&targets_.back().value});
        } else {
            values_.push_back(std::move(value));
        }
    }
}

QList<WireAssignment> IncomingArguments::assignments(Packer& packer) const
{
    QList<WireAssignment> assigned;
    for (const auto& [position, value, before] : targets_)
        if (!(value == before))
            assigned.push_back({position, packer.pack(value)});
    return assigned;
}

Assignments unpackAssignments(const QVariant& argument, ObjectImporter& objects)
{
    Assignments assignments;
    for (const auto& [position, value] : qdbus_cast<QList<WireAssignment>>(argument))
        assignments.emplace_back(position, unpack(value, objects));
    return assignments;
}

void assign(const Assignments& assignments, std::span<Variant> arguments)
{
    for (const auto& [position, value] : assignments)
        if (position < arguments.size())
            arguments[position].assignThrough(value);
}

} // namespace rf::native::dbus
