#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace rf::demo {

/// A line that fills while something is going on, on a terminal only; elsewhere nothing is written.
class Progress {
public:
    Progress(std::string what, std::size_t total);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    /// The line is gone afterwards.
    ~Progress();

    void show(std::size_t done);

private:
    std::string what_;
    std::size_t total_;
    bool isShown_;
    std::chrono::steady_clock::time_point begin_ = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point last_;
};

} // namespace rf::demo
