#pragma once

#include "basic/runtime_error.h"

namespace rf::test {

/// The number of the run-time error that leaves a procedure; 0 when none does.
template <typename Procedure>
std::int32_t errorOf(Procedure procedure)
{
    try {
        static_cast<void>(procedure());
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return 0;
}

} // namespace rf::test
