#include "automation/local_object.h"

namespace rf::automation {

namespace {

[[noreturn]] void fail(std::int32_t number, TextView className, TextView member)
{
    throw Error{number, {Text{errorDescription(number)}, Text{className}, Text{member}}};
}

} // namespace

const Variant& Arguments::operator[](std::size_t index) const
{
    if (!has(index))
        throw RuntimeError{error_number::wrongArgumentCount};
    return values_[index].dereferenced();
}

void Arguments::assign(std::size_t index, Variant value) const
{
    if (index < values_.size())
        values_[index].assignThrough(std::move(value));
}

MemberIndex::MemberIndex(std::span<const TextView> names)
{
    for (std::size_t position = 0; position < names.size(); ++position)
        positions_.emplace(names[position], position);
}

MemberIndex::~MemberIndex() = default;

std::optional<std::size_t> MemberIndex::find(TextView name) const
{
    const auto found = positions_.find(name);
    return found == positions_.end() ? std::nullopt : std::optional{found->second};
}

void failWithoutMember(TextView className, TextView member) { fail(error_number::memberNotFound, className, member); }

void failWithoutEvents(TextView className, TextView events)
{
    fail(error_number::eventsNotSupported, className, events);
}

} // namespace rf::automation
