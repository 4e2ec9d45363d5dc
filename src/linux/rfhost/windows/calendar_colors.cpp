#include "linux/rfhost/windows/calendar_colors.h"

#include "outlook/constants.h"

namespace rf::native {

namespace {

/// So much of one colour, the rest of the other.
QColor mixed(const QColor& one, const QColor& other, float share)
{
    const auto mix = [share](float left, float right) { return left * share + right * (1 - share); };
    return QColor::fromRgbF(
        mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()), mix(one.blueF(), other.blueF()));
}

} // namespace

CalendarColors::CalendarColors(const QPalette& palette)
    : background(palette.color(QPalette::Base))
    , text(palette.color(QPalette::Text))
    , accent(palette.color(QPalette::Highlight))
    , accentText(palette.color(QPalette::HighlightedText))
{
    constexpr float quietShare = 0.04F;
    constexpr float lineShare = 0.20F;
    constexpr float faintShare = 0.09F;
    constexpr float quietTextShare = 0.65F;
    constexpr float chosenShare = 0.16F;
    constexpr int red = 0xD13438;
    quiet = mixed(text, background, quietShare);
    line = mixed(text, background, lineShare);
    faintLine = mixed(text, background, faintShare);
    quietText = mixed(text, background, quietTextShare);
    chosen = mixed(accent, background, chosenShare);
    now = QColor{static_cast<QRgb>(red)};
}

QColor CalendarColors::body() const
{
    constexpr float share = 0.28F;
    return mixed(accent, background, share);
}

QColor CalendarColors::strip(std::int32_t busyStatus) const
{
    constexpr float tentative = 0.55F;
    switch (static_cast<outlook::BusyStatus>(busyStatus)) {
    case outlook::BusyStatus::Free:
        return background;
    case outlook::BusyStatus::Tentative:
        return mixed(accent, background, tentative);
    case outlook::BusyStatus::OutOfOffice:
        return QColor{QStringLiteral("#881798")};
    case outlook::BusyStatus::Busy:
        break;
    }
    return accent;
}

} // namespace rf::native
