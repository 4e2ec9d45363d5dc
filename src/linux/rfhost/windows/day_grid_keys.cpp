#include "linux/qt_text.h"
#include "linux/rfhost/windows/day_grid.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <algorithm>
#include <utility>

namespace rf::native {

using host::AppointmentTimes;

namespace {

constexpr int minutesOfADay = DayGeometry::minutesOfADay;

} // namespace

bool DayGrid::pressOnEntry(const QKeyEvent& event)
{
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    const AppointmentTimes times = timesOf(*chosen_);
    const auto moveBy = [&](long long minutes) {
        const auto start = times.start.plusMinutes(minutes);
        actions_.move(*chosen_, host::withStart(times, start));
    };
    const int steps = event.key() == Qt::Key_Down || event.key() == Qt::Key_Right ? 1 : -1;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (alt && shift && !times.allDay)
            actions_.move(*chosen_,
                {times.start, host::withEnd(times, times.end.plusMinutes(std::int64_t{steps} * host::slotMinutes)).end,
                    false});
        else if (alt && !times.allDay)
            moveBy(std::int64_t{steps} * host::slotMinutes);
        return alt;
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (alt)
            moveBy(static_cast<long long>(steps) * minutesOfADay);
        return alt;
    case Qt::Key_Delete:
        actions_.remove(*chosen_);
        return true;
    case Qt::Key_Escape:
        chooseSlots(slotAt(chosen_->start));
        return true;
    default:
        return false;
    }
}

bool DayGrid::moveChoice(const QKeyEvent& event)
{
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    switch (event.key()) {
    case Qt::Key_Left:
        stepDay(-1);
        return true;
    case Qt::Key_Right:
        stepDay(1);
        return true;
    case Qt::Key_Up:
        stepSlot(-1, shift);
        return true;
    case Qt::Key_Down:
        stepSlot(1, shift);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        chosen_ ? actions_.open(*chosen_) : actions_.create(slots_);
        return true;
    default:
        return false;
    }
}

void DayGrid::keyPressEvent(QKeyEvent* event)
{
    if ((chosen_ && pressOnEntry(*event)) || moveChoice(*event))
        return;
    const bool isTyped = !event->text().isEmpty() && event->text().front().isPrint()
        && !event->modifiers().testFlag(Qt::ControlModifier) && !event->modifiers().testFlag(Qt::AltModifier);
    if (isTyped)
        beginTyping(event->text());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void DayGrid::stepDay(int days)
{
    const AppointmentTimes next = slotAt(host::plusDays(slots_.start, days));
    chooseSlots(next);
    if (next.start.seconds() < days_.first.seconds() || next.start.seconds() >= host::endOf(days_).seconds())
        actions_.showDay(next.start);
    scrollTo(next.start);
}

void DayGrid::stepSlot(int steps, bool extends)
{
    const auto minutes = static_cast<long long>(steps) * chosenMinutes;
    if (extends)
        chooseSlots(host::withEnd(slots_, slots_.end.plusMinutes(minutes)));
    else if (const Date start = slots_.start.plusMinutes(minutes); host::dayOf(start) == host::dayOf(slots_.start))
        chooseSlots(slotAt(start));
    scrollTo(steps > 0 ? slots_.end : slots_.start);
}

bool DayGrid::focusNextPrevChild(bool next)
{
    const std::size_t index = chosen_ ? indexOf(*chosen_) : entries_.size();
    const std::size_t following = !chosen_ ? (next ? 0 : entries_.size()) : next ? index + 1 : index - 1;
    if (following >= entries_.size())
        return QAbstractScrollArea::focusNextPrevChild(next);
    choose(entries_[following]);
    scrollTo(chosen_->start);
    return true;
}

void DayGrid::beginTyping(const QString& text)
{
    const AppointmentTimes times = chosen_ ? slotAt(chosen_->start) : slots_;
    const DayGeometry geometry = geometryNow();
    const int day = std::clamp(geometry.columnOf(times.start), 0, days_.count - 1);
    editor_ = new QLineEdit{text, viewport()};
    editor_->setObjectName(QStringLiteral("newSubject"));
    editor_->setAccessibleName(QStringLiteral("Subject of the new appointment"));
    const int top = times.allDay ? geometry.headerHeight : geometry.yOf(host::timeOfDay(times.start) / 60);
    editor_->setGeometry(geometry.leftOf(day) + 1, top, geometry.leftOf(day + 1) - geometry.leftOf(day) - 1,
        editor_->sizeHint().height());
    // Leaving the line keeps what is typed, as Enter does.
    connect(editor_, &QLineEdit::editingFinished, this, [this, times] { endTyping(times, textOf(editor_->text())); });
    connect(new QShortcut{Qt::Key_Escape, editor_, nullptr, nullptr, Qt::WidgetShortcut}, &QShortcut::activated, this,
        [this, times] { endTyping(times, {}); });
    editor_->show();
    editor_->setFocus();
}

void DayGrid::endTyping(const AppointmentTimes& times, const Text& subject)
{
    const QPointer ended = std::exchange(editor_, nullptr);
    if (ended == nullptr)
        return;
    // It loses the focus once more as it goes.
    ended->blockSignals(true);
    ended->deleteLater();
    setFocus();
    if (!trim(subject).empty())
        actions_.createNamed(times, subject);
}

} // namespace rf::native
