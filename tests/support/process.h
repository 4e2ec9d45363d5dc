#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace rf::test {

/// A real process of the program under test. It is ended when this object goes.
class Process {
public:
    /// Starts the program with its arguments. On Linux its windows are drawn off screen.
    explicit Process(const std::vector<std::string>& arguments);
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;
    ~Process();

    [[nodiscard]] bool running() const;
    /// The exit status, when the process ends in time; the signal's number behind 128 for one that was killed.
    [[nodiscard]] std::optional<int> waitForEnd(std::chrono::milliseconds limit) const;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace rf::test
