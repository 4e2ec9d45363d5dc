#pragma once

#include "basic/text.h"

#include <cstdint>
#include <vector>

namespace rf::host {

/// The answers to an alert by the numbers that the object model gives them.
enum class AlertAnswer : std::int32_t { Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

/// What a person can answer to an alert.
struct AlertChoice {
    /// From the left; the first is the one that Enter gives.
    std::vector<AlertAnswer> answers;
    AlertAnswer agree = AlertAnswer::Ok;
    /// What closing the alert means.
    AlertAnswer decline = AlertAnswer::Ok;
};

/// The choice that a number of buttons stands for; OK alone for a number that stands for none.
[[nodiscard]] AlertChoice alertChoice(std::int32_t buttons);

/// As a button shows it.
[[nodiscard]] TextView nameOf(AlertAnswer answer);

} // namespace rf::host
