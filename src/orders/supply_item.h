#pragma once

#include "basic/currency.h"
#include "basic/text.h"

namespace rf {

/// One entry of the administrator's supply list.
struct cSupplyItem {
    /// Of one unit.
    Currency Price;
    /// Also the key under which the supplies hold the item.
    Text ItemName;
};

} // namespace rf
