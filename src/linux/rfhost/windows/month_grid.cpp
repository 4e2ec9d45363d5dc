#include "linux/rfhost/windows/month_grid.h"

#include "host/calendar_drag.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/day_painter.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

namespace rf::native {

namespace {

using host::CalendarEntry;

constexpr int daysInWeek = 7;
constexpr int morning = 8 * 60;
constexpr int shortMeeting = 30;
constexpr int gap = DayGeometry::gap;
constexpr QSize smallest{420, 320};

} // namespace

MonthGrid::MonthGrid(CalendarActions actions, const Clock& clock)
    : actions_(std::move(actions))
    , clock_(clock)
    , days_{host::dayOf(clock.now()), daysInWeek}
    , day_(days_.first)
{
    setObjectName(QStringLiteral("month"));
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(smallest);
}

void MonthGrid::show(const host::ShownDays& days, std::vector<CalendarEntry> entries)
{
    days_ = days;
    entries_ = std::move(entries);
    if (chosen_) {
        const auto found = std::ranges::find_if(entries_, [&](const auto& one) { return one.isSame(*chosen_); });
        chosen_ = found == entries_.end() ? std::nullopt : std::optional{*found};
    }
    update();
}

void MonthGrid::chooseDay(Date day)
{
    day_ = host::dayOf(day);
    update();
}

host::AppointmentTimes MonthGrid::chosenTimes() const
{
    const Date start = day_.plusMinutes(morning);
    return {start, start.plusMinutes(shortMeeting), false};
}

int MonthGrid::headerHeight() const { return fontMetrics().height() * 3 / 2; }
int MonthGrid::lineHeight() const { return fontMetrics().height() + gap * 2; }

int MonthGrid::linesOfACell() const
{
    return std::max((cellOf(0).height() - fontMetrics().height() - gap * 2) / lineHeight(), 0);
}

QRect MonthGrid::cellOf(int day) const
{
    const int weeks = std::max(days_.count / daysInWeek, 1);
    const int room = height() - headerHeight();
    const int column = day % daysInWeek;
    const int row = day / daysInWeek;
    const int left = width() * column / daysInWeek;
    const int top = headerHeight() + room * row / weeks;
    return {left, top, width() * (column + 1) / daysInWeek - left, headerHeight() + room * (row + 1) / weeks - top};
}

int MonthGrid::dayAt(QPoint point) const
{
    for (int day = 0; day < days_.count; ++day)
        if (cellOf(day).contains(point))
            return day;
    return -1;
}

QRect MonthGrid::rectOf(const host::PlacedBar& bar, int week) const
{
    const QRect first = cellOf(week * daysInWeek + bar.firstDay);
    const QRect last = cellOf(week * daysInWeek + bar.endDay - 1);
    const int top = first.top() + fontMetrics().height() + gap * 2 + bar.row * lineHeight();
    return {first.left() + gap, top, last.right() - first.left() - 2 * gap, lineHeight() - gap};
}

MonthGrid::Picture MonthGrid::arranged() const
{
    Picture picture;
    picture.hidden.resize(static_cast<std::size_t>(days_.count));
    const int lines = linesOfACell();
    for (int week = 0; week * daysInWeek < days_.count; ++week) {
        const host::ShownDays row{host::plusDays(days_.first, week * daysInWeek), daysInWeek};
        const auto bars = host::arrangedByDays(entries_, row);
        // Where not all have room, the last line says how many there are besides.
        const bool full = std::ranges::any_of(bars, [&](const auto& bar) { return bar.row >= lines; });
        for (const host::PlacedBar& bar : bars) {
            if (bar.row < lines - (full ? 1 : 0)) {
                picture.lines.push_back({bar.entry, rectOf(bar, week)});
                continue;
            }
            for (int day = bar.firstDay; day < bar.endDay; ++day) {
                const int shownDay = week * daysInWeek + day;
                ++picture.hidden[static_cast<std::size_t>(shownDay)];
            }
        }
    }
    return picture;
}

QRect MonthGrid::rectOf(const CalendarEntry& entry) const
{
    for (const Line& line : arranged().lines)
        if (entries_[line.entry].isSame(entry))
            return line.rect;
    return {};
}

std::optional<CalendarEntry> MonthGrid::entryAt(QPoint point) const
{
    for (const Line& line : arranged().lines)
        if (line.rect.contains(point))
            return entries_[line.entry];
    return std::nullopt;
}

void MonthGrid::paintCells(QPainter& painter, const CalendarColors& colors, const std::vector<int>& hidden) const
{
    const int month = host::plusDays(days_.first, daysInWeek).fields().month;
    const Date today = host::dayOf(clock_.now());
    for (int day = 0; day < days_.count; ++day) {
        const QRect cell = cellOf(day);
        const Date date = dateOfCell(day);
        const bool isOther = date.fields().month != month;
        painter.fillRect(cell, isOther ? colors.quiet : colors.background);
        if (date == day_ && !chosen_)
            painter.fillRect(cell, colors.chosen);
        painter.setPen(colors.line);
        painter.drawRect(cell);
        QFont number = font();
        number.setBold(date == today);
        painter.setFont(number);
        painter.setPen(date == today ? colors.accent : isOther ? colors.quietText : colors.text);
        painter.drawText(cell.adjusted(gap * 2, gap, -gap, 0), Qt::AlignTop | Qt::AlignLeft,
            date.fields().day == 1 ? QLocale{}.toString(qtDate(date), QStringLiteral("d MMM"))
                                   : QString::number(date.fields().day));
        painter.setFont(font());
        painter.setPen(colors.quietText);
        if (const int more = hidden[static_cast<std::size_t>(day)]; more > 0)
            painter.drawText(cell.adjusted(gap * 2, 0, -gap, -gap), Qt::AlignBottom | Qt::AlignLeft,
                QStringLiteral("+%1 more").arg(more));
    }
}

void MonthGrid::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    const CalendarColors colors{palette()};
    const Picture picture = arranged();
    painter.fillRect(rect(), colors.background);
    painter.setPen(colors.text);
    for (int column = 0; column < daysInWeek; ++column) {
        const QRect cell = cellOf(column);
        painter.drawText(QRect{cell.left(), 0, cell.width(), headerHeight()}, Qt::AlignCenter,
            QLocale{}.toString(qtDate(dateOfCell(column)), QStringLiteral("ddd")));
    }
    paintCells(painter, colors, picture.hidden);
    for (const Line& line : picture.lines) {
        CalendarEntry entry = entries_[line.entry];
        const bool isChosen = chosen_ && chosen_->isSame(entry);
        if (!entry.isLong())
            entry.subject.insert(0, textOf(timeText(entry.start)) + u" ");
        paintBooking(painter, colors, entry, {line.rect, isChosen, false});
    }
    if (dragged_ && draggedTo_ != draggedFrom_ && draggedTo_ >= 0) {
        painter.setPen(QPen{colors.accent, 2});
        painter.drawRect(cellOf(draggedTo_).adjusted(1, 1, -1, -1));
    }
}

void MonthGrid::announce()
{
    setAccessibleDescription(chosen_ ? qtText(spokenEntry(*chosen_)) : dayText(day_));
    QAccessibleEvent event{this, QAccessible::DescriptionChanged};
    QAccessible::updateAccessibility(&event);
}

void MonthGrid::choose(std::optional<CalendarEntry> entry)
{
    chosen_ = std::move(entry);
    announce();
    update();
}

void MonthGrid::mousePressEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    const int day = dayAt(point);
    if (event->button() != Qt::LeftButton || day < 0)
        return;
    day_ = dateOfCell(day);
    choose(entryAt(point));
    dragged_ = chosen_;
    draggedFrom_ = draggedTo_ = day;
}

void MonthGrid::mouseMoveEvent(QMouseEvent* event)
{
    draggedTo_ = dayAt(event->position().toPoint());
    if (dragged_)
        update();
}

void MonthGrid::mouseReleaseEvent(QMouseEvent*)
{
    const auto entry = std::exchange(dragged_, std::nullopt);
    update();
    if (entry && draggedTo_ >= 0 && draggedTo_ != draggedFrom_)
        actions_.move(*entry, host::draggedDays(timesOf(*entry), {dateOfCell(draggedFrom_), dateOfCell(draggedTo_)}));
}

void MonthGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    dragged_.reset();
    if (const auto entry = entryAt(event->position().toPoint()))
        actions_.open(*entry);
    else if (dayAt(event->position().toPoint()) >= 0)
        actions_.create(chosenTimes());
}

void MonthGrid::stepDay(int days)
{
    chosen_.reset();
    day_ = host::plusDays(day_, days);
    announce();
    actions_.showDay(day_);
}

void MonthGrid::keyPressEvent(QKeyEvent* event)
{
    const int days = event->key() == Qt::Key_Left ? -1
        : event->key() == Qt::Key_Right           ? 1
        : event->key() == Qt::Key_Up              ? -daysInWeek
        : event->key() == Qt::Key_Down            ? daysInWeek
                                                  : 0;
    if (days != 0 && chosen_ && event->modifiers().testFlag(Qt::AltModifier))
        return actions_.move(
            *chosen_, host::draggedDays(timesOf(*chosen_), {chosen_->start, host::plusDays(chosen_->start, days)}));
    if (days != 0)
        return stepDay(days);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return chosen_ ? actions_.open(*chosen_) : actions_.create(chosenTimes());
    case Qt::Key_Delete:
        if (chosen_)
            actions_.remove(*chosen_);
        return;
    case Qt::Key_Escape:
        return choose(std::nullopt);
    default:
        QWidget::keyPressEvent(event);
    }
}

bool MonthGrid::focusNextPrevChild(bool next)
{
    const auto found = !chosen_ ? entries_.end()
                                : std::ranges::find_if(entries_, [&](const auto& one) { return one.isSame(*chosen_); });
    const auto count = static_cast<std::ptrdiff_t>(entries_.size());
    const std::ptrdiff_t index = !chosen_ ? (next ? 0 : count) : found - entries_.begin() + (next ? 1 : -1);
    if (index < 0 || index >= count)
        return QWidget::focusNextPrevChild(next);
    choose(entries_[static_cast<std::size_t>(index)]);
    return true;
}

} // namespace rf::native
