#pragma once

#include "basic/text.h"

#include <cstdint>
#include <exception>
#include <source_location>

namespace rf {

/// The numbers of the run-time errors that the classic Basic rules know.
namespace error_number {
inline constexpr std::int32_t invalidCall = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t outOfMemory = 7;
inline constexpr std::int32_t subscriptOutOfRange = 9;
inline constexpr std::int32_t typeMismatch = 13;
inline constexpr std::int32_t outOfStackSpace = 28;
inline constexpr std::int32_t internalError = 51;
inline constexpr std::int32_t fileNotFound = 53;
inline constexpr std::int32_t objectNotSet = 91;
inline constexpr std::int32_t invalidUseOfNull = 94;
inline constexpr std::int32_t resourceNotFound = 326;
inline constexpr std::int32_t cannotCreateObject = 429;
inline constexpr std::int32_t memberNotFound = 438;
inline constexpr std::int32_t namedArgumentNotFound = 448;
inline constexpr std::int32_t wrongArgumentCount = 450;
inline constexpr std::int32_t keyAlreadyExists = 457;
inline constexpr std::int32_t eventsNotSupported = 459;
inline constexpr std::int32_t serverUnavailable = 462;
} // namespace error_number

/// The description that belongs to a number of the table above; "Application-defined or object-defined error"
/// for any other.
[[nodiscard]] TextView errorDescription(std::int32_t number);

/// A failure that a procedure may suppress, test or report. It knows where in the program it arose, since an
/// error report names the line.
class RuntimeError : public std::exception {
public:
    explicit RuntimeError(std::int32_t number, std::source_location where = std::source_location::current());
    RuntimeError(std::int32_t number, Text description, std::source_location where = std::source_location::current());

    [[nodiscard]] std::int32_t number() const { return number_; }
    [[nodiscard]] const Text& description() const { return description_; }
    [[nodiscard]] const std::source_location& where() const { return where_; }
    /// "#13: Type mismatch" in UTF-8, for a debugger or a failing test.
    [[nodiscard]] const char* what() const noexcept override { return what_.c_str(); }

private:
    std::int32_t number_;
    Text description_;
    std::source_location where_;
    std::string what_;
};

} // namespace rf
