#include "linux/rfhost/windows/day_grid.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/day_painter.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

namespace rf::native {

namespace {

using host::AppointmentTimes;
using host::CalendarEntry;
using host::DragPart;

constexpr int firstShownMinute = 7 * 60 + 30;
constexpr int firstChosenMinute = 8 * 60;
/// The edges of a booking by which it is stretched, in pixels.
constexpr int edge = 5;
constexpr int minutesOfADay = DayGeometry::minutesOfADay;

} // namespace

DayGrid::DayGrid(CalendarActions actions, const Clock& clock)
    : actions_(std::move(actions))
    , clock_(clock)
    , days_{host::dayOf(clock.now()), 1}
    , slots_(slotAt(host::dayOf(clock.now()).plusMinutes(firstChosenMinute)))
{
    setObjectName(QStringLiteral("hours"));
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setMouseTracking(true);
    connect(&minute_, &QTimer::timeout, viewport(), qOverload<>(&QWidget::update));
    minute_.start(std::chrono::minutes{1});
}

void DayGrid::show(const host::ShownDays& days, std::vector<CalendarEntry> entries)
{
    days_ = days;
    entries_ = std::move(entries);
    arrange();
    if (chosen_) {
        const auto index = indexOf(*chosen_);
        chosen_ = index < entries_.size() ? std::optional{entries_[index]} : std::nullopt;
    }
    setScrollRange();
    viewport()->update();
}

std::size_t DayGrid::indexOf(const CalendarEntry& entry) const
{
    const auto found = std::ranges::find_if(entries_, [&](const CalendarEntry& one) { return one.isSame(entry); });
    return static_cast<std::size_t>(found - entries_.begin());
}

AppointmentTimes DayGrid::slotAt(Date start) { return {start, start.plusMinutes(chosenMinutes), false}; }

void DayGrid::arrange() { arrangement_ = host::arrangedByHours(entries_, days_); }

void DayGrid::chooseDay(Date day)
{
    const auto start = slots_.start.seconds();
    if (start < days_.first.seconds() || start >= host::endOf(days_).seconds())
        slots_ = slotAt(Date::fromSeconds(day.seconds() + host::timeOfDay(slots_.start)));
}

DayGeometry DayGrid::geometryNow() const
{
    constexpr float hourLines = 2.6F;
    const QFontMetrics metrics = fontMetrics();
    DayGeometry geometry;
    geometry.shown = days_;
    geometry.width = viewport()->width();
    geometry.hoursWidth = metrics.horizontalAdvance(timeText(Date{})) + metrics.averageCharWidth() * 2;
    geometry.headerHeight = metrics.height() * 2;
    geometry.barHeight = metrics.height() + DayGeometry::gap * 3;
    // There is always room for one more, where a whole-day booking can be begun.
    geometry.barsHeight = geometry.barHeight * (arrangement_.rows + 1) / (arrangement_.rows == 0 ? 2 : 1);
    geometry.hourHeight = static_cast<int>(static_cast<float>(metrics.height()) * hourLines);
    geometry.scrolled = verticalScrollBar()->value();
    return geometry;
}

void DayGrid::setScrollRange()
{
    const DayGeometry geometry = geometryNow();
    const int room = viewport()->height() - geometry.top();
    verticalScrollBar()->setRange(0, std::max(geometry.hourHeight * DayGeometry::hoursOfADay - room, 0));
    verticalScrollBar()->setPageStep(std::max(room, 1));
    verticalScrollBar()->setSingleStep(geometry.hourHeight / 2);
}

QRect DayGrid::rectOf(const CalendarEntry& entry) const
{
    const DayGeometry geometry = geometryNow();
    for (const auto& placed : arrangement_.entries)
        if (entries_[placed.entry].isSame(entry))
            return geometry.rectOf(placed);
    for (const auto& bar : arrangement_.bars)
        if (entries_[bar.entry].isSame(entry))
            return geometry.rectOf(bar);
    return {};
}

std::optional<CalendarEntry> DayGrid::entryAt(QPoint point) const
{
    const DayGeometry geometry = geometryNow();
    for (const auto& bar : arrangement_.bars)
        if (geometry.rectOf(bar).contains(point))
            return entries_[bar.entry];
    for (const auto& placed : arrangement_.entries)
        if (point.y() >= geometry.top() && geometry.rectOf(placed).contains(point))
            return entries_[placed.entry];
    return std::nullopt;
}

DragPart DayGrid::partAt(const CalendarEntry& entry, QPoint point) const
{
    const QRect rect = rectOf(entry);
    if (entry.isLong())
        return DragPart::Whole;
    if (point.y() <= rect.top() + edge)
        return DragPart::Start;
    return point.y() >= rect.bottom() - edge ? DragPart::End : DragPart::Whole;
}

void DayGrid::paintEvent(QPaintEvent*)
{
    QPainter painter{viewport()};
    painter.setFont(font());
    DayPicture picture{geometryNow(), CalendarColors{palette()}, entries_, arrangement_, nullptr, std::nullopt, nullptr,
        {}, clock_.now(), viewport()->height()};
    if (chosen_)
        picture.chosen = &*chosen_;
    else
        picture.free = slots_;
    host::DayArrangement preview;
    CalendarEntry moved;
    if (drag_ && drag_->isMoving && drag_->entry) {
        moved = *drag_->entry;
        moved.start = drag_->times.start;
        moved.end = drag_->times.end;
        preview = host::arrangedByHours({&moved, 1}, days_);
        picture.preview = &preview;
        picture.previewEntries = {&moved, 1};
    }
    paintDays(painter, picture);
    if (hasFocus()) {
        painter.setPen(QPen{picture.colors.accent, 1});
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void DayGrid::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    setScrollRange();
}

void DayGrid::showEvent(QShowEvent* event)
{
    QAbstractScrollArea::showEvent(event);
    setScrollRange();
    if (!std::exchange(wasShown_, true))
        verticalScrollBar()->setValue(firstShownMinute * geometryNow().hourHeight / 60);
}

void DayGrid::choose(std::optional<CalendarEntry> entry)
{
    chosen_ = std::move(entry);
    if (chosen_) {
        slots_ = timesOf(*chosen_);
        announce(qtText(spokenEntry(*chosen_)));
    }
    viewport()->update();
}

void DayGrid::chooseSlots(const AppointmentTimes& times)
{
    chosen_.reset();
    slots_ = times;
    announce(dayText(times.start) + QStringLiteral(", ") + timeText(times.start) + QStringLiteral(" – ")
        + timeText(times.end));
    viewport()->update();
}

void DayGrid::announce(const QString& text)
{
    setAccessibleDescription(text);
    QAccessibleEvent event{this, QAccessible::DescriptionChanged};
    QAccessible::updateAccessibility(&event);
}

void DayGrid::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint point = event->position().toPoint();
    const DayGeometry geometry = geometryNow();
    Drag begun;
    begun.from = geometry.momentAt(point);
    begun.pressed = point;
    begun.entry = entryAt(point);
    if (begun.entry) {
        begun.part = partAt(*begun.entry, point);
        begun.times = timesOf(*begun.entry);
        choose(begun.entry);
    } else {
        chooseSlots(
            host::chosenTimes({begun.from, begun.from}, point.y() < geometry.top() ? minutesOfADay : chosenMinutes));
    }
    drag_ = begun;
}

void DayGrid::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    if (drag_)
        drag(point);
    else
        showCursor(point);
}

void DayGrid::showCursor(QPoint point)
{
    const auto entry = entryAt(point);
    const bool isEdge = entry && partAt(*entry, point) != DragPart::Whole;
    viewport()->setCursor(isEdge ? Qt::SizeVerCursor : Qt::ArrowCursor);
}

void DayGrid::drag(QPoint point)
{
    if (!drag_->isMoving && (point - drag_->pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    drag_->isMoving = true;
    const DayGeometry geometry = geometryNow();
    const host::DragPath path{drag_->from, geometry.momentAt(point)};
    if (!drag_->entry)
        chooseSlots(host::chosenTimes(path, geometry.isInBars(drag_->pressed) ? minutesOfADay : chosenMinutes));
    else if (drag_->entry->isLong())
        drag_->times = host::draggedDays(timesOf(*drag_->entry), path);
    else
        drag_->times = host::draggedTimes(timesOf(*drag_->entry), drag_->part, path);
    viewport()->update();
}

void DayGrid::mouseReleaseEvent(QMouseEvent*)
{
    const auto ended = std::exchange(drag_, std::nullopt);
    viewport()->update();
    if (ended && ended->isMoving && ended->entry && ended->times != timesOf(*ended->entry))
        actions_.move(*ended->entry, ended->times);
}

void DayGrid::mouseDoubleClickEvent(QMouseEvent* event)
{
    drag_.reset();
    if (const auto entry = entryAt(event->position().toPoint()))
        actions_.open(*entry);
    else
        actions_.create(slots_);
}

void DayGrid::scrollTo(Date moment)
{
    const DayGeometry geometry = geometryNow();
    const int y = geometry.yOf(host::timeOfDay(moment) / 60);
    const int height = geometry.hourHeight / 2;
    if (y < geometry.top())
        verticalScrollBar()->setValue(geometry.scrolled - (geometry.top() - y));
    else if (y + height > viewport()->height())
        verticalScrollBar()->setValue(geometry.scrolled + y + height - viewport()->height());
}

void DayGrid::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

} // namespace rf::native
