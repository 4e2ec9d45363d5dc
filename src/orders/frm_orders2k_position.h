#pragma once

#include "ui/controls.h"

namespace rf::orders {

/// Where a window of the host stands on the screen, in pixels.
struct ScreenPixels {
    std::int32_t left = 0;
    std::int32_t top = 0;
};

/// Where a form stands over the appointment window that it belongs to, in twips: below the window's caption and
/// toolbars and a little to the right, so that subject and times of the appointment can still be read beside it.
[[nodiscard]] ui::Point overAppointment(ScreenPixels window, std::int32_t twipsPerPixel);

} // namespace rf::orders
