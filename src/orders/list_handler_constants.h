#pragma once

#include "orders/list_handler_control.h"
#include "outlook/spreadsheet.h"

namespace rf::orders {

/// The control's own numbers for what a list does with it, under the names that its generation has.
class ListConstants {
public:
    using Where = outlook::Where;

    ListConstants() = default;
    ListConstants(outlook::SpreadsheetConstants constants, Generation generation)
        : constants_(std::move(constants))
        , oldest_(generation == Generation::Oldest)
    {
    }

    [[nodiscard]] std::int32_t thinLine(Where where = Where::current()) const
    {
        return constants_.owcLineWeightThin(where);
    }
    [[nodiscard]] std::int32_t dashedLine(Where where = Where::current()) const
    {
        return constants_.owcLineStyleDash(where);
    }
    [[nodiscard]] std::int32_t toTheRight(Where where = Where::current()) const
    {
        return oldest_ ? constants_.ssToRight(where) : constants_.xlToRight(where);
    }
    [[nodiscard]] std::int32_t centered(Where where = Where::current()) const
    {
        return oldest_ ? constants_.ssHAlignCenter(where) : constants_.xlHAlignCenter(where);
    }
    [[nodiscard]] std::int32_t rightEdge(Where where = Where::current()) const
    {
        return oldest_ ? constants_.ssEdgeRight(where) : constants_.xlEdgeRight(where);
    }
    [[nodiscard]] std::int32_t topEdge(Where where = Where::current()) const
    {
        return oldest_ ? constants_.ssEdgeTop(where) : constants_.xlEdgeTop(where);
    }
    [[nodiscard]] std::int32_t ascending(Where where = Where::current()) const
    {
        return oldest_ ? constants_.ssAscending(where) : constants_.xlAscending(where);
    }
    /// A sorted range that has no heading of its own.
    [[nodiscard]] std::int32_t withoutHeading(Where where = Where::current()) const
    {
        return oldest_ ? constants_.ssNo(where) : constants_.xlNo(where);
    }

private:
    outlook::SpreadsheetConstants constants_;
    bool oldest_ = false;
};

} // namespace rf::orders
