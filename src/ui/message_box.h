#pragma once

#include "basic/text.h"

namespace rf::ui {

/// The values are those that style sums and alert calls use on Windows.
enum class Buttons { Ok = 0, OkCancel = 1, YesNo = 4 };
enum class Icon { None = 0, Critical = 16, Question = 32, Warning = 48, Information = 64 };
enum class Answer { None = 0, Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct MessageStyle {
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;

    friend bool operator==(MessageStyle, MessageStyle) = default;
};

} // namespace rf::ui
