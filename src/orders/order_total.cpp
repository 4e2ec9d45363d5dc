#include "orders/order_total.h"

#include "automation/conversion.h"
#include "basic/conversion.h"
#include "diagnostics/pending_error.h"

namespace rf::orders {

Text totalText(const Regional& regional, const automation::Variant& total)
{
    if (!automation::isNumeric(regional, total))
        return automation::toText(regional, total);
    PendingError errors;
    const Currency amount = errors.attempt([&] { return automation::toCurrency(regional, total); });
    return errors.pending() ? automation::toText(regional, total) : regional.formatMoney(amount);
}

bool costsSomething(const Regional& regional, TextView total, std::source_location where)
{
    return isNumeric(regional, total) && toInteger(regional, total, where) > 0;
}

} // namespace rf::orders
