#pragma once

#include "linux/demo/programme.h"

#include <cstdint>

namespace rf::demo {

/// Fills an installation with bookings of past years, for measuring: so many, shared out over the programme's rooms,
/// and the two copies of each. It writes into the store itself, while no host serves it.
void fillStore(const std::filesystem::path& store, std::span<const Talk> talks, std::int64_t bookings);

} // namespace rf::demo
