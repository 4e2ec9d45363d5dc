#pragma once

#include <QColor>
#include <QPalette>
#include <cstdint>

namespace rf::native {

/// The colours of a calendar, all made from the palette of the desktop, so that it is light where that is and dark
/// where that is.
struct CalendarColors {
    explicit CalendarColors(const QPalette& palette);

    QColor background;
    /// Hours outside the working day, and days of another month.
    QColor quiet;
    QColor line;
    QColor faintLine;
    QColor text;
    QColor quietText;
    QColor accent;
    QColor accentText;
    /// The slots that are chosen.
    QColor chosen;
    QColor now;

    /// The body of a booking, and the strip at its side that tells how the time is shown to others.
    [[nodiscard]] QColor body() const;
    [[nodiscard]] QColor strip(std::int32_t busyStatus) const;
};

} // namespace rf::native
