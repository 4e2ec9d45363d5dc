#pragma once

#include "orders/order_row.h"
#include "platform/record_dictionary.h"

namespace rf {

class Session;

/// What one booking orders: rows under the keys "1", "2", "3" … in the order in which they were added. Rows are only
/// ever added, so the keys have no gaps.
class cOrders {
public:
    explicit cOrders(Session& session);

    [[nodiscard]] const RecordDictionary<cOrderRow>& OrderRows() const { return objOrderRows_; }
    void setOrderRows(RecordDictionary<cOrderRow> rows) { objOrderRows_ = std::move(rows); }

    /// Adds a row and its value to the total. A row whose item is not among the settings' supplies is skipped without
    /// a word: its item has left the supply list. Error 6 when the total leaves the range of money; the row is then
    /// there and the total without it.
    void Add(const cOrderRow& OrderRow);

    /// One line for each row: the item's name, a TAB, the quantity, CR LF. Empty without rows. Prices are not in it:
    /// they are always those of the present supply list.
    [[nodiscard]] Text OrdersString() const;

    /// The value of the rows that `Add` took, at the prices that it found.
    [[nodiscard]] Currency OrderTotal() const { return curOrderTotal_; }

private:
    Session& session_;
    RecordDictionary<cOrderRow> objOrderRows_;
    Currency curOrderTotal_;
};

} // namespace rf
