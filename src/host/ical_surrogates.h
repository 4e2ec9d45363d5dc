#pragma once

namespace rf::host::ical {

/// U+FFFD, which stands for what a text cannot show.
inline constexpr char16_t replacementCharacter = 0xFFFD;

inline constexpr char16_t firstHighHalf = 0xD800;
inline constexpr char16_t firstLowHalf = 0xDC00;
inline constexpr char16_t behindLowHalves = 0xE000;

/// Whether the unit is the first, or the second, half of a surrogate pair.
[[nodiscard]] constexpr bool isHighHalf(char16_t unit) { return unit >= firstHighHalf && unit < firstLowHalf; }
[[nodiscard]] constexpr bool isLowHalf(char16_t unit) { return unit >= firstLowHalf && unit < behindLowHalves; }

} // namespace rf::host::ical
