#pragma once

#include "automation/variant.h"
#include "basic/regional.h"

namespace rf::orders {

/// The total of an order as the form shows it: an amount of money in the user's regional form. What the sheet answers
/// when it cannot add up, because a quantity is no number or the sum is beyond all money, is shown as it is: it is the
/// person's to correct and no failure.
[[nodiscard]] Text totalText(const Regional& regional, const automation::Variant& total);

/// Whether an order with that total costs something. A text that is no number costs nothing; halves are rounded to the
/// even number, so an order of one half is free. Error 6 from 32,768 on, which is more than 16 bits hold.
[[nodiscard]] bool costsSomething(
    const Regional& regional, TextView total, std::source_location where = std::source_location::current());

} // namespace rf::orders
