#include "linux/demo/progress.h"

#include <iostream>
#include <unistd.h>
#include <utility>

namespace rf::demo {

namespace {

constexpr std::size_t barWidth = 30;
constexpr std::chrono::milliseconds drawInterval{100};

} // namespace

Progress::Progress(std::string what, std::size_t total)
    : what_(std::move(what))
    , total_(total)
    , isShown_(isatty(STDERR_FILENO) != 0 && total > 0)
{
}

Progress::~Progress()
{
    if (isShown_)
        std::cerr << "\r\033[K" << std::flush;
}

void Progress::show(std::size_t done)
{
    const auto now = std::chrono::steady_clock::now();
    if (!isShown_ || (now - last_ < drawInterval && done < total_))
        return;
    last_ = now;
    const std::size_t filled = barWidth * done / total_;
    const std::chrono::duration<double> time = now - begin_;
    const auto rate = static_cast<int>(time.count() > 0 ? static_cast<double>(done) / time.count() : 0);
    std::cerr << '\r' << what_ << " [" << std::string(filled, '#') << std::string(barWidth - filled, '.') << "] "
              << done << '/' << total_ << ", " << rate << "/s\033[K" << std::flush;
}

} // namespace rf::demo
