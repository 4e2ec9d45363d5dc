#pragma once

#include "hands_client.h"

#include <QRegularExpression>
#include <optional>

namespace rf::test {

/// Where the hours of a day stand in the host's calendar, found by clicking about.
class HoursByHand {
public:
    explicit HoursByHand(HandsOn& host)
        : host_(host)
    {
    }

    /// The height at which an hour begins in the day that the host shows.
    [[nodiscard]] QPoint placeOf(double hour)
    {
        if (!scale_)
            scale_ = measure();
        return {size("width") / 2, static_cast<int>(scale_->eight + (hour - 8) * scale_->hour)};
    }

private:
    /// Where eight o'clock stands, and how high an hour is, in pixels.
    struct Scale {
        double eight = 0;
        double hour = 0;
    };

    [[nodiscard]] int size(const char* what)
    {
        return host_.look("explorer", "hours")[QLatin1StringView{what}].toInt();
    }
    /// The hour that a click at a height chooses, as the calendar tells it.
    [[nodiscard]] double hourAt(int y)
    {
        static const QRegularExpression times{QStringLiteral("(\\d\\d):(\\d\\d) . ")};
        host_.clickAt("explorer", "hours", {size("width") / 2, y});
        const QString told = host_.look("explorer", "hours")["told"].toString();
        const auto match = times.match(told);
        if (!match.hasMatch())
            throw std::runtime_error{"the calendar tells no hour: " + told.toStdString()};
        return match.captured(1).toDouble() + match.captured(2).toDouble() / 60;
    }
    /// The first height at which that hour is chosen.
    [[nodiscard]] int topOf(double hour)
    {
        int above = 0;
        int below = size("height") - 1;
        while (below - above > 1) {
            const int middle = (above + below) / 2;
            (hourAt(middle) < hour ? above : below) = middle;
        }
        return below;
    }
    [[nodiscard]] Scale measure()
    {
        const int nine = topOf(9);
        const double hour = (topOf(13) - nine) / 4.0;
        return {nine - hour, hour};
    }

    HandsOn& host_;
    std::optional<Scale> scale_;
};

} // namespace rf::test
