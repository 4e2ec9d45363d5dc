#include "automation/error.h"

namespace rf::automation {

Error::Error(std::int32_t number, Details details, std::source_location where)
    : RuntimeError(number, details.description, where)
    , details_(std::move(details))
{
}

Error Error::at(std::source_location where) const { return Error{number(), details_, where}; }

} // namespace rf::automation
