#include "linux/rfhost/windows/day_painter.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/fitted_lines.h"

namespace rf::native {

namespace {

using host::CalendarEntry;
using host::PlacedBar;
using host::PlacedEntry;

constexpr int workBegin = 8;
constexpr int workEnd = 17;
constexpr int stripWidth = 4;
constexpr int rounding = 3;
constexpr int minutesOfAnHour = 60;

void paintHours(QPainter& painter, const DayPicture& picture)
{
    const DayGeometry& geometry = picture.geometry;
    for (int day = 0; day < geometry.shown.count; ++day) {
        const int left = geometry.leftOf(day);
        const QRect column{left, geometry.top(), geometry.leftOf(day + 1) - left, picture.height};
        const bool isFree = host::isWeekend(host::plusDays(geometry.shown.first, day));
        painter.fillRect(column, picture.colors.quiet);
        if (!isFree)
            painter.fillRect(left, geometry.yOf(workBegin * minutesOfAnHour), column.width(),
                (workEnd - workBegin) * geometry.hourHeight, picture.colors.background);
    }
    for (int hour = 0; hour < DayGeometry::hoursOfADay; ++hour) {
        const int y = geometry.yOf(hour * minutesOfAnHour);
        painter.setPen(picture.colors.line);
        painter.drawLine(geometry.hoursWidth, y, geometry.width, y);
        painter.setPen(picture.colors.faintLine);
        painter.drawLine(geometry.hoursWidth, y + geometry.hourHeight / 2, geometry.width, y + geometry.hourHeight / 2);
        painter.setPen(picture.colors.quietText);
        const Date time = geometry.shown.first.plusMinutes(std::int64_t{hour} * minutesOfAnHour);
        painter.drawText(QRect{0, y, geometry.hoursWidth - 2 * DayGeometry::gap, geometry.hourHeight},
            Qt::AlignRight | Qt::AlignTop, timeText(time));
    }
}

void paintColumnLines(QPainter& painter, const DayPicture& picture)
{
    painter.setPen(picture.colors.line);
    for (int day = 0; day < picture.geometry.shown.count; ++day)
        painter.drawLine(picture.geometry.leftOf(day), 0, picture.geometry.leftOf(day), picture.height);
}

void paintSlots(QPainter& painter, const DayPicture& picture)
{
    if (!picture.free || picture.free->allDay)
        return;
    // Slots are chosen within one day or over several, always from one moment to another.
    CalendarEntry entry;
    entry.start = picture.free->start;
    entry.end = picture.free->end;
    const auto arrangement = host::arrangedByHours({&entry, 1}, picture.geometry.shown);
    for (const PlacedEntry& placed : arrangement.entries) {
        const int left = picture.geometry.leftOf(placed.day) + 1;
        const int top = picture.geometry.yOf(placed.fromMinute);
        painter.fillRect(left, top, picture.geometry.leftOf(placed.day + 1) - left,
            picture.geometry.yOf(placed.toMinute) - top, picture.colors.chosen);
    }
}

void paintNow(QPainter& painter, const DayPicture& picture)
{
    const int day = picture.geometry.columnOf(picture.now);
    if (!picture.geometry.isShown(day))
        return;
    const int y = picture.geometry.yOf(host::timeOfDay(picture.now) / minutesOfAnHour);
    painter.setPen(QPen{picture.colors.now, 2});
    painter.drawLine(picture.geometry.leftOf(day), y, picture.geometry.leftOf(day + 1), y);
}

void paintHeader(QPainter& painter, const DayPicture& picture)
{
    const DayGeometry& geometry = picture.geometry;
    painter.fillRect(0, 0, geometry.width, geometry.top(), picture.colors.background);
    QFont usual = painter.font();
    for (int day = 0; day < geometry.shown.count; ++day) {
        const Date date = host::plusDays(geometry.shown.first, day);
        const bool isToday = host::dayOf(picture.now) == date;
        QFont font = usual;
        font.setBold(isToday);
        painter.setFont(font);
        painter.setPen(isToday ? picture.colors.accent : picture.colors.text);
        const QRect cell{
            geometry.leftOf(day), 0, geometry.leftOf(day + 1) - geometry.leftOf(day), geometry.headerHeight};
        const QString name = QLocale{}.toString(qtDate(date), QStringLiteral("ddd d"));
        painter.drawText(cell, Qt::AlignCenter, name);
    }
    painter.setFont(usual);
    if (picture.free && picture.free->allDay) {
        const int first = std::max(geometry.columnOf(picture.free->start), 0);
        const int end = std::min(geometry.columnOf(picture.free->end), geometry.shown.count);
        if (first < end)
            painter.fillRect(geometry.leftOf(first) + 1, geometry.headerHeight,
                geometry.leftOf(end) - geometry.leftOf(first) - 1, geometry.barsHeight, picture.colors.chosen);
    }
    painter.setPen(picture.colors.line);
    painter.drawLine(0, geometry.top() - 1, geometry.width, geometry.top() - 1);
}

QString subjectOf(const CalendarEntry& entry)
{
    const QString subject = entry.subject.empty() ? QStringLiteral("(no subject)") : qtText(entry.subject);
    return entry.isRecurring() ? subject + QStringLiteral(" ↻") : subject;
}

/// The times in a width: half a time would tell less than none.
QString timesIn(const CalendarEntry& entry, const QFontMetrics& metrics, int width)
{
    const QString start = timeText(entry.start);
    for (const QString& times : {start + QStringLiteral(" – ") + timeText(entry.end), start})
        if (metrics.horizontalAdvance(times) <= width)
            return times;
    return {};
}

/// What stands on a booking of one line.
QString lineOf(const CalendarEntry& entry)
{
    return entry.location.empty() ? subjectOf(entry)
                                  : subjectOf(entry) + QStringLiteral(" · ") + qtText(entry.location);
}

void paintLines(QPainter& painter, QRect box, const CalendarEntry& entry)
{
    QStringList parts{subjectOf(entry), timesIn(entry, painter.fontMetrics(), box.width()), qtText(entry.location)};
    parts.removeAll(QString{});
    const int height = painter.fontMetrics().lineSpacing();
    for (const QString& line : fittedLines(parts.join(u'\n'), painter.font(), box.size())) {
        painter.drawText(box, Qt::AlignLeft | Qt::AlignTop, line);
        box.setTop(box.top() + height);
    }
}

/// Of one arrangement what lies in the columns, or above them.
template <class Placed>
void paintPlaced(QPainter& painter, const DayPicture& picture, const std::vector<Placed>& all,
    std::span<const CalendarEntry> entries)
{
    for (const Placed& placed : all) {
        const CalendarEntry& entry = entries[placed.entry];
        const bool isChosen = picture.chosen != nullptr && picture.chosen->isSame(entry);
        constexpr bool isBar = std::is_same_v<Placed, PlacedBar>;
        paintBooking(painter, picture.colors, entry, {picture.geometry.rectOf(placed), isChosen, !isBar});
    }
}

} // namespace

void paintBooking(QPainter& painter, const CalendarColors& colors, const CalendarEntry& entry, const BookingBox& box)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(box.isChosen ? colors.accent : colors.body());
    painter.drawRoundedRect(box.rect, rounding, rounding);
    painter.setBrush(box.isChosen ? colors.accentText : colors.strip(entry.busyStatus));
    painter.drawRoundedRect(QRect{box.rect.left(), box.rect.top(), stripWidth, box.rect.height()}, 2, 2);
    painter.setPen(box.isChosen ? colors.accentText : colors.text);
    const QRect inside = box.rect.adjusted(stripWidth + DayGeometry::gap * 2, 1, -DayGeometry::gap, -1);
    const bool isTall = inside.height() >= painter.fontMetrics().height() * 2;
    painter.setClipRect(box.rect);
    if (isTall && box.hasTime)
        paintLines(painter, inside, entry);
    else
        painter.drawText(
            inside, Qt::AlignVCenter, painter.fontMetrics().elidedText(lineOf(entry), Qt::ElideRight, inside.width()));
    painter.restore();
}

void paintDays(QPainter& painter, const DayPicture& picture)
{
    const DayGeometry& geometry = picture.geometry;
    painter.fillRect(0, 0, geometry.width, picture.height, picture.colors.background);
    painter.save();
    painter.setClipRect(0, geometry.top(), geometry.width, picture.height - geometry.top());
    paintHours(painter, picture);
    paintSlots(painter, picture);
    paintColumnLines(painter, picture);
    paintPlaced(painter, picture, picture.arrangement.entries, picture.entries);
    if (picture.preview != nullptr)
        paintPlaced(painter, picture, picture.preview->entries, picture.previewEntries);
    paintNow(painter, picture);
    painter.restore();
    paintHeader(painter, picture);
    paintPlaced(painter, picture, picture.arrangement.bars, picture.entries);
    if (picture.preview != nullptr)
        paintPlaced(painter, picture, picture.preview->bars, picture.previewEntries);
}

} // namespace rf::native
