#include "host/host_windows.h"

namespace rf::host {

std::int32_t HeadlessWindows::alert(const Text&, const Text&, std::int32_t buttons, std::int32_t)
{
    constexpr std::int32_t okCancel = 1;
    constexpr std::int32_t yesNo = 4;
    constexpr std::int32_t answerOk = 1;
    constexpr std::int32_t answerCancel = 2;
    constexpr std::int32_t answerNo = 7;
    switch (buttons) {
    case okCancel:
        return answerCancel;
    case yesNo:
        return answerNo;
    default:
        return answerOk;
    }
}

} // namespace rf::host
