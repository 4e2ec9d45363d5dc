#pragma once

#include "automation/error.h"

namespace rf::host {

/// The result codes that the object model answers with, beside the classic numbers.
namespace host_error {
/// An index or a name that a collection does not have, and every argument that is out of place.
inline constexpr std::int32_t badArgument = -2147352567;
/// An entry id, a folder or an item that is not there.
inline constexpr std::int32_t notFound = -2147221233;
/// An item that was deleted, by this object or by anybody else.
inline constexpr std::int32_t deleted = -2147221238;
/// The store refused.
inline constexpr std::int32_t storeFailed = -2147467259;
} // namespace host_error

/// A failure of the host with one of the numbers above and a sentence for the person who reads it.
[[nodiscard]] automation::Error hostError(std::int32_t number, Text description);

} // namespace rf::host
