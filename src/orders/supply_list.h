#pragma once

#include "basic/regional.h"
#include "orders/supply_item.h"

#include <vector>

namespace rf {

/// The supply list text as the settings item holds it: for each supply its name, TAB, its price in the user's regional
/// form, CR LF.
[[nodiscard]] Text supplyLine(const cSupplyItem& supply, const Regional& regional);

/// The supplies of such a text in its order, those with one name included. A price that is no amount of money is 0. The
/// first line tells the columns: where it has no price none has.
[[nodiscard]] std::vector<cSupplyItem> readSupplyList(TextView text, const Regional& regional);

} // namespace rf
