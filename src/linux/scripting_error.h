#pragma once

#include "automation/error.h"

#include <cstdint>

namespace rf::native {

/// The failures of the scripting classes beyond those that every object knows.
namespace scripting_error {
inline constexpr std::int32_t badFileName = 52;
inline constexpr std::int32_t badFileMode = 54;
inline constexpr std::int32_t deviceError = 57;
inline constexpr std::int32_t fileAlreadyExists = 58;
inline constexpr std::int32_t diskFull = 61;
inline constexpr std::int32_t inputPastEnd = 62;
inline constexpr std::int32_t tooManyFiles = 67;
inline constexpr std::int32_t permissionDenied = 70;
inline constexpr std::int32_t pathNotFound = 76;
inline constexpr std::int32_t elementNotFound = 32811;
/// The system's own code for a program that it cannot find.
inline constexpr std::int32_t commandNotFound = -2147024894;
} // namespace scripting_error

[[nodiscard]] automation::Error scriptingError(std::int32_t number, TextView className);

/// The failure that an `errno` of a file operation stands for. A name that is not there counts as a missing file;
/// the caller tells a missing folder apart.
[[nodiscard]] automation::Error fileError(int systemError, TextView className);

} // namespace rf::native
