#include "automation/local_object.h"

namespace rf::automation {

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

} // namespace rf::automation
