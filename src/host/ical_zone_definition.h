#pragma once

#include "host/ical_components.h"
#include "host/ical_zone.h"

#include <memory>

namespace rf::host::ical {

/// The clocks of a zone that a calendar text defines by itself. Null when the definition says nothing usable.
[[nodiscard]] std::unique_ptr<Zone> definedZone(const Component& definition);

} // namespace rf::host::ical
