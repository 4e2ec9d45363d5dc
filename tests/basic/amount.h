#pragma once

#include "basic/currency.h"

namespace rf::test {

/// An amount of money by its exact digits.
[[nodiscard]] inline Currency amount(std::int64_t tenThousandths)
{
    return Currency::fromTenThousandths(tenThousandths);
}

} // namespace rf::test
