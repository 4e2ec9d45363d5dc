#include "basic/clock.h"

#include <ctime>

namespace rf {
namespace {

std::tm localTime(std::time_t time)
{
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &time);
#else
    localtime_r(&time, &local);
#endif
    return local;
}

} // namespace

Date SystemClock::now() const
{
    const std::tm local = localTime(std::time(nullptr));
    return Date::fromFields({.year = local.tm_year + 1900,
        .month = local.tm_mon + 1,
        .day = local.tm_mday,
        .hour = local.tm_hour,
        .minute = local.tm_min,
        .second = local.tm_sec});
}

} // namespace rf
