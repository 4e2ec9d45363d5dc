#pragma once

#include "basic/pattern_regional.h"

#include <memory>
#include <string>

namespace rf::native {

/// The regional settings of this system. On Linux ICU states them for the locale of the environment
/// (LC_ALL, LC_NUMERIC, LC_TIME, LC_MONETARY, LANG; LC_MESSAGES and LANGUAGE have no part in them); a locale that
/// the environment does not name gives English (United States). The system locale id is that of LC_ALL,
/// LC_MESSAGES or LANG, since it chooses the language of the texts.
[[nodiscard]] std::unique_ptr<Regional> makeRegional();

/// The same settings for a given POSIX locale name such as "de_DE.UTF-8"; also what `makeRegional` is made of.
[[nodiscard]] RegionalSettings settingsOf(const std::string& localeName);

} // namespace rf::native
