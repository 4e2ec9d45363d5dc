#pragma once

#include "basic/text.h"

#include <cstdint>
#include <cstdlib>

namespace rf::fuzz {

/// The bytes as units, the lower half first; an odd byte at the end is left out.
[[nodiscard]] inline Text unitsOf(const std::uint8_t* bytes, std::size_t size)
{
    constexpr int bitsOfAByte = 8;
    Text text;
    for (std::size_t index = 0; index + 1 < size; index += 2)
        text += static_cast<char16_t>(bytes[index] | bytes[index + 1] << bitsOfAByte);
    return text;
}

/// Ends the run with this input when the condition does not hold.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace rf::fuzz
