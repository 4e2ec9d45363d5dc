#include "basic/runtime_error.h"

#include <algorithm>
#include <iterator>

namespace rf {
namespace {

struct NumberedDescription {
    std::int32_t number;
    TextView description;
};

constexpr NumberedDescription descriptions[] = {
    {error_number::invalidCall, u"Invalid procedure call or argument"},
    {error_number::overflow, u"Overflow"},
    {error_number::outOfMemory, u"Out of memory"},
    {error_number::subscriptOutOfRange, u"Subscript out of range"},
    {error_number::typeMismatch, u"Type mismatch"},
    {error_number::outOfStackSpace, u"Out of stack space"},
    {error_number::internalError, u"Internal error"},
    {error_number::fileNotFound, u"File not found"},
    {error_number::objectNotSet, u"Object variable or With block variable not set"},
    {error_number::invalidUseOfNull, u"Invalid use of Null"},
    {error_number::resourceNotFound, u"Resource with identifier not found"},
    {error_number::cannotCreateObject, u"ActiveX component can't create object"},
    {error_number::memberNotFound, u"Object doesn't support this property or method"},
    {error_number::namedArgumentNotFound, u"Named argument not found"},
    {error_number::wrongArgumentCount, u"Wrong number of arguments or invalid property assignment"},
    {error_number::keyAlreadyExists, u"This key is already associated with an element of this collection"},
    {error_number::eventsNotSupported, u"Object or class does not support the set of events"},
    {error_number::serverUnavailable, u"The remote server machine does not exist or is unavailable"},
};

} // namespace

TextView errorDescription(std::int32_t number)
{
    const auto* const found = std::find_if(std::begin(descriptions), std::end(descriptions),
        [number](const NumberedDescription& entry) { return entry.number == number; });
    return found == std::end(descriptions) ? TextView{u"Application-defined or object-defined error"}
                                           : found->description;
}

RuntimeError::RuntimeError(std::int32_t number, std::source_location where)
    : RuntimeError(number, Text{errorDescription(number)}, where)
{
}

RuntimeError::RuntimeError(std::int32_t number, Text description, std::source_location where)
    : number_(number)
    , description_(std::move(description))
    , where_(where)
    , what_("#" + std::to_string(number) + ": " + toUtf8(description_))
{
}

} // namespace rf
