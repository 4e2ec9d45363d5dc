#pragma once

#include "basic/pattern_regional.h"

namespace rf {

/// A date written after a Windows picture string such as "dd.MM.yyyy"; error 5 outside the years 100 to 9999.
[[nodiscard]] Text writeDate(const RegionalSettings& settings, TextView picture, Date date);

/// The quoted words of a picture, such as a word for "year" behind the number.
[[nodiscard]] std::vector<Text> quotedWords(TextView picture);

} // namespace rf
