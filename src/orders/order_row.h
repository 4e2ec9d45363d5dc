#pragma once

#include "basic/text.h"

#include <cstdint>

namespace rf {

/// One line of an order.
struct cOrderRow {
    /// Counts only where it is a key of the supplies.
    Text ItemName;
    /// 0 when the text held no number.
    std::int32_t Quantity = 0;
};

} // namespace rf
