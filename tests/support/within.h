#pragma once

#include <chrono>
#include <thread>

namespace rf::test {

/// Whether the condition held once before the limit had passed. It is asked every ten milliseconds, and need not go on
/// to hold: a process that starts another is two for a moment.
template <class Condition>
[[nodiscard]] bool within(std::chrono::milliseconds limit, Condition&& condition)
{
    constexpr std::chrono::milliseconds pause{10};
    const auto end = std::chrono::steady_clock::now() + limit;
    while (std::chrono::steady_clock::now() < end) {
        if (condition())
            return true;
        std::this_thread::sleep_for(pause);
    }
    return condition();
}

} // namespace rf::test
