#pragma once

#include "basic/runtime_error.h"

#include <optional>
#include <type_traits>
#include <utility>

namespace rf {

/// Errors suppressed statement by statement: a failing step leaves its result empty, its error becomes the pending
/// one, and the procedure goes on. A later step that succeeds does not clear it; only `clear` does.
///
///     PendingError errors;
///     const Text name = errors.attempt([&] { return folder.name(); });
///     if (errors.pending()) …
///
/// Only run-time errors are kept. What ends the program passes through.
class PendingError {
public:
    /// Runs one step. The result is what the step returns, or an empty value when it failed.
    template <class Step>
    auto attempt(Step&& step) -> std::invoke_result_t<Step>
    {
        using Result = std::invoke_result_t<Step>;
        try {
            return std::forward<Step>(step)();
        } catch (const RuntimeError& error) {
            error_ = error;
        }
        if constexpr (!std::is_void_v<Result>)
            return Result{};
    }

    [[nodiscard]] bool pending() const { return error_.has_value(); }
    void clear() { error_.reset(); }

    /// The pending error's number, description and line; 0 and empty when none is pending.
    [[nodiscard]] std::int32_t number() const { return error_ ? error_->number() : 0; }
    [[nodiscard]] Text description() const { return error_ ? error_->description() : Text{}; }
    [[nodiscard]] std::uint_least32_t line() const { return error_ ? error_->where().line() : 0; }

private:
    std::optional<RuntimeError> error_;
};

} // namespace rf
