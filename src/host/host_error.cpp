#include "host/host_error.h"

namespace rf::host {

automation::Error hostError(std::int32_t number, Text description)
{
    return automation::Error{number, {std::move(description), u"Host", {}}};
}

} // namespace rf::host
