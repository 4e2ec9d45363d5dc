#pragma once

#include "basic/regional.h"
#include "host/restriction_condition.h"

#include <span>

namespace rf::host {

/// The tree of a restriction's text, read from left to right in one pass. Refused as `Restriction::parse` says.
[[nodiscard]] Condition parseCondition(
    TextView text, std::span<const FieldDefinition> folderFields, const Regional& regional);

} // namespace rf::host
