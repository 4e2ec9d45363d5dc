#include "linux/rfhost/windows/scheduling_page.h"

#include "host/appointment_times.h"
#include "host/calendar_entries.h"
#include "host/model.h"
#include "linux/qt_text.h"
#include "linux/rfhost/windows/person.h"
#include "linux/rfhost/windows/qt_date.h"
#include "linux/rfhost/windows/roomy_rows.h"

#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace rf::native {

namespace {

using host::CalendarEntry;

QString hoursOf(const CalendarEntry& entry)
{
    if (entry.allDay)
        return QStringLiteral("All day");
    const QString end = host::dayOf(entry.start) == host::dayOf(entry.end)
        ? timeText(entry.end)
        : shortDayText(entry.end) + QLatin1Char{' '} + timeText(entry.end);
    return timeText(entry.start) + QStringLiteral(" – ") + end;
}

QString summaryOf(std::size_t overlaps, Date day)
{
    if (overlaps == 0)
        return QStringLiteral("The calendar is free at the time of this appointment.");
    const QString what = overlaps == 1 ? QStringLiteral("Another booking overlaps")
                                       : QStringLiteral("%1 other bookings overlap").arg(overlaps);
    return what + QStringLiteral(" this appointment on %1.").arg(dayText(day));
}

} // namespace

SchedulingPage::SchedulingPage(std::shared_ptr<host::Item> item)
    : item_(std::move(item))
    , summary_(new QLabel)
    , list_(new QTreeWidget)
{
    summary_->setObjectName(QStringLiteral("schedulingSummary"));
    summary_->setWordWrap(true);
    list_->setObjectName(QStringLiteral("scheduling"));
    list_->setAccessibleName(QStringLiteral("Bookings of the same days"));
    list_->setRootIsDecorated(false);
    list_->setAllColumnsShowFocus(true);
    RoomyRows::giveTo(*list_);
    list_->setHeaderLabels({QStringLiteral("Day"), QStringLiteral("Time"), QStringLiteral("Subject")});
    auto* const layout = new QVBoxLayout{this};
    layout->addWidget(summary_);
    layout->addWidget(list_);
}

void SchedulingPage::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void SchedulingPage::refresh()
{
    if (isVisible() && !item_->isDeleted())
        attempt(this, [this] { read(); });
}

void SchedulingPage::read()
{
    const host::ItemRecord& own = item_->record();
    const Date from = host::dayOf(own.start);
    const Date to = host::plusDays(host::dayOf(own.end), 1);
    std::size_t overlaps = 0;
    list_->clear();
    for (const CalendarEntry& entry : host::entriesBetween(item_->model(), own.folder, from, to)) {
        if (own.id != host::ItemId::None && entry.item == own.id)
            continue;
        new QTreeWidgetItem{list_, {shortDayText(entry.start), hoursOf(entry), qtText(entry.subject)}};
        overlaps += entry.start.seconds() < own.end.seconds() && entry.end.seconds() > own.start.seconds() ? 1 : 0;
    }
    summary_->setText(summaryOf(overlaps, own.start));
    for (int column = 0; column < 2; ++column)
        list_->resizeColumnToContents(column);
}

} // namespace rf::native
