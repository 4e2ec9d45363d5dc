#pragma once

#include "automation/error.h"
#include "windows/com_values.h"

namespace rf::native::com {

// The error policy of the transport: within the program a failure is an exception, an automation::Error for
// everything that COM reports; towards COM it is an HRESULT. `check` and `errorOf` turn the one into the other on
// the way in, `reportException` on the way out, and no exception leaves a COM method. Only what cannot be told
// to anybody, such as a farewell to a source that has gone, is ignored, and says so where it is.

/// The classic number of a failure; the code itself where the classic rules have none.
[[nodiscard]] std::int32_t numberOf(HRESULT status);
/// The code under which a number travels: a classic one goes as FACILITY_CONTROL, from which `numberOf` reads it back.
[[nodiscard]] HRESULT statusOf(std::int32_t number);

[[nodiscard]] automation::Error errorOf(HRESULT status, TextView member = {});
/// The failure of an Invoke, which may have told more than its code. Reading it fetches what the callee deferred.
[[nodiscard]] automation::Error errorOf(HRESULT status, ExceptionInfo& told, TextView member);

/// Throws the failure that a code stands for.
void check(HRESULT status);

/// The exception that is being handled, as a COM method answers it. `told` takes the description when the caller
/// asked for one.
[[nodiscard]] HRESULT reportException(EXCEPINFO* told) noexcept;

} // namespace rf::native::com
