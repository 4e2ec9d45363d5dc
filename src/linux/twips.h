#pragma once

#include "ui/controls.h"

#include <QPaintDevice>
#include <QRect>
#include <cmath>

namespace rf::native {

/// Twips and the units of a screen, by the logical dots per inch of that screen.
class Twips {
public:
    static constexpr double twipsPerInch = 1440;

    explicit Twips(const QPaintDevice& device)
        : perInchX_(device.logicalDpiX())
        , perInchY_(device.logicalDpiY())
    {
    }

    [[nodiscard]] int pixelsX(std::int32_t twips) const { return pixels(twips, perInchX_); }
    [[nodiscard]] int pixelsY(std::int32_t twips) const { return pixels(twips, perInchY_); }
    [[nodiscard]] QPoint pixels(ui::Point point) const { return {pixelsX(point.left), pixelsY(point.top)}; }
    [[nodiscard]] QRect pixels(const ui::Bounds& bounds) const
    {
        // Edges are rounded, not sizes, so that controls that touch in twips touch on the screen.
        const QPoint corner{pixelsX(bounds.left), pixelsY(bounds.top)};
        const QPoint end{pixelsX(bounds.left + bounds.width), pixelsY(bounds.top + bounds.height)};
        return {corner, QSize{end.x() - corner.x(), end.y() - corner.y()}};
    }
    [[nodiscard]] ui::Point twips(QPoint point) const
    {
        return {twips(point.x(), perInchX_), twips(point.y(), perInchY_)};
    }

private:
    [[nodiscard]] static int pixels(std::int32_t twips, int perInch)
    {
        return static_cast<int>(std::lround(twips * perInch / twipsPerInch));
    }
    [[nodiscard]] static std::int32_t twips(int pixels, int perInch)
    {
        return static_cast<std::int32_t>(std::lround(pixels * twipsPerInch / perInch));
    }

    int perInchX_;
    int perInchY_;
};

} // namespace rf::native
