#include "linux/scripting_error.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

namespace rf::native {

namespace {

struct NumberedDescription {
    std::int32_t number;
    TextView description;
};

constexpr NumberedDescription descriptions[]{
    {scripting_error::badFileName, u"Bad file name or number"},
    {scripting_error::badFileMode, u"Bad file mode"},
    {scripting_error::deviceError, u"Device I/O error"},
    {scripting_error::fileAlreadyExists, u"File already exists"},
    {scripting_error::diskFull, u"Disk full"},
    {scripting_error::inputPastEnd, u"Input past end of file"},
    {scripting_error::tooManyFiles, u"Too many files"},
    {scripting_error::permissionDenied, u"Permission denied"},
    {scripting_error::pathNotFound, u"Path not found"},
    {scripting_error::elementNotFound, u"Element not found"},
    {scripting_error::commandNotFound, u"The system cannot find the file specified."},
};

std::int32_t numberOf(int systemError)
{
    switch (systemError) {
    case ENOENT:
        return error_number::fileNotFound;
    case ENOTDIR:
        return scripting_error::pathNotFound;
    case EEXIST:
        return scripting_error::fileAlreadyExists;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case ETXTBSY:
        return scripting_error::permissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return scripting_error::diskFull;
    case EMFILE:
    case ENFILE:
        return scripting_error::tooManyFiles;
    case ENAMETOOLONG:
    case ELOOP:
        return scripting_error::badFileName;
    default:
        return scripting_error::deviceError;
    }
}

} // namespace

automation::Error scriptingError(std::int32_t number, TextView className)
{
    const auto* const found = std::ranges::find(descriptions, number, &NumberedDescription::number);
    const auto description = found == std::end(descriptions) ? errorDescription(number) : found->description;
    return automation::Error{number, {Text{description}, Text{className}, {}}};
}

automation::Error fileError(int systemError, TextView className)
{
    return scriptingError(numberOf(systemError), className);
}

} // namespace rf::native
