#include "orders/frm_orders2k_position.h"

#include <algorithm>

namespace rf::orders {

namespace {

constexpr std::int64_t rightOfTheEdge = 450;
constexpr std::int64_t belowTheToolbars = 1800;

/// No screen is so large; a window that is minimised stands far off every screen.
constexpr std::int64_t farthest = 10'000'000;

std::int32_t placed(std::int64_t pixels, std::int64_t twipsPerPixel, std::int64_t offset)
{
    return static_cast<std::int32_t>(std::clamp(pixels * twipsPerPixel + offset, -farthest, farthest));
}

} // namespace

ui::Point overAppointment(ScreenPixels window, std::int32_t twipsPerPixel)
{
    return {placed(window.left, twipsPerPixel, rightOfTheEdge), placed(window.top, twipsPerPixel, belowTheToolbars)};
}

} // namespace rf::orders
