#include "linux/rfhost/windows/booking_list.h"

#include "linux/qt_text.h"
#include "linux/rfhost/windows/qt_date.h"
#include "linux/rfhost/windows/roomy_rows.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace rf::native {

namespace {

using host::CalendarEntry;

/// When a person who gives no time begins.
constexpr int morning = 8 * 60;
constexpr int shortMeeting = 30;

QString momentText(Date moment, bool allDay)
{
    return allDay ? shortDayText(moment) : shortDayText(moment) + QLatin1Char{' '} + timeText(moment);
}

} // namespace

BookingList::BookingList(CalendarActions actions)
    : actions_(std::move(actions))
{
    setObjectName(QStringLiteral("bookings"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    RoomyRows::giveTo(*this);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setHeaderLabels({QStringLiteral("Start"), QStringLiteral("End"), QStringLiteral("Subject"),
        QStringLiteral("Location"), QStringLiteral("Categories")});
    connect(this, &QTreeWidget::itemActivated, this, [this] {
        if (const auto entry = chosenEntry())
            actions_.open(*entry);
    });
}

void BookingList::show(const host::ShownDays&, std::vector<CalendarEntry> entries)
{
    const auto before = chosenEntry();
    entries_ = std::move(entries);
    clear();
    QList<QTreeWidgetItem*> rows;
    for (const CalendarEntry& entry : entries_) {
        const Date end = host::shownEnd(timesOf(entry));
        const QString mark = entry.isRecurring() ? QStringLiteral(" ↻") : QString{};
        rows.push_back(new QTreeWidgetItem{{momentText(entry.start, entry.allDay), momentText(end, entry.allDay),
            qtText(entry.subject) + mark, qtText(entry.location), qtText(entry.categories)}});
        rows.back()->setData(0, Qt::AccessibleTextRole, qtText(spokenEntry(entry)));
    }
    addTopLevelItems(rows);
    for (std::size_t index = 0; before && index < entries_.size(); ++index)
        if (entries_[index].isSame(*before))
            setCurrentItem(rows.at(static_cast<qsizetype>(index)));
    for (int column = 0; column + 1 < columnCount(); ++column)
        resizeColumnToContents(column);
}

std::optional<CalendarEntry> BookingList::chosenEntry() const
{
    const int row = indexOfTopLevelItem(currentItem());
    return row < 0 ? std::nullopt : std::optional{entries_[static_cast<std::size_t>(row)]};
}

host::AppointmentTimes BookingList::chosenTimes() const
{
    const auto entry = chosenEntry();
    const Date start = host::dayOf(entry ? entry->start : day_).plusMinutes(morning);
    return {start, start.plusMinutes(shortMeeting), false};
}

void BookingList::keyPressEvent(QKeyEvent* event)
{
    const auto entry = chosenEntry();
    if (event->key() == Qt::Key_Delete && entry)
        actions_.remove(*entry);
    else
        QTreeWidget::keyPressEvent(event);
}

} // namespace rf::native
